// Four numbers side by side: a column of a 3 x 3 or 4 x 4 matrix, or a piece of a longer one. Lanes never mix, so that
// each lane gives the bits that plain arithmetic in the same order gives.
#pragma once

namespace zu::geometry {

// Two numbers in one register. Compilers without the extension find their own way.
#if defined(__GNUC__)
typedef double Pair __attribute__((vector_size(16)));
#else
struct Pair
{
    double lanes[2];

    double operator[](int lane) const { return lanes[lane]; }
    friend Pair operator*(Pair a, Pair b) { return {a[0] * b[0], a[1] * b[1]}; }
    friend Pair operator+(Pair a, Pair b) { return {a[0] + b[0], a[1] + b[1]}; }
};
#endif

struct Lanes
{
    Pair low;
    Pair high;

    // Numbers beyond the count are zeros.
    static Lanes load(const double* from, int count)
    {
        if (count >= 4)
            return {Pair{from[0], from[1]}, Pair{from[2], from[3]}};
        return {Pair{count > 0 ? from[0] : 0.0, count > 1 ? from[1] : 0.0}, Pair{count > 2 ? from[2] : 0.0, 0.0}};
    }
    // The first numbers; the others are left out.
    void store(double* to, int count) const
    {
        for (int lane = 0; lane < 4; ++lane) {
            if (lane < count)
                to[lane] = lane < 2 ? low[lane] : high[lane - 2];
        }
    }
    void add(const Lanes& other)
    {
        low = low + other.low;
        high = high + other.high;
    }
};

inline Lanes operator*(const Lanes& lanes, double factor)
{
    const Pair factors = {factor, factor};
    return {lanes.low * factors, lanes.high * factors};
}

} // namespace zu::geometry
