#include "geometry/geometry.h"
#include "zu_Ntuple.h"
#include "zu_Vector.h"

namespace {

using namespace zutest;

TEST(Vector, fromNtuple)
{
    Vector vector = {7, 8, 9};
    double elements[] = {1, 2, 3, 4};
    const Ntuple four = {4, elements}, two = {2, elements};
    EXPECT_EQ(zu_Vector_fromNtuple(&vector, &two), 0);
    EXPECT_EQ(at(vector), (Triple{7, 8, 9}));
    EXPECT_EQ(zu_Vector_fromNtuple(&vector, &four), 1);
    EXPECT_EQ(at(vector), (Triple{1, 2, 3}));
}

TEST(Vector, equalityIsStrictAboutTheTolerance)
{
    const Vector a = {0, 0, 0}, below = {0.9e-5, -0.9e-5, 0}, exact = {0, -1e-5, 0};
    EXPECT_EQ(zu_Vector_equal(&a, &below), 1);
    EXPECT_EQ(zu_Vector_equal(&a, &exact) + zu_Vector_equalWithinTol(&a, &exact, 1e-5), 0);
    EXPECT_EQ(zu_Vector_equalWithinTol(&a, &exact, 1.1e-5), 1);
}

TEST(Vector, arithmeticMayStoreIntoItsOperands)
{
    const Vector a = {1, 2, 3}, b = {4, 6, 8}, x = {1, 0, 0}, y = {0, 1, 0};
    Vector out = {};
    double number = 0;
    EXPECT_EQ(zu_Vector_add(&out, &a, &b), 1);
    EXPECT_EQ(at(out), (Triple{5, 8, 11}));
    EXPECT_EQ(zu_Vector_subtract(&out, &a, &b), 1);
    EXPECT_EQ(at(out), (Triple{3, 4, 5})) << "the second minus the first";
    EXPECT_EQ(zu_Vector_scale(&out, &a, -2), 1);
    EXPECT_EQ(at(out), (Triple{-2, -4, -6}));
    EXPECT_EQ(zu_Vector_negate(&out, &out), 1);
    EXPECT_EQ(at(out), (Triple{2, 4, 6}));
    EXPECT_EQ(zu_Vector_dotProduct(&number, &a, &b), 1);
    EXPECT_EQ(number, 40);
    EXPECT_EQ(zu_Vector_magnitude(&number, &b), 1);
    EXPECT_EQ(number, std::sqrt(116.0));
    EXPECT_EQ(zu_Vector_crossProduct(&out, &x, &y), 1);
    EXPECT_EQ(at(out), (Triple{0, 0, 1}));
    out = a;
    EXPECT_EQ(zu_Vector_crossProduct(&out, &out, &b), 1);
    EXPECT_EQ(at(out), (Triple{-2, 4, -2}));
}

TEST(Vector, normalize)
{
    const std::tuple<const char*, Vector, int32_t, Triple> rows[] = {
        {"too short", {0, 0, 1e-6}, 0, {0, 0, 1e-6}},
        {"exactly the tolerance", {0, 1e-5, 0}, 0, {0, 1e-5, 0}},
        {"long enough", {0, 0, 2e-5}, 1, {0, 0, 1}},
        {"long", {-3e5, 0, 4e5}, 1, {-0.6, 0, 0.8}},
    };
    for (const auto& [what, vector, result, unit] : rows) {
        Vector inPlace = vector, out = {9, 9, 9};
        EXPECT_EQ(zu_Vector_normalize(&inPlace), result) << what;
        EXPECT_EQ(at(inPlace), unit) << what;
        EXPECT_EQ(zu_Vector_copyNormalize(&out, &vector), result) << what;
        EXPECT_EQ(at(out), unit) << what << ": copied in any case";
    }
}

TEST(Vector, betweenPoints)
{
    const Point origin = {1, 1, 1}, a = {3, 1, 1}, b = {1, 4, 1}, close = {1 + 1e-6, 1, 1};
    Vector out = {9, 9, 9};
    EXPECT_EQ(zu_Vector_computeVector(&out, &origin, &a), 1);
    EXPECT_EQ(at(out), (Triple{2, 0, 0}));
    EXPECT_EQ(zu_Vector_computeVector(&out, &a, &a), 0);
    EXPECT_EQ(at(out), (Triple{0, 0, 0})) << "stored all the same";
    EXPECT_EQ(zu_Vector_computeVector(&out, &origin, &close), 1) << "any length above 0 will do";
    EXPECT_EQ(zu_Vector_computeNormal(&out, &origin, &close), 0);
    EXPECT_TRUE(isNear(out, {1e-6, 0, 0}, 1e-12)) << "not normalised";
    EXPECT_EQ(zu_Vector_computeNormal(&out, &b, &origin), 1);
    EXPECT_EQ(at(out), (Triple{0, -1, 0}));

    EXPECT_EQ(zu_Vector_computeOrthovec(&out, &origin, &a, &b), 1);
    EXPECT_EQ(at(out), (Triple{0, 0, 6}));
    EXPECT_EQ(zu_Vector_computeOrthonorm(&out, &origin, &b, &a), 1);
    EXPECT_EQ(at(out), (Triple{0, 0, -1}));
    EXPECT_EQ(zu_Vector_computeOrthovec(&out, &origin, &a, &a), 1) << "no area, but two vectors";
    EXPECT_EQ(zu_Vector_computeOrthonorm(&out, &origin, &a, &a), 0);
    EXPECT_EQ(at(out), (Triple{0, 0, 0}));
}

TEST(Vector, directions)
{
    const std::tuple<const char*, Vector, Vector, int32_t, int32_t> rows[] = {
        {"opposite", {1, 0, 0}, {-3, 0, 0}, 1, 0},
        {"the null vector is both", {0, 0, 0}, {1, 2, 3}, 1, 1},
        {"exactly the tolerance off", {1, 1e-5, 0}, {1, 0, 0}, 0, 0},
        {"less than the tolerance off", {1, 0.9e-5, 0}, {1, 0, 0}, 1, 0},
        {"almost across, but short", {0.001, 0.001, 0}, {0.001, 0, 0}, 1, 1},
    };
    for (const auto& [what, a, b, parallel, orthogonal] : rows) {
        EXPECT_EQ(zu_Vector_parallel(&a, &b), parallel) << what;
        EXPECT_EQ(zu_Vector_orthogonal(&a, &b), orthogonal) << what;
    }
    const Vector x = {2, 0, 0}, oblique = {1, 1, 0};
    EXPECT_EQ(zu_Vector_parallelWithinTolerance(&x, &oblique, 2.0), 0);
    EXPECT_EQ(zu_Vector_parallelWithinTolerance(&x, &oblique, 2.1), 1);
    EXPECT_EQ(zu_Vector_orthogonalWithinTolerance(&x, &oblique, 2.0), 0);
    EXPECT_EQ(zu_Vector_orthogonalWithinTolerance(&x, &oblique, 2.1), 1);

    const Vector steep = {100, 0, 0.00002}, flat = {100, 5, -0.9e-5}, upright = {0.000001, 0, 5},
                 leaning = {0, 1e-5, 5};
    EXPECT_EQ(zu_Vector_isHorizontal(&steep), 0);
    EXPECT_EQ(zu_Vector_isHorizontal(&flat), 1);
    EXPECT_EQ(zu_Vector_isVertical(&upright), 1);
    EXPECT_EQ(zu_Vector_isVertical(&leaning), 0);
}

TEST(Vector, angle)
{
    const std::tuple<const char*, Vector, Vector, int32_t, double> rows[] = {
        {"opposite", {1, 0, 0}, {-1, 0, 0}, 1, pi},
        {"across", {2, 0, 0}, {0, 0, 5}, 1, pi / 2},
        {"a too short", {1e-5, 0, 0}, {1, 0, 0}, 0, 7},
        {"b too short", {1, 0, 0}, {0, 0, 0}, 0, 7},
    };
    for (const auto& [what, rowA, b, result, rowAngle] : rows) {
        double angle = 7;
        EXPECT_EQ(zu_Vector_angle(&angle, &rowA, &b), result) << what;
        EXPECT_NEAR(angle, rowAngle, 1e-7) << what;
    }
    // Rounding carries many of these cosines beyond 1.
    Numbers numbers(31);
    for (int round = 0; round < 1000; ++round) {
        const Vector a = numbers.vector();
        Vector back = {};
        zu_Vector_scale(&back, &a, -numbers.next(0.5, 3));
        double same = 7, opposite = 7;
        EXPECT_EQ(zu_Vector_angle(&same, &a, &a), 1);
        EXPECT_EQ(zu_Vector_angle(&opposite, &a, &back), 1);
        EXPECT_TRUE(same >= 0 && same < 1e-7 && opposite <= pi && opposite > pi - 1e-7) << round;
    }
}

// Against the definition: unit(b) less its part along unit(a).
TEST(Vector, getOrthoVectorRejects)
{
    Numbers numbers(32);
    for (int round = 0; round < 300; ++round) {
        const Vector a = numbers.vector(), b = numbers.vector();
        Vector unitA = a, unitB = b, out = {};
        zu_Vector_normalize(&unitA);
        zu_Vector_normalize(&unitB);
        const double part = unitA.x * unitB.x + unitA.y * unitB.y + unitA.z * unitB.z;
        ASSERT_EQ(zu_Vector_getOrthoVector(&out, &a, &b), 1) << round;
        EXPECT_TRUE(isNear(out, {unitB.x - part * unitA.x, unitB.y - part * unitA.y, unitB.z - part * unitA.z}))
            << round;
    }
    const Vector x = {2, 0, 0}, tooShort = {0, 1e-5, 0};
    Vector out = {9, 9, 9};
    EXPECT_EQ(zu_Vector_getOrthoVector(&out, &x, &x), 0);
    EXPECT_EQ(zu_Vector_getOrthoVector(&out, &x, &tooShort), 0);
    EXPECT_EQ(at(out), (Triple{9, 9, 9}));
}

} // namespace
