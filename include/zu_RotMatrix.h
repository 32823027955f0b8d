/** @file zu_RotMatrix.h
 *  @ingroup geometry
 *  Rotation matrices: matrices (zu_Matrix.h) of 3 rows and 3 columns that turn points and vectors.
 *
 *      RotMatrix* turn = zu_RotMatrix_create();
 *      zu_RotMatrix_fromRotAxisAndAngle(turn, &axis, angle);
 *      zu_RotMatrix_rotatePoint(&point, turn);
 *      zu_RotMatrix_destroy(turn);
 *
 *  Vectors are columns: a point p turns into M p. The columns of a rotation that was built from a local system are the
 *  X, Y and Z axes of that system in world coordinates. Axes are right-handed, angles in radians, the tolerance is 1e-5
 *  with strict less-than.
 *
 *  Unless a comment says otherwise: outputs come first and may be one of the inputs; the result is 1 for success or
 *  "true" and 0 for failure or "false"; a null argument, an index outside 0 to 2 and a matrix that is too small give 0;
 *  after a failure the outputs are as they were.
 *
 *  @par Example
 *  @include rotmatrix.c
 */
#ifndef ZU_ROTMATRIX_H
#define ZU_ROTMATRIX_H

#include "zu_Matrix.h"
#include "zu_Quaternion.h"

ZU_EXTERN_C_BEGIN

/** A matrix of 3 x 3. */
typedef Matrix RotMatrix;

/** Makes an identity.
 *  @return a new matrix, released with zu_RotMatrix_destroy; null without memory. */
ZU_API RotMatrix* zu_RotMatrix_create(void);

/** Destroys a matrix; null is ignored. @return 1, or 0 for null. */
ZU_API int32_t zu_RotMatrix_destroy(RotMatrix* matrix);

/** Stores all elements; mRC is row R, column C. */
ZU_API int32_t zu_RotMatrix_set(RotMatrix* matrix, double m00, double m01, double m02, double m10, double m11,
                                double m12, double m20, double m21, double m22);

/** Stores an element. */
ZU_API int32_t zu_RotMatrix_setElement(RotMatrix* matrix, int32_t row, int32_t column, double value);

/** Reads an element. */
ZU_API int32_t zu_RotMatrix_getElement(double* out, const RotMatrix* matrix, int32_t row, int32_t column);

/** Stores a row. */
ZU_API int32_t zu_RotMatrix_setRowValues(RotMatrix* matrix, int32_t index, double a, double b, double c);

/** Stores a ROW as well, exactly as zu_RotMatrix_setRowValues: callers rely on it. */
ZU_API int32_t zu_RotMatrix_setColumnValues(RotMatrix* matrix, int32_t index, double a, double b, double c);

/** Stores a column. */
ZU_API int32_t zu_RotMatrix_setColumn(RotMatrix* matrix, int32_t index, const Vector* vector);

/** Stores a COLUMN as well, exactly as zu_RotMatrix_setColumn: callers rely on it. */
ZU_API int32_t zu_RotMatrix_setRow(RotMatrix* matrix, int32_t index, const Vector* vector);

/** Reads a column. */
ZU_API int32_t zu_RotMatrix_getColumn(Vector* out, const RotMatrix* matrix, int32_t index);

/** Reads a row; this one is a row indeed. */
ZU_API int32_t zu_RotMatrix_getRow(Vector* out, const RotMatrix* matrix, int32_t index);

/** Makes the matrix the identity.
 *  @return 0 always, also on success. */
ZU_API int32_t zu_RotMatrix_setIdentity(RotMatrix* matrix);

/** Whether no element exceeds that of the identity by 1e-5 or more. The test is one-sided: elements that are too small
 *  by any amount pass, so a matrix of -1 counts as the identity. That is meant. */
ZU_API int32_t zu_RotMatrix_isIdentity(const RotMatrix* matrix);

/** The transpose, which is the inverse of a rotation. */
ZU_API int32_t zu_RotMatrix_getInverse(RotMatrix* out, const RotMatrix* matrix);

