#include "zu_Point.h"

#include "geometry/geometry.h"

namespace {

using namespace zutest;

TEST(Point, toleranceIsStrict)
{
    const struct
    {
        const char* what;
        Point a, b;
        double tol;
        int32_t equal, within;
    } rows[] = {
        {"below", {0, 0, 0}, {0.9e-5, -0.9e-5, 0.9e-5}, 0.9e-5, 1, 0},
        {"exactly the tolerance along x", {1e-5, 0, 0}, {0, 0, 0}, 1.1e-5, 0, 1},
        {"no tolerance at all", {1, 2, 3}, {1, 2, 3}, 0.0, 1, 0},
        {"not a number", {notANumber, 0, 0}, {notANumber, 0, 0}, 1.0, 0, 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(zu_Point_equal(&row.a, &row.b), row.equal) << row.what;
        EXPECT_EQ(zu_Point_equalWithinTol(&row.a, &row.b, row.tol), row.within) << row.what;
    }
}

TEST(Point, setToToleranceClearsWhatIsSmall)
{
    Point point = {-0.9e-5, 1e-5, -0.0}, large = {-3, 4, -1e-5};
    zu_Point_setToTolerance(&point);
    EXPECT_TRUE(haveSameBits({point.x, point.y, point.z}, {0, 1e-5, 0}));
    zu_Point_setToTolerance(&large);
    EXPECT_EQ(at(large), (Triple{-3, 4, -1e-5}));
}

TEST(Point, arithmeticMayStoreIntoItsOperands)
{
    const Point a = {1, 2, 3}, b = {4, 6, 8};
    Point out = {};
    EXPECT_EQ(zu_Point_add(&out, &a, &b), 1);
    EXPECT_EQ(at(out), (Triple{5, 8, 11}));
    EXPECT_EQ(zu_Point_subtract(&out, &a, &b), 1);
    EXPECT_EQ(at(out), (Triple{3, 4, 5})) << "the second minus the first";
    EXPECT_EQ(zu_Point_midpoint(&out, &a, &b), 1);
    EXPECT_EQ(at(out), (Triple{2.5, 4, 5.5}));
    double distance = 0;
    EXPECT_EQ(zu_Point_distance(&distance, &a, &b), 1);
    EXPECT_EQ(distance, std::sqrt(50.0));
    out = b;
    zu_Point_subtract(&out, &a, &out);
    zu_Point_add(&out, &out, &out);
    EXPECT_EQ(at(out), (Triple{6, 8, 10}));
}

TEST(Point, translations)
{
    const Point p = {1, 1, 1};
    const Vector along = {0, 3, 4}, tooShort = {0, 0, 1e-5};
    Point out = {};
    EXPECT_EQ(zu_Point_translateByVector(&out, &p, &along, 10), 1);
    EXPECT_TRUE(isNear(out, {1, 7, 9}));
    EXPECT_EQ(zu_Point_translateByVector(&out, &p, &along, -5), 1);
    EXPECT_TRUE(isNear(out, {1, -2, -3}));
    EXPECT_EQ(zu_Point_translateByVector(&out, &p, &tooShort, 10), 0);
    EXPECT_EQ(at(out), at(p)) << "copied before the direction is judged";

    EXPECT_EQ(zu_Point_translateByAngle(&out, &p, pi / 6, 2), 1);
    EXPECT_TRUE(isNear(out, {1 + std::sqrt(3.0), 2, 1}));
    out = p;
    EXPECT_EQ(zu_Point_translateByAngle(&out, &out, -pi / 2, 2), 1);
    EXPECT_TRUE(isNear(out, {1, -1, 1}));
    EXPECT_EQ(zu_Point_translateByAngle(&out, &p, notANumber, 2), 0);
}

TEST(Point, fromDelimitedString)
{
    const std::tuple<const char*, WideLiteral, WideLiteral, int32_t, Triple> rows[] = {
        {"one number", W("1.5"), W(","), 0, {0, 0, 0}},
        {"two numbers", W("1,2"), W(","), 1, {1, 2, 0}},
        {"three numbers, blanks, several delimiters", W(" -1.5e1 ;;\t.25 , 3"), W(",;"), 1, {-15, 0.25, 3}},
        {"further items", W("1 2 3 4"), W(" "), 1, {1, 2, 3}},
        {"no numbers", W("a,b,7c"), W(","), 1, {0, 0, 7}},
        {"no delimiters", W("1,2"), W(""), 0, {0, 0, 0}},
    };
    for (const auto& [what, text, delimiters, expected, point] : rows) {
        Point out = {9, 9, 9};
        EXPECT_EQ(zu_Point_fromDelimitedString(&out, text, delimiters), expected) << what;
        EXPECT_EQ(at(out), point) << what;
    }
}

} // namespace
