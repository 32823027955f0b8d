/* The trace of the list operations that a piece of code makes, on the console. */
#include "print.h"

int main(void)
{
    LnkList* list = zu_LnkList_create(NULL);

    zu_Diag_setLevel(3);
    zu_Diag_setCondition(ZU_DIAG_LNKLIST);
    zu_LnkList_length(list);
    zu_Diag_disable();

    /* A line of one's own. */
    zu_Diag_putOutputMsg(ZU_W("import finished"), ZU_W("C:\\src\\Import.c"), 42);

    zu_LnkList_destroy(list, NULL);
    return 0;
}
