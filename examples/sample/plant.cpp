// Writes the tables of a made-up plant as SQL for the sqlite3 tool.
//
//     zu-sample pipes | sqlite3 pipes.db3          the pipes of one process unit
//     zu-sample fittings 40 | sqlite3 fittings.db3 the elbows, valves and flanges of 40 units
//
// The tables are pipes, fittings, supports and equipment. A unit is a pipe rack with equipment on both sides; its lines
// rise from one nozzle, run along the rack in a lane of their own and go down to another. Nominal sizes, outside
// diameters and wall thicknesses are those of the standard for steel pipes; routes, tags and services are made up, the
// same ones each time. Lengths are in millimetres, weights in kilograms, places relative to the plant's own system.
// Columns are declared in the way that the table interface reads and finds again without a loss: see docs/database.md.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

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
    {50, "2", 60.3, 3.91, 5.54},    {80, "3", 88.9, 5.49, 7.62},    {100, "4", 114.3, 6.02, 8.56},
    {150, "6", 168.3, 7.11, 10.97}, {200, "8", 219.1, 8.18, 12.70}, {250, "10", 273.0, 9.27, 15.09},
};

struct Service
{
    const char* code;
    const char* name;
    const char* spec;
    bool isHeavy; // takes the thicker wall
    int sizes;    // how many of the sizes it uses
};
constexpr Service services[] = {
    {"CW", "K\u00fchlwasser", "CS150", false, 6}, {"ST", "Steam", "SS300", true, 5},
    {"CO", "Condensate", "CS150", false, 3},      {"FG", "Fuel gas", "CS150", true, 4},
    {"IA", "Instrument air", "SS300", false, 2},  {"PW", "Process water", "CS150", false, 6},
};

