#include "platform/com.h"

namespace zu::platform {

bool hasSystemComponents()
{
    return true;
}

} // namespace zu::platform
