/* A record of a table as the host's collection, and back. */
#include "print.h"

int main(void)
{
    zu_Host_setBuiltIn(1); /* without a host, its objects are the library's own */

    DbFldList* record = zu_DbFldList_create(ZU_W("TAG"), ZU_W("P-101"), ZU_W("DN"), ZU_W("100"), NULL);
    VARIANT collection;
    VariantInit(&collection);
    zu_ConvertDBFldListToKVFldList(record, &collection);

    DbFldList* again = NULL;
    if (collection.vt == VT_DISPATCH)
        zu_ConvertKVFldListToDBFldList((HostFieldCollection*)collection.pdispVal, &again);
    for (zu_DbFldList_start(again); !zu_DbFldList_eol(again); zu_DbFldList_next(again))
        printf("%s = %s\n", utf8(zu_DbFldList_getCurrName(again)), utf8(zu_DbFldList_getCurrStr(again)));

    zu_DbFldList_destroy(again);
    VariantClear(&collection);
    zu_DbFldList_destroy(record);
    return 0;
}
