/** @file zu_cpp/geometry.hpp
 *  @ingroup cpp
 *  Points, vectors, quaternions and matrices with operators. Part of zu.hpp.
 *
 *      using namespace zu::operators;
 *      const auto turn = zu::rotation::about_z(zu::radians(90));
 *      const Point moved = turn * Point{10, 0, 0} + Vector{0, 0, 5};
 *
 *  Points, vectors and quaternions are the public records. Their operators stand in the inline namespace zu::operators:
 *  a using-directive brings them in, and nothing is put into the global namespace.
 *
 *  A difference is the first operand minus the second, for all types. (The flat zu_Point_subtract and
 *  zu_Vector_subtract take them the other way round; the operators turn them.) There is no ==: the library compares
 *  within a tolerance, and equal() says so.
 *
 *  Axes are right-handed with +Z up, angles in radians, lengths in the units of the caller's model. Operands that do
 *  not fit, as matrices of other sizes or one that was moved from, throw std::invalid_argument; memory that is short
 *  std::bad_alloc. What has no result for some arguments gives std::optional.
 */
#ifndef ZU_CPP_GEOMETRY_HPP
#define ZU_CPP_GEOMETRY_HPP

#include "../zu_Cnv.h"
#include "../zu_PointList.h"
#include "../zu_TMatrix.h"
#include "../zu_VectorList.h"
#include "lists.hpp"

#include <span>

