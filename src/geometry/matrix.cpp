#include "zu_Matrix.h"

#include "frame/trace.h"
#include "geometry/blocks.h"
#include "geometry/numbers.h"
#include "geometry/triples.h"
#include "zu_Memory.h"

#include <algorithm>
#include <cstddef>
#include <limits>

static_assert(offsetof(Matrix, columnCount) == 0 && offsetof(Matrix, columns) == 8);

namespace {

using namespace zu;
using namespace zu::geometry;

bool hasColumn(const Matrix* matrix, int32_t column)
{
    return matrix != nullptr && column >= 0 && column < matrix->columnCount;
}

bool hasRow(const Matrix* matrix, int32_t row)
{
    return matrix != nullptr && row >= 0 && row < rowsOf(*matrix);
}

bool haveSameColumnCount(const Matrix* a, const Matrix* b)
{
    return areGiven(a, b) && a->columnCount == b->columnCount;
}

// Applies an operation on n-tuples to the columns of three matrices, up to the first failure.
template <class Operation>
int32_t columnByColumn(Matrix* out, const Matrix* a, const Matrix* b, Operation operation)
{
    if (!haveSameColumnCount(out, a) || !haveSameColumnCount(out, b))
        return 0;
    for (int32_t column = 0; column < out->columnCount; ++column) {
        if (operation(out->columns[column], a->columns[column], b->columns[column]) == 0)
            return 0;
    }
    return 1;
}

} // namespace

Matrix* zu_Matrix_create(int32_t rows, int32_t columns)
{
    ZU_TRACE(matrix);
    if (rows < 0 || columns < 0)
        return nullptr;
    // Header, column pointers, n-tuples and elements lie in one block: the products walk the elements in one piece, and
    // memory cannot run out part-way.
    const auto rowCount = static_cast<uint64_t>(rows), columnCount = static_cast<uint64_t>(columns);
    const uint64_t headers = sizeof(Matrix) + columnCount * (sizeof(Ntuple*) + sizeof(Ntuple));
    const uint64_t start = (headers + 15) / 16 * 16;
    if (rowCount * columnCount > (std::numeric_limits<uint64_t>::max() - start) / sizeof(double))
        return nullptr;
    auto* const block = static_cast<std::byte*>(zu_Calloc(1, start + rowCount * columnCount * sizeof(double)));
    if (block == nullptr)
        return nullptr;
    auto* const matrix = reinterpret_cast<Matrix*>(block);
    *matrix = {columns, reinterpret_cast<Ntuple**>(block + sizeof(Matrix))};
    auto* const ntuples = reinterpret_cast<Ntuple*>(matrix->columns + columnCount);
    auto* const elements = reinterpret_cast<double*>(block + start);
    for (uint64_t column = 0; column < columnCount; ++column) {
        ntuples[column] = {rows, elements + column * rowCount};
        matrix->columns[column] = &ntuples[column];
        if (column < rowCount)
            ntuples[column].elements[column] = 1.0;
    }
    return matrix;
}

int32_t zu_Matrix_destroy(Matrix* matrix)
{
    ZU_TRACE(matrix);
    zu_Free(matrix);
    return matrix != nullptr;
}

int32_t zu_Matrix_numberRows(int32_t* out, const Matrix* matrix)
{
    ZU_TRACE(matrix);
    if (out == nullptr || !hasColumn(matrix, 0))
        return 0;
    *out = rowsOf(*matrix);
    return 1;
}

int32_t zu_Matrix_numberColumns(int32_t* out, const Matrix* matrix)
{
    ZU_TRACE_AS(matrix, "zu_Matrix_numberCols");
    if (out == nullptr || matrix == nullptr)
        return 0;
    *out = matrix->columnCount;
    return 1;
}

int32_t zu_Matrix_getElement(double* out, const Matrix* matrix, int32_t row, int32_t column)
{
    ZU_TRACE(matrix);
    return hasColumn(matrix, column) ? zu_Ntuple_getElement(out, matrix->columns[column], row) : 0;
}

