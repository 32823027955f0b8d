/** @file zu_TMatrix.h
 *  @ingroup geometry
 *  Transformation matrices: matrices (zu_Matrix.h) of 4 rows and 4 columns that turn and move points. The upper left
 *  block of 3 x 3 is the rotation, column 3 the origin, row 3 is (0, 0, 0, 1).
 *
 *      TMatrix* move = zu_TMatrix_create();
 *      zu_TMatrix_createFromUCS(move, &o1, &x1, &y1, &o2, &x2, &y2);
 *      for (int i = 0; i < count; ++i)
 *          zu_TMatrix_xform(&placed[i], move, &points[i]);
 *      zu_TMatrix_destroy(move);
 *
 *  Vectors are columns: a point p becomes R p + origin. Axes are right-handed, angles in radians, lengths in the units
 *  of the caller's model; the tolerance is 1e-5 with strict less-than.
 *
 *  Unless a comment says otherwise: outputs come first and may be one of the inputs; the result is 1 for success and 0
 *  for failure; a null argument and a matrix that is too small give 0; after a failure the outputs are as they were.
 *
 *  @par Example
 *  @include tmatrix.c
 */
#ifndef ZU_TMATRIX_H
#define ZU_TMATRIX_H

#include "zu_RotMatrix.h"

ZU_EXTERN_C_BEGIN

/** A matrix of 4 x 4. */
typedef Matrix TMatrix;

/** Makes an identity.
 *  @return a new matrix, released with zu_TMatrix_destroy; null without memory. */
ZU_API TMatrix* zu_TMatrix_create(void);

/** Destroys a matrix; null is ignored. @return 1, or 0 for null. */
ZU_API int32_t zu_TMatrix_destroy(TMatrix* matrix);

/** Stores rotation and origin; mRC is row R, column C, and row 3 becomes (0, 0, 0, 1). */
ZU_API int32_t zu_TMatrix_set(TMatrix* matrix, double m00, double m01, double m02, double m03, double m10, double m11,
                              double m12, double m13, double m20, double m21, double m22, double m23);

/** Makes the matrix the identity. */
ZU_API int32_t zu_TMatrix_setIdentity(TMatrix* matrix);

/** Stores the origin. */
ZU_API int32_t zu_TMatrix_setOrigin(TMatrix* matrix, const Point* origin);

/** Reads the origin. */
ZU_API int32_t zu_TMatrix_getOrigin(Point* out, const TMatrix* matrix);

/** Stores the rotation and makes row 3 (0, 0, 0, 1); the origin is kept. */
ZU_API int32_t zu_TMatrix_setRMatrix(TMatrix* matrix, const RotMatrix* rotation);

/** Reads the rotation. */
ZU_API int32_t zu_TMatrix_getRMatrix(RotMatrix* out, const TMatrix* matrix);

/** The transformation that has the origin of matrix and the rotation by three angles, as zu_RotMatrix_rotate makes it
 *  of the identity. The rotation of matrix is discarded. */
ZU_API int32_t zu_TMatrix_rotate(TMatrix* out, const TMatrix* matrix, double angleX, double angleY, double angleZ);

/** out = R in + origin.
 *  @param out  must not be in.
 *  A null argument, and a matrix with fewer than 3 rows or 4 columns, leaves out as it was. */
ZU_API void zu_TMatrix_xform(Point* out, const TMatrix* matrix, const Point* in);

/** The translation that moves from to to. */
ZU_API int32_t zu_TMatrix_createForTranslation(TMatrix* matrix, const Point* from, const Point* to);

/** The transformation that carries what is placed relative to one system to the same place relative to another.
 *
 *  @param o1, x1, y1  origin, a point on the X axis and a point in the XY plane of the first system.
 *  @param o2, x2, y2  the same of the second system.
 *  @return 1. Systems whose unit vectors from o to x and from x to y agree within 1e-5 give a plain translation by
 *          o2 - o1. A system from which zu_RotMatrix_from3Points can make no rotation counts as unrotated; that is not
 *          reported. */
ZU_API int32_t zu_TMatrix_createFromUCS(TMatrix* out, const Point* o1, const Point* x1, const Point* y1,
                                        const Point* o2, const Point* x2, const Point* y2);

ZU_EXTERN_C_END

#endif
