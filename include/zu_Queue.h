/** @file zu_Queue.h
 *  @ingroup containers
 *  A first-in first-out list of untyped pointers, which stay the caller's.
 *
 *      Queue* queue = zu_Queue_create(NULL);
 *      zu_Queue_push(queue, job);
 *      while (!zu_Queue_empty(queue))
 *          run(zu_Queue_pop(queue));
 *      zu_Queue_destroy(queue, NULL);
 *
 *  A queue is a generic list (zu_LnkList.h), the next pointer to pop at its head.
 *
 *  @par Example
 *  @include queue.c
 */
#ifndef ZU_QUEUE_H
#define ZU_QUEUE_H

#include "zu_LnkList.h"

ZU_EXTERN_C_BEGIN

/** A generic list, its head the next to pop. */
typedef LnkList Queue;

/** Makes an empty queue; the arguments are ignored.
 *  @return a new queue, released with zu_Queue_destroy; null without memory. */
ZU_API Queue* zu_Queue_create(void* ignored, ...);

/** Destroys the queue.
 *  @param freeData  called for each non-null pointer that is left; may be null.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_Queue_destroy(Queue* queue, zu_LnkListFreeCallback freeData);

/** Appends a pointer. @return 1, or 0 for a null queue and without memory. Current: the head. */
ZU_API int32_t zu_Queue_push(Queue* queue, void* data);

/** Takes the pointer at the head off the queue.
 *  @return the pointer; null also for an empty or null queue, so test zu_Queue_empty. Current: the new head. */
ZU_API void* zu_Queue_pop(Queue* queue);

/** @return 1 when the queue is empty or null, else 0. */
ZU_API int32_t zu_Queue_empty(Queue* queue);

/** @return the number of pointers, 0 for null. */
ZU_API uint32_t zu_Queue_length(Queue* queue);

ZU_EXTERN_C_END

#endif
