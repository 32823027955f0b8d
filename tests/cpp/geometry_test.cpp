// Geometry of the C++ interface: the order of operands, and two ways to one result.
#include "support/wide.h"
#include "zu.hpp"

namespace {

using namespace zu::operators;

template <class Triple>
std::string shown(const Triple& triple)
{
    const auto number = [](double value) {
        return std::to_string(static_cast<int>(value * 1000 + (value < 0 ? -0.5 : 0.5)));
    };
    return number(triple.x) + " " + number(triple.y) + " " + number(triple.z);
}

TEST(CppGeometry, firstMinusSecond)
{
    const Point a{5, 7, 9};
    const Point b{1, 2, 3};
    const Vector u{5, 7, 9};
    const Vector v{1, 2, 3};
    static_assert(std::is_same_v<decltype(a - b), Vector> && std::is_same_v<decltype(a - v), Point>);
    EXPECT_EQ(shown(a - b), "4000 5000 6000");
    EXPECT_EQ(shown(a - v), "4000 5000 6000");
    EXPECT_EQ(shown(u - v), "4000 5000 6000");
    EXPECT_EQ(shown(b + (a - b)), shown(a));
    Point p = b;
    p += v;
    p += v;
    p -= u;
    EXPECT_EQ(shown(p), "-2000 -1000 0");
    const double five[] = {5, 7};
    const double one[] = {1, 2};
    const zu::ntuple difference = zu::ntuple(five) - zu::ntuple(one);
    EXPECT_EQ(difference.values()[1], 5.0);
    zu::matrix first(1, 2);
    first.set(0, 1, 5);
    const zu::matrix rest = first - zu::matrix(1, 2);
    EXPECT_EQ(rest(0, 1), 5.0);
}

TEST(CppGeometry, questions)
{
    EXPECT_FALSE(zu::equal(Point{1, 1, 1}, Point{1, 1, 1.1}));
    EXPECT_TRUE(zu::equal(Vector{1, 1, 1}, Vector{1, 1, 1.1}, 0.2));
    EXPECT_EQ(shown(*zu::project_onto_line({4, 3, 0}, {0, 0, 0}, {9, 0, 0})), "4000 0 0");
    EXPECT_FALSE(zu::project_onto_line({4, 3, 0}, {0, 0, 0}, {0, 0, 0}));
    EXPECT_EQ(shown(*zu::intersection({0, 0, 0}, {2, 0, 0}, {1, 1, 0}, {1, 2, 0})), "1000 0 0");
    EXPECT_FALSE(zu::intersection({0, 0, 0}, {2, 0, 0}, {0, 1, 0}, {2, 1, 0})) << "parallel";
    EXPECT_FALSE(zu::intersection({0, 0, 0}, {2, 0, 0}, {1, 1, 1}, {1, 2, 1})) << "skew";
    EXPECT_EQ(shown(zu::cross({1, 0, 0}, {0, 1, 0})), "0 0 1000");
    EXPECT_FALSE(zu::unit(Vector{0, 0, 0}));
    EXPECT_NEAR(*zu::angle({1, 0, 0}, {0, 2, 0}), zu::radians(90), 1e-12);
    EXPECT_FALSE(zu::angle({1, 0, 0}, {0, 0, 0}));
}

TEST(CppGeometry, rotationsTwoWays)
{
    const Vector axis = *zu::unit(Vector{1, 2, 3});
    const Point p{4, -5, 6};
    const auto byMatrix = *zu::rotation::about(axis, 0.7);
    const Quaternion q = *zu::quaternion_about(axis, 0.7);
    EXPECT_TRUE(zu::equal(byMatrix, zu::rotation(q)));
    EXPECT_EQ(shown(byMatrix * p), shown(zu::rotation(q) * p));
    // b first, then a.
    const auto quarter = zu::rotation::about_z(zu::radians(90));
    EXPECT_EQ(shown((quarter * byMatrix) * p), shown(quarter * (byMatrix * p)));
    const Quaternion quarterQ = *zu::quaternion_about({0, 0, 1}, zu::radians(90));
    EXPECT_TRUE(zu::equal(zu::rotation(quarterQ * q), quarter * byMatrix));
    EXPECT_TRUE(zu::equal(zu::rotation(zu::conjugate(q)), byMatrix.inverse()));
    EXPECT_EQ(shown(quarter * Vector{1, 0, 0}), "0 1000 0") << "right-handed";
    EXPECT_EQ(shown(*zu::rotation::between({1, 0, 0}, {0, 1, 0}) * Vector{1, 0, 0}), "0 1000 0");
    EXPECT_EQ(shown(zu::rotation(*zu::quaternion_between({1, 0, 0}, {0, 0, 1})) * Vector{1, 0, 0}), "0 0 1000");
    EXPECT_FALSE(zu::rotation::of_system({0, 0, 0}, {1, 0, 0}, {2, 0, 0})) << "no plane";
}

TEST(CppGeometry, rowsAreRows)
{
    const auto rows = zu::rotation::of_rows({1, 2, 3}, {4, 5, 6}, {7, 8, 9});
    EXPECT_EQ(rows(0, 1), 2.0);
    EXPECT_EQ(shown(rows.column(1)), "2000 5000 8000");
    auto columns = zu::rotation::of_columns({1, 4, 7}, {2, 5, 8}, {3, 6, 9});
    EXPECT_TRUE(zu::equal(rows, columns));
    columns.set_row(2, {0, 0, 1});
    columns.set_column(2, {9, 9, 9});
    EXPECT_EQ(shown(columns.row(2)), "0 0 9000");
    EXPECT_THROW(columns.set(3, 0, 1), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(columns(0, -1)), std::invalid_argument);
}

TEST(CppGeometry, transformations)
{
    const auto lift = zu::transform::translation({0, 0, 0}, {0, 0, 5});
    const zu::transform turned(zu::rotation::about_z(zu::radians(90)), {10, 0, 0});
    const Point p{1, 0, 0};
    EXPECT_EQ(shown(turned * p), "10000 1000 0");
    EXPECT_EQ(shown((lift * turned) * p), shown(lift * (turned * p)));
    EXPECT_EQ(shown((turned * lift).origin()), "10000 0 5000");
    const auto between =
        zu::transform::between_systems({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {3, 3, 0}, {3, 4, 0}, {2, 3, 0});
    EXPECT_EQ(shown(between * p), "3000 4000 0");
    zu::transform moved = turned.clone();
    const zu::transform taken = std::move(moved);
    EXPECT_THROW(static_cast<void>(moved * p), std::invalid_argument);
}

TEST(CppGeometry, matrices)
{
    zu::matrix a(2, 3);
    a.set(0, 2, 7);
    const zu::matrix t = a.transposed();
    EXPECT_EQ(t(2, 0), 7.0);
    EXPECT_EQ((a * t)(0, 0), 50.0);
    EXPECT_THROW(static_cast<void>(a - t), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(a * a), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(zu::ntuple(2) - zu::ntuple(3)), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(a(2, 0)), std::invalid_argument);
}

} // namespace
