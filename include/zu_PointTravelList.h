/** @file zu_PointTravelList.h
 *  @ingroup geometry
 *  Lists of labelled points, and a small registry that hands out numbers for them.
 *
 *      PointTravelList* path = zu_PointTravelList_create();
 *      zu_PointTravelList_insEnd(path, zu_PointTravelNode_create(&point, ZU_W("start"), NULL, 1));
 *      int32_t number = zu_PointTravelList_add(path);
 *      ...
 *      path = zu_PointTravelList_get(number);
 *
 *  A point-travel list is a generic list (zu_LnkList.h): cursor rules and results are those of the operations of the
 *  same name there. Nothing traces by itself.
 *
 *  @par Example
 *  @include pointtravellist.c
 */
#ifndef ZU_POINTTRAVELLIST_H
#define ZU_POINTTRAVELLIST_H

#include "zu_LnkList.h"
#include "zu_Point.h"

ZU_EXTERN_C_BEGIN

/** Units of a label, with its terminator. */
#define ZU_POINTTRAVEL_LABEL_SIZE 514

/** A labelled point. The library gives label and value no meaning. */
typedef struct PointTravelNode
{
    Point point;                               /**< the point */
    zu_wchar label[ZU_POINTTRAVEL_LABEL_SIZE]; /**< terminated */
    int32_t value;                             /**< of the caller's choice */
} PointTravelNode;

/** A generic list whose data are nodes. */
typedef LnkList PointTravelList;

/** Makes a labelled point.
 *
 *  @param point    copied.
 *  @param label    copied as a printf format without arguments, which is meant: "%%" becomes "%", and a conversion,
 *                  which would need an argument, stays as it stands. Cut at 513 units; null counts as empty.
 *  @param ignored  of no meaning.
 *  @return a new node, released with zu_PointTravelNode_destroy or with the list that it is put into; null for a null
 *          point and without memory. */
ZU_API PointTravelNode* zu_PointTravelNode_create(const Point* point, const zu_wchar* label, const void* ignored,
                                                  int32_t value);

/** Releases a node that is in no list; null is ignored. @return 1, or 0 for null. */
ZU_API int32_t zu_PointTravelNode_destroy(PointTravelNode* node);

/** Makes an empty list.
 *  @return a new list, released with zu_PointTravelList_destroy; null without memory. */
ZU_API PointTravelList* zu_PointTravelList_create(void);

/** Destroys the list and its nodes. A list that is registered stays registered and must not be asked for any more.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_PointTravelList_destroy(PointTravelList* list);

/** Appends a node, which belongs to the list from then on. @return 1; 0 for a null list or node and without memory: the
 *  node then still belongs to the caller. */
ZU_API int32_t zu_PointTravelList_insEnd(PointTravelList* list, PointTravelNode* node);

/** Moves to the head; see zu_LnkList_start. */
ZU_API int32_t zu_PointTravelList_start(PointTravelList* list);

/** Moves to the tail; see zu_LnkList_end. */
ZU_API int32_t zu_PointTravelList_end(PointTravelList* list);

/** Moves to the next node; see zu_LnkList_next. */
ZU_API int32_t zu_PointTravelList_next(PointTravelList* list);

/** Moves to the previous node; see zu_LnkList_prev. */
ZU_API int32_t zu_PointTravelList_prev(PointTravelList* list);

/** @return 1 when the list is null or has no current node, else 0. */
ZU_API int32_t zu_PointTravelList_eol(PointTravelList* list);

/** @return the current node itself, owned by the list; null without one. */
ZU_API PointTravelNode* zu_PointTravelList_getCurr(PointTravelList* list);

/** Registers a list. There is room for 50: each further registration takes the place of the oldest.
 *  @return the list's number, counted from 0; -1 for null, which is not registered. */
ZU_API int32_t zu_PointTravelList_add(PointTravelList* list);

/** @return the list registered under a number; null when there is none, or none any more. */
ZU_API PointTravelList* zu_PointTravelList_get(int32_t number);

ZU_EXTERN_C_END

#endif
