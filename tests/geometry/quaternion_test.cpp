#include "geometry/geometry.h"
#include "zu_Quaternion.h"

namespace {

using namespace zutest;

using Parts = std::array<double, 4>;
Parts partsOf(const Quaternion& q)
{
    return {q.x, q.y, q.z, q.w};
}

testing::AssertionResult isNear(const Quaternion& have, Parts want, double tolerance = 1e-9)
{
    for (std::size_t part = 0; part < 4; ++part) {
        if (!(std::abs(partsOf(have)[part] - want[part]) <= tolerance))
            return testing::AssertionFailure()
                   << testing::PrintToString(partsOf(have)) << " is not near " << testing::PrintToString(want);
    }
    return testing::AssertionSuccess();
}

TEST(Quaternion, conjugateInverseAndLength)
{
    Quaternion q = {1, -2, 3, 4}, out = {9, 9, 9, 9};
    double size = 0;
    EXPECT_EQ(zu_Quaternion_getConjugate(&out, &q), 1);
    EXPECT_EQ(partsOf(out), (Parts{-1, 2, -3, 4}));
    const Quaternion two = {0, 0, 0, 2};
    EXPECT_EQ(zu_Quaternion_getInverse(&out, &two), 1);
    EXPECT_EQ(partsOf(out), (Parts{0, 0, 0, 2})) << "not divided by the squared magnitude";
    EXPECT_EQ(zu_Quaternion_magnitude(&size, &q), 1);
    EXPECT_EQ(size, std::sqrt(30.0));
    EXPECT_EQ(zu_Quaternion_normalize(&q, &q), 1);
    EXPECT_TRUE(isNear(q, {1 / size, -2 / size, 3 / size, 4 / size}));
    const Quaternion null = {}, tooShort = {0, 1e-5, 0, 0};
    EXPECT_EQ(zu_Quaternion_normalize(&out, &null), 0);
    EXPECT_EQ(zu_Quaternion_normalize(&out, &tooShort), 0);
    EXPECT_EQ(partsOf(out), (Parts{0, 0, 0, 2}));
}

// Against the product written out, stored into either factor.
TEST(Quaternion, multiply)
{
    Numbers numbers(41);
    for (int round = 0; round < 100; ++round) {
        const Quaternion a = {numbers.next(), numbers.next(), numbers.next(), numbers.next()};
        const Quaternion b = {numbers.next(), numbers.next(), numbers.next(), numbers.next()};
        const Parts want = {
            a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y, a.w * b.y - a.x * b.z + a.y * b.w + a.z * b.x,
            a.w * b.z + a.x * b.y - a.y * b.x + a.z * b.w, a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z};
        Quaternion first = a, second = b;
        EXPECT_EQ(zu_Quaternion_multiply(&first, &first, &b), 1);
        EXPECT_EQ(zu_Quaternion_multiply(&second, &a, &second), 1);
        EXPECT_TRUE(isNear(first, want)) << round;
        EXPECT_TRUE(isNear(second, want)) << round;
    }
}

TEST(Quaternion, fromRotAxisAndAngle)
{
    const Vector axis = {0, 0.6, 0.8}, longAxis = {0, 0, 2}, null = {};
    Quaternion q = {};
    EXPECT_EQ(zu_Quaternion_fromRotAxisAndAngle(&q, &axis, 1.0), 1);
    EXPECT_TRUE(isNear(q, {0, 0.6 * std::sin(0.5), 0.8 * std::sin(0.5), std::cos(0.5)}));
    EXPECT_EQ(zu_Quaternion_fromRotAxisAndAngle(&q, &longAxis, pi / 2), 1);
    EXPECT_TRUE(isNear(q, {0, 0, 2 / std::sqrt(5.0), 1 / std::sqrt(5.0)})) << "the axis is not normalised";
    EXPECT_EQ(zu_Quaternion_fromRotAxisAndAngle(&q, &null, 1.0), 1);
    EXPECT_EQ(partsOf(q), (Parts{0, 0, 0, 1}));
    EXPECT_EQ(zu_Quaternion_fromRotAxisAndAngle(&q, &null, pi), 0);
}

TEST(Quaternion, fromVectors)
{
    // A turn by the required constant leaves this in the scalar part.
    const double almostHalf = 3.1415926536;
    const double w = std::cos(almostHalf / 2), s = std::sin(almostHalf / 2);
    ASSERT_NE(w, std::cos(pi / 2));
    const std::tuple<const char*, Vector, Vector, int32_t, Parts> rows[] = {
        {"opposite along X", {1, 0, 0}, {-1, 0, 0}, 1, {0, 0, s, w}},
        {"opposite, oblique", {3, 0, 4}, {-3, 0, -4}, 1, {-0.8 * s, 0, 0.6 * s, w}},
        {"equal", {1, 2, 3}, {2, 4, 6}, 1, {0, 0, 0, 1}},
        {"so small an angle counts as none", {1, 0, 0}, {1, 0.004, 0}, 1, {0, 0, 0, 1}},
        {"a larger one does not",
         {1, 0, 0},
         {1, 0.005, 0},
         1,
         {0, 0, std::sin(std::atan(0.005) / 2), std::cos(std::atan(0.005) / 2)}},
        {"to too short", {0, 0, 0}, {0, 0, 0}, 0, {9, 9, 9, 9}},
    };
    for (const auto& [what, from, to, result, parts] : rows) {
        Quaternion q = {9, 9, 9, 9};
        EXPECT_EQ(zu_Quaternion_fromVectors(&q, &from, &to), result) << what;
        EXPECT_TRUE(isNear(q, parts, 1e-14)) << what;
    }
}

} // namespace
