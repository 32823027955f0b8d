/* A list of pointers to values that stay the caller's: filled, sorted, walked, searched. */
#include "print.h"

static int32_t bySize(const void* a, const void* b)
{
    const double difference = *(const double*)a - *(const double*)b;
    return (difference > 0) - (difference < 0);
}

int main(void)
{
    double sizes[] = {60.3, 21.3, 114.3};
    LnkList* list = zu_LnkList_create(NULL);
    for (int i = 0; i < 3; ++i)
        zu_LnkList_insEnd(list, &sizes[i]);

    zu_LnkList_qSort(list, bySize);
    for (zu_LnkList_start(list); !zu_LnkList_eol(list); zu_LnkList_next(list))
        printf("%.1f\n", *(const double*)zu_LnkList_getCurr(list));

    const double wanted = 60.3;
    if (zu_LnkList_search(list, &wanted, bySize) != NULL)
        printf("%.1f is element %d of %u\n", wanted, zu_LnkList_getPos(list), zu_LnkList_length(list));

    zu_LnkList_destroy(list, NULL);
    return 0;
}
