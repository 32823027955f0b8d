/** @file zu_Quaternion.h
 *  @ingroup geometry
 *  Quaternions as rotations: (x, y, z) = axis * sin(angle / 2), w = cos(angle / 2).
 *
 *      Quaternion turn;
 *      zu_Quaternion_fromVectors(&turn, &from, &to);
 *      zu_RotMatrix_fromQuaternion(matrix, &turn);
 *
 *  Rotations are right-handed, angles in radians. Quaternions are owned by the caller; no operation allocates or
 *  traces. The tolerance is 1e-5.
 *
 *  Unless a comment says otherwise: outputs come first and may be one of the inputs; the result is 1 for success and 0
 *  for failure; a null argument gives 0; after a failure the outputs are as they were.
 *
 *  @par Example
 *  @include quaternion.c
 */
#ifndef ZU_QUATERNION_H
#define ZU_QUATERNION_H

#include "zu_Vector.h"

ZU_EXTERN_C_BEGIN

/** A quaternion; a value. */
typedef struct Quaternion
{
    double x; /**< of the vector part, which is laid out as a Vector */
    double y; /**< of the vector part */
    double z; /**< of the vector part */
    double w; /**< the scalar part */
} Quaternion;

/** Stores the four parts. */
ZU_API int32_t zu_Quaternion_set(Quaternion* quaternion, double x, double y, double z, double w);

/** Stores x. */
ZU_API int32_t zu_Quaternion_setX(Quaternion* quaternion, double x);
/** Stores y. */
ZU_API int32_t zu_Quaternion_setY(Quaternion* quaternion, double y);
/** Stores z. */
ZU_API int32_t zu_Quaternion_setZ(Quaternion* quaternion, double z);
/** Stores x, y and z. */
ZU_API int32_t zu_Quaternion_setVector(Quaternion* quaternion, const Vector* vector);
/** Stores w. */
ZU_API int32_t zu_Quaternion_setScalar(Quaternion* quaternion, double w);

/** Reads x. */
ZU_API int32_t zu_Quaternion_getX(double* x, const Quaternion* quaternion);
/** Reads y. */
ZU_API int32_t zu_Quaternion_getY(double* y, const Quaternion* quaternion);
/** Reads z. */
ZU_API int32_t zu_Quaternion_getZ(double* z, const Quaternion* quaternion);
/** Reads x, y and z. */
ZU_API int32_t zu_Quaternion_getVector(Vector* out, const Quaternion* quaternion);
/** Reads w. */
ZU_API int32_t zu_Quaternion_getScalar(double* w, const Quaternion* quaternion);

/** out = (-x, -y, -z, w). */
ZU_API int32_t zu_Quaternion_getConjugate(Quaternion* out, const Quaternion* quaternion);

/** The conjugate, which is the inverse of a unit quaternion. There is no division by the squared magnitude: that is
 *  meant, since every quaternion that the family builds is normalised. */
ZU_API int32_t zu_Quaternion_getInverse(Quaternion* out, const Quaternion* quaternion);

/** The square root of w*w + x*x + y*y + z*z. */
ZU_API int32_t zu_Quaternion_magnitude(double* out, const Quaternion* quaternion);

/** out = quaternion / magnitude. @return 1; 0 when the magnitude is not above 1e-5. */
ZU_API int32_t zu_Quaternion_normalize(Quaternion* out, const Quaternion* quaternion);

/** out = a b, the Hamilton product: the rotation b followed by the rotation a. */
ZU_API int32_t zu_Quaternion_multiply(Quaternion* out, const Quaternion* a, const Quaternion* b);

/** The rotation about an axis.
 *
 *  @param axis   of length 1: it is not normalised, and another length changes the angle that results.
 *  @param angle  in radians, right-handed about the axis.
 *  @return 1; 0 when what axis and angle give is no longer than 1e-5; out is that, then. */
ZU_API int32_t zu_Quaternion_fromRotAxisAndAngle(Quaternion* out, const Vector* axis, double angle);

/** The shortest rotation that turns the direction of one vector into that of another.
 *
 *  For parallel and opposite directions the axis is the part of (0, 0, 1) that is perpendicular to from; where from is
 *  parallel to (0, 0, 1), that of (1, 0, 0). Directions whose cosine is above 0.99999 give no rotation, those whose
 *  cosine is below -0.99999 one by 3.1415926536.
 *  @return 1; 0 when no axis can be found, as for a vector no longer than 1e-5. */
ZU_API int32_t zu_Quaternion_fromVectors(Quaternion* out, const Vector* from, const Vector* to);

ZU_EXTERN_C_END

#endif
