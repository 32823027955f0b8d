// Points and lines: what lies on what, projections and intersections.
#include "zu_Point.h"

#include "frame/format.h"
#include "frame/trace.h"
#include "geometry/triples.h"

namespace {

using namespace zu;
using namespace zu::geometry;

// The vectors from a to p and from a to b have the same direction, and the first is strictly shorter: p lies between
// a and b, provided that it lies on their line. Neither end counts.
bool isStrictlyBetween(const Point& p, const Point& a, const Point& b)
{
    Vector toP, toB, unitP, unitB;
    double lengthP = 0.0, lengthB = 0.0;
    return zu_Vector_computeVector(&toP, &a, &p) == 1 && zu_Vector_computeVector(&toB, &a, &b) == 1 &&
           zu_Vector_copyNormalize(&unitP, &toP) == 1 && zu_Vector_copyNormalize(&unitB, &toB) == 1 &&
           zu_Vector_equal(&unitP, &unitB) == 1 && zu_Vector_magnitude(&lengthP, &toP) == 1 &&
           zu_Vector_magnitude(&lengthB, &toB) == 1 && lengthP < lengthB;
}

} // namespace

int32_t zu_Point_colinear(const Point* a, const Point* b, const Point* c)
{
    return zu_Point_colinearWithinTol(a, b, c, tolerance);
}

int32_t zu_Point_colinearWithinTol(const Point* a, const Point* b, const Point* c, double tol)
{
    ZU_TRACE_AS(point, "zu_Point_colinear");
    if (!areGiven(a, b, c))
        return 0;
    // Not normalised on purpose: the tolerance bounds areas.
    const auto u = difference<Vector>(*a, *c);
    const auto w = difference<Vector>(*b, *a);
    return std::abs(u.x * w.y - u.y * w.x) < tol && std::abs(u.y * w.z - u.z * w.y) < tol &&
           std::abs(u.x * w.z - u.z * w.x) < tol;
}

int32_t zu_Point_colinearWithinTol_v2(const Point* a, const Point* b, const Point* c, double tol)
{
    ZU_TRACE(point);
    if (!areGiven(a, b, c))
        return 0;
    const double ab = length(difference<Vector>(*b, *a));
    const double ca = length(difference<Vector>(*a, *c));
    const double cb = length(difference<Vector>(*b, *c));
    return std::abs(cb - (ab + ca)) < tol;
}

int32_t zu_Point_between(const Point* p, const Point* a, const Point* b, int32_t mustBeColinear)
{
    ZU_TRACE(point);
    if (!areGiven(p, a, b))
        return 0;
    Point foot = *p;
    if (zu_Point_colinear(p, a, b) == 0) {
        if (mustBeColinear != 0)
            return 0;
        // Where the foot cannot be found p stays in its place, and the segment or the way to p is too short below.
        zu_Point_projectOntoLine(&foot, p, a, b);
    }
    return isStrictlyBetween(foot, *a, *b);
}

int32_t zu_Point_inCylinder(double* distance, const Point* p, const Point* a, const Point* b, double radius)
{
    if (!areGiven(p, a, b))
        return 0;
    Point foot = *p;
    zu_Point_projectOntoLine(&foot, p, a, b);
    double away = 0.0;
    if (!isStrictlyBetween(foot, *a, *b) || zu_Point_distance(&away, p, &foot) == 0 || !(away <= radius))
        return 0;
    if (distance != nullptr)
        *distance = away;
    return 1;
}

int32_t zu_Point_intersectPoint(Point* out, const Point* p1, const Point* p2, const Point* q1, const Point* q2)
{
    return zu_Point_intersectPointWithinTol(out, p1, p2, q1, q2, tolerance);
}

