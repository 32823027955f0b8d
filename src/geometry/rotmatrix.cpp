// Rotation matrices: elements, tests and use. rotmatrix_from.cpp makes them.
#include "zu_RotMatrix.h"

#include "frame/trace.h"
#include "geometry/blocks.h"
#include "geometry/triples.h"

namespace {

using namespace zu;
using namespace zu::geometry;

bool isIndex(int32_t index)
{
    return index >= 0 && index < 3;
}

int32_t storeRow(RotMatrix* matrix, int32_t index, double a, double b, double c)
{
    if (!isIndex(index) || !hasBlock(matrix, 3, 3))
        return 0;
    matrix->columns[0]->elements[index] = a;
    matrix->columns[1]->elements[index] = b;
    matrix->columns[2]->elements[index] = c;
    return 1;
}

int32_t storeColumn(RotMatrix* matrix, int32_t index, const Vector* vector)
{
    if (!isIndex(index) || vector == nullptr)
        return 0;
    StackNtuple<3> ntuple;
    ntuple.get()->elements[0] = vector->x;
    ntuple.get()->elements[1] = vector->y;
    ntuple.get()->elements[2] = vector->z;
    return zu_Matrix_setColumn(matrix, index, ntuple.get());
}

// M times a point or a vector: the product that zu_Matrix_multiply makes, and traced as such, without a matrix for the
// point.
template <class Triple>
int32_t rotate(Triple* triple, const RotMatrix* matrix)
{
    if (triple == nullptr)
        return 0;
    ZU_TRACE_AS(matrix, "zu_Matrix_multiply");
    if (!hasSize(matrix, 3, 3))
        return 0;
    const ColumnsOf columns{*matrix};
    Lanes turned = {};
    turned.add(Lanes::load(columns[0], 3) * triple->x);
    turned.add(Lanes::load(columns[1], 3) * triple->y);
    turned.add(Lanes::load(columns[2], 3) * triple->z);
    *triple = {turned.low[0], turned.low[1], turned.high[0]};
    return 1;
}

Vector columnOf(const RotMatrix& matrix, int column)
{
    const double* const elements = matrix.columns[column]->elements;
    return {elements[0], elements[1], elements[2]};
}

} // namespace

RotMatrix* zu_RotMatrix_create(void)
{
    ZU_TRACE(matrix);
    return zu_Matrix_create(3, 3);
}

int32_t zu_RotMatrix_destroy(RotMatrix* matrix)
{
    ZU_TRACE(matrix);
    return zu_Matrix_destroy(matrix);
}

int32_t zu_RotMatrix_set(RotMatrix* matrix, double m00, double m01, double m02, double m10, double m11, double m12,
                         double m20, double m21, double m22)
{
    ZU_TRACE(matrix);
    if (!hasBlock(matrix, 3, 3))
        return 0;
    store(*matrix, Block<3, 3>{{{m00, m10, m20}, {m01, m11, m21}, {m02, m12, m22}}});
    return 1;
}

int32_t zu_RotMatrix_setElement(RotMatrix* matrix, int32_t row, int32_t column, double value)
{
    ZU_TRACE(matrix);
    return isIndex(row) && isIndex(column) ? zu_Matrix_setElement(matrix, row, column, value) : 0;
}

int32_t zu_RotMatrix_getElement(double* out, const RotMatrix* matrix, int32_t row, int32_t column)
{
    ZU_TRACE(matrix);
    return isIndex(row) && isIndex(column) ? zu_Matrix_getElement(out, matrix, row, column) : 0;
}

int32_t zu_RotMatrix_setRowValues(RotMatrix* matrix, int32_t index, double a, double b, double c)
{
    ZU_TRACE(matrix);
    return storeRow(matrix, index, a, b, c);
}

int32_t zu_RotMatrix_setColumnValues(RotMatrix* matrix, int32_t index, double a, double b, double c)
{
    ZU_TRACE(matrix);
    // A row in spite of the name: existing callers rely on it.
    return storeRow(matrix, index, a, b, c);
}

