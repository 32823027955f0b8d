/** @file zu_LnkList.h
 *  @ingroup containers
 *  The generic list: a doubly linked list of untyped data pointers with a current position, the cursor, in its header.
 *  Every other list of the library is one of these, so any list can be passed to these operations.
 *
 *      LnkList* list = zu_LnkList_create(&a, &b, (void*)NULL);
 *      for (zu_LnkList_start(list); !zu_LnkList_eol(list); zu_LnkList_next(list))
 *          use(zu_LnkList_getCurr(list));
 *      zu_LnkList_destroy(list, NULL);
 *
 *  The list never owns its data: operations that drop elements take an optional callback that frees them. Positions are
 *  zero-based. A cursor that is null stands at the end of the list ("eol"). Insertions leave a cursor where it is, and
 *  do not set one, except where a comment says so.
 *
 *  @par Example
 *  @include lnklist.c
 */
#ifndef ZU_LNKLIST_H
#define ZU_LNKLIST_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** An element. */
typedef struct LnkNode
{
    void* data;           /**< may be null */
    struct LnkNode* next; /**< null at the tail */
    struct LnkNode* prev; /**< null at the head */
} LnkNode;

/** The list header; read it freely, change it only through the operations. */
typedef struct LnkList
{
    uint64_t count;   /**< number of nodes, a 32-bit value */
    LnkNode* first;   /**< null when empty */
    LnkNode* last;    /**< null when empty */
    LnkNode* current; /**< the cursor; null at the end of the list */
} LnkList;

/** Frees an element; called for non-null data only. The result is ignored. */
typedef int32_t (*zu_LnkListFreeCallback)(void* data);
/** Negative when a sorts before b, 0 when they are equal, positive otherwise. */
typedef int32_t (*zu_LnkListCompareCallback)(const void* a, const void* b);
/** Returns 0 when the element matches the key. */
typedef int32_t (*zu_LnkListSearchCallback)(const void* data, const void* key);

/** Makes a list of the pointers given, which end with a null pointer: zu_LnkList_create(a, b, (void*)NULL).
 *  @return a new list, released with zu_LnkList_destroy; null without memory. Current: the first element. */
ZU_API LnkList* zu_LnkList_create(void* data, ...);

/** Destroys the list and its nodes.
 *  @param freeData  called for each non-null element from the head; may be null.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_LnkList_destroy(LnkList* list, zu_LnkListFreeCallback freeData);

/** Empties the list; freeData as for zu_LnkList_destroy.
 *  @return 1, or 0 for null. Current: none. */
ZU_API int32_t zu_LnkList_delAll(LnkList* list, zu_LnkListFreeCallback freeData);

/** Inserts data as the new head.
 *  @return 1, or 0 for a null list or without memory. Current: unchanged, still none in a list that was empty. */
ZU_API int32_t zu_LnkList_insStart(LnkList* list, void* data);

/** Inserts data as the new tail; result and current as for zu_LnkList_insStart. */
ZU_API int32_t zu_LnkList_insEnd(LnkList* list, void* data);

/** Inserts data before the current element; without one, before the head.
 *  @return 1, or 0 for a null list or without memory. Current: the old element; the new one in a list that was empty.
 */
ZU_API int32_t zu_LnkList_insBefore(LnkList* list, void* data);

/** Inserts data after the current element; without one, after the tail. Result and current as for
 *  zu_LnkList_insBefore. */
ZU_API int32_t zu_LnkList_insAfter(LnkList* list, void* data);

/** Inserts data so that it becomes element index; past the end it is appended.
 *
 *  @param index  zero-based. A negative index, and the index of an element whose data is null, inserts after the
 *  current element.
 *  @return 1, or 0 for a null list or without memory.
 *  Current: the element that stood at index, or the old tail when data was appended. */
ZU_API int32_t zu_LnkList_insNth(LnkList* list, int32_t index, void* data);

/** Deletes the current element; freeData (may be null) is called with its non-null data.
 *  @return 1, or 0 without a current element. Current: the next element, or the new tail when the tail was deleted. */
ZU_API int32_t zu_LnkList_delCurr(LnkList* list, zu_LnkListFreeCallback freeData);

/** Moves to element index and deletes it as zu_LnkList_delCurr does.
 *  @return 1, or 0 when there is no such element or its data is null. Current when 0: as zu_LnkList_getNth leaves it.
 */
ZU_API int32_t zu_LnkList_delNth(LnkList* list, int32_t index, zu_LnkListFreeCallback freeData);

/** Moves to the head. @return 1 when the list is not empty. */
ZU_API int32_t zu_LnkList_start(LnkList* list);

/** Moves to the tail. @return 1 when the list is not empty. */
ZU_API int32_t zu_LnkList_end(LnkList* list);

/** Moves by a number of elements, backwards when negative, and stops when it runs off either end.
 *  @return 1 when there is still a current element, else 0. */
