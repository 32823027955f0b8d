/** @file zu_Ray.h
 *  @ingroup geometry
 *  Rays: a point and a direction. The same record serves as a plane (zu_Plane.h).
 *
 *      Ray* ray = zu_Ray_create(&eye, &direction);
 *      zu_Ray_destroy(ray);
 *
 *  The record holds copies. Unless a comment says otherwise: outputs come first; the result is 1, or 0 for a null
 *  argument, and nothing is written then. Nothing traces.
 *
 *  @par Example
 *  @include plane.c
 */
#ifndef ZU_RAY_H
#define ZU_RAY_H

#include "zu_Vector.h"

ZU_EXTERN_C_BEGIN

/** A ray, or a plane. */
typedef struct Ray
{
    Point point;   /**< the origin, or a point of the plane */
    Vector vector; /**< the direction, or the plane's normal; of any length */
} Ray;

/** Makes a ray.
 *  @return a new ray, released with zu_Ray_destroy; null for null arguments and without memory. */
ZU_API Ray* zu_Ray_create(const Point* point, const Vector* direction);

/** Releases a ray, or any other single block of the library, so that it serves as the free callback of lists; null is
 *  ignored. @return 1, or 0 for null. */
ZU_API int32_t zu_Ray_destroy(void* record);

/** Stores origin and direction. */
ZU_API int32_t zu_Ray_set(Ray* ray, const Point* point, const Vector* direction);

/** Reads the origin. */
ZU_API int32_t zu_Ray_getPoint(Point* out, const Ray* ray);

/** Reads the direction. */
ZU_API int32_t zu_Ray_getVector(Vector* out, const Ray* ray);

ZU_EXTERN_C_END

#endif
