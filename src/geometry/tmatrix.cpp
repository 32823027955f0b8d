#include "zu_TMatrix.h"

#include "frame/trace.h"
#include "geometry/blocks.h"
#include "geometry/triples.h"

namespace {

using namespace zu;
using namespace zu::geometry;

// A transformation of a rotation and an origin.
Block<4, 4> composed(const Block<3, 3>& rotation, const Point& origin)
{
    Block<4, 4> block = identity<4>();
    for (int column = 0; column < 3; ++column) {
        for (int row = 0; row < 3; ++row)
            block(row, column) = rotation(row, column);
    }
    block(0, 3) = origin.x;
    block(1, 3) = origin.y;
    block(2, 3) = origin.z;
    return block;
}

Point originOf(const TMatrix& matrix)
{
    const double* const elements = matrix.columns[3]->elements;
    return {elements[0], elements[1], elements[2]};
}

// Whether two pairs of points span the same direction. Pairs too close for one are compared by their difference.
bool haveSameDirection(const Point* from1, const Point* to1, const Point* from2, const Point* to2)
{
    Vector first, second;
    zu_Vector_computeNormal(&first, from1, to1);
    zu_Vector_computeNormal(&second, from2, to2);
    return zu_Vector_equal(&first, &second) == 1;
}

} // namespace

TMatrix* zu_TMatrix_create(void)
{
    ZU_TRACE(matrix);
    return zu_Matrix_create(4, 4);
}

int32_t zu_TMatrix_destroy(TMatrix* matrix)
{
    ZU_TRACE(matrix);
    return zu_Matrix_destroy(matrix);
}

int32_t zu_TMatrix_set(TMatrix* matrix, double m00, double m01, double m02, double m03, double m10, double m11,
                       double m12, double m13, double m20, double m21, double m22, double m23)
{
    ZU_TRACE(matrix);
    if (!hasBlock(matrix, 4, 4))
        return 0;
    store(*matrix,
          Block<4, 4>{{{m00, m10, m20, 0.0}, {m01, m11, m21, 0.0}, {m02, m12, m22, 0.0}, {m03, m13, m23, 1.0}}});
    return 1;
}

int32_t zu_TMatrix_setIdentity(TMatrix* matrix)
{
    ZU_TRACE(matrix);
    if (!hasBlock(matrix, 4, 4))
        return 0;
    store(*matrix, identity<4>());
    return 1;
}

int32_t zu_TMatrix_setOrigin(TMatrix* matrix, const Point* origin)
{
    ZU_TRACE(matrix);
    if (origin == nullptr || !hasBlock(matrix, 3, 4))
        return 0;
    double* const elements = matrix->columns[3]->elements;
    elements[0] = origin->x;
    elements[1] = origin->y;
    elements[2] = origin->z;
    return 1;
}

int32_t zu_TMatrix_getOrigin(Point* out, const TMatrix* matrix)
{
    ZU_TRACE(matrix);
    if (out == nullptr || !hasBlock(matrix, 3, 4))
        return 0;
    *out = originOf(*matrix);
    return 1;
}

int32_t zu_TMatrix_setRMatrix(TMatrix* matrix, const RotMatrix* rotation)
{
    ZU_TRACE(matrix);
    if (!hasBlock(matrix, 4, 4) || !hasBlock(rotation, 3, 3))
        return 0;
    store(*matrix, composed(load<3, 3>(*rotation), originOf(*matrix)));
    return 1;
}

int32_t zu_TMatrix_getRMatrix(RotMatrix* out, const TMatrix* matrix)
{
    ZU_TRACE(matrix);
    if (!hasBlock(out, 3, 3) || !hasBlock(matrix, 3, 3))
        return 0;
    store(*out, load<3, 3>(*matrix));
    return 1;
}

int32_t zu_TMatrix_rotate(TMatrix* out, const TMatrix* matrix, double angleX, double angleY, double angleZ)
{
    ZU_TRACE(matrix);
    StackMatrix<3> rotation;
    // The rotation of matrix is discarded on purpose; its origin alone is carried over.
    return zu_RotMatrix_rotate(rotation.get(), rotation.get(), angleX, angleY, angleZ) == 1 &&
           zu_Matrix_copy(out, matrix) == 1 && zu_TMatrix_setRMatrix(out, rotation.get()) == 1;
}

void zu_TMatrix_xform(Point* out, const TMatrix* matrix, const Point* in)
{
    ZU_TRACE(matrix);
    if (!areGiven(out, in) || !hasBlock(matrix, 3, 4))
        return;
    const ColumnsOf columns{*matrix};
    Lanes moved = Lanes::load(columns[0], 3) * in->x;
    moved.add(Lanes::load(columns[1], 3) * in->y);
    moved.add(Lanes::load(columns[2], 3) * in->z);
    moved.add(Lanes::load(columns[3], 3));
    *out = {moved.low[0], moved.low[1], moved.high[0]};
}

int32_t zu_TMatrix_createForTranslation(TMatrix* matrix, const Point* from, const Point* to)
{
    ZU_TRACE(matrix);
    if (!areGiven(from, to) || !hasBlock(matrix, 4, 4))
        return 0;
    store(*matrix, composed(identity<3>(), difference<Point>(*from, *to)));
    return 1;
}

int32_t zu_TMatrix_createFromUCS(TMatrix* out, const Point* o1, const Point* x1, const Point* y1, const Point* o2,
                                 const Point* x2, const Point* y2)
{
    ZU_TRACE(matrix);
    if (!areGiven(o1, x1, y1, o2, x2, y2) || !hasBlock(out, 4, 4))
        return 0;
    if (haveSameDirection(o1, x1, o2, x2) && haveSameDirection(x1, y1, x2, y2)) {
        store(*out, composed(identity<3>(), difference<Point>(*o1, *o2)));
        return 1;
    }
    // A system that gives no rotation stays unrotated and is not reported.
    StackMatrix<3> system1, system2;
    zu_RotMatrix_from3Points(system1.get(), o1, x1, y1);
    zu_RotMatrix_from3Points(system2.get(), o2, x2, y2);
    const Block<3, 3> inverse = transposed(system1.value());
    const Block<3, 1> shift = product(inverse, Block<3, 1>{{{-o1->x, -o1->y, -o1->z}}});
    const Block<4, 4> fromWorld = composed(inverse, {shift(0, 0), shift(1, 0), shift(2, 0)});
    const Block<4, 4> toWorld = composed(system2.value(), *o2);
    store(*out, product(toWorld, fromWorld));
    return 1;
}
