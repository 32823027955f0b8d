/* A name that stands for a directory. */
#include "print.h"

int main(void)
{
    zu_Alias_put(ZU_W("ROOT"), ZU_W("C:\\plant"));

    zu_wchar path[256];
    zu_Alias_expandStr(path, ZU_W("%root%\\specs\\%OTHER%"), 0);
    printf("%s\n", utf8(path));

    zu_Alias_del(ZU_W("ROOT"));
    printf("%d\n", zu_Alias_get(path, ZU_W("ROOT"), 255));
    return 0;
}
