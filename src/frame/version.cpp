#include "zu_Api.h"

#define ZU_TEXT_OF_(value) #value
#define ZU_TEXT_OF(value) ZU_TEXT_OF_(value)

const char* zu_version(void)
{
    return ZU_TEXT_OF(ZU_VERSION_MAJOR) "." ZU_TEXT_OF(ZU_VERSION_MINOR) "." ZU_TEXT_OF(ZU_VERSION_PATCH);
}
