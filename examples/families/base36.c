/* Numbers for parts, with digits and letters. */
#include "print.h"

int main(void)
{
    zu_wchar number[11] = ZU_W("A9Z");
    for (int i = 0; i < 3; ++i) {
        printf("%s\n", utf8(number));
        zu_Base36_increment(number, 1);
    }
    printf("%s is %.0f\n", utf8(ZU_W("ZZ")), zu_Base36_toBase10(ZU_W("ZZ")));
    return 0;
}
