// Queues and stacks differ in where they push.
#include "zu_Queue.h"
#include "zu_Stack.h"

Queue* zu_Queue_create(void*, ...)
{
    return zu_LnkList_create(nullptr);
}

int32_t zu_Queue_destroy(Queue* queue, zu_LnkListFreeCallback freeData)
{
    return zu_LnkList_destroy(queue, freeData);
}

int32_t zu_Queue_push(Queue* queue, void* data)
{
    const int32_t result = zu_LnkList_insEnd(queue, data);
    zu_LnkList_start(queue);
    return result;
}

void* zu_Queue_pop(Queue* queue)
{
    zu_LnkList_start(queue);
    void* const data = zu_LnkList_getCurr(queue);
    zu_LnkList_delCurr(queue, nullptr);
    return data;
}

int32_t zu_Queue_empty(Queue* queue)
{
    return zu_LnkList_length(queue) == 0;
}

uint32_t zu_Queue_length(Queue* queue)
{
    return zu_LnkList_length(queue);
}

Stack* zu_Stack_create(void*, ...)
{
    return zu_LnkList_create(nullptr);
}

int32_t zu_Stack_destroy(Stack* stack, zu_LnkListFreeCallback freeData)
{
    return zu_LnkList_destroy(stack, freeData);
}

int32_t zu_Stack_push(Stack* stack, void* data)
{
    const int32_t result = zu_LnkList_insStart(stack, data);
    zu_LnkList_start(stack);
    return result;
}

void* zu_Stack_pop(Stack* stack)
{
    return zu_Queue_pop(stack);
}

int32_t zu_Stack_empty(Stack* stack)
{
    return zu_Queue_empty(stack);
}
