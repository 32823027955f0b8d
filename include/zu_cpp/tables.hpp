/** @file zu_cpp/tables.hpp
 *  @ingroup cpp
 *  Tables over ODBC: rows in turn, fields by name, reading and writing. Part of zu.hpp.
 *
 *      zu::table pipes("C:\\plant\\pipes.db3");
 *      for (const auto& row : pipes.rows())
 *          if (auto size = row.get<double>("SIZE"))
 *              std::cout << zu::to_utf8(row["TAG"]) << ' ' << *size << '\n';
 *
 *  A table has one current row, and everything here moves that one: a loop over rows() reads the table from the top, so
 *  two loops at a time disturb each other. Writing the row a loop stands on is meant to work.
 */
#ifndef ZU_CPP_TABLES_HPP
#define ZU_CPP_TABLES_HPP

#include "../zu_Db.h"
#include "lists.hpp"

namespace zu {

/** What became of a request to a table. */
enum class [[nodiscard]] row_status : std::int32_t{
    done = ZU_DB_DONE,     /**< done */
    failed = ZU_DB_FAILED, /**< an invalid handle or argument, no memory, or the driver failed */
    no_row = ZU_DB_NO_ROW  /**< there is no such row */
};

/** A field of a row, which stays the owner. */
class column
{
public:
    /** The column of a record, which must not be null. */
    explicit column(const DbFldNode* record) noexcept : node(record) {}

    /** The name; borrowed from the row. */
    wide_view name() const noexcept { return wide_view(node->name); }
    /** The value as text, whole; empty when there is none. */
    wide_view value() const noexcept { return node->value == nullptr ? wide_view() : wide_view(node->value); }
    /** Whether there is a value, and be it an empty one. */
    bool has_value() const noexcept { return node->value != nullptr; }
    /** The type, ZU_DBFLD_TEXT and its companions. */
    char type() const noexcept { return static_cast<char>(node->type); }
    /** The width that the column is declared with. */
    std::uint32_t width() const noexcept { return node->width; }
    /** The number of decimals that the column is declared with. */
    std::uint32_t precision() const noexcept { return node->precision; }
    /** @return the record; never null. */
    const DbFldNode* get() const noexcept { return node; }

private:
    const DbFldNode* node;
};

namespace detail {

struct column_element
{
    using value_type = column;
    using reference = column;
    static column read(void* data) noexcept { return column(static_cast<const DbFldNode*>(data)); }
};

struct row_family
{
    static void destroy(DbFldList* list) { zu_DbFldList_destroy(list); }
};

} // namespace detail

/** A row, or the structure of a table: a range of columns. Finding a column by name ignores case and moves the cursor.
 */
class row : public detail::list_owner<detail::column_element, detail::row_family>
{
public:
    /** A row without columns. Throws std::bad_alloc without memory. */
    row() : row(adopt, detail::made(zu_DbFldList_create(nullptr))) {}
    /** Takes over a list from the library; null holds nothing. */
    row(adopt_t, DbFldList* list) noexcept : list_owner(adopt, list) {}

    /** A row of text columns: names and values in turn. Names are made upper-case. */
    template <class... NamesAndValues>
    static row of(const NamesAndValues&... names_and_values)
    {
        static_assert(sizeof...(names_and_values) % 2 == 0, "a value for each name");
        return row(adopt, detail::made(zu_DbFldList_create(text(names_and_values).c_str()...,
                                                           static_cast<const zu_wchar*>(nullptr))));
    }

    /** @return the first column of a name. */
    [[nodiscard]] std::optional<column> find(const text& name) const
    {
        const DbFldNode* const node = zu_DbFldList_findFld(list_owner::get(), name.c_str());
        return node == nullptr ? std::nullopt : std::optional<column>(node);
    }
    /** The value of a column; empty when there is no such column or value. Valid as long as the value. */
    wide_view operator[](const text& name) const
    {
        const auto found = find(name);
        return found ? found->value() : wide_view();
    }
    /** The value of a column as std::int32_t, double, zu::wide_string or std::string; a number is the one at the front
     *  of the text, 0 where there is none. @return none when there is no such column, or its value is empty. */
    template <class T>
    [[nodiscard]] std::optional<T> get(const text& name) const
    {
        const auto found = find(name);
        if (!found || found->value().empty())
            return std::nullopt;
        if constexpr (std::same_as<T, std::int32_t>) {
            return zu_DbFldList_getCurrInt(get());
        } else if constexpr (std::same_as<T, double>) {
            return zu_DbFldList_getCurrDouble(get());
        } else if constexpr (std::same_as<T, wide_string>) {
            return wide_string(found->value());
        } else {
            static_assert(std::same_as<T, std::string>, "a type that columns can be read as");
            return to_utf8(found->value());
        }
    }
    /** The record for a flat call, still owned. */
    DbFldList* get() const noexcept { return list_owner::get(); }