int32_t zu_Point_intersectPointWithinTol(Point* out, const Point* p1, const Point* p2, const Point* q1, const Point* q2,
                                         double tol)
{
    ZU_TRACE_AS(point, "zu_Point_intersectPoint");
    if (!areGiven(out, p1, p2, q1, q2))
        return 0;
    // out may be one of the ends, which are needed to the last.
    const Point start = *p1, end = *p2;
    Vector along, other;
    const int32_t haveAlong = zu_Vector_computeVector(&along, p1, p2);
    const int32_t haveOther = zu_Vector_computeVector(&other, q1, q2);
    if (haveAlong == 1 && haveOther == 1 && zu_Vector_parallelWithinTolerance(&along, &other, tol) == 1)
        return 0;
    // Parallel lines have been refused by now, even where they share an end.
    if (zu_Point_equalWithinTol(p1, q1, tol) == 1 || zu_Point_equalWithinTol(p1, q2, tol) == 1)
        return zu_Point_copy(out, p1);
    if (zu_Point_equalWithinTol(p2, q1, tol) == 1 || zu_Point_equalWithinTol(p2, q2, tol) == 1)
        return zu_Point_copy(out, p2);

    // From q1 the way to its foot on the first line is the shortest; along the second line it is longer by the cosine
    // between the two.
    Vector toQ, way;
    double reach = 0.0, product = 0.0, wayLength = 0.0, otherLength = 0.0;
    if (zu_Vector_normalize(&along) == 0 || zu_Vector_computeVector(&toQ, p1, q1) == 0 ||
        zu_Vector_dotProduct(&reach, &along, &toQ) == 0)
        return 0;
    const Point foot = sum(start, as<Point>(scaled(along, reach)));
    // Fails where q1 lies on the first line.
    if (zu_Vector_computeVector(&way, q1, &foot) == 0)
        return 0;
    zu_Vector_dotProduct(&product, &way, &other);
    zu_Vector_magnitude(&wayLength, &way);
    zu_Vector_magnitude(&otherLength, &other);
    const double travel = std::abs(product) >= tolerance ? wayLength * wayLength * otherLength / product : wayLength;
    // Written before the last test, so that skew lines leave their nearest guess.
    return zu_Point_translateByVector(out, q1, &other, travel) == 1 &&
           zu_Point_colinearWithinTol(&start, &end, out, tol) == 1;
}

int32_t zu_Point_projectOntoLine(Point* out, const Point* p, const Point* a, const Point* b)
{
    ZU_TRACE(point);
    if (!areGiven(out, p, a, b))
        return 0;
    Vector line, toP;
    double away = 0.0, product = 0.0, lineLength = 0.0, toPLength = 0.0;
    // p = a fails here although its foot is a: callers depend on it.
    if (zu_Vector_computeVector(&line, a, b) == 0 || zu_Vector_computeVector(&toP, a, p) == 0 ||
        zu_Point_distance(&away, a, p) == 0 || zu_Vector_dotProduct(&product, &line, &toP) == 0 ||
        zu_Vector_magnitude(&lineLength, &line) == 0 || zu_Vector_magnitude(&toPLength, &toP) == 0)
        return 0;
    if (!(lineLength > tolerance && toPLength > tolerance))
        return 0;
    const double cosine = product / (lineLength * toPLength);
    return zu_Point_translateByVector(out, a, &line, cosine * away);
}

int32_t zu_Point_getOrthoVector(Vector* out, const Point* b, const Point* a, const Point* p)
{
    Point foot;
    if (!areGiven(out, b, a, p) || zu_Point_projectOntoLine(&foot, p, a, b) == 0)
        return 0;
    if (trace::point.isOn()) {
        const std::size_t length =
            formatInto(ZU_DiagMsgBuf, ZU_W("Projection point is %lf, %lf, %lf\n"), foot.x, foot.y, foot.z);
        zu_Diag_putOutput(static_cast<int32_t>(length), ZU_DiagMsgBuf, trace::point.source, __LINE__);
    }
    return zu_Vector_computeVector(out, &foot, p);
}
