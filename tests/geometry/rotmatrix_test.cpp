#include "zu_RotMatrix.h"

#include "geometry/geometry.h"

namespace {

using namespace zutest;

using Rows = std::vector<double>;
const Rows identity = {1, 0, 0, 0, 1, 0, 0, 0, 1};
const Rows nine = {1, 2, 3, 4, 5, 6, 7, 8, 9};

MatrixPtr rotation(const Rows& rows = identity)
{
    MatrixPtr matrix(zu_RotMatrix_create());
    fill(matrix, rows);
    return matrix;
}

Rows timesRows(const Rows& a, const Rows& b)
{
    Rows out(9);
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            for (std::size_t inner = 0; inner < 3; ++inner)
                out[row * 3 + column] += a[row * 3 + inner] * b[inner * 3 + column];
        }
    }
    return out;
}

// M Mt = 1 and X x Y = Z.
testing::AssertionResult isRotation(const MatrixPtr& m)
{
    const Rows r = rowsOf(m);
    const Rows transposed = {r[0], r[3], r[6], r[1], r[4], r[7], r[2], r[5], r[8]};
    const double determinant =
        r[0] * (r[4] * r[8] - r[5] * r[7]) - r[1] * (r[3] * r[8] - r[5] * r[6]) + r[2] * (r[3] * r[7] - r[4] * r[6]);
    if (std::abs(determinant - 1) > 1e-9)
        return testing::AssertionFailure() << "determinant " << determinant;
    return isNear(timesRows(r, transposed), identity);
}

TEST(RotMatrix, elements)
{
    const MatrixPtr m = rotation();
    double value = 0;
    EXPECT_EQ(rowsOf(m), identity);
    EXPECT_EQ(zu_RotMatrix_set(m.get(), 1, 2, 3, 4, 5, 6, 7, 8, 9), 1);
    EXPECT_EQ(rowsOf(m), nine);
    // Indices end at 3 whatever the size is, and only this size is taken elsewhere.
    const MatrixPtr large = newMatrix(4, 4), small = newMatrix(2, 2);
    for (const int32_t index : {-1, 3}) {
        EXPECT_EQ(zu_RotMatrix_setElement(large.get(), index, 0, 1), 0) << index;
        EXPECT_EQ(zu_RotMatrix_getElement(&value, large.get(), 0, index), 0) << index;
    }
    Point point = {};
    const Vector vector = {};
    EXPECT_TRUE(
        allAre(0, {zu_RotMatrix_set(small.get(), 1, 2, 3, 4, 5, 6, 7, 8, 9),
                   zu_RotMatrix_getElement(&value, small.get(), 0, 2), zu_RotMatrix_setColumn(large.get(), 0, &vector),
                   zu_RotMatrix_multiply(m.get(), m.get(), large.get()), zu_RotMatrix_copy(m.get(), large.get()),
                   zu_RotMatrix_normalize(m.get(), small.get()), zu_RotMatrix_rotate(m.get(), large.get(), 1, 2, 3),
                   zu_RotMatrix_rotatePoint(&point, large.get())}));
}

