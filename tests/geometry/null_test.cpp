// What all operations of geometry have in common: null is refused, parts go in and out, lines of the trace.
#include "geometry/geometry.h"
#include "zu_Ntuple.h"
#include "zu_Plane.h"
#include "zu_PointList.h"
#include "zu_Quaternion.h"
#include "zu_RotMatrix.h"
#include "zu_VectorList.h"

namespace {

using namespace zutest;

// Some operations do not look at the number that they write to.
template <class Argument>
constexpr bool canBeMissing =
    std::is_pointer_v<Argument> && !std::is_same_v<Argument, std::FILE*> && !std::is_same_v<Argument, double*>;

template <class Argument>
Argument argument([[maybe_unused]] bool isMissing)
{
    if constexpr (std::is_same_v<Argument, std::FILE*>) {
        return stdout;
    } else if constexpr (std::is_same_v<Argument, void*>) {
        return nullptr;
    } else if constexpr (std::is_pointer_v<Argument>) {
        static std::remove_const_t<std::remove_pointer_t<Argument>> object{};
        return isMissing ? nullptr : &object;
    } else {
        return Argument{};
    }
}

// Each argument in turn is null, the others are not.
template <class Result, class... Arguments>
void refusesNull(int number, Result (*operation)(Arguments...))
{
    std::size_t missing = 0;
    const auto call = [&]<std::size_t... Index>(std::index_sequence<Index...>)
    {
        if constexpr (std::is_void_v<Result>)
            operation(argument<Arguments>(missing == Index)...);
        else
            EXPECT_EQ(operation(argument<Arguments>(missing == Index)...), Result{})
                << "operation " << number << " without argument " << missing;
    };
    for (const bool isPointer : {canBeMissing<Arguments>...}) {
        if (isPointer)
            call(std::index_sequence_for<Arguments...>());
        ++missing;
    }
}

template <class... Operations>
void allRefuseNull(Operations... operations)
{
    int number = 0;
    (refusesNull(number++, operations), ...);
}

TEST(GeometryNull, pointsVectorsAndPlanes)
{
    allRefuseNull(zu_Point_set, zu_Point_setX, zu_Point_setY, zu_Point_setZ, zu_Point_getX, zu_Point_getY,
                  zu_Point_getZ, zu_Point_equal, zu_Point_equalWithinTol, zu_Point_fromVector, zu_Point_copy,
                  zu_Point_distance, zu_Point_add, zu_Point_subtract, zu_Point_midpoint, zu_Point_translateByVector,
                  zu_Point_translateByAngle, zu_Point_colinear, zu_Point_colinearWithinTol,
                  zu_Point_colinearWithinTol_v2, zu_Point_between, zu_Point_inCylinder, zu_Point_intersectPoint,
                  zu_Point_intersectPointWithinTol, zu_Point_projectOntoLine, zu_Point_getOrthoVector,
                  zu_Point_fromDelimitedString, zu_Point_setToTolerance);
    allRefuseNull(zu_Vector_set, zu_Vector_setX, zu_Vector_setY, zu_Vector_setZ, zu_Vector_getX, zu_Vector_getY,
                  zu_Vector_getZ, zu_Vector_fromNtuple, zu_Vector_fromPoint, zu_Vector_copy, zu_Vector_equal,
                  zu_Vector_equalWithinTol, zu_Vector_magnitude, zu_Vector_dotProduct, zu_Vector_normalize,
                  zu_Vector_copyNormalize, zu_Vector_crossProduct, zu_Vector_orthogonal, zu_Vector_isHorizontal,
                  zu_Vector_parallel, zu_Vector_isVertical, zu_Vector_scale, zu_Vector_add, zu_Vector_subtract,
                  zu_Vector_negate, zu_Vector_computeVector, zu_Vector_computeNormal, zu_Vector_computeOrthovec,
                  zu_Vector_computeOrthonorm, zu_Vector_getOrthoVector, zu_Vector_angle);
    allRefuseNull(zu_Quaternion_set, zu_Quaternion_setX, zu_Quaternion_setY, zu_Quaternion_setZ,
                  zu_Quaternion_setScalar, zu_Quaternion_setVector, zu_Quaternion_getX, zu_Quaternion_getY,
                  zu_Quaternion_getZ, zu_Quaternion_getScalar, zu_Quaternion_getVector, zu_Quaternion_getConjugate,
                  zu_Quaternion_getInverse, zu_Quaternion_magnitude, zu_Quaternion_normalize, zu_Quaternion_multiply,
                  zu_Quaternion_fromRotAxisAndAngle, zu_Quaternion_fromVectors);
    allRefuseNull(zu_Ray_create, zu_Ray_destroy, zu_Ray_set, zu_Ray_getPoint, zu_Ray_getVector, zu_Plane_create,
                  zu_Plane_destroy, zu_Plane_set, zu_Plane_getPoint, zu_Plane_getOrthoVector,
                  zu_Plane_intersectionWithRay);
    const Point p = {};
    const Vector v = {};
    EXPECT_TRUE(
        allAre(0, {zu_Point_getX(nullptr, &p), zu_Point_distance(nullptr, &p, &p), zu_Vector_angle(nullptr, &v, &v)}));
}

// The matrices that are not null here are of no size that these operations take.
TEST(GeometryNull, matricesAndTuples)
{
    allRefuseNull(zu_Matrix_destroy, zu_Matrix_numberRows, zu_Matrix_numberColumns, zu_Matrix_getElement,
                  zu_Matrix_setElement, zu_Matrix_copy, zu_Matrix_getColumn, zu_Matrix_setColumn, zu_Matrix_getRow,
                  zu_Matrix_setRow, zu_Matrix_print, zu_Matrix_transpose, zu_Matrix_multiply, zu_Matrix_add,
                  zu_Matrix_subtract, zu_Matrix_scale);
    allRefuseNull(zu_RotMatrix_destroy, zu_RotMatrix_set, zu_RotMatrix_setElement, zu_RotMatrix_getElement,
                  zu_RotMatrix_setRowValues, zu_RotMatrix_setColumnValues, zu_RotMatrix_setColumn, zu_RotMatrix_setRow,
                  zu_RotMatrix_getColumn, zu_RotMatrix_getRow, zu_RotMatrix_setIdentity, zu_RotMatrix_isIdentity,
                  zu_RotMatrix_getInverse, zu_RotMatrix_multiply, zu_RotMatrix_copy, zu_RotMatrix_normalize,
                  zu_RotMatrix_fromAngle, zu_RotMatrix_rotate, zu_RotMatrix_from3Points, zu_RotMatrix_fromVectorsXY,
                  zu_RotMatrix_fromVectors, zu_RotMatrix_fromRotAxisAndAngle, zu_RotMatrix_fromQuaternion,
                  zu_RotMatrix_fromColumnVectors, zu_RotMatrix_fromRowVectors, zu_RotMatrix_rotatePoint,
                  zu_RotMatrix_rotateVector, zu_RotMatrix_equal);
    allRefuseNull(zu_TMatrix_destroy, zu_TMatrix_set, zu_TMatrix_setIdentity, zu_TMatrix_setOrigin,
                  zu_TMatrix_getOrigin, zu_TMatrix_setRMatrix, zu_TMatrix_getRMatrix, zu_TMatrix_rotate,
                  zu_TMatrix_createForTranslation, zu_TMatrix_createFromUCS, zu_TMatrix_xform);
    allRefuseNull(zu_Ntuple_destroy, zu_Ntuple_setElement, zu_Ntuple_getElement, zu_Ntuple_fromVector, zu_Ntuple_print,
                  zu_Ntuple_scale, zu_Ntuple_dotProduct, zu_Ntuple_copy, zu_Ntuple_add, zu_Ntuple_subtract);
}

TEST(GeometryNull, lists)
{
    allRefuseNull(zu_PointList_destroy, zu_PointList_copy, zu_PointList_insStart, zu_PointList_insEnd,
                  zu_PointList_insBefore, zu_PointList_insAfter, zu_PointList_insNth, zu_PointList_delCurr,
                  zu_PointList_delNth, zu_PointList_delAll, zu_PointList_getNth, zu_PointList_modCurr,
                  zu_PointList_modNth, zu_PointList_skip, zu_PointList_length);
    allRefuseNull(zu_VectorList_destroy, zu_VectorList_copy, zu_VectorList_insStart, zu_VectorList_insEnd,
                  zu_VectorList_insBefore, zu_VectorList_insAfter, zu_VectorList_insNth, zu_VectorList_delCurr,
                  zu_VectorList_delNth, zu_VectorList_delAll, zu_VectorList_getNth, zu_VectorList_modCurr,
                  zu_VectorList_modNth, zu_VectorList_skip, zu_VectorList_length);
}

template <class T>
void expectParts(const std::vector<int32_t (*)(T*, double)>& setters,
                 const std::vector<int32_t (*)(double*, const T*)>& getters)
{
    for (std::size_t part = 0; part < setters.size(); ++part) {
        T value = {};
        double read = 0;
        EXPECT_EQ(setters[part](&value, 5), 1);
        EXPECT_EQ(reinterpret_cast<const double*>(&value)[part], 5) << part;
        EXPECT_EQ(getters[part](&read, &value), 1);
        EXPECT_EQ(read, 5) << part;
    }
}

TEST(GeometryParts, goInAndOut)
{
    expectParts<Point>({zu_Point_setX, zu_Point_setY, zu_Point_setZ}, {zu_Point_getX, zu_Point_getY, zu_Point_getZ});
    expectParts<Vector>({zu_Vector_setX, zu_Vector_setY, zu_Vector_setZ},
                        {zu_Vector_getX, zu_Vector_getY, zu_Vector_getZ});
    expectParts<Quaternion>({zu_Quaternion_setX, zu_Quaternion_setY, zu_Quaternion_setZ, zu_Quaternion_setScalar},
                            {zu_Quaternion_getX, zu_Quaternion_getY, zu_Quaternion_getZ, zu_Quaternion_getScalar});
    const Vector vector = {-1, -2, -3};
    Quaternion q = {1, 2, 3, 4};
    Vector read = {};
    EXPECT_EQ(zu_Quaternion_setVector(&q, &vector) + zu_Quaternion_getVector(&read, &q), 2);
    EXPECT_EQ(at(read), at(vector));
    EXPECT_EQ(q.w, 4);
}

TEST(GeometryTrace, someOperationsTraceUnderOtherNames)
{
    TraceCapture trace(ZU_DIAG_MATRIX | ZU_DIAG_POINT | ZU_DIAG_VECTOR);
    zu_Matrix_numberColumns(nullptr, nullptr);
    zu_Point_equalWithinTol(nullptr, nullptr, 1);
    zu_Point_getOrthoVector(nullptr, nullptr, nullptr, nullptr);
    zu_Vector_isVertical(nullptr);
    zu_Quaternion_set(nullptr, 1, 2, 3, 4);
    EXPECT_EQ(trace.lines(),
              (std::vector<std::string>{"matrix Entering zu_Matrix_numberCols.", "matrix Leaving zu_Matrix_numberCols.",
                                        "point Entering zu_Point_equal.", "point Leaving zu_Point_equal.",
                                        "vector Entering zu_Vector_parallelWithinTolerance.",
                                        "vector Leaving zu_Vector_parallelWithinTolerance."}));
}

} // namespace
