// Geometry against Eigen and GLM: the same work on the same numbers, built with the same flags. The peers are inlined
// into the loops, the library is called through its exported interface; the empty call is the floor for that.
//
// Each case exists as <work>/zu, <work>/eigen and <work>/glm, where the peer has it. main() checks first that they
// agree on the results.
#include "zu_Memory.h"
#include "zu_PointList.h"
#include "zu_TMatrix.h"

#include <Eigen/Dense>
#include <Eigen/Geometry>
#include <benchmark/benchmark.h>
#include <glm/geometric.hpp>
#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>

#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>
#include <random>
#include <vector>

namespace {

constexpr std::size_t pointCount = 1'000'000;
constexpr std::size_t chainCount = 1'000;
constexpr std::size_t listCount = 100'000;

struct DestroyMatrix
{
    void operator()(Matrix* matrix) const { zu_Matrix_destroy(matrix); }
};
using MatrixPtr = std::unique_ptr<Matrix, DestroyMatrix>;

std::mt19937_64 generator(20240229);
double number()
{
    return std::uniform_real_distribution<double>(-10.0, 10.0)(generator);
}

template <class Triple>
std::vector<Triple> triples(std::size_t count)
{
    generator.seed(count);
    std::vector<Triple> result(count);
    for (Triple& triple : result) {
        const double x = number(), y = number(), z = number();
        triple = Triple{x, y, z};
    }
    return result;
}

// The same numbers for everyone, row by row.
std::vector<double> elements(int size)
{
    generator.seed(static_cast<std::uint64_t>(size));
    std::vector<double> result(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    for (double& element : result)
        element = number();
    return result;
}

MatrixPtr zuMatrix(int size)
{
    MatrixPtr matrix(zu_Matrix_create(size, size));
    auto from = elements(size);
    for (int row = 0; row < size; ++row) {
        for (int column = 0; column < size; ++column)
            zu_Matrix_setElement(matrix.get(), row, column, from[static_cast<std::size_t>(row * size + column)]);
    }
    return matrix;
}

template <class Result>
Result eigenMatrix(int size)
{
    Result matrix(size, size);
    auto from = elements(size);
    for (int row = 0; row < size; ++row) {
        for (int column = 0; column < size; ++column)
            matrix(row, column) = from[static_cast<std::size_t>(row * size + column)];
    }
    return matrix;
}

template <class Result>
Result glmMatrix(int size)
{
    Result matrix;
    auto from = elements(size);
    for (int row = 0; row < size; ++row) {
        for (int column = 0; column < size; ++column)
            matrix[column][row] = from[static_cast<std::size_t>(row * size + column)];
    }
    return matrix;
}

void processed(benchmark::State& state, std::size_t each)
{
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(each));
}

void emptyCall(benchmark::State& state)
{
    for (auto _ : state)
        zu_Memory_statistics(nullptr);
}
BENCHMARK(emptyCall)->Name("empty exported call");

void emptyTracedCall(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(zu_Vector_negate(nullptr, nullptr));
}
BENCHMARK(emptyTracedCall)->Name("empty exported call that could trace");

// ---- points through a transformation ----

void transformZu(benchmark::State& state)
{
    const auto points = triples<Point>(pointCount);
    std::vector<Point> out(pointCount);
    const MatrixPtr matrix = zuMatrix(4);
    for (auto _ : state) {
        for (std::size_t index = 0; index < pointCount; ++index)
            zu_TMatrix_xform(&out[index], matrix.get(), &points[index]);
        benchmark::ClobberMemory();
    }
    processed(state, pointCount);
}
BENCHMARK(transformZu)->Name("transform/zu")->Unit(benchmark::kMillisecond);

void transformEigen(benchmark::State& state)
{
    const auto points = triples<Eigen::Vector3d>(pointCount);
    std::vector<Eigen::Vector3d> out(pointCount);
    Eigen::Affine3d matrix;
    matrix.matrix() = eigenMatrix<Eigen::Matrix4d>(4);
    for (auto _ : state) {
        for (std::size_t index = 0; index < pointCount; ++index)
            out[index] = matrix * points[index];
        benchmark::ClobberMemory();
    }
    processed(state, pointCount);
}
BENCHMARK(transformEigen)->Name("transform/eigen")->Unit(benchmark::kMillisecond);

void transformGlm(benchmark::State& state)
{
    const auto points = triples<glm::dvec3>(pointCount);
    std::vector<glm::dvec3> out(pointCount);
    const auto matrix = glmMatrix<glm::dmat4>(4);
    for (auto _ : state) {
        for (std::size_t index = 0; index < pointCount; ++index)
            out[index] = glm::dvec3(matrix * glm::dvec4(points[index], 1.0));
        benchmark::ClobberMemory();
    }
    processed(state, pointCount);
}
BENCHMARK(transformGlm)->Name("transform/glm")->Unit(benchmark::kMillisecond);

// ---- points through a rotation, in place (a true rotation, or the numbers would grow without end) ----

constexpr double turn = 0.3;

void rotateZu(benchmark::State& state)
{
    auto points = triples<Point>(pointCount);
    const MatrixPtr matrix(zu_RotMatrix_create());
    zu_RotMatrix_fromAngle(matrix.get(), turn);
    for (auto _ : state) {
        for (Point& point : points)
            zu_RotMatrix_rotatePoint(&point, matrix.get());
        benchmark::ClobberMemory();
    }
    processed(state, pointCount);
}
BENCHMARK(rotateZu)->Name("rotate/zu")->Unit(benchmark::kMillisecond);

void rotateEigen(benchmark::State& state)
{
    auto points = triples<Eigen::Vector3d>(pointCount);
    const Eigen::Matrix3d matrix = Eigen::AngleAxisd(turn, Eigen::Vector3d::UnitZ()).toRotationMatrix();
    for (auto _ : state) {
        for (Eigen::Vector3d& point : points)
            point = matrix * point;
        benchmark::ClobberMemory();
    }
    processed(state, pointCount);
}
BENCHMARK(rotateEigen)->Name("rotate/eigen")->Unit(benchmark::kMillisecond);

void rotateGlm(benchmark::State& state)
{
    auto points = triples<glm::dvec3>(pointCount);
    const double c = std::cos(turn), s = std::sin(turn);
    const glm::dmat3 matrix(c, s, 0.0, -s, c, 0.0, 0.0, 0.0, 1.0);
    for (auto _ : state) {
        for (glm::dvec3& point : points)
            point = matrix * point;
        benchmark::ClobberMemory();
    }
    processed(state, pointCount);
}
BENCHMARK(rotateGlm)->Name("rotate/glm")->Unit(benchmark::kMillisecond);

// ---- products ----

void productZu(benchmark::State& state)
{
    const auto size = static_cast<int>(state.range(0));
    const MatrixPtr a = zuMatrix(size), b = zuMatrix(size), out = zuMatrix(size);
    for (auto _ : state) {
        zu_Matrix_multiply(out.get(), a.get(), b.get());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(productZu)->Name("product/zu")->Arg(3)->Arg(4)->Arg(64)->Arg(256);

template <class EigenMatrix>
void productEigen(benchmark::State& state)
{
    const auto size = static_cast<int>(state.range(0));
    EigenMatrix a = eigenMatrix<EigenMatrix>(size), b = a, out = a;
    for (auto _ : state) {
        benchmark::DoNotOptimize(a.data());
        benchmark::DoNotOptimize(b.data());
        out.noalias() = a * b;
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK_TEMPLATE(productEigen, Eigen::Matrix3d)->Name("product/eigen")->Arg(3);
BENCHMARK_TEMPLATE(productEigen, Eigen::Matrix4d)->Name("product/eigen")->Arg(4);
BENCHMARK_TEMPLATE(productEigen, Eigen::MatrixXd)->Name("product/eigen")->Arg(64)->Arg(256);

template <class GlmMatrix>
void productGlm(benchmark::State& state)
{
    const auto size = static_cast<int>(state.range(0));
    auto a = glmMatrix<GlmMatrix>(size), b = a, out = a;
    for (auto _ : state) {
        benchmark::DoNotOptimize(&a);
        benchmark::DoNotOptimize(&b);
        out = a * b;
        benchmark::DoNotOptimize(&out);
        benchmark::ClobberMemory();
    }
}
BENCHMARK_TEMPLATE(productGlm, glm::dmat3)->Name("product/glm")->Arg(3);
BENCHMARK_TEMPLATE(productGlm, glm::dmat4)->Name("product/glm")->Arg(4);

// ---- chains: the dot product of each unit vector with the cross product of its neighbours ----

double chainOfZu(const std::vector<Vector>& vectors)
{
    double total = 0.0;
    for (std::size_t index = 2; index < vectors.size(); ++index) {
        Vector unit, across;
        double product = 0.0;
        zu_Vector_copyNormalize(&unit, &vectors[index]);
        zu_Vector_crossProduct(&across, &vectors[index - 1], &vectors[index - 2]);
        zu_Vector_dotProduct(&product, &unit, &across);
        total += product;
    }
    return total;
}

double chainOfEigen(const std::vector<Eigen::Vector3d>& vectors)
{
    double total = 0.0;
    for (std::size_t index = 2; index < vectors.size(); ++index)
        total += vectors[index].normalized().dot(vectors[index - 1].cross(vectors[index - 2]));
    return total;
}

double chainOfGlm(const std::vector<glm::dvec3>& vectors)
{
    double total = 0.0;
    for (std::size_t index = 2; index < vectors.size(); ++index)
        total += glm::dot(glm::normalize(vectors[index]), glm::cross(vectors[index - 1], vectors[index - 2]));
    return total;
}

template <class Triple, double (*Chain)(const std::vector<Triple>&)>
void chain(benchmark::State& state)
{
    const auto vectors = triples<Triple>(chainCount);
    for (auto _ : state)
        benchmark::DoNotOptimize(Chain(vectors));
    processed(state, chainCount);
}
BENCHMARK_TEMPLATE(chain, Vector, chainOfZu)->Name("chain/zu");
BENCHMARK_TEMPLATE(chain, Eigen::Vector3d, chainOfEigen)->Name("chain/eigen");
BENCHMARK_TEMPLATE(chain, glm::dvec3, chainOfGlm)->Name("chain/glm");

// ---- the nearest of many; the peers have arrays, the library has its list ----

constexpr double middle[] = {0.5, -0.25, 0.125};

PointList* listOfPoints()
{
    PointList* const list = zu_PointList_create(nullptr);
    for (const Point& point : triples<Point>(listCount))
        zu_PointList_insEnd(list, &point);
    return list;
}

int nearestOfEigen(const std::vector<Eigen::Vector3d>& points)
{
    const Eigen::Vector3d p(middle[0], middle[1], middle[2]);
    int best = -1;
    double bestDistance = std::numeric_limits<double>::infinity();
    for (std::size_t index = 0; index < points.size(); ++index) {
        const double distance = (points[index] - p).norm();
        if (distance < bestDistance) {
            bestDistance = distance;
            best = static_cast<int>(index);
        }
    }
    return best;
}

int nearestOfGlm(const std::vector<glm::dvec3>& points)
{
    const glm::dvec3 p(middle[0], middle[1], middle[2]);
    int best = -1;
    double bestDistance = std::numeric_limits<double>::infinity();
    for (std::size_t index = 0; index < points.size(); ++index) {
        const double distance = glm::distance(points[index], p);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = static_cast<int>(index);
        }
    }
    return best;
}

int nearestOfZu(PointList* list)
{
    const Point p = {middle[0], middle[1], middle[2]};
    Point found;
    return zu_PointList_getClosestPoint(&found, &p, list);
}

void nearestZu(benchmark::State& state)
{
    PointList* const list = listOfPoints();
    for (auto _ : state)
        benchmark::DoNotOptimize(nearestOfZu(list));
    processed(state, listCount);
    zu_PointList_destroy(list);
}
BENCHMARK(nearestZu)->Name("nearest/zu")->Unit(benchmark::kMicrosecond);

template <class Triple, int (*Nearest)(const std::vector<Triple>&)>
void nearest(benchmark::State& state)
{
    const auto points = triples<Triple>(listCount);
    for (auto _ : state)
        benchmark::DoNotOptimize(Nearest(points));
    processed(state, listCount);
}
BENCHMARK_TEMPLATE(nearest, Eigen::Vector3d, nearestOfEigen)->Name("nearest/eigen")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(nearest, glm::dvec3, nearestOfGlm)->Name("nearest/glm")->Unit(benchmark::kMicrosecond);

// ---- agreement ----

bool areClose(double a, double b)
{
    return std::abs(a - b) <= 1e-9 * (1.0 + std::abs(a));
}

bool productsAgree(int size)
{
    const MatrixPtr a = zuMatrix(size), out = zuMatrix(size);
    zu_Matrix_multiply(out.get(), a.get(), a.get());
    const auto peer = eigenMatrix<Eigen::MatrixXd>(size);
    const Eigen::MatrixXd expected = peer * peer;
    bool agree = true;
    for (int column = 0; column < size; ++column) {
        for (int row = 0; row < size; ++row)
            agree = agree && areClose(out->columns[column]->elements[row], expected(row, column));
    }
    return agree;
}

bool pointsAgree()
{
    const MatrixPtr matrix = zuMatrix(4);
    const glm::dmat4 peer = glmMatrix<glm::dmat4>(4);
    bool agree = true;
    for (const Point& point : triples<Point>(100)) {
        Point out;
        zu_TMatrix_xform(&out, matrix.get(), &point);
        const glm::dvec4 expected = peer * glm::dvec4(point.x, point.y, point.z, 1.0);
        agree = agree && areClose(out.x, expected.x) && areClose(out.y, expected.y) && areClose(out.z, expected.z);
    }
    return agree;
}

bool searchesAgree()
{
    PointList* const list = listOfPoints();
    const int found = nearestOfZu(list);
    zu_PointList_destroy(list);
    return found >= 0 && found == nearestOfEigen(triples<Eigen::Vector3d>(listCount)) &&
           found == nearestOfGlm(triples<glm::dvec3>(listCount));
}

bool chainsAgree()
{
    const double total = chainOfZu(triples<Vector>(chainCount));
    return areClose(total, chainOfEigen(triples<Eigen::Vector3d>(chainCount))) &&
           areClose(total, chainOfGlm(triples<glm::dvec3>(chainCount)));
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    for (const int size : {3, 4, 64, 256}) {
        if (!productsAgree(size)) {
            std::fprintf(stderr, "products of size %d disagree\n", size);
            return 1;
        }
    }
    if (!pointsAgree() || !searchesAgree() || !chainsAgree()) {
        std::fprintf(stderr, "points, searches or chains disagree\n");
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
