/** @file zu_Vector.h
 *  @ingroup geometry
 *  Vectors in space: directions with a length.
 *
 *      Vector along, across;
 *      zu_Vector_computeNormal(&along, &from, &to);               // unit vector
 *      zu_Vector_crossProduct(&across, &along, &up);
 *
 *  Axes are right-handed with +Z up: X x Y = Z. Components are in the units of the caller's model, angles in radians.
 *  Vectors are owned by the caller; no operation allocates.
 *
 *  Unless a comment says otherwise: outputs come first and may be one of the inputs; the result is 1 for success or
 *  "true" and 0 for failure or "false"; a null argument gives 0; after a failure the outputs are as they were.
 *
 *  The tolerance is 1e-5, applied with strict less-than to the plain quantities: a component, a dot product, the length
 *  of a cross product. For unit vectors the latter two are the cosine and the sine of the angle, for longer ones they
 *  grow with the lengths; that is meant.
 *
 *  @par Example
 *  @include vector.c
 */
#ifndef ZU_VECTOR_H
#define ZU_VECTOR_H

#include "zu_Point.h"

ZU_EXTERN_C_BEGIN

/** A vector; a value, laid out as a Point. */
struct Vector
{
    double x; /**< component along X */
    double y; /**< component along Y */
    double z; /**< component along Z, up */
};

/** A counted array of numbers: see zu_Ntuple.h, which defines it. */
typedef struct Ntuple Ntuple;

/** Stores the components. */
ZU_API int32_t zu_Vector_set(Vector* vector, double x, double y, double z);

/** Stores the X component. */
ZU_API int32_t zu_Vector_setX(Vector* vector, double x);
/** Stores the Y component. */
ZU_API int32_t zu_Vector_setY(Vector* vector, double y);
/** Stores the Z component. */
ZU_API int32_t zu_Vector_setZ(Vector* vector, double z);

/** Reads the X component. @param x  must not be null: the vector alone is checked. */
ZU_API int32_t zu_Vector_getX(double* x, const Vector* vector);
/** Reads the Y component; see zu_Vector_getX. */
ZU_API int32_t zu_Vector_getY(double* y, const Vector* vector);
/** Reads the Z component; see zu_Vector_getX. */
ZU_API int32_t zu_Vector_getZ(double* z, const Vector* vector);

/** The elements 0, 1 and 2 of an n-tuple. @return 1; 0 when it has fewer than three. */
ZU_API int32_t zu_Vector_fromNtuple(Vector* out, const Ntuple* ntuple);

/** Copies the coordinates of a point. */
ZU_API int32_t zu_Vector_fromPoint(Vector* out, const Point* point);

/** Copies a vector. */
ZU_API int32_t zu_Vector_copy(Vector* out, const Vector* vector);

/** @return 1 when the vectors differ by less than 1e-5 in each component. */
ZU_API int32_t zu_Vector_equal(const Vector* a, const Vector* b);

/** zu_Vector_equal with a tolerance of the caller's. */
ZU_API int32_t zu_Vector_equalWithinTol(const Vector* a, const Vector* b, double tol);

/** The length. @param out  must not be null: the vector alone is checked. */
ZU_API int32_t zu_Vector_magnitude(double* out, const Vector* vector);

/** The dot product. @param out  must not be null: the vectors alone are checked. */
ZU_API int32_t zu_Vector_dotProduct(double* out, const Vector* a, const Vector* b);

/** Gives a vector the length 1, in place.
 *  @return 1; 0 when its length is not above 1e-5, it is then unchanged. */
ZU_API int32_t zu_Vector_normalize(Vector* vector);

/** The unit vector of a direction. @return 1; 0 when the length is not above 1e-5, out is then a plain copy. */
ZU_API int32_t zu_Vector_copyNormalize(Vector* out, const Vector* vector);

/** out = a x b, right-handed. */
ZU_API int32_t zu_Vector_crossProduct(Vector* out, const Vector* a, const Vector* b);

/** zu_Vector_orthogonalWithinTolerance with 1e-5. */
ZU_API int32_t zu_Vector_orthogonal(const Vector* a, const Vector* b);

/** @return 1 when the dot product of a and b is less than tol away from 0. */
ZU_API int32_t zu_Vector_orthogonalWithinTolerance(const Vector* a, const Vector* b, double tol);

/** zu_Vector_parallelWithinTolerance with 1e-5. */
ZU_API int32_t zu_Vector_parallel(const Vector* a, const Vector* b);

/** @return 1 when the length of a x b is below tol. Opposite directions are parallel, and the null vector is parallel
 *          to everything. */
ZU_API int32_t zu_Vector_parallelWithinTolerance(const Vector* a, const Vector* b, double tol);

/** out = vector * factor. */
ZU_API int32_t zu_Vector_scale(Vector* out, const Vector* vector, double factor);

/** out = a + b. */
ZU_API int32_t zu_Vector_add(Vector* out, const Vector* a, const Vector* b);

/** out = b - a, the second operand minus the first, as zu_Point_subtract. */
ZU_API int32_t zu_Vector_subtract(Vector* out, const Vector* a, const Vector* b);

/** out = -vector. */
ZU_API int32_t zu_Vector_negate(Vector* out, const Vector* vector);

/** The vector from one point to another.
 *  @return 1; 0 when its length is not above 0. The difference is stored all the same. */
ZU_API int32_t zu_Vector_computeVector(Vector* out, const Point* from, const Point* to);

/** The unit vector from one point to another.
 *  @return 1; 0 when they are no more than 1e-5 apart, out is then the plain difference. */
ZU_API int32_t zu_Vector_computeNormal(Vector* out, const Point* from, const Point* to);

/** out = (a - origin) x (b - origin). @return 1; 0 when a or b is the origin. */
ZU_API int32_t zu_Vector_computeOrthovec(Vector* out, const Point* origin, const Point* a, const Point* b);

/** The unit normal of the plane through three points, in the direction of zu_Vector_computeOrthovec.
 *  @return 1; 0 when a or b is the origin (out stays), and when the cross product is no longer than 1e-5 (out receives
 *          it as it is). */
ZU_API int32_t zu_Vector_computeOrthonorm(Vector* out, const Point* origin, const Point* a, const Point* b);

/** @return 1 when the vector is orthogonal to (0, 0, 1): its z component is less than 1e-5 away from 0. */
ZU_API int32_t zu_Vector_isHorizontal(const Vector* vector);

/** @return 1 when the vector is parallel to (0, 0, 1): the length of (x, y) is below 1e-5. */
ZU_API int32_t zu_Vector_isVertical(const Vector* vector);

/** The part of unit(b) that is perpendicular to a, not normalised.
 *  @return 1; 0 when a or b is no longer than 1e-5, when unit(a) and unit(b) are the same or no more than 1e-5 apart,
 *          and when nothing remains (out is then the null vector). */
ZU_API int32_t zu_Vector_getOrthoVector(Vector* out, const Vector* a, const Vector* b);

/** The angle between two vectors.
 *  @param out  in radians, 0 to pi.
 *  @return 1; 0 when a or b is no longer than 1e-5. */
ZU_API int32_t zu_Vector_angle(double* out, const Vector* a, const Vector* b);

ZU_EXTERN_C_END

#endif