namespace zu {

/** An angle in radians. */
[[nodiscard]] inline double radians(double degrees)
{
    return zu_Cnv_dtor(degrees);
}
/** An angle in degrees. */
[[nodiscard]] inline double degrees(double radians)
{
    return zu_Cnv_rtod(radians);
}

/** The operators of the public records. */
inline namespace operators {

/** A point moved by a vector. */
[[nodiscard]] inline Point operator+(const Point& point, const Vector& way)
{
    Point out{way.x, way.y, way.z};
    zu_Point_add(&out, &point, &out);
    return out;
}
/** Moves a point the other way. */
[[nodiscard]] inline Point operator-(const Point& point, const Vector& way)
{
    Point out{way.x, way.y, way.z};
    zu_Point_subtract(&out, &out, &point);
    return out;
}
/** The way from b to a: a minus b. */
[[nodiscard]] inline Vector operator-(const Point& a, const Point& b)
{
    Point difference{};
    zu_Point_subtract(&difference, &b, &a);
    Vector out{};
    zu_Vector_fromPoint(&out, &difference);
    return out;
}

/** The sum. */
[[nodiscard]] inline Vector operator+(const Vector& a, const Vector& b)
{
    Vector out{};
    zu_Vector_add(&out, &a, &b);
    return out;
}
/** a minus b. */
[[nodiscard]] inline Vector operator-(const Vector& a, const Vector& b)
{
    Vector out{};
    zu_Vector_subtract(&out, &b, &a);
    return out;
}
/** The vector in the opposite direction. */
[[nodiscard]] inline Vector operator-(const Vector& vector)
{
    Vector out{};
    zu_Vector_negate(&out, &vector);
    return out;
}
/** The vector with its length times the factor. */
[[nodiscard]] inline Vector operator*(const Vector& vector, double factor)
{
    Vector out{};
    zu_Vector_scale(&out, &vector, factor);
    return out;
}
/** The same. */
[[nodiscard]] inline Vector operator*(double factor, const Vector& vector)
{
    return vector * factor;
}

/** The rotation b followed by the rotation a. */
[[nodiscard]] inline Quaternion operator*(const Quaternion& a, const Quaternion& b)
{
    Quaternion out{};
    zu_Quaternion_multiply(&out, &a, &b);
    return out;
}

/** Moves the point. */
inline Point& operator+=(Point& point, const Vector& way)
{
    return point = point + way;
}
/** Moves the point the other way. */
inline Point& operator-=(Point& point, const Vector& way)
{
    return point = point - way;
}
/** Adds b to a. */
inline Vector& operator+=(Vector& a, const Vector& b)
{
    return a = a + b;
}
/** Subtracts b from a. */
inline Vector& operator-=(Vector& a, const Vector& b)
{
    return a = a - b;
}
/** Scales the vector. */
inline Vector& operator*=(Vector& vector, double factor)
{
    return vector = vector * factor;
}

} // namespace operators

/* Points and vectors ---------------------------------------------------------------------------------------------- */

/** Whether two points differ by less than a tolerance along each axis. */
[[nodiscard]] inline bool equal(const Point& a, const Point& b, double tolerance = ZU_GEOMETRY_TOLERANCE)
{
    return zu_Point_equalWithinTol(&a, &b, tolerance) == 1;
}
/** Whether two vectors differ by less than a tolerance along each axis. */
[[nodiscard]] inline bool equal(const Vector& a, const Vector& b, double tolerance = ZU_GEOMETRY_TOLERANCE)
{
    return zu_Vector_equalWithinTol(&a, &b, tolerance) == 1;
}

/** The distance between two points. */
[[nodiscard]] inline double distance(const Point& a, const Point& b)
{
    double out = 0.0;
    zu_Point_distance(&out, &a, &b);
    return out;
}
/** The point half-way between two points. */
[[nodiscard]] inline Point midpoint(const Point& a, const Point& b)
{
    Point out{};
    zu_Point_midpoint(&out, &a, &b);
    return out;
}
/** The foot of the perpendicular from a point on the line through a and b, see zu_Point_projectOntoLine. */
[[nodiscard]] inline std::optional<Point> project_onto_line(const Point& point, const Point& a, const Point& b)
{
    Point out{};
    return zu_Point_projectOntoLine(&out, &point, &a, &b) == 1 ? std::optional(out) : std::nullopt;
}
/** Where the line through p1 and p2 meets the one through q1 and q2, see zu_Point_intersectPointWithinTol. */
[[nodiscard]] inline std::optional<Point> intersection(const Point& p1, const Point& p2, const Point& q1,
                                                       const Point& q2, double tolerance = ZU_GEOMETRY_TOLERANCE)
{
    Point out{};
    return zu_Point_intersectPointWithinTol(&out, &p1, &p2, &q1, &q2, tolerance) == 1 ? std::optional(out)
                                                                                      : std::nullopt;
}
/** Whether three points lie on a line; what the tolerance bounds says zu_Point_colinearWithinTol. */
[[nodiscard]] inline bool colinear(const Point& a, const Point& b, const Point& c,
                                   double tolerance = ZU_GEOMETRY_TOLERANCE)
{
    return zu_Point_colinearWithinTol(&a, &b, &c, tolerance) == 1;
}

/** The length of a vector. */
[[nodiscard]] inline double length(const Vector& vector)
{
    double out = 0.0;
    zu_Vector_magnitude(&out, &vector);
    return out;
}
/** The vector with length 1; none for one no longer than the tolerance. */
[[nodiscard]] inline std::optional<Vector> unit(const Vector& vector)
{
    Vector out{};
    return zu_Vector_copyNormalize(&out, &vector) == 1 ? std::optional(out) : std::nullopt;
}
/** The dot product. */
[[nodiscard]] inline double dot(const Vector& a, const Vector& b)
{
    double out = 0.0;
    zu_Vector_dotProduct(&out, &a, &b);
    return out;
}
/** The cross product a x b. */
[[nodiscard]] inline Vector cross(const Vector& a, const Vector& b)
{
    Vector out{};
    zu_Vector_crossProduct(&out, &a, &b);
    return out;
}
/** The angle between two vectors, 0 to pi; none when one is no longer than the tolerance. */
[[nodiscard]] inline std::optional<double> angle(const Vector& a, const Vector& b)
{
    double out = 0.0;
    return zu_Vector_angle(&out, &a, &b) == 1 ? std::optional(out) : std::nullopt;
}
/** Whether two vectors have the same direction or opposite ones: a x b is shorter than the tolerance. */
[[nodiscard]] inline bool parallel(const Vector& a, const Vector& b, double tolerance = ZU_GEOMETRY_TOLERANCE)
{
    return zu_Vector_parallelWithinTolerance(&a, &b, tolerance) == 1;
}
/** Whether two vectors stand at a right angle: their dot product is less than the tolerance away from 0. */
[[nodiscard]] inline bool orthogonal(const Vector& a, const Vector& b, double tolerance = ZU_GEOMETRY_TOLERANCE)
{
    return zu_Vector_orthogonalWithinTolerance(&a, &b, tolerance) == 1;
}

/* Quaternions ----------------------------------------------------------------------------------------------------- */

/** The inverse rotation. */
[[nodiscard]] inline Quaternion conjugate(const Quaternion& quaternion)
{
    Quaternion out{};
    zu_Quaternion_getConjugate(&out, &quaternion);
    return out;
}
/** The length of a quaternion; 1 for a rotation. */
[[nodiscard]] inline double length(const Quaternion& quaternion)
{
    double out = 0.0;
    zu_Quaternion_magnitude(&out, &quaternion);
    return out;
}
/** The quaternion with length 1; none for one no longer than the tolerance. */
[[nodiscard]] inline std::optional<Quaternion> unit(const Quaternion& quaternion)
{
    Quaternion out{};
    return zu_Quaternion_normalize(&out, &quaternion) == 1 ? std::optional(out) : std::nullopt;
}
/** The rotation about an axis of length 1, see zu_Quaternion_fromRotAxisAndAngle. */
[[nodiscard]] inline std::optional<Quaternion> quaternion_about(const Vector& axis, double angle)
{
    Quaternion out{};
    return zu_Quaternion_fromRotAxisAndAngle(&out, &axis, angle) == 1 ? std::optional(out) : std::nullopt;
}
/** The shortest rotation between two directions, see zu_Quaternion_fromVectors. */
[[nodiscard]] inline std::optional<Quaternion> quaternion_between(const Vector& from, const Vector& to)
{
    Quaternion out{};
    return zu_Quaternion_fromVectors(&out, &from, &to) == 1 ? std::optional(out) : std::nullopt;
}

/* N-tuples and matrices ------------------------------------------------------------------------------------------- */

namespace detail {

struct ntuple_family
{
    static void destroy(Ntuple* ntuple) { zu_Ntuple_destroy(ntuple); }
};
struct matrix_family
{
    static void destroy(Matrix* matrix) { zu_Matrix_destroy(matrix); }
};
struct rotation_family
{
    static void destroy(RotMatrix* matrix) { zu_RotMatrix_destroy(matrix); }
};
struct transform_family
{
    static void destroy(TMatrix* matrix) { zu_TMatrix_destroy(matrix); }
};

} // namespace detail

/** A counted array of numbers. */
class ntuple : public detail::owner<Ntuple, detail::ntuple_family>
{
public:
    /** Zeros. */
    explicit ntuple(std::int32_t count) : ntuple(adopt, detail::made(zu_Ntuple_create(count)))
    {
        if (count > 0 && get()->elements == nullptr)
            throw std::bad_alloc();
    }
    /** Copies of numbers. */
    explicit ntuple(std::span<const double> values) : ntuple(static_cast<std::int32_t>(values.size()))
    {
        std::int32_t index = 0;
        for (const double value : values)
            zu_Ntuple_setElement(get(), index++, value);
    }
    /** Takes over an n-tuple from the library; null holds nothing. */
    ntuple(adopt_t, Ntuple* record) noexcept : owner(adopt, record) {}

