/* How long a piece of work takes. */
#include "print.h"

int main(void)
{
    zu_Timer_create(ZU_W("import"));
    volatile double sum = 0;
    for (int i = 0; i < 1000; ++i)
        sum = sum + i;
    const double seconds = zu_Timer_delete(ZU_W("import"));

    printf("%s\n", seconds >= 0 && seconds < 60 ? "less than a minute" : "too long");
    printf("without a timer: %.1f\n", zu_Timer_check(ZU_W("import")));
    return 0;
}
