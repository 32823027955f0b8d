#include "plant.h"

#include "table.h"

#include <chrono>
#include <cstdio>

namespace demo {
namespace {

// Tells on standard error how far a long job is. A short one says nothing.
class Progress
{
public:
    Progress(const char* whatIsCounted, int expectedCount) : what(whatIsCounted), expected(expectedCount) {}
    ~Progress()
    {
        if (isShown)
            std::fprintf(stderr, "\r%*s\r", width, "");
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void step()
    {
        ++done;
        const Clock::time_point now = Clock::now();
        if (now - last < std::chrono::milliseconds(isShown ? 100 : 400))
            return;
        last = now;
        isShown = true;
        width = std::fprintf(stderr, "\r%d of %d %s ", done, expected, what) - 1;
        std::fflush(stderr);
    }

private:
    using Clock = std::chrono::steady_clock;
    const char* what;
    int expected;
    int done = 0;
    int width = 0;
    bool isShown = false;
    Clock::time_point last = Clock::now();
};

// A row of a table as a field list, whose values are asked for by name and type.
class Record
{
public:
    explicit Record(const Table& table)
    {
        const Row row(zu_Db_readRec(table, 0));
        fields.reset(zu_FldList_fromDbFldList(row.get()));
    }

    std::string text(const zu_wchar* name) const
    {
        zu_wchar value[65] = {};
        return zu_FldList_getChar(fields.get(), name, value, 64) == ZU_FLD_OK ? utf8(value) : std::string();
    }
    // Integer columns of a table arrive as texts; these are read as well.
    double number(const zu_wchar* name) const
    {
        double value = 0.0;
        zu_FldList_getReal(fields.get(), name, &value);
        return value;
    }
    int integer(const zu_wchar* name) const { return static_cast<int>(number(name)); }
    Point place(const zu_wchar* x, const zu_wchar* y, const zu_wchar* z) const
    {
        Point point;
        zu_Point_set(&point, number(x), number(y), number(z));
        return point;
    }

private:
    Fields fields;
};

Pipe pipeOf(const Record& record)
{
    return {record.text(ZU_W("LINE")),
            record.text(ZU_W("TAG")),
            record.text(ZU_W("SERVICE")),
            record.text(ZU_W("SPEC")),
            record.text(ZU_W("SCHED")),
            record.integer(ZU_W("DN")),
            record.number(ZU_W("OD")),
            record.number(ZU_W("WALL")),
            record.place(ZU_W("X1"), ZU_W("Y1"), ZU_W("Z1")),
            record.place(ZU_W("X2"), ZU_W("Y2"), ZU_W("Z2")),
            record.number(ZU_W("LENGTH"))};
}

Fitting fittingOf(const Record& record)
{
    const std::string axis = record.text(ZU_W("AXIS"));
    return {record.text(ZU_W("LINE")),
            record.text(ZU_W("KIND")),
            record.text(ZU_W("SPEC")),
            record.integer(ZU_W("DN")),
            record.place(ZU_W("X"), ZU_W("Y"), ZU_W("Z")),
            axis.empty() ? 'X' : axis[0],
            record.number(ZU_W("WEIGHT"))};
}

Support supportOf(const Record& record)
{
    return {record.text(ZU_W("LINE")), record.text(ZU_W("KIND")), record.place(ZU_W("X"), ZU_W("Y"), ZU_W("Z"))};
}

Equipment equipmentOf(const Record& record)
{
    return {record.text(ZU_W("TAG")), record.text(ZU_W("KIND")), record.place(ZU_W("X1"), ZU_W("Y1"), ZU_W("Z1")),
            record.place(ZU_W("X2"), ZU_W("Y2"), ZU_W("Z2"))};
}

template <class Item>
bool readTable(const Wide& directory, const char* name, Item (*itemOf)(const Record&), std::vector<Item>& items)
{
    const Wide file = directory + ZU_W("\\") + wide(name) + ZU_W(".db3");
    const Table table(file);
    if (!table.isOpen()) {
        std::fprintf(stderr, "zu-demo: cannot open %s\n", utf8(file.c_str()).c_str());
        return false;
    }
    Progress progress(name, zu_Db_getRecordCount(table));
    for (int32_t at = zu_Db_topRec(table, 0); at == ZU_DB_DONE; at = zu_Db_nextRec(table, 0)) {
        items.push_back(itemOf(Record(table)));
        progress.step();
    }
    return true;
}

} // namespace

bool readPlant(const Wide& directory, Plant& plant)
{
    return readTable(directory, "pipes", pipeOf, plant.pipes) &&
           readTable(directory, "fittings", fittingOf, plant.fittings) &&
           readTable(directory, "supports", supportOf, plant.supports) &&
           readTable(directory, "equipment", equipmentOf, plant.equipment);
}

} // namespace demo