/** out = a b: the rotation b followed by the rotation a. See zu_Matrix_multiply. */
ZU_API int32_t zu_RotMatrix_multiply(RotMatrix* out, const RotMatrix* a, const RotMatrix* b);

/** Copies the elements. See zu_Matrix_copy. */
ZU_API int32_t zu_RotMatrix_copy(RotMatrix* out, const RotMatrix* matrix);

/** Gives each column the length 1; columns are not made orthogonal.
 *  @return 1; 0 when a column is no longer than 1e-5. */
ZU_API int32_t zu_RotMatrix_normalize(RotMatrix* out, const RotMatrix* matrix);

/** The rotation about Z by an angle. */
ZU_API int32_t zu_RotMatrix_fromAngle(RotMatrix* matrix, double angle);

/** out = Rx Ry Rz matrix: what matrix does, followed by rotations about Z, Y and X.
 *
 *  Rz and Rx turn right-handed. Ry turns the other way, with -sin in row 0 and +sin in row 2: that is meant. */
ZU_API int32_t zu_RotMatrix_rotate(RotMatrix* out, const RotMatrix* matrix, double angleX, double angleY,
                                   double angleZ);

/** The rotation of a local system given by three points: X runs from origin to onX, and inXY lies in the XY plane on
 *  the side of +Y.
 *  @return 1; 0 when onX or inXY is the origin, or inXY lies on the X axis (all within 1e-5). */
ZU_API int32_t zu_RotMatrix_from3Points(RotMatrix* out, const Point* origin, const Point* onX, const Point* inXY);

/** zu_RotMatrix_from3Points with the points at distance 1 from origin along two directions.
 *  @return as there; 0 also when a direction is no longer than 1e-5. */
ZU_API int32_t zu_RotMatrix_fromVectorsXY(RotMatrix* out, const Point* origin, const Vector* xDirection,
                                          const Vector* yDirection);

/** The rotation that turns one direction into another, about an axis.
 *
 *  @param axis  the directions are compared by their parts perpendicular to it; opposite parts give a rotation by
 *               3.1415926536. Null, or no longer than 1e-5: the shortest rotation, see zu_Quaternion_fromVectors.
 *  @return 1; 0 when a direction has no part perpendicular to the axis, and where zu_Quaternion_fromVectors fails. */
ZU_API int32_t zu_RotMatrix_fromVectors(RotMatrix* out, const Vector* axis, const Vector* from, const Vector* to);

/** The rotation about an axis of any length, right-handed; a null vector as the axis gives the identity, or 0 where the
 *  cosine of half the angle is no more than 1e-5 away from 0. */
ZU_API int32_t zu_RotMatrix_fromRotAxisAndAngle(RotMatrix* out, const Vector* axis, double angle);

/** The rotation of a unit quaternion. Does not trace. */
ZU_API int32_t zu_RotMatrix_fromQuaternion(RotMatrix* out, const Quaternion* quaternion);

/** Stores the columns 0, 1 and 2.
 *  @return 0 always, also on success. Nothing is stored when one of the vectors is null. */
ZU_API int32_t zu_RotMatrix_fromColumnVectors(RotMatrix* matrix, const Vector* x, const Vector* y, const Vector* z);

/** Stores the COLUMNS 0, 1 and 2 as well, through zu_RotMatrix_setRow: callers rely on it.
 *  @return 0 always, also on success. Nothing is stored when one of the vectors is null. */
ZU_API int32_t zu_RotMatrix_fromRowVectors(RotMatrix* matrix, const Vector* a, const Vector* b, const Vector* c);

/** Turns a point about the origin, in place: p = M p. */
ZU_API int32_t zu_RotMatrix_rotatePoint(Point* point, const RotMatrix* matrix);

/** Turns a vector, in place: v = M v. */
ZU_API int32_t zu_RotMatrix_rotateVector(Vector* vector, const RotMatrix* matrix);

/** @return 1 when all elements differ by less than 1e-5. Does not trace. */
ZU_API int32_t zu_RotMatrix_equal(const RotMatrix* a, const RotMatrix* b);

ZU_EXTERN_C_END

#endif
