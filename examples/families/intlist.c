/* A list that owns its numbers. */
#include "print.h"

int main(void)
{
    const int32_t first = 50;
    IntList* list = zu_IntList_create(&first, NULL);
    zu_IntList_insEnd(list, 80);
    zu_IntList_insEnd(list, 100);

    int32_t sum = 0;
    for (zu_IntList_start(list); !zu_IntList_eol(list); zu_IntList_next(list))
        sum += *zu_IntList_getCurr(list);
    printf("%u numbers, sum %d\n", zu_IntList_length(list), sum);

    zu_IntList_destroy(list);
    return 0;
}
