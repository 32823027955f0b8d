#include "zu_TMatrix.h"

#include "geometry/geometry.h"

namespace {

using namespace zutest;

using Rows = std::vector<double>;
const Rows identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
const Rows sixteen = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};

MatrixPtr transformation(const Rows& rows = identity)
{
    MatrixPtr matrix(zu_TMatrix_create());
    fill(matrix, rows);
    return matrix;
}

TEST(TMatrix, parts)
{
    const MatrixPtr m = transformation(sixteen);
    EXPECT_EQ(rowsOf(MatrixPtr(zu_TMatrix_create())), identity);
    EXPECT_EQ(zu_TMatrix_set(m.get(), 1, 2, 3, 10, 4, 5, 6, 20, 7, 8, 9, 30), 1);
    EXPECT_EQ(rowsOf(m), (Rows{1, 2, 3, 10, 4, 5, 6, 20, 7, 8, 9, 30, 0, 0, 0, 1}));
    Point origin = {};
    EXPECT_EQ(zu_TMatrix_getOrigin(&origin, m.get()), 1);
    EXPECT_EQ(at(origin), (Triple{10, 20, 30}));
    const MatrixPtr rotation(zu_RotMatrix_create());
    EXPECT_EQ(zu_TMatrix_getRMatrix(rotation.get(), m.get()), 1);
    EXPECT_EQ(rowsOf(rotation), (Rows{1, 2, 3, 4, 5, 6, 7, 8, 9}));

    const MatrixPtr other = transformation(sixteen);
    EXPECT_EQ(zu_TMatrix_setOrigin(other.get(), &origin), 1);
    EXPECT_EQ(rowsOf(other), (Rows{1, 2, 3, 10, 5, 6, 7, 20, 9, 10, 11, 30, 13, 14, 15, 16})) << "column 3 alone";
    EXPECT_EQ(zu_TMatrix_setRMatrix(other.get(), rotation.get()), 1);
    EXPECT_EQ(rowsOf(other), rowsOf(m)) << "row 3 is set, the origin kept";
    EXPECT_EQ(zu_TMatrix_setIdentity(other.get()), 1);
    EXPECT_EQ(rowsOf(other), identity);
}

TEST(TMatrix, rotateKeepsTheOriginAlone)
{
    const MatrixPtr m = transformation(), out = transformation(sixteen), rotation(zu_RotMatrix_create());
    zu_TMatrix_set(m.get(), 0, -1, 0, 10, 1, 0, 0, 20, 0, 0, 1, 30);
    EXPECT_EQ(zu_TMatrix_rotate(out.get(), m.get(), 0, 0, 0), 1);
    EXPECT_TRUE(isNear(rowsOf(out), {1, 0, 0, 10, 0, 1, 0, 20, 0, 0, 1, 30, 0, 0, 0, 1}));
    EXPECT_EQ(zu_TMatrix_rotate(m.get(), m.get(), 0.1, 0.2, 0.3), 1);
    zu_RotMatrix_rotate(rotation.get(), rotation.get(), 0.1, 0.2, 0.3);
    const Rows r = rowsOf(rotation);
    EXPECT_TRUE(isNear(rowsOf(m), {r[0], r[1], r[2], 10, r[3], r[4], r[5], 20, r[6], r[7], r[8], 30, 0, 0, 0, 1}));
}

TEST(TMatrix, translation)
{
    const MatrixPtr m = transformation();
    const Point from = {1, 1, 1}, to = {11, 1, 1}, in = {1, 2, 3};
    Point out = {};
    EXPECT_EQ(zu_TMatrix_createForTranslation(m.get(), &from, &to), 1);
    zu_TMatrix_xform(&out, m.get(), &in);
    EXPECT_EQ(at(out), (Triple{11, 2, 3}));
}

