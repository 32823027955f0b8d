// Values, generated input and comparisons for the tests of geometry.
#pragma once

#include "support/trace.h"
#include "zu_Diag.h"
#include "zu_TMatrix.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <random>

namespace zutest {

constexpr double pi = 3.14159265358979323846;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Points and vectors as values that compare and print.
using Triple = std::array<double, 3>;
template <class T>
Triple at(const T& value)
{
    return {value.x, value.y, value.z};
}

template <class T>
testing::AssertionResult isNear(const T& have, Triple want, double tolerance = 1e-9)
{
    const Triple values = at(have);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!(std::abs(values[axis] - want[axis]) <= tolerance))
            return testing::AssertionFailure()
                   << testing::PrintToString(values) << " is not near " << testing::PrintToString(want);
    }
    return testing::AssertionSuccess();
}

// The same numbers in every run and on every system.
class Numbers
{
public:
    explicit Numbers(unsigned seed) : generator(seed) {}
    double next(double low = -10.0, double high = 10.0)
    {
        return low + (high - low) * (static_cast<double>(generator()) / 4294967296.0);
    }
    int nextInt(int low, int high)
    {
        return low + static_cast<int>(generator() % static_cast<unsigned>(high - low + 1));
    }
    Point point() { return {next(), next(), next()}; }
    Vector vector() { return {next(), next(), next()}; }
    Vector unit()
    {
        Vector vector = {next(-1, 1), next(-1, 1), next(0.1, 1)};
        EXPECT_EQ(zu_Vector_normalize(&vector), 1);
        return vector;
    }

private:
    std::mt19937 generator;
};

struct DestroyMatrix
{
    void operator()(Matrix* matrix) const { zu_Matrix_destroy(matrix); }
};
using MatrixPtr = std::unique_ptr<Matrix, DestroyMatrix>;

inline MatrixPtr newMatrix(int32_t rows, int32_t columns)
{
    MatrixPtr matrix(zu_Matrix_create(rows, columns));
    EXPECT_NE(matrix, nullptr);
    return matrix;
}

inline double& element(const MatrixPtr& matrix, int row, int column)
{
    return matrix->columns[column]->elements[row];
}

// The elements row by row, as they are written down.
inline std::vector<double> rowsOf(const Matrix* matrix)
{
    std::vector<double> values;
    for (int32_t row = 0; row < matrix->columns[0]->count; ++row) {
        for (int32_t column = 0; column < matrix->columnCount; ++column)
            values.push_back(matrix->columns[column]->elements[row]);
    }
    return values;
}
inline std::vector<double> rowsOf(const MatrixPtr& matrix)
{
    return rowsOf(matrix.get());
}

inline void fill(const MatrixPtr& matrix, const std::vector<double>& rows)
{
    std::size_t next = 0;
    for (int32_t row = 0; row < matrix->columns[0]->count; ++row) {
        for (int32_t column = 0; column < matrix->columnCount; ++column)
            element(matrix, row, column) = rows[next++];
    }
}

// Equal to the last bit, signs of zeros and kinds of numbers included.
inline bool haveSameBits(const std::vector<double>& a, const std::vector<double>& b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

inline testing::AssertionResult isNear(const std::vector<double>& have, const std::vector<double>& want,
                                       double tolerance = 1e-9)
{
    bool near = have.size() == want.size();
    for (std::size_t index = 0; near && index < have.size(); ++index)
        near = std::abs(have[index] - want[index]) <= tolerance;
    return near ? testing::AssertionSuccess()
                : testing::AssertionFailure()
                      << testing::PrintToString(have) << " is not near " << testing::PrintToString(want);
}

// What a call writes to a stream.
inline std::string written(const std::function<void(std::FILE*)>& call)
{
    const Sandbox sandbox;
    std::filesystem::current_path(sandbox.native());
    std::FILE* const file = std::fopen("out", "wb");
    call(file);
    std::fclose(file);
    return sandbox.read(W("out"));
}

} // namespace zutest
