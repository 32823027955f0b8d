/** @file zu_Stack.h
 *  @ingroup containers
 *  A last-in first-out list of untyped pointers, which stay the caller's.
 *
 *      Stack* stack = zu_Stack_create(NULL);
 *      zu_Stack_push(stack, state);
 *      state = zu_Stack_pop(stack);
 *      zu_Stack_destroy(stack, NULL);
 *
 *  A stack is a generic list (zu_LnkList.h), its top at the head.
 *
 *  @par Example
 *  @include stack.c
 */
#ifndef ZU_STACK_H
#define ZU_STACK_H

#include "zu_LnkList.h"

ZU_EXTERN_C_BEGIN

/** A generic list, its head the top. */
typedef LnkList Stack;

/** Makes an empty stack; the arguments are ignored.
 *  @return a new stack, released with zu_Stack_destroy; null without memory. */
ZU_API Stack* zu_Stack_create(void* ignored, ...);

/** Destroys the stack.
 *  @param freeData  called for each non-null pointer that is left; may be null.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_Stack_destroy(Stack* stack, zu_LnkListFreeCallback freeData);

/** Puts a pointer on top. @return 1, or 0 for a null stack and without memory. Current: the head. */
ZU_API int32_t zu_Stack_push(Stack* stack, void* data);

/** Takes the pointer on top off the stack.
 *  @return the pointer; null also for an empty or null stack, so test zu_Stack_empty. Current: the new head. */
ZU_API void* zu_Stack_pop(Stack* stack);

/** @return 1 when the stack is empty or null, else 0. */
ZU_API int32_t zu_Stack_empty(Stack* stack);

ZU_EXTERN_C_END

#endif
