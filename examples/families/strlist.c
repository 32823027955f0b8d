/* A text taken apart, its items sorted without duplicates, and put together again. */
#include "print.h"

int main(void)
{
    StrList* list = zu_StrList_fromDelimitedString(ZU_W("tee; pipe; elbow; PIPE"), ZU_W(";"));
    list = zu_StrList_removeDuplicates(list, 1);
    zu_StrList_sort(list);
    for (zu_StrList_start(list); !zu_StrList_eol(list); zu_StrList_next(list))
        printf("%s\n", utf8(zu_StrList_getCurr(list)));

    zu_wchar* joined = zu_StrList_toDelimitedString(list, ZU_W(", "));
    printf("%u: %s\n", zu_StrList_count(list), utf8(joined));

    zu_Free(joined);
    zu_StrList_destroy(list);
    return 0;
}
