/* A weighted sum. */
#include "print.h"

int main(void)
{
    Ntuple* weights = zu_Ntuple_create(4);
    Ntuple* values = zu_Ntuple_create(4);
    for (int32_t i = 0; i < 4; ++i) {
        zu_Ntuple_setElement(weights, i, 0.25);
        zu_Ntuple_setElement(values, i, i);
    }
    double sum = 0;
    if (zu_Ntuple_dotProduct(&sum, weights, values) == 1)
        printf("%.2f\n", sum);
    zu_Ntuple_print(values, NULL);

    zu_Ntuple_destroy(values);
    zu_Ntuple_destroy(weights);
    return 0;
}
