/* The expressions of an index, and the failure that all work on data files reports. */
#include "print.h"

int main(void)
{
    StrList* tags = zu_Cb_parseTagInfo(ZU_W("TAG, LINE  DN"));
    for (zu_StrList_start(tags); !zu_StrList_eol(tags); zu_StrList_next(tags))
        printf("%s\n", utf8(zu_StrList_getCurr(tags)));
    zu_StrList_destroy(tags);

    if (zu_Cb_createNdx(ZU_W("pipes.dbf"), ZU_W("TAG"), 0) == 0)
        printf("no index\n");
    return 0;
}
