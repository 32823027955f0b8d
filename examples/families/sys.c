/* Where the files of an installation lie. */
#include "print.h"

int main(void)
{
    zu_wchar path[ZU_SYS_PATH_SIZE + 1];
    zu_Env_setSes(ZU_W("KV"), ZU_W("N:\\Plant"));
    zu_Env_setSes(ZU_W("KVSPECS"), ZU_W("N:\\Plant\\Specs"));

    printf("%s\n", utf8(zu_Sys_getNetDir(path)));
    printf("%s\n", utf8(zu_Sys_getBinName(path, ZU_W("Setup.exe"))));
    printf("%s\n", utf8(zu_Sys_getSpecName(path, ZU_W("piping"), ZU_W("dn.ini"))));
    printf("64 bits: %d\n", zu_Sys_is64bitSystem());
    return 0;
}
