/* A record of named values: made, changed, read by name, walked, printed. */
#include "print.h"

int main(void)
{
    FldList* pipe = zu_FldList_create(ZU_W("TAG"), ZU_FLD_CHAR, ZU_W("P-101"), ZU_W("SIZE"), ZU_FLD_REAL, 114.3, NULL);
    zu_FldList_modInt(pipe, ZU_W("count"), 2);

    double size = 0;
    if (zu_FldList_getReal(pipe, ZU_W("size"), &size) == ZU_FLD_OK)
        printf("size %.1f\n", size);
    if (zu_FldList_getReal(pipe, ZU_W("weight"), &size) == ZU_FLD_NOT_FOUND)
        printf("no weight\n");

    for (zu_FldList_start(pipe); !zu_FldList_eol(pipe); zu_FldList_next(pipe)) {
        zu_wchar name[64];
        zu_wchar value[64];
        zu_FldList_currFldname(pipe, name);
        zu_FldList_currChar(pipe, value, 63);
        printf("%s = %s\n", utf8(name), utf8(value));
    }
    zu_FldList_destroy(pipe);
    return 0;
}
