/* A table, read row by row, changed and added to. Its columns are TAG VARCHAR(20) and DN INTEGER. */
#include "print.h"

int main(void)
{
    const int32_t pipes = zu_Db_openDb(ZU_W("pipes.db3"));
    if (pipes < 0)
        return 1;
    for (int32_t at = zu_Db_topRec(pipes, 0); at == ZU_DB_DONE; at = zu_Db_nextRec(pipes, 0))
        printf("%s\n", utf8(zu_Db_getFldStr(pipes, ZU_W("TAG"))));

    /* Change a row: find it, write it back. */
    zu_Db_topRec(pipes, 0);
    if (zu_Db_seekStr(ZU_W("P-102"), pipes, 0) == ZU_DB_DONE) {
        DbFldList* row = zu_Db_readRec(pipes, 0);
        zu_DbFldList_modFldVal(row, ZU_W("DN"), ZU_W("150"));
        zu_Db_modRec(pipes, row);
        zu_DbFldList_destroy(row);
    }

    /* Add one. */
    DbFldList* added = zu_DbFldList_create(ZU_W("TAG"), ZU_W("P-103"), ZU_W("DN"), ZU_W("80"), NULL);
    zu_Db_appRec(pipes);
    zu_Db_modRec(pipes, added);
    zu_DbFldList_destroy(added);

    zu_Db_topRec(pipes, 0);
    if (zu_Db_seekStr(ZU_W("P-102"), pipes, 0) == ZU_DB_DONE)
        printf("DN %s of P-102, %d rows\n", utf8(zu_Db_getFldStr(pipes, ZU_W("DN"))), zu_Db_getRecordCount(pipes));
    zu_Db_closeDb(pipes);
    return 0;
}
