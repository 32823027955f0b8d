/** @file zu_Point.h
 *  @ingroup geometry
 *  Points in space: values of three coordinates, and what can be asked about points and lines.
 *
 *      Point a, b, foot;
 *      zu_Point_set(&a, 0, 0, 0);
 *      zu_Point_set(&b, 10, 0, 0);
 *      if (zu_Point_projectOntoLine(&foot, &p, &a, &b) == 1 && zu_Point_between(&foot, &a, &b, 1) == 1)
 *          use(&foot);
 *
 *  Axes are right-handed with +Z up. Coordinates are in the units of the caller's model, angles in radians. Points are
 *  owned by the caller; no operation allocates, save zu_Point_fromDelimitedString for a moment.
 *
 *  Unless a comment says otherwise: outputs come first and may be one of the inputs; the result is 1 for success or
 *  "true" and 0 for failure or "false"; a null argument gives 0; after a failure the outputs are as they were.
 *
 *  The tolerance of the family is ZU_GEOMETRY_TOLERANCE. All tolerances are applied with strict less-than: a difference
 *  of exactly the tolerance lies outside. A tolerance of 0 or below, or one that is not a number, accepts nothing.
 *
 *  @par Example
 *  @include point.c
 */
#ifndef ZU_POINT_H
#define ZU_POINT_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** The tolerance of all geometry, in model units or whatever a comment applies it to. */
#define ZU_GEOMETRY_TOLERANCE 1e-5

/** A point; a value. */
typedef struct Point
{
    double x; /**< coordinate along X */
    double y; /**< coordinate along Y */
    double z; /**< coordinate along Z, up */
} Point;

/** A direction with a length: see zu_Vector.h, which defines it. */
typedef struct Vector Vector;

/** Stores the coordinates. */
ZU_API int32_t zu_Point_set(Point* point, double x, double y, double z);

/** Stores the X coordinate. */
ZU_API int32_t zu_Point_setX(Point* point, double x);
/** Stores the Y coordinate. */
ZU_API int32_t zu_Point_setY(Point* point, double y);
/** Stores the Z coordinate. */
ZU_API int32_t zu_Point_setZ(Point* point, double z);

/** Reads the X coordinate. */
ZU_API int32_t zu_Point_getX(double* x, const Point* point);
/** Reads the Y coordinate.
 *  @param y  must not be null: unlike zu_Point_getX this checks the point alone. */
ZU_API int32_t zu_Point_getY(double* y, const Point* point);
/** Reads the Z coordinate.
 *  @param z  must not be null, as for zu_Point_getY. */
ZU_API int32_t zu_Point_getZ(double* z, const Point* point);

/** @return 1 when the points differ by less than 1e-5 along each axis. */
ZU_API int32_t zu_Point_equal(const Point* a, const Point* b);

/** zu_Point_equal with a tolerance of the caller's, in model units. Traces as zu_Point_equal. */
ZU_API int32_t zu_Point_equalWithinTol(const Point* a, const Point* b, double tol);

/** Sets to exactly 0 every coordinate that is less than 1e-5 away from it; null is ignored. */
ZU_API void zu_Point_setToTolerance(Point* point);

/** Copies the components of a vector. */
ZU_API int32_t zu_Point_fromVector(Point* out, const Vector* vector);

/** Copies a point. */
ZU_API int32_t zu_Point_copy(Point* out, const Point* point);

/** The distance between two points. */
ZU_API int32_t zu_Point_distance(double* out, const Point* a, const Point* b);

/** zu_Point_colinearWithinTol with 1e-5. */
ZU_API int32_t zu_Point_colinear(const Point* a, const Point* b, const Point* c);

/** Whether three points lie on a line.
 *
 *  @param tol  bounds each component of (c - a) x (a - b), that is twice the area of the triangle as seen along each
 *              axis: the test grows stricter with the distances, which is meant. Traces as zu_Point_colinear. */
ZU_API int32_t zu_Point_colinearWithinTol(const Point* a, const Point* b, const Point* c, double tol);

/** Whether a lies on the segment from b to c: the way from b over a to c is longer than the direct one by less than
 *  tol (model units). Points on the line beyond the segment's ends do not count. */
ZU_API int32_t zu_Point_colinearWithinTol_v2(const Point* a, const Point* b, const Point* c, double tol);

/** out = a + b, coordinate by coordinate. */
ZU_API int32_t zu_Point_add(Point* out, const Point* a, const Point* b);