TEST(RotMatrix, rowsAndColumnsAreNotWhatTheirNamesSay)
{
    const Vector v = {10, 20, 30};
    const struct
    {
        const char* what;
        int32_t (*store)(RotMatrix*, const Vector*);
        Rows rows;
    } rows[] = {
        {"setRowValues: a row",
         [](RotMatrix* m, const Vector*) { return zu_RotMatrix_setRowValues(m, 1, 10, 20, 30); },
         {1, 2, 3, 10, 20, 30, 7, 8, 9}},
        {"setColumnValues: a row",
         [](RotMatrix* m, const Vector*) { return zu_RotMatrix_setColumnValues(m, 1, 10, 20, 30); },
         {1, 2, 3, 10, 20, 30, 7, 8, 9}},
        {"setColumn: a column",
         [](RotMatrix* m, const Vector* from) { return zu_RotMatrix_setColumn(m, 2, from); },
         {1, 2, 10, 4, 5, 20, 7, 8, 30}},
        {"setRow: a column",
         [](RotMatrix* m, const Vector* from) { return zu_RotMatrix_setRow(m, 2, from); },
         {1, 2, 10, 4, 5, 20, 7, 8, 30}},
        {"out of range", [](RotMatrix* m, const Vector* from) { return 1 - zu_RotMatrix_setRow(m, 3, from); }, nine},
    };
    for (const auto& row : rows) {
        const MatrixPtr m = rotation(nine);
        EXPECT_EQ(row.store(m.get(), &v), 1) << row.what;
        EXPECT_EQ(rowsOf(m), row.rows) << row.what;
    }
    const MatrixPtr m = rotation(nine);
    Vector out = {};
    EXPECT_EQ(zu_RotMatrix_getColumn(&out, m.get(), 1), 1);
    EXPECT_EQ(at(out), (Triple{2, 5, 8}));
    EXPECT_EQ(zu_RotMatrix_getRow(&out, m.get(), 1), 1);
    EXPECT_EQ(at(out), (Triple{4, 5, 6})) << "a true row";
    EXPECT_EQ(zu_RotMatrix_getRow(&out, m.get(), 3) + zu_RotMatrix_getColumn(&out, m.get(), -1), 0);

    const Vector x = {1, 4, 7}, y = {2, 5, 8}, z = {3, 6, 9};
    const MatrixPtr byColumns = rotation(), byRows = rotation();
    EXPECT_EQ(zu_RotMatrix_fromColumnVectors(byColumns.get(), &x, &y, &z), 0) << "0 on success";
    EXPECT_EQ(zu_RotMatrix_fromRowVectors(byRows.get(), &x, &y, &z), 0) << "0 on success";
    EXPECT_EQ(rowsOf(byColumns), nine);
    EXPECT_EQ(rowsOf(byRows), nine) << "columns as well";
}

TEST(RotMatrix, identityIsTestedFromOneSide)
{
    const MatrixPtr m = rotation(nine);
    EXPECT_EQ(zu_RotMatrix_isIdentity(m.get()), 0);
    EXPECT_EQ(zu_RotMatrix_setIdentity(m.get()), 0) << "0 on success";
    EXPECT_EQ(rowsOf(m), identity);
    const std::tuple<const char*, double, double, int32_t> rows[] = {
        {"the identity", 1, 0, 1}, {"a small diagonal", 0.99, 0, 1},      {"slightly large", 1.000009, 0, 1},
        {"large", 1.0001, 0, 0},   {"exactly the tolerance", 1, 1e-5, 0}, {"not a number", 1, notANumber, 0},
    };
    for (const auto& [what, diagonal, off, result] : rows) {
        fill(m, {diagonal, off, off, off, diagonal, off, off, off, diagonal});
        EXPECT_EQ(zu_RotMatrix_isIdentity(m.get()), result) << what;
    }
}

TEST(RotMatrix, wholeMatrices)
{
    const MatrixPtr m = rotation(nine), out = rotation();
    EXPECT_EQ(zu_RotMatrix_getInverse(out.get(), m.get()), 1);
    EXPECT_EQ(rowsOf(out), (Rows{1, 4, 7, 2, 5, 8, 3, 6, 9}));
    EXPECT_EQ(zu_RotMatrix_copy(out.get(), m.get()), 1);
    EXPECT_EQ(rowsOf(out), nine);
    EXPECT_EQ(zu_RotMatrix_equal(out.get(), m.get()), 1);
    element(out, 2, 1) += 0.9e-5;
    EXPECT_EQ(zu_RotMatrix_equal(out.get(), m.get()), 1);
    element(out, 2, 1) += 0.2e-5;
    EXPECT_EQ(zu_RotMatrix_equal(out.get(), m.get()), 0);
    EXPECT_EQ(zu_RotMatrix_getInverse(out.get(), m.get()), 1);
    EXPECT_EQ(zu_RotMatrix_multiply(out.get(), out.get(), m.get()), 1);
    EXPECT_EQ(rowsOf(out), timesRows({1, 4, 7, 2, 5, 8, 3, 6, 9}, nine));

    fill(m, {3, 0, 0, 0, 0, -2, 4, 5, 0});
    EXPECT_EQ(zu_RotMatrix_normalize(m.get(), m.get()), 1);
    EXPECT_TRUE(isNear(rowsOf(m), {0.6, 0, 0, 0, 0, -1, 0.8, 1, 0})) << "column by column";
    fill(m, {3, 0, 0, 0, 2, 0, 4, 0, 1e-5});
    EXPECT_EQ(zu_RotMatrix_normalize(out.get(), m.get()), 0);
}