ZU_API int32_t zu_LnkList_skip(LnkList* list, int32_t steps);

/** Moves to the next element; result as for zu_LnkList_skip. */
ZU_API int32_t zu_LnkList_next(LnkList* list);

/** Moves to the previous element; result as for zu_LnkList_skip. */
ZU_API int32_t zu_LnkList_prev(LnkList* list);

/** @return 1 when the list is null or has no current element, else 0. A list that was only filled with
 *          zu_LnkList_insStart or zu_LnkList_insEnd has none yet. */
ZU_API int32_t zu_LnkList_eol(LnkList* list);

/** @return 1 when the current element is the tail; 1 also for an empty list; 0 for null. */
ZU_API int32_t zu_LnkList_isLast(LnkList* list);

/** @return the number of elements, 0 for null. */
ZU_API uint32_t zu_LnkList_length(LnkList* list);

/** @return the data of the current element, null without one. */
ZU_API void* zu_LnkList_getCurr(LnkList* list);

/** Replaces the data of the current element, after freeData (may be null) was called with the old non-null data.
 *  @return 1, or 0 without a current element. */
ZU_API int32_t zu_LnkList_modCurr(LnkList* list, void* data, zu_LnkListFreeCallback freeData);

/** Moves to element index and replaces its data as zu_LnkList_modCurr does.
 *  @return 1, or 0 when there is no such element or its data is null. */
ZU_API int32_t zu_LnkList_modNth(LnkList* list, int32_t index, void* data, zu_LnkListFreeCallback freeData);

/** Moves to element index.
 *  @return its data; null when there is no such element. Current: the element, or none past the end; unchanged for a
 *          negative index. */
ZU_API void* zu_LnkList_getNth(LnkList* list, int32_t index);

/** @return the index of the current element, -1 without one. */
ZU_API int32_t zu_LnkList_getPos(LnkList* list);

/** Moves to element index: the head for 0 and below, none past the end.
 *  @return 1, or 0 for a null list. */
ZU_API int32_t zu_LnkList_setPos(LnkList* list, int32_t index);

/** The data of element index, as zu_LnkList_getNth, without moving the cursor. A cursor at the end of the list ends on
 *  the head all the same, because there is no index for that position. */
ZU_API void* zu_LnkList_getNthSavePos(LnkList* list, int32_t index);

/** Looks from the head for the first non-null data that matches.
 *  @return the data, or null. Current: the element found, or none. */
ZU_API void* zu_LnkList_search(LnkList* list, const void* key, zu_LnkListSearchCallback matches);

/** Sorts the data by selection; the nodes and the cursor stay. Elements with null data stay where they are and are
 *  never compared. Not stable. */
ZU_API void zu_LnkList_sort(LnkList* list, zu_LnkListCompareCallback compare);

/** Sorts the data with about n log n comparisons; the nodes stay. Equal elements may change their order. Works in a
 *  block for twice the data pointers, or in place when it cannot be had.
 *
 *  Current: none; where there is nothing to sort (no two elements differ, or the head's data is null) list and cursor
 *  stay as they are. In a list that holds null data the callback receives it, the elements after a null one may stay
 *  unsorted, and an input that is sorted already takes n * n comparisons. */
ZU_API void zu_LnkList_qSort(LnkList* list, zu_LnkListCompareCallback compare);

/** The pivot for a partition: the larger of the first two different keys.
 *  @return its data; null when the list is empty, its head's data is null, or no element differs from the head. */
ZU_API void* zu_LnkList_findPivot(LnkList* list, zu_LnkListCompareCallback compare);

/** Splits the data of a list by a pivot into two chains: left receives what sorts before the pivot, right the rest.
 *
 *  The nodes of the list are cut into the two headers, whose first and last are set; their counts are not kept. The
 *  list's own first and last stay, and so does the order of the nodes. Null data is passed to the callback. A null
 *  list, header or callback, and the same header twice, change nothing. Current of the list: none. Current of right:
 *  the head of the list. */
ZU_API void zu_LnkList_partition(LnkList* list, LnkList* left, LnkList* right, void* pivot,
                                 zu_LnkListCompareCallback compare);

/** Appends all nodes of b to a and frees b's header.
 *  @return 1; 0 when either is null (nothing is freed) or both are the same list (nothing changes).
 *  Current of a: its head. */
ZU_API int32_t zu_LnkList_join(LnkList* a, LnkList* b);

/** Moves an element so that it ends at another index.
 *  @param from, to  0 or more and below the length.
 *  @return 1, or 0 when an index is out of range (nothing changes). Current: the element moved; unchanged when both
 *          indexes are equal. */
ZU_API int32_t zu_LnkList_move(LnkList* list, int32_t from, int32_t to);

ZU_EXTERN_C_END

#endif
