// db: tables over ODBC.
#include "commands.h"
#include "table.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace demo {
namespace {

int failed(const std::string& what)
{
    std::fprintf(stderr, "zu-demo: %s\n", what.c_str());
    return 1;
}

// The fields of a row, for range-for.
std::vector<const DbFldNode*> fieldsOf(DbFldList* row)
{
    std::vector<const DbFldNode*> fields;
    for (zu_DbFldList_start(row); zu_DbFldList_eol(row) == 0; zu_DbFldList_next(row))
        fields.push_back(static_cast<const DbFldNode*>(zu_LnkList_getCurr(row)));
    return fields;
}

// A field's own spelling, in which a tag's list of fields must name it; empty when there is no such field.
Wide fieldName(const Table& table, const std::string& name)
{
    const Row structure(zu_Db_struct(table));
    const DbFldNode* const field = zu_DbFldList_findFld(structure.get(), wide(name).c_str());
    return field == nullptr ? Wide() : Wide(field->name);
}

void printRow(DbFldList* row)
{
    for (const DbFldNode* const field : fieldsOf(row))
        std::printf("  %-12s %s\n", utf8(field->name).c_str(), utf8(field->value).c_str());
}

// Moves to the first row whose field has a value; false, with the reason told, when there is none.
bool seek(const Table& table, const std::string& field, const std::string& value)
{
    const Wide name = fieldName(table, field);
    if (name.empty())
        return failed("no field " + field) == 0;
    const int32_t tag = zu_Db_createNdx(table, ZU_W("DEMO"), name.c_str());
    zu_Db_topRec(table, tag);
    const bool found = zu_Db_seekStr(wide(value).c_str(), table, tag) == ZU_DB_DONE;
    zu_Db_closeNdx(tag);
    return found || failed("no row with " + field + " " + value) == 0;
}

int printStructure(const Table& table, const Words&)
{
    const Row structure(zu_Db_struct(table));
    if (structure == nullptr)
        return failed("the table cannot be read");
    std::printf("%-16s %4s %6s %9s\n", "FIELD", "TYPE", "WIDTH", "DECIMALS");
    for (const DbFldNode* const field : fieldsOf(structure.get()))
        std::printf("%-16s %4c %6u %9u\n", utf8(field->name).c_str(), static_cast<char>(field->type), field->width,
                    field->precision);
    std::printf("%d rows\n", zu_Db_getRecordCount(table));
    return 0;
}

// As many rows as asked for, from a row on; null when there are none.
Rows readRows(const Table& table, int first, int count)
{
    Rows rows(zu_DbCursor_create());
    int number = 0;
    for (int32_t at = zu_Db_topRec(table, 0); at == ZU_DB_DONE; at = zu_Db_nextRec(table, 0)) {
        if (++number < first)
            continue;
        if (number - first >= count)
            break;
        Row row(zu_Db_readRec(table, 0));
        if (zu_DbCursor_insEnd(rows.get(), ZU_W(""), row.get()) == 1)
            row.release();
    }
    return rows;
}

int printRows(const Table& table, const Words& words)
{
    const int first = words.empty() ? 1 : std::atoi(words[0].c_str());
    const int count = words.size() < 2 ? std::numeric_limits<int>::max() : std::atoi(words[1].c_str());
    const Rows rows = readRows(table, first, count);
    if (zu_DbCursor_start(rows.get()) == 0)
        return failed("no rows");
    // Columns as wide as what stands in them.
    std::vector<int> widths;
    std::vector<std::vector<std::string>> lines(1);
    for (const DbFldNode* const field : fieldsOf(zu_DbCursor_getCurrFldList(rows.get())))
        lines[0].push_back(utf8(field->name));
    for (; zu_DbCursor_eol(rows.get()) == 0; zu_DbCursor_next(rows.get())) {
        lines.emplace_back();
        for (const DbFldNode* const field : fieldsOf(zu_DbCursor_getCurrFldList(rows.get())))
            lines.back().push_back(utf8(field->value));
    }
    widths.resize(lines[0].size());
    for (const auto& line : lines) {
        for (std::size_t column = 0; column < line.size(); ++column)
            widths[column] = std::max(widths[column], columnsOf(line[column]));
    }
    for (const auto& line : lines) {
        for (std::size_t column = 0; column + 1 < line.size(); ++column)
            printColumn(line[column], -(widths[column] + 2));
        std::printf("%s\n", line.back().c_str());
    }
    return 0;
}

int printMatch(const Table& table, const Words& words)
{
    if (!seek(table, words[0], words[1]))
        return 1;
    std::printf("row %d\n", zu_DbRef_sel(table)->recordNumber + 1);
    printRow(Row(zu_Db_readRec(table, 0)).get());
    return 0;
}

// set: the field to look at, its value, the field to change, its new value.
int changeMatch(const Table& table, const Words& words)
{
    if (!seek(table, words[0], words[1]))
        return 1;
    const int32_t row = zu_DbRef_sel(table)->recordNumber;
    const Row changed(zu_Db_readRec(table, 0));
    if (zu_DbFldList_modFldVal(changed.get(), wide(words[2]).c_str(), wide(words[3]).c_str()) == 0)
        return failed("no field " + words[2]);
    if (zu_Db_modRec(table, changed.get()) != ZU_DB_DONE)
        return failed("the row cannot be written");
    // Read again, to show what the file has.
    int32_t at = zu_Db_topRec(table, 0);
    while (at == ZU_DB_DONE && zu_DbRef_sel(table)->recordNumber < row)
        at = zu_Db_nextRec(table, 0);
    printRow(Row(zu_Db_readRec(table, 0)).get());
    return at == ZU_DB_DONE ? 0 : 1;
}

// add: NAME=VALUE for each field.
int addRow(const Table& table, const Words& words)
{
    zu_Db_appRec(table);
    const Row row(zu_Db_readRec(table, 0)); // a blank one
    // What is not given is left out, so that the table supplies it.
    for (const DbFldNode* const field : fieldsOf(row.get()))
        zu_DbFldList_modFldVal(row.get(), field->name, ZU_W(""));
    for (const std::string& word : words) {
        const std::size_t sign = word.find('=');
        const Wide name = wide(word.substr(0, sign));
        if (sign == std::string::npos || zu_DbFldList_findFld(row.get(), name.c_str()) == nullptr)
            return failed("no field " + word.substr(0, sign));
        zu_DbFldList_modFldVal(row.get(), name.c_str(), wide(word.substr(sign + 1)).c_str());
    }
    if (zu_Db_modRec(table, row.get()) != ZU_DB_DONE)
        return failed("the row cannot be written");
    std::printf("%d rows\n", zu_Db_getRecordCount(table));
    return 0;
}

} // namespace

int runDb(const Words& words)
{
    const struct
    {
        const char* name;
        std::size_t fewest; // words behind the file
        std::size_t most;
        int (*command)(const Table&, const Words&);
    } commands[] = {
        {"struct", 0, 0, printStructure}, {"dump", 0, 2, printRows}, {"seek", 2, 2, printMatch},
        {"set", 4, 4, changeMatch},       {"add", 1, 1000, addRow},
    };
    for (const auto& entry : commands) {
        if (words.size() < 2 || words[0] != entry.name)
            continue;
        const Words rest(words.begin() + 2, words.end());
        if (rest.size() < entry.fewest || rest.size() > entry.most)
            return usage();
        const Table table(wide(words[1]));
        return table.isOpen() ? entry.command(table, rest) : failed("cannot open " + words[1]);
    }
    return usage();
}

} // namespace demo
