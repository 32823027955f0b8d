// Writes the sample's piping table: the pipes of a made-up plant, as SQL for the sqlite3 tool.
//
//     zu-sample | sqlite3 pipes.db3         several thousand pipes of 400 lines
//     zu-sample 20000 | sqlite3 pipes.db3   as many lines as wanted
//
// Nominal sizes, outside diameters and wall thicknesses are those of the standard for steel pipes; routes, tags and
// services are made up, the same ones each time. Lengths are in millimetres. Columns are declared in the way that the
// table interface reads and finds again without a loss: see docs/database.md.
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>

namespace {

struct Size
{
    int dn;
    const char* nps; // nominal pipe size, inches
    double outsideDiameter;
    double wall40; // schedules
    double wall80;
};
constexpr Size sizes[] = {
    {15, "1/2", 21.3, 2.77, 3.73},   {20, "3/4", 26.7, 2.87, 3.91},    {25, "1", 33.4, 3.38, 4.55},
    {40, "1 1/2", 48.3, 3.68, 5.08}, {50, "2", 60.3, 3.91, 5.54},      {80, "3", 88.9, 5.49, 7.62},
    {100, "4", 114.3, 6.02, 8.56},   {150, "6", 168.3, 7.11, 10.97},   {200, "8", 219.1, 8.18, 12.70},
    {250, "10", 273.0, 9.27, 15.09}, {300, "12", 323.8, 10.31, 17.48}, {400, "16", 406.4, 12.70, 21.44},
};

struct Service
{
    const char* name;
    const char* spec;
    bool isHeavy; // takes the thicker wall
};
constexpr Service services[] = {
    {"Cooling water", "CS150", false}, {"Steam", "SS300", true},           {"Condensate", "CS150", false},
    {"Fuel gas", "CS150", true},       {"Instrument air", "SS300", false}, {"K\u00fchlwasser", "CS150", false},
};

// Numbers that are the same on every system.
class Random
{
public:
    // 0 up to but not including limit.
    int below(int limit)
    {
        state = state * 6364136223846793005u + 1442695040888963407u;
        return static_cast<int>((state >> 33) % static_cast<std::uint64_t>(limit));
    }

private:
    std::uint64_t state = 20240229;
};

using Point = std::array<int, 3>;

constexpr Point plantSize = {120'000, 60'000, 12'000};
constexpr int grid = 500;
constexpr int longestPipe = 6'000; // as the mill delivers them

struct Line
{
    int number;
    const Size& size;
    const Service& service;
    int pipes = 0;
};

// A pipe, from one point to the next along an axis.
void writePipe(Line& line, const Point& from, const Point& to, int length)
{
    ++line.pipes;
    const double wall = line.service.isHeavy ? line.size.wall80 : line.size.wall40;
    std::printf(
        "INSERT INTO pipes VALUES ('P-%d', 'P-%d-%02d', '%s', '%s', %d, '%s', %.1f, '%s', %.2f, %d, %d, %d, %d, "
        "%d, %d, %d);\n",
        line.number, line.number, line.pipes, line.service.name, line.service.spec, line.size.dn, line.size.nps,
        line.size.outsideDiameter, line.service.isHeavy ? "80" : "40", wall, from[0], from[1], from[2], to[0], to[1],
        to[2], length);
}

// A straight leg of the route in pipes of the mill's length.
void writeLeg(Line& line, Point& at, std::size_t axis, int target)
{
    while (at[axis] != target) {
        const int rest = target - at[axis];
        const int step = std::abs(rest) <= longestPipe ? rest : rest > 0 ? longestPipe : -longestPipe;
        Point next = at;
        next[axis] += step;
        writePipe(line, at, next, std::abs(step));
        at = next;
    }
}

void writeLine(int number, Random& random)
{
    Line line{number, sizes[static_cast<std::size_t>(random.below(static_cast<int>(std::size(sizes))))],
              services[static_cast<std::size_t>(random.below(static_cast<int>(std::size(services))))]};
    Point at;
    for (std::size_t axis = 0; axis < at.size(); ++axis)
        at[axis] = random.below(plantSize[axis] / grid + 1) * grid;
    std::size_t axis = static_cast<std::size_t>(random.below(3));
    for (int legs = 3 + random.below(5); legs > 0; --legs) {
        axis = (axis + 1 + static_cast<std::size_t>(random.below(2))) % 3; // never straight on, never back
        writeLeg(line, at, axis, random.below(plantSize[axis] / grid + 1) * grid);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const int lines = argc > 1 ? std::atoi(argv[1]) : 400;
    if (argc > 2 || lines < 1) {
        std::fputs("usage: zu-sample [LINES] | sqlite3 pipes.db3\n", stderr);
        return 2;
    }
    std::puts(
        "BEGIN;\n"
        "DROP TABLE IF EXISTS pipes;\n"
        "CREATE TABLE pipes (LINE VARCHAR(16), TAG VARCHAR(20), SERVICE VARCHAR(20), SPEC VARCHAR(8), DN INTEGER, "
        "NPS VARCHAR(6), OD DOUBLE, SCHED VARCHAR(4), WALL DOUBLE, X1 INTEGER, Y1 INTEGER, Z1 INTEGER, X2 INTEGER, "
        "Y2 INTEGER, Z2 INTEGER, LENGTH INTEGER);");
    Random random;
    for (int number = 0; number < lines; ++number)
        writeLine(1001 + number, random);
    std::puts("COMMIT;");
    return 0;
}
