/** @file zu_Matrix.h
 *  @ingroup geometry
 *  Matrices of any size, stored by column: element (row, column) is element row of n-tuple column. Rotation and
 *  transformation matrices (zu_RotMatrix.h, zu_TMatrix.h) are matrices of 3 x 3 and 4 x 4.
 *
 *      Matrix* a = zu_Matrix_create(2, 3);
 *      zu_Matrix_setElement(a, 1, 2, 7.5);                        // row 1, column 2
 *      zu_Matrix_multiply(product, a, b);                         // product = a b
 *      zu_Matrix_destroy(a);
 *
 *  Rows and columns are counted from 0. Unless a comment says otherwise: outputs come first and may be one of the
 *  inputs; the result is 1 for success and 0 for failure; a null argument, an index below 0 and an index that is not
 *  below its count give 0; after a failure the outputs are as they were.
 *
 *  @par Example
 *  @include matrix.c
 */
#ifndef ZU_MATRIX_H
#define ZU_MATRIX_H

#include "zu_Ntuple.h"

ZU_EXTERN_C_BEGIN

/** A matrix; read it freely, and write the elements of its columns. The columns belong to the matrix: they are released
 *  with it, never alone, and are not to be exchanged. */
typedef struct Matrix
{
    int32_t columnCount; /**< number of columns */
    Ntuple** columns;    /**< one n-tuple a column, all of the same length: the number of rows */
} Matrix;

/** Makes a matrix of zeros with ones on the diagonal: a square one is the identity.
 *  @return a new matrix, released with zu_Matrix_destroy; null for a count below 0 and without memory. */
ZU_API Matrix* zu_Matrix_create(int32_t rows, int32_t columns);

/** Destroys a matrix with its columns; null is ignored.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_Matrix_destroy(Matrix* matrix);

/** The number of rows, which is the length of column 0. @return 1; 0 for a matrix without columns. */
ZU_API int32_t zu_Matrix_numberRows(int32_t* out, const Matrix* matrix);

/** The number of columns. Traces as "zu_Matrix_numberCols". */
ZU_API int32_t zu_Matrix_numberColumns(int32_t* out, const Matrix* matrix);

/** Reads an element. */
ZU_API int32_t zu_Matrix_getElement(double* out, const Matrix* matrix, int32_t row, int32_t column);

/** Stores an element. */
ZU_API int32_t zu_Matrix_setElement(Matrix* matrix, int32_t row, int32_t column, double value);

/** Copies the elements. @return 1; 0 when the sizes differ. */
ZU_API int32_t zu_Matrix_copy(Matrix* out, const Matrix* matrix);

/** Copies a column into an n-tuple. @return 1; 0 also when its count is not the number of rows. */
ZU_API int32_t zu_Matrix_getColumn(Ntuple* out, const Matrix* matrix, int32_t column);

/** Copies an n-tuple into a column. @return 1; 0 also when its count is not the number of rows. */
ZU_API int32_t zu_Matrix_setColumn(Matrix* matrix, int32_t column, const Ntuple* ntuple);

/** Copies a row into an n-tuple. @return 1; 0 also when its count is not the number of columns. */
ZU_API int32_t zu_Matrix_getRow(Ntuple* out, const Matrix* matrix, int32_t row);

/** Copies an n-tuple into a row. @return 1; 0 also when it has fewer elements than the matrix columns; further elements
 *          are ignored. */
ZU_API int32_t zu_Matrix_setRow(Matrix* matrix, int32_t row, const Ntuple* ntuple);

/** Writes the matrix, a line a row and each element as "1.000000 ", and an empty line behind it.
 *  @param stream  null means standard output.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_Matrix_print(const Matrix* matrix, FILE* stream);

/** Transposes; a square matrix also in place.
 *  @return 1; 0 when the rows of one are not the columns of the other. */
ZU_API int32_t zu_Matrix_transpose(Matrix* out, const Matrix* matrix);

/** out = a b. Each element is the sum of its products in index order, whatever the sizes, so that results are the same
 *  to the last bit everywhere. out may be a or b, but must not share single columns with them.
 *  @return 1; 0 when the columns of a are not the rows of b, when out has not the rows of a and the columns of b, and
 *          without memory (only large products that are stored in a factor take any). */
ZU_API int32_t zu_Matrix_multiply(Matrix* out, const Matrix* a, const Matrix* b);

/** out = a + b. @return 1; 0 when the sizes differ. */
ZU_API int32_t zu_Matrix_add(Matrix* out, const Matrix* a, const Matrix* b);

/** out = a - b, the first operand minus the second. @return 1; 0 when the sizes differ. */
ZU_API int32_t zu_Matrix_subtract(Matrix* out, const Matrix* a, const Matrix* b);

/** out = matrix * factor. @return 1; 0 when the sizes differ. */
ZU_API int32_t zu_Matrix_scale(Matrix* out, const Matrix* matrix, double factor);

ZU_EXTERN_C_END

#endif
