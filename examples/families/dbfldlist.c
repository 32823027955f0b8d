/* A record by hand: its structure from a description, a value in it, and how it prints. */
#include "print.h"

int main(void)
{
    DbFldList* pipe = zu_DbFldList_create(ZU_W("tag"), ZU_W("P-101"), NULL);

    zu_wchar name[32];
    zu_wchar type = 0;
    uint32_t width = 0;
    uint32_t decimals = 0;
    if (zu_DbFldList_parseFldDesc(ZU_W("DIAMETER N010003"), name, &type, &width, &decimals) == 1)
        zu_DbFldList_insEnd(pipe, name, ZU_W("114.3"), width, decimals, type);

    zu_DbFldList_modFldVal(pipe, ZU_W("Tag"), ZU_W("P-102"));
    if (zu_DbFldList_findFld(pipe, ZU_W("diameter")) != NULL)
        printf("[%s] %.1f\n", utf8(zu_DbFldList_getCurrStrPadded(pipe)), zu_DbFldList_getCurrDouble(pipe));
    zu_DbFldList_printList(pipe);
    zu_DbFldList_destroy(pipe);
    return 0;
}