// A right-handed system of an origin, a point on X and a point in XY, and where it puts its own coordinates.
struct System
{
    explicit System(Numbers& numbers) : o(numbers.point())
    {
        x = numbers.unit();
        Vector other = numbers.unit();
        while (zu_Vector_parallelWithinTolerance(&x, &other, 0.1) == 1)
            other = numbers.unit();
        zu_Vector_crossProduct(&z, &x, &other);
        zu_Vector_normalize(&z);
        zu_Vector_crossProduct(&y, &z, &x);
        onX = place(numbers.next(1, 5), 0, 0);
        inXY = place(numbers.next(), numbers.next(1, 5), 0);
    }
    Point place(double a, double b, double c) const
    {
        return {o.x + a * x.x + b * y.x + c * z.x, o.y + a * x.y + b * y.y + c * z.y,
                o.z + a * x.z + b * y.z + c * z.z};
    }

    Point o, onX, inXY;
    Vector x, y, z;
};

TEST(TMatrix, createFromUCSCarriesOneSystemToTheOther)
{
    Numbers numbers(72);
    const MatrixPtr m = transformation();
    for (int round = 0; round < 200; ++round) {
        const System first(numbers), second(numbers);
        fill(m, sixteen);
        ASSERT_EQ(
            zu_TMatrix_createFromUCS(m.get(), &first.o, &first.onX, &first.inXY, &second.o, &second.onX, &second.inXY),
            1);
        const double a = numbers.next(), b = numbers.next(), c = numbers.next();
        const Point in = first.place(a, b, c);
        Point out = {};
        zu_TMatrix_xform(&out, m.get(), &in);
        EXPECT_TRUE(isNear(out, at(second.place(a, b, c)), 1e-8)) << round;
        const Rows rows = rowsOf(m);
        EXPECT_EQ(Rows(rows.end() - 4, rows.end()), (Rows{0, 0, 0, 1}));
    }
}

TEST(TMatrix, createFromUCSSpecialCases)
{
    const MatrixPtr m = transformation(sixteen);
    const Point o1 = {1, 2, 3}, x1 = {2, 2, 3}, y1 = {2, 5, 3}, o2 = {5, 5, 5}, x2 = {6, 5, 5}, y2 = {6, 8, 5};
    EXPECT_EQ(zu_TMatrix_createFromUCS(m.get(), &o1, &x1, &y1, &o2, &x2, &y2), 1);
    EXPECT_EQ(rowsOf(m), (Rows{1, 0, 0, 4, 0, 1, 0, 3, 0, 0, 1, 2, 0, 0, 0, 1})) << "a shift alone";
    // The same directions from x to y make a shift of systems that nothing else would call equal.
    const Point flat = {3, 2, 3}, flat2 = {7, 5, 5};
    EXPECT_EQ(zu_TMatrix_createFromUCS(m.get(), &o1, &x1, &flat, &o2, &x2, &flat2), 1);
    EXPECT_EQ(rowsOf(m), (Rows{1, 0, 0, 4, 0, 1, 0, 3, 0, 0, 1, 2, 0, 0, 0, 1})) << "not even systems";
    // The same X axis does not make a shift.
    const Point upright = {5, 5, 8};
    EXPECT_EQ(zu_TMatrix_createFromUCS(m.get(), &o1, &x1, &y1, &o2, &x2, &upright), 1);
    EXPECT_TRUE(isNear(rowsOf(m), {1, 0, 0, 4, 0, 0, -1, 8, 0, 1, 0, 3, 0, 0, 0, 1}));
    // A first system without a rotation counts as unrotated.
    const Point turned = {5, 6, 5}, side = {3, 6, 5};
    EXPECT_EQ(zu_TMatrix_createFromUCS(m.get(), &o1, &x1, &flat, &o2, &turned, &side), 1);
    EXPECT_TRUE(isNear(rowsOf(m), {0, -1, 0, 7, 1, 0, 0, 4, 0, 0, 1, 2, 0, 0, 0, 1}));
}

} // namespace