    /** Sets the value of a column; nullptr leaves it without one. Throws std::bad_alloc without memory.
     *  @return whether there is such a column. */
    [[nodiscard]] bool set(const text& name, const text& value)
    {
        if (!find(name))
            return false;
        const bool done = zu_DbFldList_modCurrVal(get(), value.c_str()) == 1;
        if (!done && value.c_str() != nullptr)
            throw std::bad_alloc();
        return true;
    }
    /** Appends a column. Throws std::bad_alloc without memory. Current: unchanged. */
    void append(const text& name, const text& value, std::uint32_t width = 0, std::uint32_t precision = 0,
                char type = ZU_DBFLD_TEXT)
    {
        detail::inserted(
            zu_DbFldList_insEnd(get(), name.c_str(), value.c_str(), width, precision, static_cast<zu_wchar>(type)) == 1,
            get() != nullptr);
    }
    /** A copy. Throws std::bad_alloc without memory. */
    [[nodiscard]] row copy() const { return row(adopt, detail::made(zu_DbFldList_copy(get()))); }
};

/** The rows of a table from the top on, one at a time: an input range. Each row is a copy that is there until the next
 *  one is read; std::move it away to keep it. Where a row cannot be read although there is one, reading throws
 *  std::runtime_error; a table that cannot be read at all has no rows. */
class row_range
{
public:
    /** Stands on the row that the range has read: iterators of one range stand on the same row. */
    class iterator
    {
    public:
        using value_type = row;                            /**< what it stands on */
        using reference = row&;                            /**< the row of the range, which may be moved away */
        using difference_type = std::ptrdiff_t;            /**< as in every iterator */
        using pointer = row*;                              /**< as in every iterator */
        using iterator_concept = std::input_iterator_tag;  /**< it reads once */
        using iterator_category = std::input_iterator_tag; /**< it reads once */

        /** Stands nowhere, which counts as the end. */
        iterator() noexcept = default;
        /** Stands on the row that a range has read last. */
        explicit iterator(row_range* rows) noexcept : range(rows) {}

        /** The row. */
        row& operator*() const noexcept { return range->current; }
        /** The row, for a member of it. */
        row* operator->() const noexcept { return &range->current; }
        /** Reads the next row. */
        iterator& operator++()
        {
            range->read(zu_Db_nextRec(range->table, 0));
            return *this;
        }
        /** The same. */
        void operator++(int) { ++*this; }
        /** Whether there is no row left. */
        bool operator==(std::default_sentinel_t) const noexcept { return range == nullptr || range->ended; }

    private:
        row_range* range = nullptr;
    };

    /** The rows of an open table, which stays the caller's. Reads nothing yet. */
    explicit row_range(std::int32_t handle) noexcept : table(handle), current(adopt, nullptr) {}

    /** Reads the table anew and stands on its first row. */
    iterator begin()
    {
        read(zu_Db_topRec(table, 0));
        return iterator(this);
    }
    /** The end, at which an iterator has no row left. */
    std::default_sentinel_t end() const noexcept { return std::default_sentinel; }

private:
    void read(std::int32_t moved)
    {
        current.reset();
        // Moving to the top of an unknown table counts as done.
        ended = moved != ZU_DB_DONE || zu_Db_eof(table) == 1;
        if (ended)
            return;
        current.reset(zu_Db_readRec(table, 0));
        if (!current)
            throw std::runtime_error("zu: a row of the table cannot be read");
    }
    std::int32_t table;
    row current;
    bool ended = true;
};

/** An index tag of a table: tells seek which fields to look at. Keeps its texts, as the library does not, and is
 *  removed at the end. */
class table_tag
{
public:
    /** Registers a tag for an open table (zu_Db_createNdx); test the object for success. */
    table_tag(std::int32_t table, const text& name, const text& expression)
        : texts(new both{wide_string(name.view()), wide_string(expression.view())}),
          number(zu_Db_createNdx(table, texts->name.c_str(), texts->expression.c_str()))
    {
    }
    /** Takes the tag over; the other has none. */
    table_tag(table_tag&& other) noexcept : texts(std::move(other.texts)), number(std::exchange(other.number, none)) {}
    /** Removes its own tag and takes the other over, which has none afterwards. */
    table_tag& operator=(table_tag&& other) noexcept
    {
        table_tag moved(std::move(other));
        std::swap(texts, moved.texts);
        std::swap(number, moved.number);
        return *this;
    }
    /** Removes the tag. */
    ~table_tag()
    {
        if (number != none)
            zu_Db_closeNdx(number);
    }

