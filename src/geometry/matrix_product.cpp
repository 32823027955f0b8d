// Products of matrices. Whatever the sizes, each element is the sum of its products in index order from 0, so that the
// results are those of the plain definition to the last bit; what differs is the order in which elements are visited.
#include "zu_Matrix.h"

#include "frame/trace.h"
#include "geometry/blocks.h"
#include "geometry/triples.h"

#include <algorithm>

namespace {

using namespace zu;
using namespace zu::geometry;
using Index = std::ptrdiff_t;

// A panel of rows of a is copied so that it lies in one piece, in the first-level cache; the tile of sums stays in
// registers while it runs along the panel.
constexpr Index tileRows = 4;
constexpr Index tileColumns = 4;
constexpr Index panelDepth = 256;
// Columns of b that are used while a panel lasts; panelDepth of each fit into the second-level cache.
constexpr Index groupColumns = 64;

struct Panel
{
    Lanes at[panelDepth];
    Index depth;
};

// Rows beyond the last are zeros: their sums are never stored.
void loadPanel(Panel& panel, const Matrix& a, Index row, int rows, Index inner)
{
    for (Index step = 0; step < panel.depth; ++step)
        panel.at[step] = Lanes::load(a.columns[inner + step]->elements + row, rows);
}

// Adds the products along the panel to a tile of out, whose corner is at row and column.
template <Index Columns>
void addTile(Matrix& out, Index row, int rows, Index column, const Panel& panel, const Matrix& b, Index inner)
{
    Lanes tile[Columns];
    const double* factors[Columns];
    for (Index index = 0; index < Columns; ++index) {
        factors[index] = b.columns[column + index]->elements + inner;
        tile[index] = Lanes::load(out.columns[column + index]->elements + row, rows);
    }
    for (Index step = 0; step < panel.depth; ++step) {
        const Lanes lanes = panel.at[step];
        for (Index index = 0; index < Columns; ++index)
            tile[index].add(lanes * factors[index][step]);
    }
    for (Index index = 0; index < Columns; ++index)
        tile[index].store(out.columns[column + index]->elements + row, rows);
}

void multiplyTiled(Matrix& out, const Matrix& a, const Matrix& b)
{
    const Index rows = rowsOf(a), inner = a.columnCount, columns = b.columnCount;
    for (Index column = 0; column < columns; ++column)
        std::fill_n(out.columns[column]->elements, rows, 0.0);
    Panel panel;
    for (Index step = 0; step < inner; step += panelDepth) {
        panel.depth = std::min(panelDepth, inner - step);
        for (Index group = 0; group < columns; group += groupColumns) {
            const Index end = std::min(group + groupColumns, columns);
            for (Index row = 0; row < rows; row += tileRows) {
                const int tile = static_cast<int>(std::min(tileRows, rows - row));
                loadPanel(panel, a, row, tile, step);
                Index column = group;
                for (; column + tileColumns <= end; column += tileColumns)
                    addTile<tileColumns>(out, row, tile, column, panel, b, step);
                for (; column < end; ++column)
                    addTile<1>(out, row, tile, column, panel, b, step);
            }
        }
    }
}

template <int Size>
bool multiplyFixed(Matrix& out, const Matrix& a, const Matrix& b)
{
    if (!hasSize(&a, Size, Size) || b.columnCount != Size)
        return false;
    multiply<Size, Size, Size>(ColumnsOf{out}, ColumnsOf{a}, ColumnsOf{b});
    return true;
}

} // namespace

int32_t zu_Matrix_multiply(Matrix* out, const Matrix* a, const Matrix* b)
{
    ZU_TRACE(matrix);
    if (!areGiven(out, a, b) || a->columnCount != rowsOf(*b) || !hasSize(out, rowsOf(*a), b->columnCount))
        return 0;
    if (multiplyFixed<3>(*out, *a, *b) || multiplyFixed<4>(*out, *a, *b))
        return 1;
    if (out != a && out != b) {
        multiplyTiled(*out, *a, *b);
        return 1;
    }
    // A factor that is overwritten is needed to the last element.
    Matrix* const temporary = zu_Matrix_create(rowsOf(*out), out->columnCount);
    if (temporary == nullptr)
        return 0;
    multiplyTiled(*temporary, *a, *b);
    const int32_t copied = zu_Matrix_copy(out, temporary);
    zu_Matrix_destroy(temporary);
    return copied;
}
