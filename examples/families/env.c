/* A setting of the session, and texts that refer to it. */
#include "print.h"

int main(void)
{
    zu_Env_setSes(ZU_W("KVWS"), ZU_W("D:\\work"));
    printf("%s\n", utf8(zu_Env_getSes(ZU_W("kvws"))));
    printf("%s\n", utf8(zu_Env_expandStr(ZU_W("%KVWS%\\specs, 100%%, %UNKNOWN%"))));

    StrList* parts = zu_Env_split(ZU_W("D:\\a; D:\\b"));
    for (zu_StrList_start(parts); !zu_StrList_eol(parts); zu_StrList_next(parts))
        printf("%s\n", utf8(zu_StrList_getCurr(parts)));
    zu_StrList_destroy(parts);
    zu_Env_resetSes();
    return 0;
}