    /** The numbers themselves. */
    std::span<double> values() const noexcept
    {
        if (get() == nullptr || get()->elements == nullptr)
            return {};
        return {get()->elements, static_cast<std::size_t>(get()->count)};
    }
    /** How many numbers there are; 0 when nothing is held. */
    std::size_t size() const noexcept { return values().size(); }
    /** A copy of its own. */
    [[nodiscard]] ntuple clone() const { return ntuple(values()); }

    /** The sum, number by number. Throws std::invalid_argument for different counts. */
    [[nodiscard]] friend ntuple operator+(const ntuple& a, const ntuple& b)
    {
        ntuple out = a.clone();
        detail::fits(zu_Ntuple_add(out.get(), a.get(), b.get()));
        return out;
    }
    /** a minus b. */
    [[nodiscard]] friend ntuple operator-(const ntuple& a, const ntuple& b)
    {
        ntuple out = a.clone();
        detail::fits(zu_Ntuple_subtract(out.get(), a.get(), b.get()));
        return out;
    }
    /** Every number times the factor. */
    [[nodiscard]] friend ntuple operator*(const ntuple& tuple, double factor)
    {
        ntuple out = tuple.clone();
        detail::fits(zu_Ntuple_scale(out.get(), factor));
        return out;
    }
};
/** The sum of the products, number by number. Throws std::invalid_argument for different counts. */
[[nodiscard]] inline double dot(const ntuple& a, const ntuple& b)
{
    double out = 0.0;
    detail::fits(zu_Ntuple_dotProduct(&out, a.get(), b.get()));
    return out;
}

/** A matrix of any size. */
class matrix : public detail::owner<Matrix, detail::matrix_family>
{
public:
    /** Zeros with ones on the diagonal. */
    matrix(std::int32_t rows, std::int32_t columns) : matrix(adopt, detail::made(zu_Matrix_create(rows, columns))) {}
    /** Takes over a matrix from the library; null holds nothing. */
    matrix(adopt_t, Matrix* record) noexcept : owner(adopt, record) {}

