#include "zu_Matrix.h"

#include "geometry/geometry.h"
#include "support/memory.h"

namespace {

using namespace zutest;

// The definition: each element is a sum from 0 in index order.
std::vector<double> naiveProduct(const MatrixPtr& a, const MatrixPtr& b)
{
    std::vector<double> rows;
    for (int32_t row = 0; row < a->columns[0]->count; ++row) {
        for (int32_t column = 0; column < b->columnCount; ++column) {
            double sum = 0.0;
            for (int32_t inner = 0; inner < a->columnCount; ++inner)
                sum += element(a, row, inner) * element(b, inner, column);
            rows.push_back(sum);
        }
    }
    return rows;
}

void randomise(const MatrixPtr& matrix, Numbers& numbers)
{
    for (int32_t column = 0; column < matrix->columnCount; ++column) {
        for (int32_t row = 0; row < matrix->columns[column]->count; ++row) {
            // Zeros of either sign and very different sizes show any other order of summing.
            const int kind = numbers.nextInt(0, 9);
            element(matrix, row, column) = kind == 0 ? 0.0 : kind == 1 ? -0.0 : numbers.next() * std::pow(10, kind);
        }
    }
}

TEST(Matrix, elementsRowsAndColumns)
{
    const MatrixPtr m = newMatrix(2, 3);
    EXPECT_EQ(rowsOf(m), (std::vector<double>{1, 0, 0, 0, 1, 0}));
    fill(m, {1, 2, 3, 4, 5, 6});
    double value = 0;
    EXPECT_EQ(zu_Matrix_getElement(&value, m.get(), 1, 2), 1);
    EXPECT_EQ(value, 6);
    EXPECT_EQ(zu_Matrix_setElement(m.get(), 0, 2, 30), 1);
    double two[2] = {}, three[3] = {}, four[4] = {7, 8, 9, 10};
    Ntuple column = {2, two}, row = {3, three}, longer = {4, four};
    EXPECT_EQ(zu_Matrix_getColumn(&column, m.get(), 2), 1);
    EXPECT_EQ(std::vector<double>(two, two + 2), (std::vector<double>{30, 6}));
    EXPECT_EQ(zu_Matrix_getRow(&row, m.get(), 1), 1);
    EXPECT_EQ(std::vector<double>(three, three + 3), (std::vector<double>{4, 5, 6}));
    EXPECT_EQ(zu_Matrix_setColumn(m.get(), 0, &column), 1);
    EXPECT_EQ(rowsOf(m), (std::vector<double>{30, 2, 30, 6, 5, 6}));
    EXPECT_EQ(zu_Matrix_setRow(m.get(), 0, &row), 1);
    EXPECT_EQ(rowsOf(m), (std::vector<double>{4, 5, 6, 6, 5, 6}));

    EXPECT_TRUE(allAre(0, {zu_Matrix_getElement(&value, m.get(), 2, 0), zu_Matrix_getElement(&value, m.get(), 0, 3),
                           zu_Matrix_setElement(m.get(), 0, -1, 1), zu_Matrix_getColumn(&row, m.get(), 0),
                           zu_Matrix_setColumn(m.get(), 0, &row), zu_Matrix_getRow(&row, m.get(), 2),
                           zu_Matrix_setRow(m.get(), -1, &row), zu_Matrix_setRow(m.get(), 0, &column)}));
    EXPECT_EQ(value, 6);
    EXPECT_EQ(rowsOf(m), (std::vector<double>{4, 5, 6, 6, 5, 6}));
    EXPECT_EQ(zu_Matrix_setRow(m.get(), 1, &longer), 1);
    EXPECT_EQ(rowsOf(m), (std::vector<double>{4, 5, 6, 7, 8, 9})) << "further elements are ignored";
}

TEST(Matrix, elementwise)
{
    const MatrixPtr a = newMatrix(2, 2), b = newMatrix(2, 2), out = newMatrix(2, 2), tall = newMatrix(3, 2);
    fill(a, {1, 2, 3, 4});
    fill(b, {10, 20, 30, 50});
    EXPECT_EQ(zu_Matrix_add(out.get(), a.get(), b.get()), 1);
    EXPECT_EQ(rowsOf(out), (std::vector<double>{11, 22, 33, 54}));
    EXPECT_EQ(zu_Matrix_subtract(out.get(), a.get(), b.get()), 1);
    EXPECT_EQ(rowsOf(out), (std::vector<double>{-9, -18, -27, -46})) << "the first minus the second";
    EXPECT_EQ(zu_Matrix_scale(out.get(), a.get(), 3), 1);
    EXPECT_EQ(rowsOf(out), (std::vector<double>{3, 6, 9, 12}));
    EXPECT_EQ(zu_Matrix_copy(out.get(), b.get()), 1);
    EXPECT_EQ(rowsOf(out), rowsOf(b));
    EXPECT_TRUE(allAre(0, {zu_Matrix_add(out.get(), a.get(), tall.get()),
                           zu_Matrix_subtract(tall.get(), a.get(), b.get()), zu_Matrix_scale(out.get(), tall.get(), 2),
                           zu_Matrix_copy(out.get(), tall.get()), zu_Matrix_multiply(tall.get(), a.get(), b.get()),
                           zu_Matrix_multiply(out.get(), a.get(), tall.get())}));
    EXPECT_EQ(rowsOf(out), rowsOf(b));
}

TEST(Matrix, transpose)
{
    const MatrixPtr wide = newMatrix(2, 3), tall = newMatrix(3, 2), square = newMatrix(3, 3);
    fill(wide, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(zu_Matrix_transpose(tall.get(), wide.get()), 1);
    EXPECT_EQ(rowsOf(tall), (std::vector<double>{1, 4, 2, 5, 3, 6}));
    EXPECT_EQ(zu_Matrix_transpose(wide.get(), wide.get()), 0);
    fill(square, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(zu_Matrix_transpose(square.get(), square.get()), 1);
    EXPECT_EQ(rowsOf(square), (std::vector<double>{1, 4, 7, 2, 5, 8, 3, 6, 9}));
}

TEST(Matrix, productsAreTheDefinitionToTheLastBit)
{
    Numbers numbers(51);
    const int sizes[][3] = {{1, 1, 1}, {2, 3, 2},   {3, 3, 3},    {4, 4, 4},    {4, 4, 3},
                            {7, 9, 8}, {17, 5, 13}, {65, 66, 67}, {3, 257, 65}, {1, 600, 129}};
    for (const auto& [rows, inner, columns] : sizes) {
        const MatrixPtr a = newMatrix(rows, inner), b = newMatrix(inner, columns), out = newMatrix(rows, columns);
        randomise(a, numbers);
        randomise(b, numbers);
        randomise(out, numbers);
        const std::vector<double> want = naiveProduct(a, b);
        ASSERT_EQ(zu_Matrix_multiply(out.get(), a.get(), b.get()), 1);
        EXPECT_TRUE(haveSameBits(rowsOf(out), want)) << rows << " x " << inner << " x " << columns;
    }
    for (const int size : {2, 3, 4, 5, 33}) {
        const MatrixPtr a = newMatrix(size, size), b = newMatrix(size, size), factor = newMatrix(size, size);
        const auto elements = static_cast<std::size_t>(size * size);
        fill(a, std::vector<double>(elements, 1.0));
        fill(b, std::vector<double>(elements, -0.0));
        EXPECT_EQ(zu_Matrix_multiply(factor.get(), a.get(), b.get()), 1);
        EXPECT_TRUE(haveSameBits(rowsOf(factor), std::vector<double>(elements, 0.0))) << size << ", summed from +0";
        randomise(a, numbers);
        randomise(b, numbers);
        const std::vector<double> product = naiveProduct(a, b), square = naiveProduct(a, a);
        zu_Matrix_copy(factor.get(), a.get());
        EXPECT_EQ(zu_Matrix_multiply(factor.get(), factor.get(), b.get()), 1);
        EXPECT_TRUE(haveSameBits(rowsOf(factor), product)) << size << ", stored into the first factor";
        zu_Matrix_copy(factor.get(), b.get());
        EXPECT_EQ(zu_Matrix_multiply(factor.get(), a.get(), factor.get()), 1);
        EXPECT_TRUE(haveSameBits(rowsOf(factor), product)) << size << ", stored into the second factor";
        EXPECT_EQ(zu_Matrix_multiply(a.get(), a.get(), a.get()), 1);
        EXPECT_TRUE(haveSameBits(rowsOf(a), square)) << size << ", squared in place";
    }
}

TEST(Matrix, print)
{
    const MatrixPtr matrix = newMatrix(2, 2);
    element(matrix, 0, 1) = -2.5;
    EXPECT_EQ(written([&](std::FILE* stream) { EXPECT_EQ(zu_Matrix_print(matrix.get(), stream), 1); }),
              "1.000000 -2.500000 \n0.000000 1.000000 \n\n");
}

TEST(Matrix, withoutMemory)
{
    Matrix* made = nullptr;
    sweepAllocations([&] { made = zu_Matrix_create(5, 7); }, [&] { EXPECT_EQ(made, nullptr); });
    EXPECT_EQ(zu_Matrix_destroy(made), 1);

    const MatrixPtr a = newMatrix(5, 5), b = newMatrix(5, 5), out = newMatrix(5, 5);
    fill(a, std::vector<double>(25, 2.0));
    const std::vector<double> before = rowsOf(a);
    int32_t result = -1;
    sweepAllocations([&] { result = zu_Matrix_multiply(a.get(), a.get(), b.get()); },
                     [&] {
                         EXPECT_EQ(result, 0);
                         EXPECT_EQ(rowsOf(a), before);
                     });
    EXPECT_EQ(result, 1);
}

TEST(Matrix, sizesThatCannotBe)
{
    for (const auto& [rows, columns] : {std::pair{3, -1}, {INT32_MIN, INT32_MIN}, {INT32_MAX, INT32_MAX}})
        EXPECT_EQ(zu_Matrix_create(rows, columns), nullptr) << rows << " x " << columns;
    const MatrixPtr m = newMatrix(2, 2), noColumns = newMatrix(3, 0), noRows = newMatrix(0, 3);
    double number = 7;
    int32_t count = 7;
    EXPECT_EQ(zu_Matrix_numberColumns(&count, noColumns.get()), 1);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(zu_Matrix_numberRows(&count, noRows.get()), 1);
    EXPECT_EQ(count, 0);
    Ntuple unreadable = {2, nullptr};
    EXPECT_TRUE(
        allAre(0, {zu_Matrix_numberRows(&count, noColumns.get()), zu_Matrix_getElement(&number, noColumns.get(), 0, 0),
                   zu_Matrix_getRow(&unreadable, m.get(), 0), zu_Matrix_setRow(m.get(), 0, &unreadable)}));
    EXPECT_EQ(number, 7);
    EXPECT_EQ(rowsOf(m), (std::vector<double>{1, 0, 0, 1}));
}

} // namespace
