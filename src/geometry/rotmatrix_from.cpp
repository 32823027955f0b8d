// Rotation matrices from angles, points, vectors and quaternions.
#include "zu_RotMatrix.h"

#include "frame/trace.h"
#include "geometry/blocks.h"
#include "geometry/triples.h"

namespace {

using namespace zu;
using namespace zu::geometry;

Block<3, 3> aboutX(double angle)
{
    const double c = std::cos(angle), s = std::sin(angle);
    return {{{1.0, 0.0, 0.0}, {0.0, c, s}, {0.0, -s, c}}};
}

// -sin stands in row 0 and +sin in row 2, the reverse of the pattern of X and Z: that is required.
Block<3, 3> aboutY(double angle)
{
    const double c = std::cos(angle), s = std::sin(angle);
    return {{{c, 0.0, s}, {0.0, 1.0, 0.0}, {-s, 0.0, c}}};
}

Block<3, 3> aboutZ(double angle)
{
    const double c = std::cos(angle), s = std::sin(angle);
    return {{{c, s, 0.0}, {-s, c, 0.0}, {0.0, 0.0, 1.0}}};
}

// The unit vector of the part of direction that is perpendicular to axis.
bool partAcross(Vector& out, const Vector& axis, const Vector& direction)
{
    return zu_Vector_getOrthoVector(&out, &axis, &direction) == 1 && zu_Vector_normalize(&out) == 1;
}

// The rotation about an axis that turns one direction into another.
bool turnAbout(Quaternion& out, const Vector& axis, const Vector& from, const Vector& to)
{
    Vector acrossFrom, acrossTo;
    if (!partAcross(acrossFrom, axis, from) || !partAcross(acrossTo, axis, to))
        return false;
    if (zu_Vector_equal(&acrossFrom, &acrossTo) == 1 || zu_Vector_parallel(&acrossFrom, &acrossTo) == 0)
        return zu_Quaternion_fromVectors(&out, &acrossFrom, &acrossTo) == 1;
    // Exact opposites leave the axis open, so the caller's is taken.
    Vector unit;
    zu_Vector_copyNormalize(&unit, &axis);
    return zu_Quaternion_fromRotAxisAndAngle(&out, &unit, halfTurn) == 1;
}

} // namespace

int32_t zu_RotMatrix_fromAngle(RotMatrix* matrix, double angle)
{
    ZU_TRACE(matrix);
    if (!hasBlock(matrix, 3, 3))
        return 0;
    store(*matrix, aboutZ(angle));
    return 1;
}

int32_t zu_RotMatrix_rotate(RotMatrix* out, const RotMatrix* matrix, double angleX, double angleY, double angleZ)
{
    ZU_TRACE(matrix);
    if (!hasSize(out, 3, 3) || !hasSize(matrix, 3, 3))
        return 0;
    store(*out, product(aboutX(angleX), product(aboutY(angleY), product(aboutZ(angleZ), load<3, 3>(*matrix)))));
    return 1;
}

int32_t zu_RotMatrix_from3Points(RotMatrix* out, const Point* origin, const Point* onX, const Point* inXY)
{
    ZU_TRACE(matrix);
    Point foot;
    Vector x, y, z;
    double size = 0.0;
    if (!hasSize(out, 3, 3) || zu_Vector_computeNormal(&x, origin, onX) == 0 ||
        zu_Point_projectOntoLine(&foot, inXY, origin, onX) == 0 || zu_Vector_computeNormal(&y, &foot, inXY) == 0 ||
        zu_Vector_crossProduct(&z, &x, &y) == 0 || zu_Vector_magnitude(&size, &z) == 0 || !(size > tolerance))
        return 0;
    return zu_RotMatrix_setColumn(out, 0, &x) == 1 && zu_RotMatrix_setColumn(out, 1, &y) == 1 &&
           zu_RotMatrix_setColumn(out, 2, &z) == 1;
}

int32_t zu_RotMatrix_fromVectorsXY(RotMatrix* out, const Point* origin, const Vector* xDirection,
                                   const Vector* yDirection)
{
    ZU_TRACE(matrix);
    Point onX, inXY;
    return zu_Point_translateByVector(&onX, origin, xDirection, 1.0) == 1 &&
           zu_Point_translateByVector(&inXY, origin, yDirection, 1.0) == 1 &&
           zu_RotMatrix_from3Points(out, origin, &onX, &inXY) == 1;
}

int32_t zu_RotMatrix_fromVectors(RotMatrix* out, const Vector* axis, const Vector* from, const Vector* to)
{
    ZU_TRACE(matrix);
    if (!areGiven(out, from, to))
        return 0;
    double size = 0.0;
    const bool hasAxis = zu_Vector_magnitude(&size, axis) == 1 && size > tolerance;
    Quaternion turn;
    if (hasAxis ? !turnAbout(turn, *axis, *from, *to) : zu_Quaternion_fromVectors(&turn, from, to) == 0)
        return 0;
    return zu_RotMatrix_fromQuaternion(out, &turn);
}

int32_t zu_RotMatrix_fromRotAxisAndAngle(RotMatrix* out, const Vector* axis, double angle)
{
    ZU_TRACE(matrix);
    Vector unit;
    Quaternion turn;
    if (axis == nullptr)
        return 0;
    // An axis too short to be normalised is used as it is.
    zu_Vector_copyNormalize(&unit, axis);
    return zu_Quaternion_fromRotAxisAndAngle(&turn, &unit, angle) == 1 && zu_RotMatrix_fromQuaternion(out, &turn) == 1;
}

int32_t zu_RotMatrix_fromQuaternion(RotMatrix* out, const Quaternion* quaternion)
{
    if (quaternion == nullptr || !hasBlock(out, 3, 3))
        return 0;
    const auto [x, y, z, w] = *quaternion;
    Block<3, 3> block;
    block(0, 0) = 1.0 - 2.0 * (y * y + z * z);
    block(0, 1) = 2.0 * (x * y - z * w);
    block(0, 2) = 2.0 * (x * z + y * w);
    block(1, 0) = 2.0 * (x * y + z * w);
    block(1, 1) = 1.0 - 2.0 * (x * x + z * z);
    block(1, 2) = 2.0 * (y * z - x * w);
    block(2, 0) = 2.0 * (x * z - y * w);
    block(2, 1) = 2.0 * (y * z + x * w);
    block(2, 2) = 1.0 - 2.0 * (x * x + y * y);
    store(*out, block);
    return 1;
}

int32_t zu_RotMatrix_fromColumnVectors(RotMatrix* matrix, const Vector* x, const Vector* y, const Vector* z)
{
    ZU_TRACE(matrix);
    if (areGiven(x, y, z)) {
        zu_RotMatrix_setColumn(matrix, 0, x);
        zu_RotMatrix_setColumn(matrix, 1, y);
        zu_RotMatrix_setColumn(matrix, 2, z);
    }
    // 0 on success as well: that is how it is meant.
    return 0;
}

int32_t zu_RotMatrix_fromRowVectors(RotMatrix* matrix, const Vector* a, const Vector* b, const Vector* c)
{
    ZU_TRACE(matrix);
    // setRow stores columns, and so does this; 0 on success as well. Both are meant.
    if (areGiven(a, b, c)) {
        zu_RotMatrix_setRow(matrix, 0, a);
        zu_RotMatrix_setRow(matrix, 1, b);
        zu_RotMatrix_setRow(matrix, 2, c);
    }
    return 0;
}