/** out = b - a, the second operand minus the first: the way from a to b. (N-tuples and matrices subtract the other way
 *  round.) */
ZU_API int32_t zu_Point_subtract(Point* out, const Point* a, const Point* b);

/** out = (a + b) / 2. */
ZU_API int32_t zu_Point_midpoint(Point* out, const Point* a, const Point* b);

/** Whether p lies strictly between a and b: an end of the segment does not.
 *
 *  @param mustBeColinear  when not 0, a p that is not colinear with a and b (zu_Point_colinear) gives 0; when 0, the
 *                         foot of its perpendicular on the line is judged instead.
 *  @return 1 or 0; 0 also when p (or its foot) is a itself, or lies no more than 1e-5 away from it. */
ZU_API int32_t zu_Point_between(const Point* p, const Point* a, const Point* b, int32_t mustBeColinear);

/** Whether p lies in the cylinder around the segment from a to b. Both ends are open (a foot at a or at b or beyond
 *  is outside), the lateral surface belongs to it; the radius is compared exactly.
 *
 *  @param distance  receives the distance of p from the axis when the result is 1; may be null.
 *  @param radius    in model units.
 *  @return 1 or 0; 0 also for p = a. */
ZU_API int32_t zu_Point_inCylinder(double* distance, const Point* p, const Point* a, const Point* b, double radius);

/** Moves p along a direction: out = p + unit(direction) * distance.
 *
 *  @param direction  of any length above 1e-5.
 *  @param distance   in model units; negative moves backwards.
 *  @return 1; 0 when the direction is too short, out is then p. */
ZU_API int32_t zu_Point_translateByVector(Point* out, const Point* p, const Vector* direction, double distance);

/** Moves p in the XY plane; z stays.
 *
 *  @param angle     of the direction, in radians from +X towards +Y.
 *  @param distance  in model units; negative moves backwards. */
ZU_API int32_t zu_Point_translateByAngle(Point* out, const Point* p, double angle, double distance);

/** zu_Point_intersectPointWithinTol with 1e-5. */
ZU_API int32_t zu_Point_intersectPoint(Point* out, const Point* p1, const Point* p2, const Point* q1, const Point* q2);

/** The point where the line through p1 and p2 meets the line through q1 and q2. Meant for lines in one plane.
 *
 *  Parallel lines fail. Then shared end points are looked for, in the order p1 = q1, p1 = q2, p2 = q1, p2 = q2, and
 *  found ones are the result. Otherwise q1 must not lie on the first line.
 *
 *  @param tol  of parallelism (the length of the cross product), of shared ends (model units) and of the last test,
 *              which asks zu_Point_colinearWithinTol whether the point found lies on the first line.
 *  @return 1 or 0. When only the last test fails, as it does for skew lines, out has been written all the same; it
 *          is q1 where q1 and q2 are the same. Traces as zu_Point_intersectPoint. */
ZU_API int32_t zu_Point_intersectPointWithinTol(Point* out, const Point* p1, const Point* p2, const Point* q1,
                                                const Point* q2, double tol);

/** The foot of the perpendicular from p on the line through a and b.
 *  @return 1; 0 when b or p is a itself or lies no more than 1e-5 away from it (although the foot is known for p = a:
 *          that is how it is meant). */
ZU_API int32_t zu_Point_projectOntoLine(Point* out, const Point* p, const Point* a, const Point* b);

/** The way from a line to a point: the vector from the foot of p, on the line from a to b, to p.
 *
 *  The point comes last, and the line runs from the third argument to the second.
 *  @return 1; 0 when the foot cannot be found, see zu_Point_projectOntoLine (out stays), and when p lies exactly on
 *          the line (out is then the null vector). */
ZU_API int32_t zu_Point_getOrthoVector(Vector* out, const Point* b, const Point* a, const Point* p);

/** Reads a point from a text of two or three numbers: "10.5, 20" is (10.5, 20, 0).
 *
 *  @param text        split by zu_StrList_fromDelimitedString: runs of delimiters count as one. Items that are no
 *                     numbers count as 0, items behind the third are ignored.
 *  @param delimiters  a set of characters.
 *  @return 1; 0 for fewer than two items, a null text or set, and without memory: out is the origin then. */
ZU_API int32_t zu_Point_fromDelimitedString(Point* out, const zu_wchar* text, const zu_wchar* delimiters);

ZU_EXTERN_C_END

#endif