    /** The number of rows; 0 for a matrix without columns. */
    std::int32_t rows() const
    {
        std::int32_t out = 0;
        zu_Matrix_numberRows(&out, get());
        return out;
    }
    /** The number of columns. */
    std::int32_t columns() const
    {
        std::int32_t out = 0;
        zu_Matrix_numberColumns(&out, get());
        return out;
    }
    /** An element. Throws std::invalid_argument for a place outside. */
    double operator()(std::int32_t row, std::int32_t column) const
    {
        double out = 0.0;
        detail::fits(zu_Matrix_getElement(&out, get(), row, column));
        return out;
    }
    /** Sets an element. Throws std::invalid_argument for a place outside. */
    void set(std::int32_t row, std::int32_t column, double value)
    {
        detail::fits(zu_Matrix_setElement(get(), row, column, value));
    }
    /** A copy of its own. */
    [[nodiscard]] matrix clone() const
    {
        matrix out(rows(), columns());
        detail::fits(zu_Matrix_copy(out.get(), get()));
        return out;
    }
    /** The matrix with rows and columns exchanged. */
    [[nodiscard]] matrix transposed() const
    {
        matrix out(columns(), rows());
        detail::fits(zu_Matrix_transpose(out.get(), get()));
        return out;
    }

    /** The sum. Throws std::invalid_argument for different sizes. */
    [[nodiscard]] friend matrix operator+(const matrix& a, const matrix& b)
    {
        matrix out(a.rows(), a.columns());
        detail::fits(zu_Matrix_add(out.get(), a.get(), b.get()));
        return out;
    }
    /** a minus b. */
    [[nodiscard]] friend matrix operator-(const matrix& a, const matrix& b)
    {
        matrix out(a.rows(), a.columns());
        detail::fits(zu_Matrix_subtract(out.get(), a.get(), b.get()));
        return out;
    }
    /** The matrix product. Throws std::invalid_argument unless a has as many columns as b has rows. */
    [[nodiscard]] friend matrix operator*(const matrix& a, const matrix& b)
    {
        matrix out(a.rows(), b.columns());
        const bool done = zu_Matrix_multiply(out.get(), a.get(), b.get()) == 1;
        if (!done && a && b && a.columns() == b.rows())
            throw std::bad_alloc(); // operands that fit fail without memory alone
        detail::fits(done ? 1 : 0);
        return out;
    }
    /** Every element times the factor. */
    [[nodiscard]] friend matrix operator*(const matrix& a, double factor)
    {
        matrix out(a.rows(), a.columns());
        detail::fits(zu_Matrix_scale(out.get(), a.get(), factor));
        return out;
    }
};

/** A rotation: points and vectors are columns, and p becomes M p. */
class rotation : public detail::owner<RotMatrix, detail::rotation_family>
{
public:
    /** No rotation. */
    rotation() : rotation(adopt, detail::made(zu_RotMatrix_create())) {}
    /** The rotation of a quaternion of length 1. */
    explicit rotation(const Quaternion& quaternion) : rotation()
    {
        detail::fits(zu_RotMatrix_fromQuaternion(get(), &quaternion));
    }
    /** Takes over a rotation matrix from the library; null holds nothing. */
    rotation(adopt_t, RotMatrix* record) noexcept : owner(adopt, record) {}

