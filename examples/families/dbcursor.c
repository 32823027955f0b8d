/* Rows of several tables in one list. */
#include "print.h"

int main(void)
{
    DbCursor* rows = zu_DbCursor_create();
    zu_DbCursor_insEnd(rows, ZU_W("pipes"), zu_DbFldList_create(ZU_W("TAG"), ZU_W("P-101"), NULL));
    zu_DbCursor_insEnd(rows, ZU_W("pumps"), zu_DbFldList_create(ZU_W("TAG"), ZU_W("U-201"), NULL));

    for (zu_DbCursor_start(rows); !zu_DbCursor_eol(rows); zu_DbCursor_next(rows)) {
        DbFldList* row = zu_DbCursor_getCurrFldList(rows);
        printf("%s: %s\n", utf8(zu_DbCursor_getCurrTblName(rows)), utf8(zu_DbFldList_getFldVal(row, ZU_W("tag"))));
    }
    zu_DbCursor_destroy(rows);
    return 0;
}
