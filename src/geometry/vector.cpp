#include "zu_Vector.h"

#include "frame/trace.h"
#include "geometry/triples.h"
#include "zu_Ntuple.h"

#include <cstddef>

static_assert(sizeof(Vector) == 24 && offsetof(Vector, x) == 0 && offsetof(Vector, y) == 8 &&
              offsetof(Vector, z) == 16);

namespace {

using namespace zu;
using namespace zu::geometry;

constexpr double pi = 3.141592653589793;
constexpr Vector up = {0.0, 0.0, 1.0};

} // namespace

int32_t zu_Vector_set(Vector* vector, double x, double y, double z)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    *vector = {x, y, z};
    return 1;
}

int32_t zu_Vector_setX(Vector* vector, double x)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    vector->x = x;
    return 1;
}

int32_t zu_Vector_setY(Vector* vector, double y)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    vector->y = y;
    return 1;
}

int32_t zu_Vector_setZ(Vector* vector, double z)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    vector->z = z;
    return 1;
}

int32_t zu_Vector_getX(double* x, const Vector* vector)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    *x = vector->x;
    return 1;
}

int32_t zu_Vector_getY(double* y, const Vector* vector)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    *y = vector->y;
    return 1;
}

int32_t zu_Vector_getZ(double* z, const Vector* vector)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    *z = vector->z;
    return 1;
}

int32_t zu_Vector_fromNtuple(Vector* out, const Ntuple* ntuple)
{
    ZU_TRACE(vector);
    Vector read;
    if (out == nullptr || zu_Ntuple_getElement(&read.x, ntuple, 0) == 0 ||
        zu_Ntuple_getElement(&read.y, ntuple, 1) == 0 || zu_Ntuple_getElement(&read.z, ntuple, 2) == 0)
        return 0;
    *out = read;
    return 1;
}

int32_t zu_Vector_fromPoint(Vector* out, const Point* point)
{
    ZU_TRACE(vector);
    if (!areGiven(out, point))
        return 0;
    *out = as<Vector>(*point);
    return 1;
}

int32_t zu_Vector_copy(Vector* out, const Vector* vector)
{
    ZU_TRACE(vector);
    if (!areGiven(out, vector))
        return 0;
    *out = *vector;
    return 1;
}

int32_t zu_Vector_equal(const Vector* a, const Vector* b)
{
    ZU_TRACE(vector);
    return areGiven(a, b) && areEqual(*a, *b, tolerance);
}

int32_t zu_Vector_equalWithinTol(const Vector* a, const Vector* b, double tol)
{
    ZU_TRACE(vector);
    return areGiven(a, b) && areEqual(*a, *b, tol);
}

int32_t zu_Vector_magnitude(double* out, const Vector* vector)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    *out = length(*vector);
    return 1;
}

int32_t zu_Vector_dotProduct(double* out, const Vector* a, const Vector* b)
{
    ZU_TRACE(vector);
    if (!areGiven(a, b))
        return 0;
    *out = dot(*a, *b);
    return 1;
}

int32_t zu_Vector_normalize(Vector* vector)
{
    ZU_TRACE(vector);
    if (vector == nullptr)
        return 0;
    const double size = length(*vector);
    if (!(size > tolerance))
        return 0;
    *vector = {vector->x / size, vector->y / size, vector->z / size};
    return 1;
}

int32_t zu_Vector_copyNormalize(Vector* out, const Vector* vector)
{
    ZU_TRACE(vector);
    return zu_Vector_copy(out, vector) == 1 && zu_Vector_normalize(out) == 1;
}

int32_t zu_Vector_crossProduct(Vector* out, const Vector* a, const Vector* b)
{
    ZU_TRACE(vector);
    if (!areGiven(out, a, b))
        return 0;
    *out = cross(*a, *b);
    return 1;
}

int32_t zu_Vector_orthogonal(const Vector* a, const Vector* b)
{
    return zu_Vector_orthogonalWithinTolerance(a, b, tolerance);
}