    /** The number of the tag; -1 when it could not be registered. */
    std::int32_t get() const noexcept { return number; }
    /** Whether the tag is registered. */
    explicit operator bool() const noexcept { return number != none; }

private:
    static constexpr std::int32_t none = -1;
    struct both
    {
        wide_string name;
        wide_string expression;
    };
    std::unique_ptr<both> texts;
    std::int32_t number;
};

/** An open table, closed at the end. Moves, but does not copy. */
class table
{
public:
    /** Opens a table, see zu_Db_openDb; test the object for success. */
    explicit table(const text& path) : handle(zu_Db_openDb(path.c_str())) {}
    /** Takes over a handle from the library; -1 is none. */
    table(adopt_t, std::int32_t open) noexcept : handle(open) {}
    /** Takes the table over; the other has none. */
    table(table&& other) noexcept : handle(other.release()) {}
    /** Closes its own table and takes the other over, which has none afterwards. */
    table& operator=(table&& other) noexcept
    {
        reset(other.release());
        return *this;
    }
    /** Closes the table. */
    ~table() { reset(); }

    /** Whether the table is open. */
    explicit operator bool() const noexcept { return handle != none; }
    /** The handle for a flat call, still owned; -1 for none. */
    std::int32_t get() const noexcept { return handle; }
    /** Hands the handle out: the caller closes it from now on. */
    [[nodiscard]] std::int32_t release() noexcept { return std::exchange(handle, none); }
    /** Closes the table, and takes over another handle, or none. */
    void reset(std::int32_t open = none) noexcept
    {
        const std::int32_t old = std::exchange(handle, open);
        if (old != none && old != open)
            zu_Db_closeDb(old);
    }

    /** The columns; their values are blanks. @return a row that holds nothing on failure. No row is current then. */
    [[nodiscard]] row structure() const { return row(adopt, zu_Db_struct(handle)); }
    /** The number of rows; 0 on failure. */
    [[nodiscard]] std::size_t row_count() const
    {
        const std::int32_t count = zu_Db_getRecordCount(handle);
        return count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    /** All rows, from the top. */
    [[nodiscard]] row_range rows() const { return row_range(handle); }

    /** Moves to a row. The first of a table without rows: failed. */
    row_status first() const
    {
        return handle == none ? row_status::failed : static_cast<row_status>(zu_Db_topRec(handle, 0));
    }
    /** Moves to the next row. Behind the last one: no_row. */
    row_status next() const { return static_cast<row_status>(zu_Db_nextRec(handle, 0)); }
    /** Moves to the row before. In front of the first one: no_row. */
    row_status previous() const { return static_cast<row_status>(zu_Db_prevRec(handle, 0)); }
    /** Moves to the last row. Done, and without an effect, also where no row was looked for before (zu_Db_botRec). */
    row_status last() const { return static_cast<row_status>(zu_Db_botRec(handle, 0)); }
    /** Whether there is a row to read. */
    [[nodiscard]] bool has_row() const { return zu_Db_eof(handle) == 0; }

    /** A copy of the current row. @return a row that holds nothing when there is none. */
    [[nodiscard]] row read() const { return row(adopt, zu_Db_readRec(handle, 0)); }
    /** The value of a field of the current row, cut at 512 units; none without a row or such a field. */
    [[nodiscard]] std::optional<wide_string> field(const text& name) const
    {
        return detail::optional_text(zu_Db_getFldStr(handle, name.c_str()));
    }

    /** Registers a tag: the expression is field names with commas and no blanks. */
    [[nodiscard]] table_tag tag(const text& name, const text& expression) const
    {
        return table_tag(handle, name, expression);
    }
    /** Moves to a row in which any field equals a text, see zu_Db_seekStr. */
    row_status seek(const text& value) const
    {
        return static_cast<row_status>(zu_Db_seekStr(value.c_str(), handle, 0));
    }
    /** The same in the fields of a tag. */
    row_status seek(const text& value, const table_tag& tag) const
    {
        return static_cast<row_status>(zu_Db_seekStr(value.c_str(), handle, tag.get()));
    }

    /** Inserts a row (zu_Db_appRec, zu_Db_modRec). */
    row_status append(const row& values) const
    {
        const auto status = static_cast<row_status>(zu_Db_appRec(handle));
        return status == row_status::done ? write(values) : status;
    }
    /** Writes the current row, which must have been read: the columns whose values differ (zu_Db_modRec). */
    row_status write(const row& values) const { return static_cast<row_status>(zu_Db_modRec(handle, values.get())); }

private:
    static constexpr std::int32_t none = -1;
    std::int32_t handle;
};

} // namespace zu

#endif