TEST(RotMatrix, rotateStepsAboutZThenYThenX)
{
    const MatrixPtr m = rotation(), out = rotation();
    const double c = std::cos(0.3), s = std::sin(0.3);
    const struct
    {
        const char* what;
        double x, y, z;
        Rows rows;
    } rows[] = {
        {"X", 0.3, 0, 0, {1, 0, 0, 0, c, -s, 0, s, c}},
        {"Y, the other way", 0, 0.3, 0, {c, 0, -s, 0, 1, 0, s, 0, c}},
        {"Z", 0, 0, 0.3, {c, -s, 0, s, c, 0, 0, 0, 1}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(zu_RotMatrix_rotate(out.get(), m.get(), row.x, row.y, row.z), 1) << row.what;
        EXPECT_TRUE(isNear(rowsOf(out), row.rows)) << row.what;
    }
    // All three on top of another matrix, in place.
    Rows want = nine;
    for (const auto& row : {rows[2], rows[1], rows[0]})
        want = timesRows(row.rows, want);
    fill(m, nine);
    EXPECT_EQ(zu_RotMatrix_rotate(m.get(), m.get(), 0.3, 0.3, 0.3), 1);
    EXPECT_TRUE(isNear(rowsOf(m), want));

    EXPECT_EQ(zu_RotMatrix_fromAngle(m.get(), 0.3), 1);
    EXPECT_TRUE(isNear(rowsOf(m), rows[2].rows));
}

// Turning by q v q* is another way to what the matrix of q does.
TEST(RotMatrix, quaternionsTurnAsTheirMatricesDo)
{
    Numbers numbers(61);
    const MatrixPtr m = rotation(), second = rotation();
    for (int round = 0; round < 300; ++round) {
        const Vector axis = numbers.vector();
        const double angle = numbers.next(-4, 4);
        Vector unit = axis, v = numbers.vector();
        zu_Vector_normalize(&unit);
        Quaternion q = {}, conjugate = {};
        ASSERT_EQ(zu_Quaternion_fromRotAxisAndAngle(&q, &unit, angle), 1);
        zu_Quaternion_getConjugate(&conjugate, &q);
        Quaternion turned = {v.x, v.y, v.z, 0};
        zu_Quaternion_multiply(&turned, &q, &turned);
        zu_Quaternion_multiply(&turned, &turned, &conjugate);

        ASSERT_EQ(zu_RotMatrix_fromRotAxisAndAngle(m.get(), &axis, angle), 1) << "an axis of any length";
        EXPECT_TRUE(isRotation(m)) << round;
        EXPECT_EQ(zu_RotMatrix_fromQuaternion(second.get(), &q), 1);
        EXPECT_EQ(zu_RotMatrix_equal(m.get(), second.get()), 1) << round;
        Point point = {v.x, v.y, v.z};
        EXPECT_EQ(zu_RotMatrix_rotateVector(&v, m.get()), 1);
        EXPECT_EQ(zu_RotMatrix_rotatePoint(&point, m.get()), 1);
        EXPECT_TRUE(isNear(v, at(turned))) << round;
        EXPECT_EQ(at(point), at(v)) << round;
    }
    const Vector none = {};
    EXPECT_EQ(zu_RotMatrix_fromRotAxisAndAngle(m.get(), &none, 1), 1);
    EXPECT_EQ(rowsOf(m), identity);
    EXPECT_EQ(zu_RotMatrix_fromRotAxisAndAngle(m.get(), &none, pi), 0);
}

TEST(RotMatrix, from3Points)
{
    const MatrixPtr m = rotation(nine);
    const Point origin = {1, 1, 1}, onX = {1, 5, 1}, inXY = {-2, 9, 1}, onAxis = {1, -3, 1};
    EXPECT_EQ(zu_RotMatrix_from3Points(m.get(), &origin, &origin, &inXY), 0) << "onX = origin";
    EXPECT_EQ(zu_RotMatrix_from3Points(m.get(), &origin, &onX, &onAxis), 0) << "inXY on the axis";
    EXPECT_EQ(rowsOf(m), nine);
    EXPECT_EQ(zu_RotMatrix_from3Points(m.get(), &origin, &onX, &inXY), 1);
    EXPECT_TRUE(isNear(rowsOf(m), {0, -1, 0, 1, 0, 0, 0, 0, 1})) << "axes as columns";

    // The system's own axes must carry the points back to where they are.
    Numbers numbers(63);
    for (int round = 0; round < 200; ++round) {
        const Point o = numbers.point();
        const Vector x = numbers.unit(), y = numbers.unit();
        const Point a = {o.x + 2 * x.x, o.y + 2 * x.y, o.z + 2 * x.z},
                    b = {o.x + 3 * y.x, o.y + 3 * y.y, o.z + 3 * y.z};
        if (zu_Point_colinearWithinTol(&o, &a, &b, 0.1) == 1)
            continue;
        ASSERT_EQ(zu_RotMatrix_from3Points(m.get(), &o, &a, &b), 1) << round;
        EXPECT_TRUE(isRotation(m)) << round;
        const Rows r = rowsOf(m);
        EXPECT_NEAR(r[0] * x.x + r[3] * x.y + r[6] * x.z, 1, 1e-9) << "X along x";
        EXPECT_NEAR(r[2] * y.x + r[5] * y.y + r[8] * y.z, 0, 1e-9) << "y in the XY plane";
        EXPECT_GT(r[1] * y.x + r[4] * y.y + r[7] * y.z, 0) << "on the side of +Y";
        const MatrixPtr fromVectors = rotation();
        const Vector longX = {x.x * 7, x.y * 7, x.z * 7};
        ASSERT_EQ(zu_RotMatrix_fromVectorsXY(fromVectors.get(), &o, &longX, &y), 1) << round;
        EXPECT_TRUE(isNear(rowsOf(fromVectors), r)) << round;
    }
}

TEST(RotMatrix, fromVectors)
{
    Numbers numbers(64);
    const MatrixPtr m = rotation();
    for (int round = 0; round < 200; ++round) {
        const Vector from = numbers.unit(), to = numbers.unit(), axis = numbers.vector();
        ASSERT_EQ(zu_RotMatrix_fromVectors(m.get(), nullptr, &from, &to), 1);
        EXPECT_TRUE(isRotation(m)) << round;
        Vector turned = from;
        zu_RotMatrix_rotateVector(&turned, m.get());
        // Angles below 0.0045 count as none.
        EXPECT_TRUE(isNear(turned, at(to), 5e-3)) << round;

        ASSERT_EQ(zu_RotMatrix_fromVectors(m.get(), &axis, &from, &to), 1);
        EXPECT_TRUE(isRotation(m)) << round;
        Vector kept = axis, across = {}, wanted = {};
        zu_RotMatrix_rotateVector(&kept, m.get());
        EXPECT_TRUE(isNear(kept, at(axis), 1e-3)) << round << ": the axis stays";
        turned = from;
        zu_RotMatrix_rotateVector(&turned, m.get());
        zu_Vector_getOrthoVector(&across, &axis, &turned);
        zu_Vector_getOrthoVector(&wanted, &axis, &to);
        zu_Vector_normalize(&across);
        zu_Vector_normalize(&wanted);
        EXPECT_TRUE(isNear(across, at(wanted), 5e-3)) << round << ": the parts across the axis agree";
    }
    const Vector x = {2, 0, 0}, upAndBack = {-1, 0, 5}, z = {0, 0, -4}, tooShort = {0, 0, 1e-5};
    ASSERT_EQ(zu_RotMatrix_fromVectors(m.get(), &z, &x, &upAndBack), 1) << "opposite across the axis";
    const double s = std::sin(3.1415926536);
    EXPECT_TRUE(isNear(rowsOf(m), {-1, s, 0, -s, -1, 0, 0, 0, 1}, 1e-15)) << "about -Z by the required constant";
    fill(m, nine);
    EXPECT_EQ(zu_RotMatrix_fromVectors(m.get(), &x, &x, &z), 0) << "nothing across the axis";
    EXPECT_EQ(zu_RotMatrix_fromVectors(m.get(), nullptr, &tooShort, &x), 0);
    EXPECT_EQ(rowsOf(m), nine);
}

} // namespace
