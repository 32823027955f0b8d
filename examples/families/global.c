/* The version of the library's file, and of one that is not loaded. */
#include "print.h"

#include <string.h>

int main(void)
{
    /* "0.1.0.0" for a library that calls itself "0.1.0". */
    const char* version = utf8(zu_Global_getModuleFileVersion(ZU_W("zu")));
    printf("file and library agree: %d\n", strncmp(version, zu_version(), strlen(zu_version())) == 0);
    printf("not loaded: [%s]\n", utf8(zu_Global_getModuleFileVersion(ZU_W("no_such_module"))));

    zu_Global_destroyData(); /* at the end: lets go of the host */
    return 0;
}
