/* Jobs, done in the order in which they came. */
#include "print.h"

int main(void)
{
    char cut[] = "cut", weld[] = "weld", paint[] = "paint";
    Queue* queue = zu_Queue_create(NULL);
    zu_Queue_push(queue, cut);
    zu_Queue_push(queue, weld);
    zu_Queue_push(queue, paint);

    while (!zu_Queue_empty(queue)) {
        const char* job = zu_Queue_pop(queue);
        printf("%s, %u left\n", job, zu_Queue_length(queue));
    }
    zu_Queue_destroy(queue, NULL);
    return 0;
}
