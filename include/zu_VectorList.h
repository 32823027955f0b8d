/** @file zu_VectorList.h
 *  @ingroup geometry
 *  Lists of vectors. Every insertion copies the caller's vector, every deletion frees the copy.
 *
 *      VectorList* list = zu_VectorList_create(&a, &b, (void*)NULL);
 *      for (zu_VectorList_start(list); !zu_VectorList_eol(list); zu_VectorList_next(list))
 *          use(zu_VectorList_getCurr(list));
 *      zu_VectorList_destroy(list);
 *
 *  A vector list is a generic list (zu_LnkList.h): positions, cursor rules and results are those of the operations of
 *  the same name there. A null argument gives 0, null or what a comment says, and changes nothing. Nothing traces by
 *  itself.
 *
 *  @par Example
 *  @include vectorlist.c
 */
#ifndef ZU_VECTORLIST_H
#define ZU_VECTORLIST_H

#include "zu_LnkList.h"
#include "zu_Vector.h"

ZU_EXTERN_C_BEGIN

/** A generic list whose data are vectors of its own. */
typedef LnkList VectorList;

/** Makes a list of copies of the vectors given, which end with a null pointer.
 *  @return a new list, released with zu_VectorList_destroy; null without memory. Current: the first element. */
ZU_API VectorList* zu_VectorList_create(const Vector* vector, ...);

/** Destroys the list and its vectors. @return 1, or 0 for null. */
ZU_API int32_t zu_VectorList_destroy(VectorList* list);

/** Copies the list, its cursor aside; elements without data are left out.
 *  @return a new list; null for null and without memory. Current: the first element; of the source: unchanged. */
ZU_API VectorList* zu_VectorList_copy(VectorList* list);

/** Inserts a copy of vector as the new head.
 *  @return 1; 0 for a null list or vector and without memory, the list is then unchanged. Current: as for
 *          zu_LnkList_insStart. */
ZU_API int32_t zu_VectorList_insStart(VectorList* list, const Vector* vector);

/** Inserts a copy of vector as the new tail; see zu_VectorList_insStart and zu_LnkList_insEnd. */
ZU_API int32_t zu_VectorList_insEnd(VectorList* list, const Vector* vector);

/** Inserts a copy of vector before the current element; see zu_VectorList_insStart and zu_LnkList_insBefore. */
ZU_API int32_t zu_VectorList_insBefore(VectorList* list, const Vector* vector);

/** Inserts a copy of vector after the current element; see zu_VectorList_insStart and zu_LnkList_insAfter. */
ZU_API int32_t zu_VectorList_insAfter(VectorList* list, const Vector* vector);

/** Inserts a copy of vector so that it becomes element index; see zu_VectorList_insStart and zu_LnkList_insNth. */
ZU_API int32_t zu_VectorList_insNth(VectorList* list, int32_t index, const Vector* vector);

/** Deletes the current element; see zu_LnkList_delCurr. */
ZU_API int32_t zu_VectorList_delCurr(VectorList* list);

/** Deletes element index; see zu_LnkList_delNth. */
ZU_API int32_t zu_VectorList_delNth(VectorList* list, int32_t index);

/** Empties the list. @return 1, or 0 for null. */
ZU_API int32_t zu_VectorList_delAll(VectorList* list);

/** @return the current vector itself, owned by the list and valid until it is deleted or replaced; null without one. */
ZU_API Vector* zu_VectorList_getCurr(VectorList* list);

/** @return a copy of the current vector in a static buffer, valid until the next call; null without a current element.
 */
ZU_API Vector* zu_VectorList_getCurrCopy(VectorList* list);

/** Moves to element index; see zu_LnkList_getNth.
 *  @return the vector itself, as zu_VectorList_getCurr; null when there is no such element. */
ZU_API Vector* zu_VectorList_getNth(VectorList* list, int32_t index);

/** Replaces the current element by a copy of vector; the old copy is freed.
 *  @return 1; 0 without a current element, for null and without memory, the element then stays. */
ZU_API int32_t zu_VectorList_modCurr(VectorList* list, const Vector* vector);

/** Moves to element index and replaces it. @return as zu_VectorList_modCurr; 0 when there is no such element. */
ZU_API int32_t zu_VectorList_modNth(VectorList* list, int32_t index, const Vector* vector);

/** Looks for the element whose end lies nearest to the end of vector; of several at the same distance the first.
 *  @param out  receives the element.
 *  @return its index; -1 for an empty list and for null arguments, out is then as it was. Current: none, except for
 *          null arguments. */
ZU_API int32_t zu_VectorList_getClosestVector(Vector* out, const Vector* vector, VectorList* list);

/** Moves to the head; see zu_LnkList_start. */
ZU_API int32_t zu_VectorList_start(VectorList* list);

/** Moves to the tail; see zu_LnkList_end. */
ZU_API int32_t zu_VectorList_end(VectorList* list);

/** Moves to the next element; see zu_LnkList_next. */
ZU_API int32_t zu_VectorList_next(VectorList* list);

/** Moves to the previous element; see zu_LnkList_prev. */
ZU_API int32_t zu_VectorList_prev(VectorList* list);

/** Moves by a number of elements; see zu_LnkList_skip. */
ZU_API int32_t zu_VectorList_skip(VectorList* list, int32_t steps);

/** @return 1 when the list is null or has no current element, else 0. */
ZU_API int32_t zu_VectorList_eol(VectorList* list);

/** @return the number of elements, 0 for null. */
ZU_API uint32_t zu_VectorList_length(VectorList* list);

ZU_EXTERN_C_END

#endif