    /** The rotation by an angle about Z. */
    [[nodiscard]] static rotation about_z(double angle)
    {
        rotation out;
        detail::fits(zu_RotMatrix_fromAngle(out.get(), angle));
        return out;
    }
    /** The rotation by an angle about an axis of any length, see zu_RotMatrix_fromRotAxisAndAngle. */
    [[nodiscard]] static std::optional<rotation> about(const Vector& axis, double angle)
    {
        rotation out;
        return when(zu_RotMatrix_fromRotAxisAndAngle(out.get(), &axis, angle), out);
    }
    /** The rotation that turns one direction into another on the shortest way, see zu_Quaternion_fromVectors. */
    [[nodiscard]] static std::optional<rotation> between(const Vector& from, const Vector& to)
    {
        rotation out;
        return when(zu_RotMatrix_fromVectors(out.get(), nullptr, &from, &to), out);
    }
    /** The axes of a local system: X runs from the origin to on_x, and in_xy lies on the side of +Y. */
    [[nodiscard]] static std::optional<rotation> of_system(const Point& origin, const Point& on_x, const Point& in_xy)
    {
        rotation out;
        return when(zu_RotMatrix_from3Points(out.get(), &origin, &on_x, &in_xy), out);
    }
    /** Of three vectors as the columns, taken as they are. */
    [[nodiscard]] static rotation of_columns(const Vector& x, const Vector& y, const Vector& z)
    {
        rotation out;
        zu_RotMatrix_fromColumnVectors(out.get(), &x, &y, &z);
        return out;
    }
    /** Of three vectors as the rows, taken as they are. (The flat zu_RotMatrix_fromRowVectors stores columns.) */
    [[nodiscard]] static rotation of_rows(const Vector& x, const Vector& y, const Vector& z)
    {
        rotation out;
        out.set_row(0, x);
        out.set_row(1, y);
        out.set_row(2, z);
        return out;
    }

    /** An element. Throws std::invalid_argument for an index outside 0 to 2, as all that take one. */
    double operator()(std::int32_t row, std::int32_t column) const
    {
        double out = 0.0;
        detail::fits(zu_RotMatrix_getElement(&out, get(), row, column));
        return out;
    }
    /** A row. */
    Vector row(std::int32_t index) const
    {
        Vector out{};
        detail::fits(zu_RotMatrix_getRow(&out, get(), index));
        return out;
    }
    /** A column. */
    Vector column(std::int32_t index) const
    {
        Vector out{};
        detail::fits(zu_RotMatrix_getColumn(&out, get(), index));
        return out;
    }
    /** Sets an element; nothing keeps the matrix a rotation. */
    void set(std::int32_t row, std::int32_t column, double value)
    {
        detail::fits(zu_RotMatrix_setElement(get(), row, column, value));
    }
    /** A row is a row here. (The flat zu_RotMatrix_setRow stores a column.) */
    void set_row(std::int32_t index, const Vector& values)
    {
        detail::fits(zu_RotMatrix_setRowValues(get(), index, values.x, values.y, values.z));
    }
    /** Sets a column. */
    void set_column(std::int32_t index, const Vector& values)
    {
        detail::fits(zu_RotMatrix_setColumn(get(), index, &values));
    }

