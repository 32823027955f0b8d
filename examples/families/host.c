/* A program without a host, which wants INI files and the configuration directory all the same. */
#include "print.h"

int main(void)
{
    zu_wchar directory[ZU_SYS_PATH_SIZE + 1];

    zu_Host_setBuiltIn(0);
    printf("without: [%s]\n", utf8(zu_Sys_getCfgDir(directory)));

    zu_Host_setBuiltIn(1);
    zu_Global_destroyData(); /* the next use asks for the host anew */
    printf("built in: %s\n", zu_Sys_getCfgDir(directory)[0] != 0 ? "a directory" : "none");
    return 0;
}
