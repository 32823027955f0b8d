#include "zu_Plane.h"

#include "geometry/geometry.h"
#include "support/memory.h"

namespace {

using namespace zutest;

TEST(Ray, holdsCopiesAndServesAsAPlane)
{
    const Point p = {1, 2, 3};
    const Vector v = {4, 5, 6};
    Ray* made = nullptr;
    sweepAllocations([&] { made = zu_Ray_create(&p, &v); }, [&] { EXPECT_EQ(made, nullptr); });
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(at(made->point), at(p));
    EXPECT_EQ(at(made->vector), at(v));
    const Point q = {7, 8, 9};
    const Vector w = {-1, -2, -3};
    Point point = {};
    Vector vector = {};
    EXPECT_EQ(zu_Ray_set(made, &q, &w) + zu_Ray_getPoint(&point, made) + zu_Ray_getVector(&vector, made), 3);
    EXPECT_EQ(at(point), at(q));
    EXPECT_EQ(at(vector), at(w));
    EXPECT_EQ(zu_Plane_set(made, &p, &v) + zu_Plane_getPoint(&point, made) + zu_Plane_getOrthoVector(&vector, made), 3);
    EXPECT_EQ(at(point), at(p));
    EXPECT_EQ(at(vector), at(v));
    EXPECT_EQ(zu_Ray_destroy(made), 1);
    EXPECT_EQ(zu_Plane_destroy(zu_Plane_create(&p, &v)), 1);
}

TEST(Plane, intersectionWithRay)
{
    const std::tuple<const char*, Plane, Ray, int32_t, Triple> rows[] = {
        {"behind the origin", {{0, 0, 5}, {0, 0, 2}}, {{1, 1, 0}, {0, 3, -3}}, 1, {1, -4, 5}},
        {"parallel", {{0, 0, 5}, {0, 0, 2}}, {{1, 1, 0}, {1, 0, 0}}, 0, {9, 9, 9}},
        {"almost parallel", {{0, 0, 5}, {0, 0, 2}}, {{1, 1, 0}, {1e5, 0, 0.9}}, 0, {9, 9, 9}},
        {"hardly parallel any more", {{0, 0, 5}, {0, 0, 2}}, {{1, 1, 0}, {1e5, 0, 2}}, 1, {250001, 1, 5}},
    };
    for (const auto& [what, rowPlane, rowRay, result, rowOut] : rows) {
        Point out = {9, 9, 9};
        EXPECT_EQ(zu_Plane_intersectionWithRay(&out, &rowPlane, &rowRay), result) << what;
        EXPECT_TRUE(isNear(out, rowOut, 1e-6)) << what;
    }
    // Whatever is found lies on both.
    Numbers numbers(81);
    for (int round = 0; round < 200; ++round) {
        const Plane plane = {numbers.point(), numbers.vector()};
        const Ray ray = {numbers.point(), numbers.vector()};
        Point out = {};
        if (zu_Plane_intersectionWithRay(&out, &plane, &ray) == 0)
            continue;
        const Vector n = plane.vector;
        const double scale = 1 + std::abs(out.x) + std::abs(out.y) + std::abs(out.z);
        EXPECT_NEAR(((out.x - plane.point.x) * n.x + (out.y - plane.point.y) * n.y + (out.z - plane.point.z) * n.z) /
                        scale,
                    0, 1e-9)
            << round;
        const Point ahead = {ray.point.x + ray.vector.x, ray.point.y + ray.vector.y, ray.point.z + ray.vector.z};
        EXPECT_EQ(zu_Point_colinearWithinTol(&ray.point, &ahead, &out, 1e-9 * scale), 1) << round;
    }
}

} // namespace