    /** A copy of its own. */
    [[nodiscard]] rotation clone() const
    {
        rotation out;
        detail::fits(zu_RotMatrix_copy(out.get(), get()));
        return out;
    }
    /** The transpose, which is the inverse of a rotation. */
    [[nodiscard]] rotation inverse() const
    {
        rotation out;
        detail::fits(zu_RotMatrix_getInverse(out.get(), get()));
        return out;
    }

    /** The rotation b followed by the rotation a. */
    [[nodiscard]] friend rotation operator*(const rotation& a, const rotation& b)
    {
        rotation out;
        detail::fits(zu_RotMatrix_multiply(out.get(), a.get(), b.get()));
        return out;
    }
    /** The point turned about the origin. */
    [[nodiscard]] friend Point operator*(const rotation& turn, Point point)
    {
        detail::fits(zu_RotMatrix_rotatePoint(&point, turn.get()));
        return point;
    }
    /** The vector turned. */
    [[nodiscard]] friend Vector operator*(const rotation& turn, Vector vector)
    {
        detail::fits(zu_RotMatrix_rotateVector(&vector, turn.get()));
        return vector;
    }

private:
    static std::optional<rotation> when(std::int32_t result, rotation& made)
    {
        return result == 1 ? std::optional<rotation>(std::move(made)) : std::nullopt;
    }
};

/** Whether all elements of two rotations differ by less than the tolerance. */
[[nodiscard]] inline bool equal(const rotation& a, const rotation& b)
{
    return zu_RotMatrix_equal(a.get(), b.get()) == 1;
}

/** A rotation and a translation: p becomes R p + origin. */
class transform : public detail::owner<TMatrix, detail::transform_family>
{
public:
    /** Leaves everything in its place. */
    transform() : transform(adopt, detail::made(zu_TMatrix_create())) {}
    /** Turns about the origin, then moves by the way from the origin to the point given. */
    transform(const rotation& turn, const Point& origin) : transform()
    {
        set_rotation(turn);
        set_origin(origin);
    }
    /** Takes over a transformation matrix from the library; null holds nothing. */
    transform(adopt_t, TMatrix* record) noexcept : owner(adopt, record) {}

    /** The transformation that moves one point to another. */
    [[nodiscard]] static transform translation(const Point& from, const Point& to)
    {
        transform out;
        detail::fits(zu_TMatrix_createForTranslation(out.get(), &from, &to));
        return out;
    }
    /** The transformation that carries what is placed in one system to the same place in another: origin, a point on X
     *  and a point in XY of each, see zu_TMatrix_createFromUCS. */
    [[nodiscard]] static transform between_systems(const Point& o1, const Point& x1, const Point& y1, const Point& o2,
                                                   const Point& x2, const Point& y2)
    {
        transform out;
        detail::fits(zu_TMatrix_createFromUCS(out.get(), &o1, &x1, &y1, &o2, &x2, &y2));
        return out;
    }

    /** Where it puts the origin. */
    Point origin() const
    {
        Point out{};
        detail::fits(zu_TMatrix_getOrigin(&out, get()));
        return out;
    }
    /** A copy of the rotation. */
    rotation turn() const
    {
        rotation out;
        detail::fits(zu_TMatrix_getRMatrix(out.get(), get()));
        return out;
    }
    /** Sets where it puts the origin; the rotation stays. */
    void set_origin(const Point& origin) { detail::fits(zu_TMatrix_setOrigin(get(), &origin)); }
    /** Sets the rotation; the origin stays. */
    void set_rotation(const rotation& turn) { detail::fits(zu_TMatrix_setRMatrix(get(), turn.get())); }

