/** @file zu_PointList.h
 *  @ingroup geometry
 *  Lists of points. Every insertion copies the caller's point, every deletion frees the copy.
 *
 *      PointList* list = zu_PointList_create(&a, &b, (void*)NULL);
 *      for (zu_PointList_start(list); !zu_PointList_eol(list); zu_PointList_next(list))
 *          use(zu_PointList_getCurr(list));
 *      zu_PointList_destroy(list);
 *
 *  A point list is a generic list (zu_LnkList.h): positions, cursor rules and results are those of the operations of
 *  the same name there. A null argument gives 0, null or what a comment says, and changes nothing. Nothing traces by
 *  itself.
 *
 *  @par Example
 *  @include pointlist.c
 */
#ifndef ZU_POINTLIST_H
#define ZU_POINTLIST_H

#include "zu_LnkList.h"
#include "zu_Point.h"

ZU_EXTERN_C_BEGIN

/** A generic list whose data are points of its own. */
typedef LnkList PointList;

/** Makes a list of copies of the points given, which end with a null pointer.
 *  @return a new list, released with zu_PointList_destroy; null without memory. Current: the first element. */
ZU_API PointList* zu_PointList_create(const Point* point, ...);

/** Destroys the list and its points. @return 1, or 0 for null. */
ZU_API int32_t zu_PointList_destroy(PointList* list);

/** Copies the list, its cursor aside; elements without data are left out.
 *  @return a new list; null for null and without memory. Current: the first element; of the source: unchanged. */
ZU_API PointList* zu_PointList_copy(PointList* list);

/** Inserts a copy of point as the new head.
 *  @return 1; 0 for a null list or point and without memory, the list is then unchanged. Current: as for
 *          zu_LnkList_insStart. */
ZU_API int32_t zu_PointList_insStart(PointList* list, const Point* point);

/** Inserts a copy of point as the new tail; see zu_PointList_insStart and zu_LnkList_insEnd. */
ZU_API int32_t zu_PointList_insEnd(PointList* list, const Point* point);

/** Inserts a copy of point before the current element; see zu_PointList_insStart and zu_LnkList_insBefore. */
ZU_API int32_t zu_PointList_insBefore(PointList* list, const Point* point);

/** Inserts a copy of point after the current element; see zu_PointList_insStart and zu_LnkList_insAfter. */
ZU_API int32_t zu_PointList_insAfter(PointList* list, const Point* point);

/** Inserts a copy of point so that it becomes element index; see zu_PointList_insStart and zu_LnkList_insNth. */
ZU_API int32_t zu_PointList_insNth(PointList* list, int32_t index, const Point* point);

/** Deletes the current element; see zu_LnkList_delCurr. */
ZU_API int32_t zu_PointList_delCurr(PointList* list);

/** Deletes element index; see zu_LnkList_delNth. */
ZU_API int32_t zu_PointList_delNth(PointList* list, int32_t index);

/** Empties the list. @return 1, or 0 for null. */
ZU_API int32_t zu_PointList_delAll(PointList* list);

/** @return the current point itself, owned by the list and valid until it is deleted or replaced; null without one. */
ZU_API Point* zu_PointList_getCurr(PointList* list);

/** @return a copy of the current point in a static buffer, valid until the next call; null without a current element.
 */
ZU_API Point* zu_PointList_getCurrCopy(PointList* list);

/** Moves to element index; see zu_LnkList_getNth.
 *  @return the point itself, as zu_PointList_getCurr; null when there is no such element. */
ZU_API Point* zu_PointList_getNth(PointList* list, int32_t index);

/** Replaces the current element by a copy of point; the old copy is freed.
 *  @return 1; 0 without a current element, for null and without memory, the element then stays. */
ZU_API int32_t zu_PointList_modCurr(PointList* list, const Point* point);

/** Moves to element index and replaces it. @return as zu_PointList_modCurr; 0 when there is no such element. */
ZU_API int32_t zu_PointList_modNth(PointList* list, int32_t index, const Point* point);

/** Looks for the element nearest to p; of several at the same distance the first.
 *  @param out  receives the element.
 *  @return its index; -1 for an empty list and for null arguments, out is then as it was. Current: none, except for
 *          null arguments. */
ZU_API int32_t zu_PointList_getClosestPoint(Point* out, const Point* p, PointList* list);

/** Looks for the LAST element that is equal to p (zu_Point_equalWithinTol).
 *  @param tol  in model units.
 *  @return its index; -1 without one and for null arguments. Current: none, except for null arguments. */
ZU_API int32_t zu_PointList_search(PointList* list, const Point* p, double tol);

/** Moves to the head; see zu_LnkList_start. */
ZU_API int32_t zu_PointList_start(PointList* list);

/** Moves to the tail; see zu_LnkList_end. */
ZU_API int32_t zu_PointList_end(PointList* list);

/** Moves to the next element; see zu_LnkList_next. */
ZU_API int32_t zu_PointList_next(PointList* list);

/** Moves to the previous element; see zu_LnkList_prev. */
ZU_API int32_t zu_PointList_prev(PointList* list);

/** Moves by a number of elements; see zu_LnkList_skip. */
ZU_API int32_t zu_PointList_skip(PointList* list, int32_t steps);

/** @return 1 when the list is null or has no current element, else 0. */
ZU_API int32_t zu_PointList_eol(PointList* list);

/** @return the number of elements, 0 for null. */
ZU_API uint32_t zu_PointList_length(PointList* list);

ZU_EXTERN_C_END

#endif
