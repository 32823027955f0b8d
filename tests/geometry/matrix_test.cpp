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

TEST(Matrix, startsWithOnesOnTheDiagonal)
{
    const MatrixPtr wide = newMatrix(2, 3), tall = newMatrix(3, 2);
    EXPECT_EQ(rowsOf(wide), (std::vector<double>{1, 0, 0, 0, 1, 0}));
    EXPECT_EQ(rowsOf(tall), (std::vector<double>{1, 0, 0, 1, 0, 0}));
    int32_t rows = 0, columns = 0;
    EXPECT_EQ(zu_Matrix_numberRows(&rows, wide.get()), 1);
    EXPECT_EQ(zu_Matrix_numberColumns(&columns, wide.get()), 1);
    EXPECT_EQ(rows * 10 + columns, 23);
}

TEST(Matrix, elementsRowsAndColumns)
{
    const MatrixPtr m = newMatrix(2, 3);
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

    const std::pair<const char*, int32_t> refused[] = {
        {"getElement beyond the rows", zu_Matrix_getElement(&value, m.get(), 2, 0)},
        {"getElement beyond the columns", zu_Matrix_getElement(&value, m.get(), 0, 3)},
        {"setElement of column -1", zu_Matrix_setElement(m.get(), 0, -1, 1)},
        {"getColumn of another length", zu_Matrix_getColumn(&row, m.get(), 0)},
        {"setColumn of another length", zu_Matrix_setColumn(m.get(), 0, &row)},
        {"getRow beyond", zu_Matrix_getRow(&row, m.get(), 2)},
        {"setRow of row -1", zu_Matrix_setRow(m.get(), -1, &row)},
        {"setRow of a shorter one", zu_Matrix_setRow(m.get(), 0, &column)},
    };
    for (const auto& [what, result] : refused)
        EXPECT_EQ(result, 0) << what;
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
    const std::pair<const char*, int32_t> refused[] = {
        {"add", zu_Matrix_add(out.get(), a.get(), tall.get())},
        {"subtract", zu_Matrix_subtract(tall.get(), a.get(), b.get())},
        {"scale", zu_Matrix_scale(out.get(), tall.get(), 2)},
        {"copy of another height", zu_Matrix_copy(out.get(), tall.get())},
    };
    for (const auto& [what, result] : refused)
        EXPECT_EQ(result, 0) << what;
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
    const int sizes[][3] = {{1, 1, 1},    {2, 3, 2},    {3, 3, 3},   {3, 3, 1},    {4, 4, 4},
                            {4, 4, 3},    {5, 4, 4},    {7, 9, 8},   {17, 5, 13},  {64, 64, 64},
                            {65, 66, 67}, {6, 255, 70}, {5, 256, 9}, {3, 257, 65}, {1, 600, 129}};
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

TEST(Matrix, productsOfTheWrongSizeChangeNothing)
{
    const MatrixPtr a = newMatrix(2, 3), b = newMatrix(3, 2), right = newMatrix(2, 2), wrong = newMatrix(3, 3);
    fill(wrong, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    const std::vector<double> before = rowsOf(wrong);
    const std::pair<const char*, int32_t> refused[] = {
        {"inner sizes differ", zu_Matrix_multiply(right.get(), a.get(), a.get())},
        {"rows of out", zu_Matrix_multiply(newMatrix(3, 2).get(), a.get(), b.get())},
        {"three times four", zu_Matrix_multiply(wrong.get(), wrong.get(), newMatrix(4, 3).get())},
    };
    for (const auto& [what, result] : refused)
        EXPECT_EQ(result, 0) << what;
    EXPECT_EQ(rowsOf(wrong), before);
}

TEST(Matrix, print)
{
    const MatrixPtr matrix = newMatrix(2, 2);
    element(matrix, 0, 1) = -2.5;
    EXPECT_EQ(written([&](std::FILE* stream) { EXPECT_EQ(zu_Matrix_print(matrix.get(), stream), 1); }),
              "1.000000 -2.500000 \n0.000000 1.000000 \n\n");
    EXPECT_EQ(printedBy([&] { zu_Matrix_print(matrix.get(), nullptr); }).substr(0, 19), "1.000000 -2.500000 ");
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

TEST(Matrix, badInputIsRefusedAndTracedUnderTheStatedNames)
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
    Refusals refused(ZU_DIAG_MATRIX, "matrix");
    refused({REFUSAL_AS("zu_Matrix_create", zu_Matrix_create(-1, 3) != nullptr), REFUSAL(zu_Matrix_destroy, nullptr),
             REFUSAL(zu_Matrix_numberRows, &count, nullptr), REFUSAL(zu_Matrix_numberRows, &count, noColumns.get()),
             REFUSAL(zu_Matrix_numberRows, nullptr, m.get()),
             REFUSAL_AS("zu_Matrix_numberCols", zu_Matrix_numberColumns(&count, nullptr)),
             REFUSAL_AS("zu_Matrix_numberCols", zu_Matrix_numberColumns(nullptr, m.get())),
             REFUSAL(zu_Matrix_getElement, &number, nullptr, 0, 0),
             REFUSAL(zu_Matrix_getElement, nullptr, m.get(), 0, 0),
             REFUSAL(zu_Matrix_getElement, &number, noColumns.get(), 0, 0),
             REFUSAL(zu_Matrix_setElement, nullptr, 0, 0, 1), REFUSAL(zu_Matrix_copy, m.get(), nullptr)});
    refused({REFUSAL(zu_Matrix_getColumn, nullptr, m.get(), 0), REFUSAL(zu_Matrix_setColumn, m.get(), 0, nullptr),
             REFUSAL(zu_Matrix_getRow, nullptr, m.get(), 0), REFUSAL(zu_Matrix_getRow, &unreadable, m.get(), 0),
             REFUSAL(zu_Matrix_setRow, m.get(), 0, nullptr), REFUSAL(zu_Matrix_setRow, m.get(), 0, &unreadable),
             REFUSAL(zu_Matrix_print, nullptr, stdout), REFUSAL(zu_Matrix_transpose, nullptr, m.get()),
             REFUSAL(zu_Matrix_multiply, m.get(), nullptr, m.get()),
             REFUSAL_AS("", zu_Matrix_add(m.get(), m.get(), nullptr)),
             REFUSAL_AS("", zu_Matrix_subtract(nullptr, m.get(), m.get())),
             REFUSAL_AS("zu_Matrix_copy", zu_Matrix_scale(m.get(), nullptr, 2))});
    EXPECT_EQ(number, 7);
    EXPECT_EQ(rowsOf(m), (std::vector<double>{1, 0, 0, 1}));
}

} // namespace
