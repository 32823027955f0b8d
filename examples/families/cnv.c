/* Degrees for people, radians for the library. */
#include "print.h"

int main(void)
{
    printf("%.6f\n", zu_Cnv_dtor(90));
    printf("%.1f\n", zu_Cnv_rtod(zu_Cnv_dtor(22.5)));
    return 0;
}