int32_t zu_RotMatrix_setColumn(RotMatrix* matrix, int32_t index, const Vector* vector)
{
    ZU_TRACE(matrix);
    return storeColumn(matrix, index, vector);
}

int32_t zu_RotMatrix_setRow(RotMatrix* matrix, int32_t index, const Vector* vector)
{
    ZU_TRACE(matrix);
    // A column in spite of the name, on purpose.
    return storeColumn(matrix, index, vector);
}

int32_t zu_RotMatrix_getColumn(Vector* out, const RotMatrix* matrix, int32_t index)
{
    ZU_TRACE(matrix);
    StackNtuple<3> ntuple;
    return isIndex(index) && zu_Matrix_getColumn(ntuple.get(), matrix, index) == 1
               ? zu_Vector_fromNtuple(out, ntuple.get())
               : 0;
}

int32_t zu_RotMatrix_getRow(Vector* out, const RotMatrix* matrix, int32_t index)
{
    ZU_TRACE(matrix);
    StackNtuple<3> ntuple;
    return isIndex(index) && zu_Matrix_getRow(ntuple.get(), matrix, index) == 1
               ? zu_Vector_fromNtuple(out, ntuple.get())
               : 0;
}

int32_t zu_RotMatrix_setIdentity(RotMatrix* matrix)
{
    ZU_TRACE(matrix);
    if (hasBlock(matrix, 3, 3))
        store(*matrix, identity<3>());
    // 0 on success as well: that is how it is meant.
    return 0;
}

int32_t zu_RotMatrix_isIdentity(const RotMatrix* matrix)
{
    ZU_TRACE(matrix);
    if (!hasBlock(matrix, 3, 3))
        return 0;
    const Block<3, 3> have = load<3, 3>(*matrix), want = identity<3>();
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            // One-sided on purpose: whatever is too small passes.
            if (!(have(row, column) - want(row, column) < tolerance))
                return 0;
        }
    }
    return 1;
}

int32_t zu_RotMatrix_getInverse(RotMatrix* out, const RotMatrix* matrix)
{
    ZU_TRACE(matrix);
    return zu_Matrix_transpose(out, matrix);
}

int32_t zu_RotMatrix_multiply(RotMatrix* out, const RotMatrix* a, const RotMatrix* b)
{
    ZU_TRACE(matrix);
    return zu_Matrix_multiply(out, a, b);
}

int32_t zu_RotMatrix_copy(RotMatrix* out, const RotMatrix* matrix)
{
    ZU_TRACE(matrix);
    return zu_Matrix_copy(out, matrix);
}

int32_t zu_RotMatrix_normalize(RotMatrix* out, const RotMatrix* matrix)
{
    ZU_TRACE(matrix);
    if (!hasBlock(out, 3, 3) || !hasBlock(matrix, 3, 3))
        return 0;
    Block<3, 3> normal;
    for (int column = 0; column < 3; ++column) {
        Vector vector = columnOf(*matrix, column);
        if (zu_Vector_normalize(&vector) == 0)
            return 0;
        normal(0, column) = vector.x;
        normal(1, column) = vector.y;
        normal(2, column) = vector.z;
    }
    store(*out, normal);
    return 1;
}

int32_t zu_RotMatrix_rotatePoint(Point* point, const RotMatrix* matrix)
{
    ZU_TRACE(matrix);
    return rotate(point, matrix);
}

int32_t zu_RotMatrix_rotateVector(Vector* vector, const RotMatrix* matrix)
{
    ZU_TRACE(matrix);
    return rotate(vector, matrix);
}

int32_t zu_RotMatrix_equal(const RotMatrix* a, const RotMatrix* b)
{
    if (!hasBlock(a, 3, 3) || !hasBlock(b, 3, 3))
        return 0;
    for (int column = 0; column < 3; ++column) {
        const Vector first = columnOf(*a, column), second = columnOf(*b, column);
        if (zu_Vector_equal(&first, &second) == 0)
            return 0;
    }
    return 1;
}
