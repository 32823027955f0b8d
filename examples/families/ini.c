/* Values and groups of an INI file. */
#include "print.h"

int main(void)
{
    zu_Host_setBuiltIn(1); /* without a host, the INI cache is the library's own */
    const zu_wchar* file = zu_Fname_fullPath(ZU_W("pipes.ini"));

    if (zu_Ini_set(file, ZU_W("PIPE.1"), ZU_W("SIZE"), ZU_W("114.3")) != 0)
        return 1;
    zu_Ini_set(file, ZU_W("PIPE.1"), ZU_W("CLASS"), ZU_W("CS150"));
    printf("size %s\n", utf8(zu_Ini_get(file, ZU_W("pipe.1"), ZU_W("size"))));
    printf("no weight: %s\n", utf8(zu_Ini_get(file, ZU_W("PIPE.1"), ZU_W("WEIGHT"))));
    printf("the next one is PIPE.%s\n", utf8(zu_Ini_getNextIncrSuffix(file, ZU_W("PIPE"))));

    FldList* group = zu_Ini_getGroup(file, ZU_W("PIPE.1"));
    for (zu_FldList_start(group); !zu_FldList_eol(group); zu_FldList_next(group)) {
        zu_wchar name[64];
        zu_wchar value[64];
        zu_FldList_currFldname(group, name);
        zu_FldList_currChar(group, value, 63);
        printf("%s=%s\n", utf8(name), utf8(value));
    }
    zu_FldList_destroy(group);
    return 0;
}