    /** A copy of its own. */
    [[nodiscard]] transform clone() const
    {
        transform out;
        detail::fits(zu_Matrix_copy(out.get(), get()));
        return out;
    }
    /** The transformation b followed by the transformation a. */
    [[nodiscard]] friend transform operator*(const transform& a, const transform& b)
    {
        transform out;
        detail::fits(zu_Matrix_multiply(out.get(), a.get(), b.get()));
        return out;
    }
    /** The point turned and moved. */
    [[nodiscard]] friend Point operator*(const transform& move, const Point& point)
    {
        detail::fits(move.get() == nullptr ? 0 : 1);
        Point out{};
        zu_TMatrix_xform(&out, move.get(), &point);
        return out;
    }
};

/* Lists ----------------------------------------------------------------------------------------------------------- */

namespace detail {

struct point_list_family
{
    using value_type = Point;
    static void destroy(PointList* list) { zu_PointList_destroy(list); }
    static PointList* create() { return zu_PointList_create(nullptr); }
    static PointList* copy(PointList* list) { return zu_PointList_copy(list); }
    static std::int32_t insEnd(PointList* list, const Point& value) { return zu_PointList_insEnd(list, &value); }
    static std::int32_t insStart(PointList* list, const Point& value) { return zu_PointList_insStart(list, &value); }
    static std::int32_t delAll(PointList* list) { return zu_PointList_delAll(list); }
    static std::int32_t closest(Point& out, const Point& to, PointList* list)
    {
        return zu_PointList_getClosestPoint(&out, &to, list);
    }
};
struct vector_list_family
{
    using value_type = Vector;
    static void destroy(VectorList* list) { zu_VectorList_destroy(list); }
    static VectorList* create() { return zu_VectorList_create(nullptr); }
    static VectorList* copy(VectorList* list) { return zu_VectorList_copy(list); }
    static std::int32_t insEnd(VectorList* list, const Vector& value) { return zu_VectorList_insEnd(list, &value); }
    static std::int32_t insStart(VectorList* list, const Vector& value) { return zu_VectorList_insStart(list, &value); }
    static std::int32_t delAll(VectorList* list) { return zu_VectorList_delAll(list); }
    static std::int32_t closest(Vector& out, const Vector& to, VectorList* list)
    {
        return zu_VectorList_getClosestVector(&out, &to, list);
    }
};

/** A list of points or vectors of its own. */
template <class Family>
class triple_list : public list_owner<value_element<typename Family::value_type>, Family>
{
public:
    using triple = typename Family::value_type;

    /** An empty list. */
    triple_list() : triple_list(adopt, made(Family::create())) {}
    /** Takes over a list from the library; null holds nothing. */
    triple_list(adopt_t, LnkList* list) noexcept : list_owner<value_element<triple>, Family>(adopt, list) {}
    /** A list of the values given. */
    static triple_list of(std::initializer_list<triple> values)
    {
        triple_list list;
        for (const triple& value : values)
            list.push_back(value);
        return list;
    }

    /** Appends a copy. Current: unchanged. */
    void push_back(const triple& value) { inserted(Family::insEnd(this->get(), value) == 1, this->get() != nullptr); }
    /** Puts a copy in front. Current: unchanged. */
    void push_front(const triple& value)
    {
        inserted(Family::insStart(this->get(), value) == 1, this->get() != nullptr);
    }
    /** Empties the list. */
    void clear() { Family::delAll(this->get()); }
    /** A copy; its current element is the first. */
    [[nodiscard]] triple_list copy() const { return triple_list(adopt, made(Family::copy(this->get()))); }
    /** The element nearest to a value; none in an empty list. Current: none. */
    [[nodiscard]] std::optional<triple> closest_to(const triple& value) const
    {
        triple out{};
        return Family::closest(out, value, this->get()) < 0 ? std::nullopt : std::optional<triple>(out);
    }
};

} // namespace detail

/** An owner of a list of points, and a range of them. An empty one, one that is taken over, or of({...}); push_back and
 *  push_front take copies, clear empties it, copy copies it (the first element is current then), and closest_to(point)
 *  finds the element that is nearest, none in an empty list. */
using point_list = detail::triple_list<detail::point_list_family>;
/** An owner of a list of vectors, with the operations of zu::point_list. */
using vector_list = detail::triple_list<detail::vector_list_family>;

} // namespace zu

#endif
