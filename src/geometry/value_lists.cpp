// Lists of points and of vectors. They differ in nothing but the type of their elements, so both are written once.
#include "frame/trace.h"
#include "geometry/triples.h"
#include "zu_Memory.h"
#include "zu_PointList.h"
#include "zu_Ray.h"
#include "zu_VectorList.h"

#include <cstdarg>

namespace {

using namespace zu;
using namespace zu::geometry;

// Inserts a copy of value with one of the list's operations.
template <class T, class Insertion>
int32_t insertCopy(LnkList* list, const T* value, Insertion insertion)
{
    auto* const copy = areGiven(list, value) ? static_cast<T*>(zu_Malloc(sizeof(T))) : nullptr;
    if (copy == nullptr)
        return 0;
    *copy = *value;
    if (insertion(list, copy) == 1)
        return 1;
    zu_Ray_destroy(copy);
    return 0;
}

template <class T>
int32_t insertNth(LnkList* list, int32_t index, const T* value)
{
    return insertCopy(list, value, [index](LnkList* into, void* copy) { return zu_LnkList_insNth(into, index, copy); });
}

// The old copy is freed after the new one was made, so that value may be the old one.
template <class T>
int32_t replaceCurrent(LnkList* list, const T* value)
{
    return insertCopy(list, value,
                      [](LnkList* in, void* copy) { return zu_LnkList_modCurr(in, copy, zu_Ray_destroy); });
}

template <class T>
LnkList* createList(const T* first, va_list further)
{
    LnkList* const list = zu_LnkList_create(nullptr);
    bool complete = list != nullptr;
    for (const T* value = first; value != nullptr && complete; value = va_arg(further, const T*))
        complete = insertCopy(list, value, zu_LnkList_insEnd) == 1;
    if (!complete) {
        zu_LnkList_destroy(list, zu_Ray_destroy);
        return nullptr;
    }
    zu_LnkList_start(list);
    return list;
}

template <class T>
LnkList* copyList(const LnkList* list)
{
    LnkList* const copy = list == nullptr ? nullptr : zu_LnkList_create(nullptr);
    if (copy == nullptr)
        return nullptr;
    for (const LnkNode* node = list->first; node != nullptr; node = node->next) {
        if (node->data != nullptr && insertCopy(copy, static_cast<const T*>(node->data), zu_LnkList_insEnd) == 0) {
            zu_LnkList_destroy(copy, zu_Ray_destroy);
            return nullptr;
        }
    }
    zu_LnkList_start(copy);
    return copy;
}

// A copy of the current element in a buffer of the type's own.
template <class T>
T* copyOfCurrent(LnkList* list)
{
    static T copy;
    const auto* const current = static_cast<const T*>(zu_LnkList_getCurr(list));
    if (current == nullptr)
        return nullptr;
    copy = *current;
    return &copy;
}

// The squared distance between two ends; traces as the distance that it stands for.
template <class T>
double squaredDistance(const T& a, const T& b)
{
    ZU_TRACE_AS(point, "zu_Point_distance");
    const auto way = difference<Vector>(a, b);
    return dot(way, way);
}

template <class T>
int32_t findClosest(T* out, const T* value, LnkList* list)
{
    if (!areGiven(out, value, list))
        return -1;
    const T from = *value; // out may be value
    int32_t best = -1, index = 0;
    double bestSquare = 0.0;
    for (const LnkNode* node = list->first; node != nullptr; node = node->next, ++index) {
        const auto* const element = static_cast<const T*>(node->data);
        if (element == nullptr)
            continue;
        // It is distances that are compared. Their order is that of the squares, save that roots of different squares
        // can be equal: then the earlier element stays.
        const double square = squaredDistance(from, *element);
        if (best < 0 || (square < bestSquare && std::sqrt(square) < std::sqrt(bestSquare))) {
            best = index;
            bestSquare = square;
            *out = *element;
        }
    }
    list->current = nullptr;
    return best;
}

} // namespace

PointList* zu_PointList_create(const Point* point, ...)
{
    va_list further;
    va_start(further, point);
    PointList* const list = createList(point, further);
    va_end(further);
    return list;
}

int32_t zu_PointList_destroy(PointList* list)
{
    return zu_LnkList_destroy(list, zu_Ray_destroy);
}

PointList* zu_PointList_copy(PointList* list)
{
    return copyList<Point>(list);
}

int32_t zu_PointList_insStart(PointList* list, const Point* point)
{
    return insertCopy(list, point, zu_LnkList_insStart);
}

int32_t zu_PointList_insEnd(PointList* list, const Point* point)
{
    return insertCopy(list, point, zu_LnkList_insEnd);
}

int32_t zu_PointList_insBefore(PointList* list, const Point* point)
{
    return insertCopy(list, point, zu_LnkList_insBefore);
}

int32_t zu_PointList_insAfter(PointList* list, const Point* point)
{
    return insertCopy(list, point, zu_LnkList_insAfter);
}

int32_t zu_PointList_insNth(PointList* list, int32_t index, const Point* point)
{
    return insertNth(list, index, point);
}

int32_t zu_PointList_delCurr(PointList* list)
{
    return zu_LnkList_delCurr(list, zu_Ray_destroy);
}

int32_t zu_PointList_delNth(PointList* list, int32_t index)
{
    return zu_LnkList_delNth(list, index, zu_Ray_destroy);
}

int32_t zu_PointList_delAll(PointList* list)
{
    return zu_LnkList_delAll(list, zu_Ray_destroy);
}

