// The arithmetic of three components that points and vectors share. It is inlined into the operations, which add null
// rules, tolerances and traces. Sums run in the order x, y, z.
#pragma once

#include "zu_Vector.h"

#include <cmath>

namespace zu::geometry {

inline constexpr double tolerance = ZU_GEOMETRY_TOLERANCE;
// The angle of opposite directions. The ten decimals are the required constant: results depend on it.
inline constexpr double halfTurn = 3.1415926536;

// Points and vectors turn into each other by copying alone.
template <class Out, class In>
Out as(const In& triple)
{
    return {triple.x, triple.y, triple.z};
}

template <class T>
T sum(const T& a, const T& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

// The way from one triple to another.
template <class Out, class In>
Out difference(const In& from, const In& to)
{
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

template <class T>
T scaled(const T& triple, double factor)
{
    return {triple.x * factor, triple.y * factor, triple.z * factor};
}

inline double dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline double length(const Vector& vector)
{
    return std::sqrt(dot(vector, vector));
}

inline Vector cross(const Vector& a, const Vector& b)
{
    return {a.y * b.z - a.z * b.y, -(a.x * b.z - a.z * b.x), a.x * b.y - a.y * b.x};
}

template <class T>
bool areEqual(const T& a, const T& b, double tol)
{
    return std::abs(a.x - b.x) < tol && std::abs(a.y - b.y) < tol && std::abs(a.z - b.z) < tol;
}

// Whether none of the pointers is null.
template <class... Pointers>
bool areGiven(const Pointers*... pointers)
{
    return ((pointers != nullptr) && ...);
}

} // namespace zu::geometry
