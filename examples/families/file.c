/* A text file is written, copied, read line by line, and deleted. */
#include "print.h"

int main(void)
{
    FILE* stream = fopen("list.txt", "w");
    if (stream == NULL)
        return 1;
    fputs("P-101\n\nP-102\n", stream);
    fclose(stream);

    if (zu_File_copy(ZU_W("list.txt"), ZU_W("copy.txt")) != 0)
        return 1;
    StrList* lines = zu_File_readFile(ZU_W("copy.txt"));
    for (zu_StrList_start(lines); !zu_StrList_eol(lines); zu_StrList_next(lines))
        printf("%s\n", utf8(zu_StrList_getCurr(lines)));
    zu_StrList_destroy(lines);

    printf("readable: %d\n", zu_File_hasAccess(ZU_W("copy.txt"), 4));
    printf("deleted: %d\n", zu_File_delete(ZU_W("copy.*"), 0));
    remove("list.txt");
    return 0;
}