struct Kind
{
    const char* name;
    const char* letter;
    int length, depth, bottom, top; // along the rack, across it, and in height
};
constexpr Kind kinds[] = {
    {"pump", "P", 2'400, 1'200, 0, 1'400},
    {"vessel", "V", 3'000, 3'000, 500, 7'500},
    {"exchanger", "E", 6'400, 1'800, 900, 2'700},
    {"tank", "T", 6'800, 6'800, 0, 5'600},
};

// Numbers that are the same on every system.
class Random
{
public:
    explicit Random(int unit) : state(20240229u + static_cast<std::uint64_t>(unit)) { below(2); }
    // 0 up to but not including limit.
    int below(int limit)
    {
        state = state * 6364136223846793005u + 1442695040888963407u;
        return static_cast<int>((state >> 33) % static_cast<std::uint64_t>(limit));
    }
    template <class T, std::size_t count>
    const T& from(const T (&items)[count])
    {
        return items[below(static_cast<int>(count))];
    }

private:
    std::uint64_t state;
};

using Point = std::array<int, 3>;

// A unit, in millimetres.
constexpr int unitLength = 66'000;
constexpr int unitDepth = 42'000;
constexpr int rackStart = 6'000; // along X; a beam carries the pipes every bay
constexpr int rackBay = 6'000;
constexpr int rackBays = 8;
constexpr int firstLane = 16'500;
constexpr int laneWidth = 600;
constexpr int lanes = 7;
constexpr int rackLevels[] = {4'500, 6'300};
constexpr int branchRise = 900; // pipes join and leave the rack this far above its lanes
constexpr int equipmentPerSide = 5;
constexpr int linesPerUnit = lanes * static_cast<int>(std::size(rackLevels));
constexpr int longestPipe = 6'000; // as the mill delivers them

struct Equipment
{
    std::string tag;
    const Kind* kind;
    Point low, high;
    int nozzles = 0; // used
};

constexpr std::string_view tables[] = {"pipes", "fittings", "supports", "equipment"};

// Writes the rows of one table.
class Writer
{
public:
    explicit Writer(std::string_view tableName) : table(tableName) {}

    void declare() const
    {
        const char* const columns[] = {
            "LINE VARCHAR(16), TAG VARCHAR(20), SERVICE VARCHAR(20), SPEC VARCHAR(8), DN INTEGER, NPS VARCHAR(6), OD "
            "DOUBLE, SCHED VARCHAR(4), WALL DOUBLE, X1 INTEGER, Y1 INTEGER, Z1 INTEGER, X2 INTEGER, Y2 INTEGER, Z2 "
            "INTEGER, LENGTH INTEGER",
            "LINE VARCHAR(16), TAG VARCHAR(20), KIND VARCHAR(16), SPEC VARCHAR(8), DN INTEGER, NPS VARCHAR(6), X "
            "INTEGER, Y INTEGER, Z INTEGER, AXIS VARCHAR(1), WEIGHT DOUBLE",
            "LINE VARCHAR(16), TAG VARCHAR(20), KIND VARCHAR(16), DN INTEGER, X INTEGER, Y INTEGER, Z INTEGER",
            "TAG VARCHAR(16), KIND VARCHAR(16), X1 INTEGER, Y1 INTEGER, Z1 INTEGER, X2 INTEGER, Y2 INTEGER, Z2 INTEGER",
        };
        std::size_t index = 0;
        while (tables[index] != table)
            ++index;
        std::printf("BEGIN;\nDROP TABLE IF EXISTS %s;\nCREATE TABLE %s (%s);\n", table.data(), table.data(),
                    columns[index]);
    }

    template <class... Args>
    void row(std::string_view into, const char* format, Args... args) const
    {
        if (into != table)
            return;
        std::printf("INSERT INTO %s VALUES (", table.data());
        std::printf(format, args...);
        std::puts(");");
    }

private:
    std::string_view table;
};

// One line: its route becomes pipes, elbows at the corners, flanges at the ends, a valve, and supports on the rack.
class Line
{
public:
    Line(const Writer& tableWriter, const std::string& itsNumber, const Size& itsSize, const Service& itsService)
        : writer(tableWriter), name(std::string(itsService.code).append("-").append(itsNumber)), size(itsSize),
          service(itsService)
    {
    }

    void write(const std::vector<Point>& corners, int originX)
    {
        fitting("flange", corners.front(), axisOf(corners[0], corners[1]), flangeWeight());
        for (std::size_t index = 0; index + 1 < corners.size(); ++index) {
            const std::size_t axis = axisOf(corners[index], corners[index + 1]);
            const int sign = corners[index + 1][axis] > corners[index][axis] ? 1 : -1;
            const int length = std::abs(corners[index + 1][axis] - corners[index][axis]);
            Point from = corners[index];
            Point to = corners[index + 1];
            from[axis] += index == 0 ? 0 : sign * takeOut(length);
            to[axis] -= index + 2 == corners.size() ? 0 : sign * takeOut(length);
            if (index == 1 && length > 8 * size.dn + 1'500)
                legWithValve(from, to, axis, sign);
            else
                leg(from, to, axis, sign);
            if (index + 2 < corners.size())
                fitting("elbow", corners[index + 1], axis, elbowWeight());
            if (axis == 0)
                supportsBetween(from, to, originX);
        }
        fitting("flange", corners.back(), axisOf(corners[corners.size() - 2], corners.back()), flangeWeight());
    }

private:
    static std::size_t axisOf(const Point& a, const Point& b) { return a[0] != b[0] ? 0 : a[1] != b[1] ? 1 : 2; }
    double wall() const { return service.isHeavy ? size.wall80 : size.wall40; }
    // Kilograms a metre.
    double unitWeight() const { return std::numbers::pi * (size.outsideDiameter - wall()) * wall() * 7'850e-6; }
    // What a long-radius elbow takes of a leg at either end.
    int takeOut(int legLength) const { return std::min(size.dn * 3 / 2, legLength / 2); }
    double elbowWeight() const { return unitWeight() * size.dn * 1.5e-3 * std::numbers::pi / 2; }
    double flangeWeight() const { return 0.6 + size.dn * size.dn * (service.isHeavy ? 9e-4 : 6e-4); }
    double valveWeight() const { return 6.0 + size.dn * size.dn * (service.isHeavy ? 7e-3 : 5e-3); }

    void leg(Point at, const Point& end, std::size_t axis, int sign)
    {
        while (at[axis] != end[axis]) {
            const int step = std::min(longestPipe, std::abs(end[axis] - at[axis]));
            Point next = at;
            next[axis] += sign * step;
            writer.row("pipes", "'%s', '%s-%02d', '%s', '%s', %d, '%s', %.1f, '%s', %.2f, %d, %d, %d, %d, %d, %d, %d",
                       name.c_str(), name.c_str(), ++pipes, service.name, service.spec, size.dn, size.nps,
                       size.outsideDiameter, service.isHeavy ? "80" : "40", wall(), at[0], at[1], at[2], next[0],
                       next[1], next[2], step);
            at = next;
        }
    }

    void legWithValve(const Point& from, const Point& to, std::size_t axis, int sign)
    {
        Point middle = from;
        middle[axis] = (from[axis] + to[axis]) / 2;
        Point before = middle;
        Point behind = middle;
        before[axis] -= sign * (size.dn + 60);
        behind[axis] += sign * (size.dn + 60);
        leg(from, before, axis, sign);
        fitting("flange", before, axis, flangeWeight());
        fitting(service.isHeavy ? "globe valve" : "gate valve", middle, axis, valveWeight());
        fitting("flange", behind, axis, flangeWeight());
        leg(behind, to, axis, sign);
    }

    void fitting(const char* kind, const Point& at, std::size_t axis, double weight)
    {
        writer.row("fittings", "'%s', '%s-F%02d', '%s', '%s', %d, '%s', %d, %d, %d, '%c', %.1f", name.c_str(),
                   name.c_str(), ++fittings, kind, service.spec, size.dn, size.nps, at[0], at[1], at[2], "XYZ"[axis],
                   weight);
    }

    // On every beam of the rack that the run crosses: fixed at the first, guided at every second of the others.
    void supportsBetween(const Point& from, const Point& to, int originX)
    {
        for (int bay = 0; bay <= rackBays; ++bay) {
            const int beam = originX + rackStart + bay * rackBay;
            if (beam < std::min(from[0], to[0]) || beam > std::max(from[0], to[0]))
                continue;
            ++supports;
            writer.row("supports", "'%s', '%s-S%02d', '%s', %d, %d, %d, %d", name.c_str(), name.c_str(), supports,
                       supports == 1       ? "anchor"
                       : supports % 2 == 0 ? "shoe"
                                           : "guide",
                       size.dn, beam, from[1], from[2]);
        }
    }

    const Writer& writer;
    std::string name;
    const Size& size;
    const Service& service;
    int pipes = 0;
    int fittings = 0;
    int supports = 0;
};

// The equipment on both sides of a rack, each tagged by its kind and a number of the unit's.
std::vector<Equipment> placeEquipment(int unit, const Point& origin, Random& random)
{
    std::vector<Equipment> placed;
    for (int place = 0; place < 2 * equipmentPerSide; ++place) {
        const Kind& kind = random.from(kinds);
        const int x = origin[0] + 9'000 + place % equipmentPerSide * 10'500 + random.below(4) * 500;
        const int y = origin[1] + (place < equipmentPerSide ? 8'500 - kind.depth / 2 : 27'500 + kind.depth / 2);
        placed.push_back({std::string(kind.letter).append("-").append(std::to_string(unit * 100 + place + 1)),
                          &kind,
                          {x - kind.length / 2, y - kind.depth / 2, origin[2] + kind.bottom},
                          {x + kind.length / 2, y + kind.depth / 2, origin[2] + kind.top}});
    }
    return placed;
}

// The next free nozzle, on the top of the equipment.
Point nozzleOf(Equipment& equipment)
{
    constexpr int spacing = 650;
    const int offset = (equipment.nozzles + 1) / 2 * (equipment.nozzles % 2 == 0 ? spacing : -spacing);
    ++equipment.nozzles;
    return {(equipment.low[0] + equipment.high[0]) / 2 + offset, (equipment.low[1] + equipment.high[1]) / 2,
            equipment.high[2]};
}

void writeUnit(const Writer& writer, int number, int columns)
{
    Random random(number);
    const Point origin = {number % columns * unitLength, number / columns * unitDepth, 0};
    std::vector<Equipment> equipment = placeEquipment(number + 1, origin, random);
    for (const Equipment& each : equipment)
        writer.row("equipment", "'%s', '%s', %d, %d, %d, %d, %d, %d", each.tag.c_str(), each.kind->name, each.low[0],
                   each.low[1], each.low[2], each.high[0], each.high[1], each.high[2]);
    for (int line = 0; line < linesPerUnit; ++line) {
        // The equipment in turn, and another that stands well away along the rack.
        const int first = line % (2 * equipmentPerSide);
        int second = first;
        while (second % equipmentPerSide == first % equipmentPerSide ||
               equipment[static_cast<std::size_t>(second)].nozzles > 3)
            second = random.below(2 * equipmentPerSide);
        const Point from = nozzleOf(equipment[static_cast<std::size_t>(first)]);
        const Point to = nozzleOf(equipment[static_cast<std::size_t>(second)]);
        const int level = origin[2] + rackLevels[line / lanes];
        const int branch = level + branchRise;
        // The lanes of the upper level lie between those of the lower one.
        const int lane = origin[1] + firstLane + line % lanes * laneWidth + line / lanes * laneWidth / 2;
        const Service& service = random.from(services);
        const Size& size = sizes[random.below(service.sizes)];
        Line(writer, std::to_string((number + 1) * 1000 + line + 1), size, service)
            .write({from,
                    {from[0], from[1], branch},
                    {from[0], lane, branch},
                    {from[0], lane, level},
                    {to[0], lane, level},
                    {to[0], lane, branch},
                    {to[0], to[1], branch},
                    to},
                   origin[0]);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const std::string_view table = argc > 1 ? argv[1] : "";
    const int units = argc > 2 ? std::atoi(argv[2]) : 1;
    if (argc > 3 || units < 1 || std::find(std::begin(tables), std::end(tables), table) == std::end(tables)) {
        std::fputs("usage: zu-sample pipes|fittings|supports|equipment [UNITS] | sqlite3 FILE\n", stderr);
        return 2;
    }
    const Writer writer(table);
    writer.declare();
    const int columns = static_cast<int>(std::ceil(std::sqrt(units)));
    for (int unit = 0; unit < units; ++unit)
        writeUnit(writer, unit, columns);
    std::puts("COMMIT;");
    return 0;
}
