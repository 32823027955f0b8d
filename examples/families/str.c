/* Blanks, comparison, keywords, tokens, line breaks. */
#include "print.h"

int main(void)
{
    zu_wchar name[64] = ZU_W("  Elbow 90 ");
    zu_Str_delBlks(name);
    if (zu_Str_cmpi(name, ZU_W("ELBOW 90")) == 0)
        printf("[%s]\n", utf8(zu_Str_lj(name, 12)));

    zu_wchar label[81] = ZU_W("size %DN%");
    printf("%s\n", utf8(zu_Str_replaceKeyword(label, ZU_W("DN"), ZU_W("%"), ZU_W("150"), 80)));

    printf("%s\n", utf8(zu_Str_getNthToken(ZU_W("P-101/PIPE/114.3"), ZU_W("/"), 1, NULL)));

    StrList* lines = zu_Str_wrapText(ZU_W("a note that is longer than its column"), 16);
    for (zu_StrList_start(lines); !zu_StrList_eol(lines); zu_StrList_next(lines))
        printf("| %s\n", utf8(zu_StrList_getCurr(lines)));
    zu_StrList_destroy(lines);
    return 0;
}