int32_t zu_Matrix_setElement(Matrix* matrix, int32_t row, int32_t column, double value)
{
    ZU_TRACE(matrix);
    return hasColumn(matrix, column) ? zu_Ntuple_setElement(matrix->columns[column], row, value) : 0;
}

int32_t zu_Matrix_copy(Matrix* out, const Matrix* matrix)
{
    ZU_TRACE(matrix);
    if (!haveSameColumnCount(out, matrix))
        return 0;
    for (int32_t column = 0; column < out->columnCount; ++column) {
        if (zu_Ntuple_copy(out->columns[column], matrix->columns[column]) == 0)
            return 0;
    }
    return 1;
}

int32_t zu_Matrix_getColumn(Ntuple* out, const Matrix* matrix, int32_t column)
{
    ZU_TRACE(matrix);
    return hasColumn(matrix, column) ? zu_Ntuple_copy(out, matrix->columns[column]) : 0;
}

int32_t zu_Matrix_setColumn(Matrix* matrix, int32_t column, const Ntuple* ntuple)
{
    ZU_TRACE(matrix);
    return hasColumn(matrix, column) ? zu_Ntuple_copy(matrix->columns[column], ntuple) : 0;
}

int32_t zu_Matrix_getRow(Ntuple* out, const Matrix* matrix, int32_t row)
{
    ZU_TRACE(matrix);
    if (!hasRow(matrix, row) || out == nullptr || out->elements == nullptr || out->count != matrix->columnCount)
        return 0;
    for (int32_t column = 0; column < matrix->columnCount; ++column)
        out->elements[column] = matrix->columns[column]->elements[row];
    return 1;
}

int32_t zu_Matrix_setRow(Matrix* matrix, int32_t row, const Ntuple* ntuple)
{
    ZU_TRACE(matrix);
    if (!hasRow(matrix, row) || ntuple == nullptr || ntuple->elements == nullptr || ntuple->count < matrix->columnCount)
        return 0;
    for (int32_t column = 0; column < matrix->columnCount; ++column)
        matrix->columns[column]->elements[row] = ntuple->elements[column];
    return 1;
}

int32_t zu_Matrix_print(const Matrix* matrix, FILE* stream)
{
    ZU_TRACE(matrix);
    if (matrix == nullptr)
        return 0;
    std::FILE* const target = stream == nullptr ? stdout : stream;
    for (int32_t row = 0; row < rowsOf(*matrix); ++row) {
        for (int32_t column = 0; column < matrix->columnCount; ++column)
            writeNumber(target, ZU_W("%lf "), matrix->columns[column]->elements[row]);
        writeLineEnd(target);
    }
    return writeLineEnd(target);
}

int32_t zu_Matrix_transpose(Matrix* out, const Matrix* matrix)
{
    ZU_TRACE(matrix);
    if (!areGiven(out, matrix) || rowsOf(*matrix) != out->columnCount || matrix->columnCount != rowsOf(*out))
        return 0;
    // In place the matrix is square, and each pair across the diagonal is exchanged; no temporary is needed.
    for (int32_t column = 0; column < matrix->columnCount; ++column) {
        double* const from = matrix->columns[column]->elements;
        for (int32_t row = out == matrix ? column + 1 : 0; row < out->columnCount; ++row) {
            double& to = out->columns[row]->elements[column];
            if (out == matrix)
                std::swap(to, from[row]);
            else
                to = from[row];
        }
    }
    return 1;
}

int32_t zu_Matrix_add(Matrix* out, const Matrix* a, const Matrix* b)
{
    return columnByColumn(out, a, b, zu_Ntuple_add);
}

int32_t zu_Matrix_subtract(Matrix* out, const Matrix* a, const Matrix* b)
{
    return columnByColumn(out, a, b, zu_Ntuple_subtract);
}

int32_t zu_Matrix_scale(Matrix* out, const Matrix* matrix, double factor)
{
    if (zu_Matrix_copy(out, matrix) == 0)
        return 0;
    for (int32_t column = 0; column < out->columnCount; ++column) {
        if (zu_Ntuple_scale(out->columns[column], factor) == 0)
            return 0;
    }
    return 1;
}
