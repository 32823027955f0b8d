/* A directory is made, listed and removed again. */
#include "print.h"

int main(void)
{
    zu_Host_setBuiltIn(1); /* without a host, the file service is the library's own */

    if (zu_Dir_exists(ZU_W("jobs\\new")) == 0 && zu_Dir_create(ZU_W("jobs\\new")) != 0)
        return 1;
    StrList* entries = zu_Dir_list(ZU_W("jobs\\n*"));
    for (zu_StrList_start(entries); !zu_StrList_eol(entries); zu_StrList_next(entries))
        printf("%s\n", utf8(zu_StrList_getCurr(entries)));
    zu_StrList_destroy(entries);

    printf("removed: %d\n", zu_Dir_deleteTree(ZU_W("jobs")));
    printf("there: %d\n", zu_Dir_exists(ZU_W("jobs")));
    return 0;
}
