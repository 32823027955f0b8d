/* States to go back to, the last one first. */
#include "print.h"

int main(void)
{
    char line[] = "line", arc[] = "arc";
    Stack* stack = zu_Stack_create(NULL);
    zu_Stack_push(stack, line);
    zu_Stack_push(stack, arc);

    while (!zu_Stack_empty(stack))
        printf("back to %s\n", (const char*)zu_Stack_pop(stack));

    zu_Stack_destroy(stack, NULL);
    return 0;
}
