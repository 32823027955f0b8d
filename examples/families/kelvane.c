/* The base section, here that of the built-in host. */
#include "print.h"

int main(void)
{
    zu_Host_setBuiltIn(1);
    printf("%s\n", utf8(zu_Kelvane_getBaseSectionName()));
    return 0;
}
