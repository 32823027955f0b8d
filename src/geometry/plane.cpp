// Rays and planes.
#include "geometry/triples.h"
#include "zu_Memory.h"
#include "zu_Plane.h"

#include <cstddef>

static_assert(sizeof(Ray) == 48 && offsetof(Ray, point) == 0 && offsetof(Ray, vector) == 24);

using namespace zu::geometry;

Ray* zu_Ray_create(const Point* point, const Vector* direction)
{
    auto* const ray = areGiven(point, direction) ? static_cast<Ray*>(zu_Malloc(sizeof(Ray))) : nullptr;
    if (ray != nullptr)
        *ray = {*point, *direction};
    return ray;
}

int32_t zu_Ray_destroy(void* record)
{
    zu_Free(record);
    return record != nullptr;
}

int32_t zu_Ray_set(Ray* ray, const Point* point, const Vector* direction)
{
    if (!areGiven(ray, point, direction))
        return 0;
    *ray = {*point, *direction};
    return 1;
}

int32_t zu_Ray_getPoint(Point* out, const Ray* ray)
{
    if (!areGiven(out, ray))
        return 0;
    *out = ray->point;
    return 1;
}

int32_t zu_Ray_getVector(Vector* out, const Ray* ray)
{
    if (!areGiven(out, ray))
        return 0;
    *out = ray->vector;
    return 1;
}

Plane* zu_Plane_create(const Point* point, const Vector* normal)
{
    return zu_Ray_create(point, normal);
}

int32_t zu_Plane_destroy(void* record)
{
    return zu_Ray_destroy(record);
}

int32_t zu_Plane_set(Plane* plane, const Point* point, const Vector* normal)
{
    return zu_Ray_set(plane, point, normal);
}

int32_t zu_Plane_getPoint(Point* out, const Plane* plane)
{
    return zu_Ray_getPoint(out, plane);
}

int32_t zu_Plane_getOrthoVector(Vector* out, const Plane* plane)
{
    return zu_Ray_getVector(out, plane);
}

int32_t zu_Plane_intersectionWithRay(Point* out, const Plane* plane, const Ray* ray)
{
    if (!areGiven(out, plane, ray))
        return 0;
    Vector normal, direction, toPlane;
    // Vectors too short to be normalised stay so, and then the cosine is too small below.
    zu_Vector_copyNormalize(&normal, &plane->vector);
    zu_Vector_copyNormalize(&direction, &ray->vector);
    // Null where the ray starts on the plane's point, which is as good as any other.
    zu_Vector_computeVector(&toPlane, &ray->point, &plane->point);
    double cosine = 0.0, away = 0.0;
    zu_Vector_dotProduct(&cosine, &normal, &direction);
    zu_Vector_dotProduct(&away, &normal, &toPlane);
    return std::abs(cosine) > tolerance ? zu_Point_translateByVector(out, &ray->point, &direction, away / cosine) : 0;
}
