// Matrices of a fixed size as values, for the operations on 3 x 3 and 4 x 4: they take no memory.
#pragma once

#include "geometry/lanes.h"
#include "zu_Matrix.h"

#include <cstdint>

namespace zu::geometry {

// A matrix has at least one column before its rows can be counted.
inline std::int32_t rowsOf(const Matrix& matrix)
{
    return matrix.columnCount > 0 ? matrix.columns[0]->count : 0;
}

inline bool hasSize(const Matrix* matrix, std::int32_t rows, std::int32_t columns)
{
    return matrix != nullptr && matrix->columnCount == columns && rowsOf(*matrix) == rows;
}

// Whether the matrix reaches at least that far.
inline bool hasBlock(const Matrix* matrix, std::int32_t rows, std::int32_t columns)
{
    return matrix != nullptr && matrix->columnCount >= columns && rowsOf(*matrix) >= rows;
}

// By column, as in the matrices.
template <int Rows, int Columns>
struct Block
{
    double at[Columns][Rows];

    double& operator()(int row, int column) { return at[column][row]; }
    double operator()(int row, int column) const { return at[column][row]; }
};

template <int Size>
Block<Size, Size> identity()
{
    Block<Size, Size> block = {};
    for (int index = 0; index < Size; ++index)
        block(index, index) = 1.0;
    return block;
}

// The upper left corner of a matrix that reaches that far.
template <int Rows, int Columns>
Block<Rows, Columns> load(const Matrix& matrix)
{
    Block<Rows, Columns> block;
    for (int column = 0; column < Columns; ++column) {
        const double* const elements = matrix.columns[column]->elements;
        for (int row = 0; row < Rows; ++row)
            block(row, column) = elements[row];
    }
    return block;
}

template <int Rows, int Columns>
void store(Matrix& matrix, const Block<Rows, Columns>& block)
{
    for (int column = 0; column < Columns; ++column) {
        double* const elements = matrix.columns[column]->elements;
        for (int row = 0; row < Rows; ++row)
            elements[row] = block(row, column);
    }
}

// The columns of a matrix, to be indexed as those of a block are.
struct ColumnsOf
{
    const Matrix& matrix;

    double* operator[](int column) const { return matrix.columns[column]->elements; }
};

// The product of matrices of three or four rows, given by their columns. Every element is summed in index order from 0,
// as the dot product of n-tuples is, so that all ways to a product give the same bits. out may be a or b: a is read
// first, and column by column of b is used up before that of out is stored.
template <int Rows, int Inner, int Columns, class Out, class A, class B>
void multiply(Out&& out, const A& a, const B& b)
{
    Lanes factors[Inner];
    for (int inner = 0; inner < Inner; ++inner)
        factors[inner] = Lanes::load(a[inner], Rows);
    for (int column = 0; column < Columns; ++column) {
        Lanes sum = {};
        for (int inner = 0; inner < Inner; ++inner)
            sum.add(factors[inner] * b[column][inner]);
        sum.store(out[column], Rows);
    }
}

template <int Rows, int Inner, int Columns>
Block<Rows, Columns> product(const Block<Rows, Inner>& a, const Block<Inner, Columns>& b)
{
    Block<Rows, Columns> out;
    multiply<Rows, Inner, Columns>(out.at, a.at, b.at);
    return out;
}

template <int Size>
Block<Size, Size> transposed(const Block<Size, Size>& block)
{
    Block<Size, Size> out;
    for (int column = 0; column < Size; ++column) {
        for (int row = 0; row < Size; ++row)
            out(row, column) = block(column, row);
    }
    return out;
}

// An n-tuple on the stack, to be handed to the operations.
template <int Count>
class StackNtuple
{
public:
    StackNtuple() = default;
    StackNtuple(const StackNtuple&) = delete;
    Ntuple* get() { return &ntuple; }

private:
    double elements[Count] = {};
    Ntuple ntuple = {Count, elements};
};

// An identity on the stack, to be handed to the operations.
template <int Size>
class StackMatrix
{
public:
    StackMatrix()
    {
        for (int column = 0; column < Size; ++column) {
            ntuples[column] = {Size, block.at[column]};
            columns[column] = &ntuples[column];
        }
    }
    StackMatrix(const StackMatrix&) = delete;
    Matrix* get() { return &matrix; }
    const Block<Size, Size>& value() const { return block; }

private:
    Block<Size, Size> block = identity<Size>();
    Ntuple ntuples[Size];
    Ntuple* columns[Size];
    Matrix matrix = {Size, columns};
};

} // namespace zu::geometry