int32_t zu_Vector_orthogonalWithinTolerance(const Vector* a, const Vector* b, double tol)
{
    ZU_TRACE(vector);
    return areGiven(a, b) && std::abs(dot(*a, *b)) < tol;
}

int32_t zu_Vector_parallel(const Vector* a, const Vector* b)
{
    return zu_Vector_parallelWithinTolerance(a, b, tolerance);
}

int32_t zu_Vector_parallelWithinTolerance(const Vector* a, const Vector* b, double tol)
{
    ZU_TRACE(vector);
    return areGiven(a, b) && length(cross(*a, *b)) < tol;
}

int32_t zu_Vector_scale(Vector* out, const Vector* vector, double factor)
{
    ZU_TRACE(vector);
    if (!areGiven(out, vector))
        return 0;
    *out = scaled(*vector, factor);
    return 1;
}

int32_t zu_Vector_add(Vector* out, const Vector* a, const Vector* b)
{
    ZU_TRACE(vector);
    if (!areGiven(out, a, b))
        return 0;
    *out = sum(*a, *b);
    return 1;
}

int32_t zu_Vector_subtract(Vector* out, const Vector* a, const Vector* b)
{
    ZU_TRACE(vector);
    if (!areGiven(out, a, b))
        return 0;
    // The second minus the first, on purpose.
    *out = difference<Vector>(*a, *b);
    return 1;
}

int32_t zu_Vector_negate(Vector* out, const Vector* vector)
{
    ZU_TRACE(vector);
    if (!areGiven(out, vector))
        return 0;
    *out = {-vector->x, -vector->y, -vector->z};
    return 1;
}

int32_t zu_Vector_computeVector(Vector* out, const Point* from, const Point* to)
{
    ZU_TRACE(vector);
    if (!areGiven(out, from, to))
        return 0;
    *out = difference<Vector>(*from, *to);
    return dot(*out, *out) > 0.0; // and so is the length, then
}

int32_t zu_Vector_computeNormal(Vector* out, const Point* from, const Point* to)
{
    ZU_TRACE(vector);
    return zu_Vector_computeVector(out, from, to) == 1 && zu_Vector_normalize(out) == 1;
}

int32_t zu_Vector_computeOrthovec(Vector* out, const Point* origin, const Point* a, const Point* b)
{
    ZU_TRACE(vector);
    Vector toA, toB;
    return zu_Vector_computeVector(&toA, origin, a) == 1 && zu_Vector_computeVector(&toB, origin, b) == 1 &&
           zu_Vector_crossProduct(out, &toA, &toB) == 1;
}

int32_t zu_Vector_computeOrthonorm(Vector* out, const Point* origin, const Point* a, const Point* b)
{
    ZU_TRACE(vector);
    return zu_Vector_computeOrthovec(out, origin, a, b) == 1 && zu_Vector_normalize(out) == 1;
}

int32_t zu_Vector_isHorizontal(const Vector* vector)
{
    return zu_Vector_orthogonal(vector, &up);
}

int32_t zu_Vector_isVertical(const Vector* vector)
{
    return zu_Vector_parallel(vector, &up);
}

int32_t zu_Vector_getOrthoVector(Vector* out, const Vector* a, const Vector* b)
{
    const Point origin = {0.0, 0.0, 0.0};
    Point endA, endB;
    return zu_Point_translateByVector(&endA, &origin, a, 1.0) == 1 &&
           zu_Point_translateByVector(&endB, &origin, b, 1.0) == 1 &&
           zu_Point_getOrthoVector(out, &origin, &endA, &endB) == 1;
}

int32_t zu_Vector_angle(double* out, const Vector* a, const Vector* b)
{
    if (!areGiven(out, a, b))
        return 0;
    const double lengthA = length(*a), lengthB = length(*b);
    if (!(lengthA > tolerance && lengthB > tolerance))
        return 0;
    // Rounding can carry the cosine just beyond its range.
    const double cosine = dot(*a, *b) / (lengthA * lengthB);
    *out = cosine > 1.0 ? 0.0 : cosine < -1.0 ? pi : std::acos(cosine);
    return 1;
}
