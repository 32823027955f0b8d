#include "zu_Quaternion.h"

#include "geometry/triples.h"

#include <cstddef>

static_assert(sizeof(Quaternion) == 32 && offsetof(Quaternion, x) == 0 && offsetof(Quaternion, y) == 8 &&
              offsetof(Quaternion, z) == 16 && offsetof(Quaternion, w) == 24);

namespace {

using namespace zu::geometry;

double magnitudeOf(const Quaternion& q)
{
    return std::sqrt(q.w * q.w + q.x * q.x + q.y * q.y + q.z * q.z);
}

} // namespace

int32_t zu_Quaternion_set(Quaternion* quaternion, double x, double y, double z, double w)
{
    if (quaternion == nullptr)
        return 0;
    *quaternion = {x, y, z, w};
    return 1;
}

int32_t zu_Quaternion_setX(Quaternion* quaternion, double x)
{
    if (quaternion == nullptr)
        return 0;
    quaternion->x = x;
    return 1;
}

int32_t zu_Quaternion_setY(Quaternion* quaternion, double y)
{
    if (quaternion == nullptr)
        return 0;
    quaternion->y = y;
    return 1;
}

int32_t zu_Quaternion_setZ(Quaternion* quaternion, double z)
{
    if (quaternion == nullptr)
        return 0;
    quaternion->z = z;
    return 1;
}

int32_t zu_Quaternion_setVector(Quaternion* quaternion, const Vector* vector)
{
    if (!areGiven(quaternion, vector))
        return 0;
    *quaternion = {vector->x, vector->y, vector->z, quaternion->w};
    return 1;
}

int32_t zu_Quaternion_setScalar(Quaternion* quaternion, double w)
{
    if (quaternion == nullptr)
        return 0;
    quaternion->w = w;
    return 1;
}

int32_t zu_Quaternion_getX(double* x, const Quaternion* quaternion)
{
    if (!areGiven(x, quaternion))
        return 0;
    *x = quaternion->x;
    return 1;
}

int32_t zu_Quaternion_getY(double* y, const Quaternion* quaternion)
{
    if (!areGiven(y, quaternion))
        return 0;
    *y = quaternion->y;
    return 1;
}

int32_t zu_Quaternion_getZ(double* z, const Quaternion* quaternion)
{
    if (!areGiven(z, quaternion))
        return 0;
    *z = quaternion->z;
    return 1;
}

int32_t zu_Quaternion_getVector(Vector* out, const Quaternion* quaternion)
{
    return quaternion == nullptr ? 0 : zu_Vector_set(out, quaternion->x, quaternion->y, quaternion->z);
}

int32_t zu_Quaternion_getScalar(double* w, const Quaternion* quaternion)
{
    if (!areGiven(w, quaternion))
        return 0;
    *w = quaternion->w;
    return 1;
}

int32_t zu_Quaternion_getConjugate(Quaternion* out, const Quaternion* quaternion)
{
    if (!areGiven(out, quaternion))
        return 0;
    *out = {-quaternion->x, -quaternion->y, -quaternion->z, quaternion->w};
    return 1;
}

int32_t zu_Quaternion_getInverse(Quaternion* out, const Quaternion* quaternion)
{
    // Not divided by the squared magnitude: every quaternion that the family builds is normalised.
    return zu_Quaternion_getConjugate(out, quaternion);
}

int32_t zu_Quaternion_magnitude(double* out, const Quaternion* quaternion)
{
    if (!areGiven(out, quaternion))
        return 0;
    *out = magnitudeOf(*quaternion);
    return 1;
}

int32_t zu_Quaternion_normalize(Quaternion* out, const Quaternion* quaternion)
{
    if (!areGiven(out, quaternion))
        return 0;
    const double size = magnitudeOf(*quaternion);
    if (!(size > tolerance))
        return 0;
    *out = {quaternion->x / size, quaternion->y / size, quaternion->z / size, quaternion->w / size};
    return 1;
}

int32_t zu_Quaternion_multiply(Quaternion* out, const Quaternion* a, const Quaternion* b)
{
    if (!areGiven(out, a, b))
        return 0;
    const Vector va = as<Vector>(*a), vb = as<Vector>(*b);
    const Vector v = sum(sum(scaled(va, b->w), scaled(vb, a->w)), cross(va, vb));
    *out = {v.x, v.y, v.z, a->w * b->w - dot(va, vb)};
    return 1;
}

int32_t zu_Quaternion_fromRotAxisAndAngle(Quaternion* out, const Vector* axis, double angle)
{
    if (!areGiven(out, axis))
        return 0;
    const double sine = std::sin(angle / 2), cosine = std::cos(angle / 2);
    *out = {axis->x * sine, axis->y * sine, axis->z * sine, cosine};
    return zu_Quaternion_normalize(out, out);
}

int32_t zu_Quaternion_fromVectors(Quaternion* out, const Vector* from, const Vector* to)
{
    if (!areGiven(out, from, to))
        return 0;
    Vector unitFrom, unitTo, axis;
    double size = 0.0, cosine = 0.0;
    // Vectors too short stay as they are here; no axis is found for them below.
    zu_Vector_copyNormalize(&unitFrom, from);
    zu_Vector_copyNormalize(&unitTo, to);
    zu_Vector_crossProduct(&axis, &unitFrom, &unitTo);
    zu_Vector_magnitude(&size, &axis);
    if (size < tolerance) {
        // Parallel or opposite: any axis across serves, and this one is always the same.
        const Vector z = {0.0, 0.0, 1.0}, x = {1.0, 0.0, 0.0};
        zu_Vector_getOrthoVector(&axis, from, zu_Vector_parallel(from, &z) == 1 ? &x : &z);
    }
    if (zu_Vector_normalize(&axis) == 0)
        return 0;
    zu_Vector_dotProduct(&cosine, &unitFrom, &unitTo);
    const double angle = cosine > 0.99999 ? 0.0 : cosine < -0.99999 ? halfTurn : std::acos(cosine);
    return zu_Quaternion_fromRotAxisAndAngle(out, &axis, angle);
}
