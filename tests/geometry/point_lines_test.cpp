#include "geometry/geometry.h"
#include "zu_Point.h"

namespace {

using namespace zutest;

Point along(const Point& from, const Vector& way, double factor)
{
    return {from.x + way.x * factor, from.y + way.y * factor, from.z + way.z * factor};
}

double distanceOf(const Point& a, const Point& b)
{
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

TEST(PointLines, colinear)
{
    const struct
    {
        const char* what;
        Point a, b, c;
        int32_t byArea, byPath;
    } rows[] = {
        {"a within the segment from b to c", {1, 1, 1}, {0, 0, 0}, {3, 3, 3}, 1, 1},
        {"a beyond c", {4, 4, 4}, {0, 0, 0}, {3, 3, 3}, 1, 0},
        // The same small offset: the area grows with the lengths, the detour shrinks.
        {"slightly off a short segment", {0.005, 0, 1e-5}, {0, 0, 0}, {0.01, 0, 0}, 1, 1},
        {"slightly off a long segment", {5, 0, 1e-5}, {0, 0, 0}, {10, 0, 0}, 0, 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(zu_Point_colinear(&row.a, &row.b, &row.c), row.byArea) << row.what;
        EXPECT_EQ(zu_Point_colinearWithinTol_v2(&row.a, &row.b, &row.c, 1e-5), row.byPath) << row.what;
    }
    // Twice the area is 2 here, and the detour is 1.
    const Point a = {0, 1, 0}, b = {-1, 1, 0}, c = {0, -1, 0}, apart = {0, 1.5, 0};
    EXPECT_EQ(zu_Point_colinearWithinTol(&a, &b, &c, 2.0), 0);
    EXPECT_EQ(zu_Point_colinearWithinTol(&a, &b, &c, 2.1), 1);
    EXPECT_EQ(zu_Point_colinearWithinTol_v2(&apart, &a, &c, 1.0), 0);
    EXPECT_EQ(zu_Point_colinearWithinTol_v2(&apart, &a, &c, 1.1), 1);
}

TEST(PointLines, between)
{
    const Point a = {1, 0, 0}, b = {5, 0, 0};
    const std::tuple<const char*, Point, int32_t, int32_t> rows[] = {
        {"inside", {2, 0, 0}, 1, 1},      {"at a", {1, 0, 0}, 0, 0},      {"at b", {5, 0, 0}, 0, 0},
        {"foot inside", {2, 3, 0}, 0, 1}, {"foot at b", {5, 3, 0}, 0, 0}, {"foot before a", {0, 3, 0}, 0, 0},
    };
    for (const auto& [what, rowP, colinear, foot] : rows) {
        EXPECT_EQ(zu_Point_between(&rowP, &a, &b, 1), colinear) << what;
        EXPECT_EQ(zu_Point_between(&rowP, &a, &b, 0), foot) << what;
    }
    const Point p = {2, 0, 0};
    EXPECT_EQ(zu_Point_between(&p, &a, &a, 0), 0) << "no segment";
}

TEST(PointLines, inCylinder)
{
    const Point a = {0, 0, 1}, b = {0, 0, 9};
    const std::tuple<const char*, Point, int32_t> rows[] = {
        {"inside", {1, 1, 5}, 1},          {"on the surface", {3, 4, 5}, 1},  {"just outside", {3, 4.000001, 5}, 0},
        {"in the end at a", {1, 0, 1}, 0}, {"in the end at b", {1, 0, 9}, 0}, {"beyond b", {1, 0, 10}, 0},
    };
    for (const auto& [what, p, result] : rows) {
        double distance = -1;
        EXPECT_EQ(zu_Point_inCylinder(&distance, &p, &a, &b, 5), result) << what;
        EXPECT_NEAR(distance, result == 1 ? std::hypot(p.x, p.y) : -1, 1e-12) << what;
        EXPECT_EQ(zu_Point_inCylinder(nullptr, &p, &a, &b, 5), result) << what;
    }
}

TEST(PointLines, projectOntoLine)
{
    const Point a = {1, 1, 0}, b = {5, 1, 0}, p = {3, 7, -2}, nearA = {1, 1 + 0.9e-5, 0};
    Point out = {9, 9, 9};
    EXPECT_EQ(zu_Point_projectOntoLine(&out, &nearA, &a, &b), 0);
    EXPECT_EQ(zu_Point_projectOntoLine(&out, &p, &a, &nearA), 0);
    EXPECT_EQ(at(out), (Triple{9, 9, 9}));
    out = p;
    EXPECT_EQ(zu_Point_projectOntoLine(&out, &out, &a, &b), 1);
    EXPECT_TRUE(isNear(out, {3, 1, 0}));
}

// The foot is the point of the line that is nearest to p, found here by narrowing an interval.
TEST(PointLines, theFootIsTheNearestPointOfTheLine)
{
    Numbers numbers(91);
    for (int round = 0; round < 200; ++round) {
        const Point a = numbers.point(), p = numbers.point();
        const Vector way = numbers.unit();
        const Point b = along(a, way, numbers.next(1, 20));
        double low = -50, high = 50;
        for (int step = 0; step < 120; ++step) {
            const double first = low + (high - low) / 3, second = high - (high - low) / 3;
            (distanceOf(along(a, way, first), p) < distanceOf(along(a, way, second), p) ? high : low) =
                distanceOf(along(a, way, first), p) < distanceOf(along(a, way, second), p) ? second : first;
        }
        Point foot = {};
        ASSERT_EQ(zu_Point_projectOntoLine(&foot, &p, &a, &b), 1) << round;
        EXPECT_TRUE(isNear(foot, at(along(a, way, low)), 1e-5)) << round;
        Vector across = {};
        ASSERT_EQ(zu_Point_getOrthoVector(&across, &b, &a, &p), 1) << round;
        EXPECT_TRUE(isNear(across, {p.x - foot.x, p.y - foot.y, p.z - foot.z})) << round;
        EXPECT_NEAR(across.x * way.x + across.y * way.y + across.z * way.z, 0, 1e-9) << round;
    }
}

TEST(PointLines, getOrthoVectorTakesThePointLast)
{
    const Point b = {4, 0, 0}, a = {0, 0, 0}, onLine = {2, 0, 0};
    Vector out = {9, 9, 9};
    EXPECT_EQ(zu_Point_getOrthoVector(&out, &b, &a, &a), 0) << "p = a";
    EXPECT_EQ(at(out), (Triple{9, 9, 9}));
    EXPECT_EQ(zu_Point_getOrthoVector(&out, &b, &a, &onLine), 0);
    EXPECT_EQ(at(out), (Triple{0, 0, 0})) << "the null vector is stored";
}

TEST(PointLines, intersectPoint)
{
    const struct
    {
        const char* what;
        Point p1, p2, q1, q2;
        int32_t result;
        Triple out;
    } rows[] = {
        {"meeting beyond both segments", {0, 0, 0}, {1, 0, 0}, {5, 3, 0}, {5, 2, 0}, 1, {5, 0, 0}},
        {"p1 = q1", {1, 2, 3}, {4, 0, 0}, {1, 2, 3 + 9e-6}, {1, 1, 0}, 1, {1, 2, 3}},
        {"p2 = q2", {4, 0, 0}, {1, 2, 3}, {1, 1, 0}, {1, 2, 3 + 9e-6}, 1, {1, 2, 3}},
        {"both ends shared", {0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {0, 0, 0}, 0, {9, 9, 9}},
        {"q1 on the first line", {0, 0, 0}, {4, 0, 0}, {1, 0, 0}, {1, 1, 0}, 0, {9, 9, 9}},
        {"q2 on the first line", {0, 0, 0}, {4, 0, 0}, {1, 1, 0}, {1, 0, 0}, 1, {1, 0, 0}},
        {"no second line", {0, 0, 0}, {4, 0, 0}, {2, 1, 0}, {2, 1, 0}, 0, {2, 1, 0}},
        {"skew: written, but refused", {0, 0, 0}, {4, 0, 0}, {1, -1, 1}, {1, 1, 1}, 0, {1, 1, 1}},
    };
    for (const auto& row : rows) {
        Point out = {9, 9, 9};
        EXPECT_EQ(zu_Point_intersectPoint(&out, &row.p1, &row.p2, &row.q1, &row.q2), row.result) << row.what;
        EXPECT_TRUE(isNear(out, row.out)) << row.what;
    }
    // The tolerance decides about shared ends and skew lines alike.
    Point p1 = {0, 0, 0}, out = {};
    const Point p2 = {4, 0, 0}, q1 = {0.3, 0, 0.3}, q2 = {0, 5, 5};
    EXPECT_EQ(zu_Point_intersectPointWithinTol(&out, &p1, &p2, &q1, &q2, 0.4), 1);
    EXPECT_EQ(at(out), at(p1));
    const Point above1 = {2, -9, 0.001}, above2 = {2, 9, 0.001};
    EXPECT_EQ(zu_Point_intersectPointWithinTol(&p1, &p1, &p2, &above1, &above2, 0.1), 1) << "out may be an end";
    EXPECT_TRUE(isNear(p1, {2, 0, 0.001}, 1e-6));
}

TEST(PointLines, linesThroughAKnownPointMeetThere)
{
    Numbers numbers(92);
    for (int round = 0; round < 200; ++round) {
        const Point meeting = numbers.point();
        const Vector first = numbers.unit(), second = numbers.unit();
        const Point p1 = along(meeting, first, numbers.next(-9, -1)), p2 = along(meeting, first, numbers.next(1, 9));
        const Point q1 = along(meeting, second, numbers.next(1, 5)), q2 = along(meeting, second, numbers.next(6, 9));
        Vector across = {};
        zu_Vector_crossProduct(&across, &first, &second);
        if (std::hypot(across.x, across.y, across.z) < 0.1)
            continue;
        Point out = {};
        ASSERT_EQ(zu_Point_intersectPoint(&out, &p1, &p2, &q1, &q2), 1) << round;
        EXPECT_TRUE(isNear(out, at(meeting), 1e-7)) << round;
    }
}

} // namespace
