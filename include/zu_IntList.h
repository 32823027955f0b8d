/** @file zu_IntList.h
 *  @ingroup containers
 *  A list of owned 32-bit integers.
 *
 *      IntList* list = zu_IntList_create(&first, &second, (int32_t*)NULL);
 *      for (zu_IntList_start(list); !zu_IntList_eol(list); zu_IntList_next(list))
 *          sum += *zu_IntList_getCurr(list);
 *      zu_IntList_destroy(list);
 *
 *  An integer list is a generic list (zu_LnkList.h) whose elements are integer nodes.
 *
 *  @par Example
 *  @include intlist.c
 */
#ifndef ZU_INTLIST_H
#define ZU_INTLIST_H

#include "zu_LnkList.h"

ZU_EXTERN_C_BEGIN

/** A generic list whose data are integer nodes. */
typedef LnkList IntList;

/** An element. */
typedef struct IntListNode
{
    int32_t value; /**< the value */
} IntListNode;

/** Makes a list of copies of the values pointed to; the pointers end with a null pointer.
 *  @return a new list, released with zu_IntList_destroy; null without memory. Current: the first element. */
ZU_API IntList* zu_IntList_create(const int32_t* value, ...);

/** Destroys the list and its values. Null is ignored. */
ZU_API void zu_IntList_destroy(IntList* list);

/** Appends a value. Nothing happens for a null list and without memory. Current: unchanged. */
ZU_API void zu_IntList_insEnd(IntList* list, int32_t value);

/** Copies the list.
 *  @return a new list without a current element; empty for a null list; null without memory. */
ZU_API IntList* zu_IntList_copy(IntList* list);

/** @return the current value itself, which may be changed through the pointer; null without a current element. */
ZU_API int32_t* zu_IntList_getCurr(IntList* list);

/** The cursor operations of the generic list. */
ZU_API int32_t zu_IntList_start(IntList* list);
/** See zu_LnkList_next. */
ZU_API int32_t zu_IntList_next(IntList* list);
/** See zu_LnkList_eol. */
ZU_API int32_t zu_IntList_eol(IntList* list);
/** See zu_LnkList_length. */
ZU_API uint32_t zu_IntList_length(IntList* list);

/** @return a new node, released with zu_IntListNode_destroy; null without memory. */
ZU_API IntListNode* zu_IntListNode_create(int32_t value);

/** Releases a node that is in no list. Null is ignored. */
ZU_API void zu_IntListNode_destroy(IntListNode* node);

ZU_EXTERN_C_END

#endif
