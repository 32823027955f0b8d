/* A first program: a pipe as a record, its tag in capitals, and the way it runs. */
#include "print.h" /* includes zu.h */

int main(void)
{
    FldList* pipe = zu_FldList_create(ZU_W("TAG"), ZU_FLD_CHAR, ZU_W("p-101"), ZU_W("SIZE"), ZU_FLD_REAL, 114.3, NULL);
    zu_wchar tag[32];
    double size = 0;
    if (zu_FldList_getChar(pipe, ZU_W("tag"), tag, 31) == ZU_FLD_OK &&
        zu_FldList_getReal(pipe, ZU_W("size"), &size) == ZU_FLD_OK) {
        zu_Str_toUpper(tag, tag);
        printf("%s: %.1f mm\n", utf8(tag), size);
    }
    zu_FldList_destroy(pipe);
    return 0;
}
