/* Four counters, all 0 at first. */
#include "print.h"

static int32_t sameNumber(const void* element, const void* key)
{
    return *(const int32_t*)element - *(const int32_t*)key;
}

int main(void)
{
    const int32_t zero = 0;
    const int32_t seven = 7;
    Array* array = zu_Array_create(4, sizeof zero, &zero);

    zu_Array_setNth(array, 2, &seven, NULL);
    zu_Array_swap(array, 2, 3);
    for (uint64_t i = 0; i < zu_Array_size(array); ++i)
        printf("%d ", *(const int32_t*)zu_Array_getNth(array, i));
    printf("\nthe 7 stands at %d\n", (int)zu_Array_search(array, &seven, sameNumber));

    zu_Array_destroy(array, NULL);
    return 0;
}
