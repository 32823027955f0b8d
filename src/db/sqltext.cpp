#include "db/sqltext.h"

#include "db/dbfld.h"
#include "platform/odbc.h"

#include <algorithm>

namespace zu::db {
namespace {

// The index behind the last character of a path that fulfils a condition; 0 without one.
template <class Condition>
std::size_t behindLast(WideView path, Condition condition)
{
    const auto last = std::find_if(path.rbegin(), path.rend(), condition);
    return static_cast<std::size_t>(path.rend() - last);
}

bool isEitherSlash(zu_wchar unit)
{
    return unit == ZU_W('\\') || unit == ZU_W('/');
}

// Names are not quoted, so one that is no identifier makes a statement that fails.
void appendTable(WideString& sql, WideView path)
{
    const std::size_t name = behindLast(path, platform::odbc::endsDirectory);
    if (!text::equalIgnoringCase(extensionOf(path), ZU_W(".dbf"))) {
        sql += path.substr(name, path.rfind(ZU_W('.')) - name);
        return;
    }
    // [C:\data]\pipe.dbf; without a directory the bracket stays open, which is meant.
    sql += ZU_W('[');
    sql += path;
    if (name > 0)
        sql.insert(sql.size() - path.size() + name - 1, 1, ZU_W(']'));
}

// Only type C is quoted, and quotes in the value are not escaped: callers rely on what is sent.
void appendValue(WideString& sql, WideView value, zu_wchar type)
{
    const bool quoted = type == ZU_DBFLD_TEXT;
    if (quoted)
        sql += ZU_W('\'');
    sql += value;
    if (quoted)
        sql += ZU_W('\'');
}

void appendAssignment(WideString& sql, const DbFldNode& column, WideView value, zu_wchar type, WideView separator)
{
    sql += ZU_W('[');
    sql += column.name;
    sql += ZU_W("]=");
    appendValue(sql, value, type);
    sql += separator;
}

// Numbers have no empty value.
WideView writtenValue(const DbFldNode& field)
{
    const WideView value = valueOf(field);
    if (!value.empty())
        return value;
    switch (field.type) {
    case ZU_DBFLD_FLOAT:
    case ZU_DBFLD_NUMBER: return ZU_W("0.0");
    case ZU_DBFLD_LONG: return ZU_W("0");
    default: return value;
    }
}

} // namespace

WideView extensionOf(WideView path)
{
    const std::size_t dot = path.rfind(ZU_W('.'));
    return dot == WideView::npos ? WideView() : path.substr(dot);
}

WideString selectText(WideView path)
{
    // The blanks are doubled because "all columns" stands where a list of names could.
    WideString sql(ZU_W("SELECT  *  FROM "));
    appendTable(sql, path);
    const std::size_t name = behindLast(path, isEitherSlash);
    if (name > 0 && text::equalIgnoringCase(path.substr(name), ZU_W("settings.db3")))
        sql += ZU_W(" ORDER BY TYP");
    return sql;
}

WideString countText(WideView path)
{
    WideString sql(ZU_W("select count(*) from "));
    appendTable(sql, path);
    return sql;
}

WideString insertText(WideView path, const DbFldList* values)
{
    WideString sql(ZU_W("INSERT INTO "));
    appendTable(sql, path);
    sql += ZU_W(" (");
    WideString list(ZU_W(") VALUES ("));
    for (const DbFldNode& field : FieldsOf(values)) {
        const WideView value = valueOf(field);
        if (value.empty())
            continue; // the table supplies its default
        sql += ZU_W('[');
        sql += field.name;
        sql += ZU_W("], ");
        appendValue(list, value, field.type);
        list += ZU_W(", ");
    }
    // The separator behind the last one goes. Without any value the brackets lose theirs: the statement then fails.
    sql.resize(sql.size() - 2);
    list.resize(list.size() - 2);
    return sql + list + ZU_W(')');
}

WideString updateText(WideView path, const DbFldList* oldRow, const DbFldList* values)
{
    constexpr WideView setStart = ZU_W(" SET ");
    constexpr WideView conditionStart = ZU_W(" WHERE ");
    constexpr WideView comma = ZU_W(", ");
    constexpr WideView conjunction = ZU_W(" AND ");
    WideString set(setStart);
    WideString condition(conditionStart);
    for (const DbFldNode& old : FieldsOf(oldRow)) {
        const DbFldNode* const changed = findField(values, old.name);
        const WideView oldValue = valueOf(old);
        const WideView value = changed == nullptr ? oldValue : writtenValue(*changed);
        const zu_wchar type = changed == nullptr ? old.type : changed->type;
        if (value != oldValue)
            appendAssignment(set, old, value, type, comma);
        else if (!value.empty())
            appendAssignment(condition, old, value, type, conjunction);
    }
    if (set.size() == setStart.size())
        return WideString();
    WideString sql(ZU_W("UPDATE "));
    appendTable(sql, path);
    set.resize(set.size() - comma.size());
    sql += set;
    if (condition.size() > conditionStart.size()) {
        condition.resize(condition.size() - conjunction.size());
        sql += condition;
    }
    return sql;
}

} // namespace zu::db