Point* zu_PointList_getCurr(PointList* list)
{
    return static_cast<Point*>(zu_LnkList_getCurr(list));
}

Point* zu_PointList_getCurrCopy(PointList* list)
{
    return copyOfCurrent<Point>(list);
}

Point* zu_PointList_getNth(PointList* list, int32_t index)
{
    return static_cast<Point*>(zu_LnkList_getNth(list, index));
}

int32_t zu_PointList_modCurr(PointList* list, const Point* point)
{
    return replaceCurrent(list, point);
}

int32_t zu_PointList_modNth(PointList* list, int32_t index, const Point* point)
{
    return zu_LnkList_getNth(list, index) == nullptr ? 0 : replaceCurrent(list, point);
}

int32_t zu_PointList_getClosestPoint(Point* out, const Point* p, PointList* list)
{
    return findClosest(out, p, list);
}

int32_t zu_PointList_search(PointList* list, const Point* p, double tol)
{
    if (!areGiven(list, p))
        return -1;
    int32_t last = -1, index = 0;
    for (const LnkNode* node = list->first; node != nullptr; node = node->next, ++index) {
        if (zu_Point_equalWithinTol(static_cast<const Point*>(node->data), p, tol) == 1)
            last = index;
    }
    list->current = nullptr;
    return last;
}

int32_t zu_PointList_start(PointList* list)
{
    return zu_LnkList_start(list);
}

int32_t zu_PointList_end(PointList* list)
{
    return zu_LnkList_end(list);
}

int32_t zu_PointList_next(PointList* list)
{
    return zu_LnkList_next(list);
}

int32_t zu_PointList_prev(PointList* list)
{
    return zu_LnkList_prev(list);
}

int32_t zu_PointList_eol(PointList* list)
{
    return zu_LnkList_eol(list);
}

uint32_t zu_PointList_length(PointList* list)
{
    return zu_LnkList_length(list);
}

int32_t zu_PointList_skip(PointList* list, int32_t steps)
{
    return zu_LnkList_skip(list, steps);
}

VectorList* zu_VectorList_create(const Vector* vector, ...)
{
    va_list further;
    va_start(further, vector);
    VectorList* const list = createList(vector, further);
    va_end(further);
    return list;
}

int32_t zu_VectorList_destroy(VectorList* list)
{
    return zu_LnkList_destroy(list, zu_Ray_destroy);
}

VectorList* zu_VectorList_copy(VectorList* list)
{
    return copyList<Vector>(list);
}

int32_t zu_VectorList_insStart(VectorList* list, const Vector* vector)
{
    return insertCopy(list, vector, zu_LnkList_insStart);
}

int32_t zu_VectorList_insEnd(VectorList* list, const Vector* vector)
{
    return insertCopy(list, vector, zu_LnkList_insEnd);
}

int32_t zu_VectorList_insBefore(VectorList* list, const Vector* vector)
{
    return insertCopy(list, vector, zu_LnkList_insBefore);
}

int32_t zu_VectorList_insAfter(VectorList* list, const Vector* vector)
{
    return insertCopy(list, vector, zu_LnkList_insAfter);
}

int32_t zu_VectorList_insNth(VectorList* list, int32_t index, const Vector* vector)
{
    return insertNth(list, index, vector);
}

int32_t zu_VectorList_delCurr(VectorList* list)
{
    return zu_LnkList_delCurr(list, zu_Ray_destroy);
}

int32_t zu_VectorList_delNth(VectorList* list, int32_t index)
{
    return zu_LnkList_delNth(list, index, zu_Ray_destroy);
}

int32_t zu_VectorList_delAll(VectorList* list)
{
    return zu_LnkList_delAll(list, zu_Ray_destroy);
}

Vector* zu_VectorList_getCurr(VectorList* list)
{
    return static_cast<Vector*>(zu_LnkList_getCurr(list));
}

Vector* zu_VectorList_getCurrCopy(VectorList* list)
{
    return copyOfCurrent<Vector>(list);
}

Vector* zu_VectorList_getNth(VectorList* list, int32_t index)
{
    return static_cast<Vector*>(zu_LnkList_getNth(list, index));
}

int32_t zu_VectorList_modCurr(VectorList* list, const Vector* vector)
{
    return replaceCurrent(list, vector);
}

int32_t zu_VectorList_modNth(VectorList* list, int32_t index, const Vector* vector)
{
    return zu_LnkList_getNth(list, index) == nullptr ? 0 : replaceCurrent(list, vector);
}

int32_t zu_VectorList_getClosestVector(Vector* out, const Vector* vector, VectorList* list)
{
    return findClosest(out, vector, list);
}

int32_t zu_VectorList_start(VectorList* list)
{
    return zu_LnkList_start(list);
}

int32_t zu_VectorList_end(VectorList* list)
{
    return zu_LnkList_end(list);
}

int32_t zu_VectorList_next(VectorList* list)
{
    return zu_LnkList_next(list);
}

int32_t zu_VectorList_prev(VectorList* list)
{
    return zu_LnkList_prev(list);
}

int32_t zu_VectorList_eol(VectorList* list)
{
    return zu_LnkList_eol(list);
}

uint32_t zu_VectorList_length(VectorList* list)
{
    return zu_LnkList_length(list);
}

int32_t zu_VectorList_skip(VectorList* list, int32_t steps)
{
    return zu_LnkList_skip(list, steps);
}
