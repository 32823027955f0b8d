/** @file zu_Plane.h
 *  @ingroup geometry
 *  Planes: a point of the plane and its normal, in the record of a ray (zu_Ray.h).
 *
 *      if (zu_Plane_intersectionWithRay(&hit, plane, ray) == 1)
 *          use(&hit);
 *
 *  Results and null rules are those of zu_Ray.h. Nothing traces.
 *
 *  @par Example
 *  @include plane.c
 */
#ifndef ZU_PLANE_H
#define ZU_PLANE_H

#include "zu_Ray.h"

ZU_EXTERN_C_BEGIN

/** A plane: point lies on it, vector is its normal. */
typedef Ray Plane;

/** Makes a plane.
 *  @return a new plane, released with zu_Plane_destroy; null for null arguments and without memory. */
ZU_API Plane* zu_Plane_create(const Point* point, const Vector* normal);

/** Releases a plane; the same operation as zu_Ray_destroy. */
ZU_API int32_t zu_Plane_destroy(void* record);

/** Stores point and normal. */
ZU_API int32_t zu_Plane_set(Plane* plane, const Point* point, const Vector* normal);

/** Reads the point. */
ZU_API int32_t zu_Plane_getPoint(Point* out, const Plane* plane);

/** Reads the normal. */
ZU_API int32_t zu_Plane_getOrthoVector(Vector* out, const Plane* plane);

/** The point where the line of a ray meets a plane, also behind the ray's origin.
 *  @return 1; 0 when the cosine between direction and normal is no more than 1e-5 away from 0, or one of them is no
 *          longer than 1e-5. */
ZU_API int32_t zu_Plane_intersectionWithRay(Point* out, const Plane* plane, const Ray* ray);

ZU_EXTERN_C_END

#endif
