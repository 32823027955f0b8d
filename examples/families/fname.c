/* Parts of file names. No file has to exist. */
#include "print.h"

int main(void)
{
    zu_wchar name[260] = ZU_W("D:\\specs\\pipe.txt");
    zu_Fname_addExt(name, ZU_W("dat"));
    printf("%s\n", utf8(name));

    zu_wchar part[260];
    zu_Fname_extractPath(name, part);
    printf("%s\n", utf8(part));
    zu_Fname_rmvPath(name);
    zu_Fname_rmvExt(name);
    printf("%s\n", utf8(name));

    zu_Fname_build(part, ZU_W("D"), ZU_W("\\jobs"), name, ZU_W("ini"));
    printf("%s\n", utf8(part));
    printf("%s\n", utf8(zu_Fname_abbreviate(ZU_W("D:\\projects\\plant\\area 12\\pipes.db3"), 24)));
    return 0;
}
