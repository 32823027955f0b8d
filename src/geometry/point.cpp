#include "zu_Point.h"

#include "containers/strlist.h"
#include "frame/trace.h"
#include "geometry/triples.h"

#include <cstddef>

// Hosts keep points and vectors in records of their own and read them directly.
static_assert(sizeof(Point) == 24 && offsetof(Point, x) == 0 && offsetof(Point, y) == 8 && offsetof(Point, z) == 16);

using namespace zu;
using namespace zu::geometry;

int32_t zu_Point_set(Point* point, double x, double y, double z)
{
    ZU_TRACE(point);
    if (point == nullptr)
        return 0;
    *point = {x, y, z};
    return 1;
}

int32_t zu_Point_setX(Point* point, double x)
{
    ZU_TRACE(point);
    if (point == nullptr)
        return 0;
    point->x = x;
    return 1;
}

int32_t zu_Point_setY(Point* point, double y)
{
    ZU_TRACE(point);
    if (point == nullptr)
        return 0;
    point->y = y;
    return 1;
}

int32_t zu_Point_setZ(Point* point, double z)
{
    ZU_TRACE(point);
    if (point == nullptr)
        return 0;
    point->z = z;
    return 1;
}

int32_t zu_Point_getX(double* x, const Point* point)
{
    ZU_TRACE(point);
    if (!areGiven(x, point))
        return 0;
    *x = point->x;
    return 1;
}

int32_t zu_Point_getY(double* y, const Point* point)
{
    ZU_TRACE(point);
    // The output is not checked, unlike that of getX: that is part of the contract.
    if (point == nullptr)
        return 0;
    *y = point->y;
    return 1;
}

int32_t zu_Point_getZ(double* z, const Point* point)
{
    ZU_TRACE(point);
    if (point == nullptr)
        return 0;
    *z = point->z;
    return 1;
}

int32_t zu_Point_equal(const Point* a, const Point* b)
{
    ZU_TRACE(point);
    return areGiven(a, b) && areEqual(*a, *b, tolerance);
}

int32_t zu_Point_equalWithinTol(const Point* a, const Point* b, double tol)
{
    ZU_TRACE_AS(point, "zu_Point_equal");
    return areGiven(a, b) && areEqual(*a, *b, tol);
}

void zu_Point_setToTolerance(Point* point)
{
    if (point == nullptr)
        return;
    for (double* const coordinate : {&point->x, &point->y, &point->z}) {
        if (std::abs(*coordinate) < tolerance)
            *coordinate = 0.0;
    }
}

int32_t zu_Point_fromVector(Point* out, const Vector* vector)
{
    ZU_TRACE(point);
    if (!areGiven(out, vector))
        return 0;
    *out = as<Point>(*vector);
    return 1;
}

int32_t zu_Point_copy(Point* out, const Point* point)
{
    ZU_TRACE(point);
    if (!areGiven(out, point))
        return 0;
    *out = *point;
    return 1;
}

int32_t zu_Point_distance(double* out, const Point* a, const Point* b)
{
    ZU_TRACE(point);
    if (!areGiven(out, a, b))
        return 0;
    *out = length(difference<Vector>(*a, *b));
    return 1;
}

int32_t zu_Point_add(Point* out, const Point* a, const Point* b)
{
    ZU_TRACE(point);
    if (!areGiven(out, a, b))
        return 0;
    *out = sum(*a, *b);
    return 1;
}

int32_t zu_Point_subtract(Point* out, const Point* a, const Point* b)
{
    ZU_TRACE(point);
    if (!areGiven(out, a, b))
        return 0;
    // The second minus the first, on purpose: the way from a to b.
    *out = difference<Point>(*a, *b);
    return 1;
}

int32_t zu_Point_midpoint(Point* out, const Point* a, const Point* b)
{
    ZU_TRACE(point);
    if (!areGiven(out, a, b))
        return 0;
    *out = {(a->x + b->x) / 2, (a->y + b->y) / 2, (a->z + b->z) / 2};
    return 1;
}

int32_t zu_Point_translateByVector(Point* out, const Point* p, const Vector* direction, double distance)
{
    ZU_TRACE(point);
    if (!areGiven(out, p, direction))
        return 0;
    // Copied first: out is p where the direction is too short.
    zu_Point_copy(out, p);
    Vector way;
    Point step;
    if (zu_Vector_copyNormalize(&way, direction) == 0 || zu_Vector_scale(&way, &way, distance) == 0 ||
        zu_Point_fromVector(&step, &way) == 0)
        return 0;
    return zu_Point_add(out, out, &step);
}

int32_t zu_Point_translateByAngle(Point* out, const Point* p, double angle, double distance)
{
    ZU_TRACE(point);
    if (!areGiven(out, p))
        return 0;
    const Point origin = {0.0, 0.0, 0.0};
    const Point ahead = {std::cos(angle), std::sin(angle), 0.0};
    Vector direction;
    return zu_Vector_computeNormal(&direction, &origin, &ahead) == 1 &&
           zu_Point_translateByVector(out, p, &direction, distance) == 1;
}

int32_t zu_Point_fromDelimitedString(Point* out, const zu_wchar* text, const zu_wchar* delimiters)
{
    if (out == nullptr)
        return 0;
    *out = {0.0, 0.0, 0.0};
    StrList* const items = zu_StrList_fromDelimitedString(text, delimiters);
    if (items == nullptr)
        return 0;
    const bool complete = items->count >= 2;
    if (complete) {
        const LnkNode* const second = items->first->next;
        out->x = text::toDouble(stringOf(items->first));
        out->y = text::toDouble(stringOf(second));
        out->z = text::toDouble(stringOf(second->next));
    }
    zu_StrList_destroy(items);
    return complete;
}
