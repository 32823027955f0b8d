/** @file zu_cpp/fields.hpp
 *  @ingroup cpp
 *  Field lists: named, typed values, read and written by their C++ type. Part of zu.hpp.
 *
 *      auto pipe = zu::fields::of("TAG", "P-101", "SIZE", 114.3);
 *      if (auto size = pipe.get<double>("size"))
 *          std::cout << *size << " mm\n";
 *      for (zu::field item : pipe)
 *          std::cout << zu::to_utf8(item.name()) << '\n';
 *
 *  Which C++ type stands for which fields:
 *
 *      text           zu::wide_string, std::string (UTF-8)     C, H
 *      zu::handle     the same text, written as a handle       H, reads C and H
 *      std::int32_t   a real loses its fraction                I, reads I, L, N
 *      double         an integer converts                      N, reads I, L, N
 *      Point          the four point-like types                P, reads P, M, D, O
 *      Vector         the same                                 O, reads P, M, D, O
 *      zu::fields     written only; read as zu::fields_view    V
 *      zu::string_list  the same, as zu::strings_view          S
 *
 *  Finding a field by name moves the cursor of the list to it, or to the end: that is so for get, set, add, find
 *  and remove. Ranges and append leave it alone.
 */
#ifndef ZU_CPP_FIELDS_HPP
#define ZU_CPP_FIELDS_HPP

#include "../zu_FldList.h"
#include "lists.hpp"

#include <variant>

namespace zu {

/** The types of fields, by the codes of zu_FldList.h. */
enum class field_type : std::uint16_t
{
    text = ZU_FLD_CHAR,         /**< C */
    handle = ZU_FLD_HANDLE,     /**< H: a text too */
    integer = ZU_FLD_INT,       /**< I */
    long_integer = ZU_FLD_LONG, /**< L */
    real = ZU_FLD_REAL,         /**< N */
    point = ZU_FLD_POINT,       /**< P */
    m_point = ZU_FLD_MPOINT,    /**< M */
    d_point = ZU_FLD_DPOINT,    /**< D */
    vector = ZU_FLD_VECTOR,     /**< O */
    fields = ZU_FLD_LIST,       /**< V: a nested list */
    strings = ZU_FLD_STRLIST,   /**< S: a string list */
    unknown = ZU_FLD_UNKNOWN    /**< U: there is no value */
};

/** What became of a request to a field list. */
enum class [[nodiscard]] field_status : std::int32_t{
    ok = ZU_FLD_OK,                 /**< done */
    nothing = ZU_FLD_NOTHING,       /**< nothing done: no list, or an argument that is null */
    no_current = ZU_FLD_NO_CURRENT, /**< the list has no current field */
    not_found = ZU_FLD_NOT_FOUND,   /**< there is no field of that name */
    wrong_type = ZU_FLD_WRONG_TYPE, /**< the field is of another type; see field_result::converted */
    no_memory = ZU_FLD_NO_MEMORY    /**< the field could not be allocated */
};

/** A text that is to be stored as, or was read by the rules of, a handle. */
struct handle
{
    wide_string text; /**< the text itself */
};

/** The value of a field, or why there is none.
 *
 *  Some requests are answered with "wrong type" and a value all the same: the text of a number, and the number in a
 *  text. Such a value does not count as one here, but converted() has it. */
template <class T>
class [[nodiscard]] field_result
{
public:
    /** A request that failed. */
    explicit field_result(field_status why) : state(why) {}
    /** A value with the status that came with it. */
    field_result(field_status with, T value) : state(with), held(std::move(value)) {}

    /** What the flat call answered. */
    field_status status() const noexcept { return state; }
    /** Whether the request was done and gave a value. */
    bool has_value() const noexcept { return state == field_status::ok && held.has_value(); }
    /** The same as has_value(). */
    explicit operator bool() const noexcept { return has_value(); }
    /** The value. Throws std::bad_optional_access when there is none. */
    const T& value() const
    {
        if (!has_value())
            throw std::bad_optional_access();
        return *held;
    }
    /** The value; there must be one. */
    const T& operator*() const noexcept { return *held; }
    /** The same, for a member of it. */
    const T* operator->() const noexcept { return &*held; }
    /** A copy of the value, or the other one when there is none. */
    template <class Other>
    T value_or(Other&& other) const
    {
        return has_value() ? *held : static_cast<T>(std::forward<Other>(other));
    }
    /** The value as a standard optional. */
    std::optional<T> optional() const { return has_value() ? held : std::nullopt; }
    /** The value, also one that was converted from a field of another type. */
    const std::optional<T>& converted() const noexcept { return held; }

private:
    field_status state;
    std::optional<T> held;
};

class field;

namespace detail {

struct field_element
{
    using value_type = field;
    using reference = field;
    static field read(void* data) noexcept;
};

inline bool is_text(std::uint16_t type)
{
    return type == ZU_FLD_CHAR || type == ZU_FLD_HANDLE;
}

} // namespace detail

/** A field list that somebody else owns, such as the value of a field. */
using fields_view = list_view<detail::field_element>;

/** A field of a list, which stays the owner: valid until the field is deleted or changed. */
class field
{
public:
    /** A value by its type: nothing for an unknown field, a text for C and H, a Point for P, M and D, a Vector for O.
     */
    using value_type =
        std::variant<std::monostate, wide_view, std::int32_t, double, Point, Vector, fields_view, strings_view>;

    /** The field of a record, which must not be null. */
    explicit field(const FldNode* record) noexcept : node(record) {}

    /** The name, in upper case; empty for a field without one. */
    wide_view name() const noexcept { return node->name == nullptr ? wide_view() : wide_view(node->name); }
    /** The type by its code. */
    field_type type() const noexcept { return static_cast<field_type>(node->type); }
    /** The value, borrowed from the list where it is a text or a list; empty for a text or a list that is null. */
    value_type value() const
    {
        const FldValue& held = node->value;
        switch (type()) {
        case field_type::text:
        case field_type::handle: return held.text == nullptr ? wide_view() : wide_view(held.text);
        case field_type::integer:
        case field_type::long_integer: return held.integer;
        case field_type::real: return held.real;
        case field_type::point:
        case field_type::m_point:
        case field_type::d_point: return Point{held.point[0], held.point[1], held.point[2]};
        case field_type::vector: return Vector{held.point[0], held.point[1], held.point[2]};
        case field_type::fields: return fields_view(held.list);
        case field_type::strings: return strings_view(held.list);
        case field_type::unknown: break;
        }
        return std::monostate();
    }
    /** @return the value when it is of one of the types of value_type. */
    template <class T>
    std::optional<T> as() const
    {
        const value_type any = value();
        const T* const found = std::get_if<T>(&any);
        return found == nullptr ? std::nullopt : std::optional<T>(*found);
    }
    /** @return the record, owned by the list; never null. */
    const FldNode* get() const noexcept { return node; }

private:
    const FldNode* node;
};

inline field detail::field_element::read(void* data) noexcept
{
    return field(static_cast<const FldNode*>(data));
}

namespace detail {

/** Reads the first field of a name as T. */
template <class T>
struct field_reader;

/** Texts are read whole: the field tells how much room its text needs. */
inline field_result<wide_string> read_text(FldList* list, const zu_wchar* name,
                                           std::int32_t (*read)(FldList*, zu_wchar*, std::int32_t))
{
    // Numbers are written without a limit; the longest is that of the largest real.
    constexpr std::size_t number_size = 340;
    const FldNode* const node = zu_FldList_find(list, name);
    if (node == nullptr)
        return field_result<wide_string>(field_status::not_found);
    const bool has_text = is_text(node->type);
    const std::size_t length =
        has_text && node->value.text != nullptr ? wide_view(node->value.text).size() : number_size;
    wide_string text(length + 1, zu_wchar());
    const auto status = static_cast<field_status>(read(list, text.data(), static_cast<std::int32_t>(length)));
    text.resize(text.find(zu_wchar()));
    if (status != field_status::ok && (has_text || text.empty()))
        return field_result<wide_string>(status);
    return {status, std::move(text)};
}

template <>
struct field_reader<wide_string>
{
    static field_result<wide_string> read(FldList* list, const zu_wchar* name)
    {
        return read_text(list, name, [](FldList* at, zu_wchar* buffer, std::int32_t capacity) {
            return zu_FldList_currChar(at, buffer, capacity);
        });
    }
};

template <>
struct field_reader<std::string>
{
    static field_result<std::string> read(FldList* list, const zu_wchar* name)
    {
        const auto wide = field_reader<wide_string>::read(list, name);
        if (!wide.converted())
            return field_result<std::string>(wide.status());
        return {wide.status(), to_utf8(*wide.converted())};
    }
};

template <>
struct field_reader<handle>
{
    static field_result<handle> read(FldList* list, const zu_wchar* name)
    {
        const auto wide = read_text(list, name, [](FldList* at, zu_wchar* buffer, std::int32_t capacity) {
            return zu_FldList_currHandle(at, buffer, capacity);
        });
        if (!wide)
            return field_result<handle>(wide.status());
        return {wide.status(), handle{*wide}};
    }
};

/** A number that came with a status: one of another type is the number in a text. */
template <class T>
field_result<T> number_result(FldList* list, std::int32_t result, T number)
{
    const auto status = static_cast<field_status>(result);
    if (status == field_status::ok)
        return {status, number};
    const FldNode* const node = status == field_status::wrong_type ? zu_FldList_curr(list) : nullptr;
    if (node == nullptr || node->type != ZU_FLD_CHAR || node->value.text == nullptr)
        return field_result<T>(status);
    return {status, number};
}

template <>
struct field_reader<std::int32_t>
{
    static field_result<std::int32_t> read(FldList* list, const zu_wchar* name)
    {
        std::int32_t number = 0;
        const std::int32_t status = zu_FldList_getInt(list, name, &number);
        return number_result(list, status, number);
    }
};

template <>
struct field_reader<double>
{
    static field_result<double> read(FldList* list, const zu_wchar* name)
    {
        double number = 0.0;
        const std::int32_t status = zu_FldList_getReal(list, name, &number);
        return number_result(list, status, number);
    }
};

/** Point or Vector. */
template <class Triple>
struct triple_reader
{
    static field_result<Triple> read(FldList* list, const zu_wchar* name)
    {
        double xyz[3] = {};
        const auto status = static_cast<field_status>(zu_FldList_getPoint(list, name, xyz));
        if (status != field_status::ok)
            return field_result<Triple>(status);
        return {status, Triple{xyz[0], xyz[1], xyz[2]}};
    }
};

template <>
struct field_reader<Point> : triple_reader<Point>
{
};
template <>
struct field_reader<Vector> : triple_reader<Vector>
{
};

/** A nested list, of the type code given. */
template <class View, std::uint16_t Type>
struct nested_reader
{
    static field_result<View> read(FldList* list, const zu_wchar* name)
    {
        const FldNode* const node = zu_FldList_find(list, name);
        if (node == nullptr)
            return field_result<View>(field_status::not_found);
        LnkList* nested = nullptr;
        const auto status = static_cast<field_status>(zu_FldList_currList(list, &nested));
        if (status != field_status::ok || node->type != Type)
            return field_result<View>(field_status::wrong_type);
        return {status, View(nested)};
    }
};

template <>
struct field_reader<fields_view> : nested_reader<fields_view, ZU_FLD_LIST>
{
};
template <>
struct field_reader<strings_view> : nested_reader<strings_view, ZU_FLD_STRLIST>
{
};

struct fields_family
{
    static void destroy(FldList* list) { zu_FldList_destroy(list); }
};

} // namespace detail

/** A field list. Throws std::bad_alloc where memory is short, and std::invalid_argument when nothing is held. */
class fields : public detail::list_owner<detail::field_element, detail::fields_family>
{
public:
    /** An empty list. */
    fields() : fields(adopt, detail::made(zu_FldList_create(nullptr))) {}
    /** Takes over a list from the library; null holds nothing. */
    fields(adopt_t, FldList* list) noexcept : list_owner(adopt, list) {}

    /** A list of names and values in turn, appended one by one. */
    template <class... NamesAndValues>
    static fields of(NamesAndValues&&... names_and_values)
    {
        static_assert(sizeof...(names_and_values) % 2 == 0, "a value for each name");
        fields list;
        list.append_all(std::forward<NamesAndValues>(names_and_values)...);
        return list;
    }

    /** Reads the first field of a name; see the table above for T. Moves the cursor. */
    template <class T>
    field_result<T> get(const text& name) const
    {
        return detail::field_reader<T>::read(list_owner::get(), name.c_str());
    }
    /** The record for a flat call, still owned. */
    FldList* get() const noexcept { return list_owner::get(); }
    /** @return the first field of a name. Moves the cursor. */
    [[nodiscard]] std::optional<field> find(const text& name) const
    {
        const FldNode* const node = zu_FldList_find(get(), name.c_str());
        return node == nullptr ? std::nullopt : std::optional<field>(node);
    }
    /** Whether there is a field of a name. Moves the cursor. */
    [[nodiscard]] bool contains(const text& name) const { return find(name).has_value(); }

    /** Sets a field: one that is there takes the value and its type, here C, else it is appended. A nested list or
     *  string list that the field held is destroyed. Moves the cursor. */
    void set(const text& name, const text& value)
    {
        replace(
            name, [&] { return zu_FldList_modChar(get(), name.c_str(), value.c_str()); }, value.c_str());
    }
    /** See the first of them; the field is of type H, and a new one has its text in upper case. */
    void set(const text& name, const handle& value)
    {
        replace(
            name, [&] { return zu_FldList_modHandle(get(), name.c_str(), value.text.c_str()); }, value.text.c_str());
    }
    /** See the first of them; the field is of type I. */
    void set(const text& name, std::int32_t value)
    {
        replace(name, [&] { return zu_FldList_modInt(get(), name.c_str(), value); });
    }
    /** See the first of them; the field is of type N. */
    void set(const text& name, double value)
    {
        replace(name, [&] { return zu_FldList_modReal(get(), name.c_str(), value); });
    }
    /** See the first of them; the field is of type P. */
    void set(const text& name, const Point& value)
    {
        const double xyz[] = {value.x, value.y, value.z};
        replace(name, [&] { return zu_FldList_modPoint(get(), name.c_str(), xyz); });
    }
    /** See the first of them; the field is of type O. */
    void set(const text& name, const Vector& value)
    {
        const double xyz[] = {value.x, value.y, value.z};
        replace(name, [&] { return zu_FldList_modVector(get(), name.c_str(), xyz); });
    }
    /** See the first of them; the field owns the nested list from now on. */
    void set(const text& name, fields value)
    {
        replace(name, [&] { return taken_over(value, zu_FldList_modList(get(), name.c_str(), value.get())); });
    }
    /** The field is there, and has no value. */
    void set_unknown(const text& name)
    {
        replace(name, [&] { return zu_FldList_modUnknown(get(), name.c_str()); });
    }

    /** Appends a field, here of type C, whether or not the name is there already. Current: unchanged. */
    void append(const text& name, const text& value)
    {
        appended([&] { return zu_FldList_appChar(get(), name.c_str(), value.c_str()); });
    }
    /** See the first of them; the field is of type H and has the text in upper case. */
    void append(const text& name, const handle& value)
    {
        appended([&] { return zu_FldList_appHandle(get(), name.c_str(), value.text.c_str()); });
    }
    /** See the first of them; the field is of type I. */
    void append(const text& name, std::int32_t value)
    {
        appended([&] { return zu_FldList_appInt(get(), name.c_str(), value); });
    }
    /** See the first of them; the field is of type N. */
    void append(const text& name, double value)
    {
        appended([&] { return zu_FldList_appReal(get(), name.c_str(), value); });
    }
    /** See the first of them; the field is of type P. */
    void append(const text& name, const Point& value)
    {
        const double xyz[] = {value.x, value.y, value.z};
        appended([&] { return zu_FldList_appPoint(get(), name.c_str(), xyz); });
    }
    /** See the first of them; the field is of type O. */
    void append(const text& name, const Vector& value)
    {
        const double xyz[] = {value.x, value.y, value.z};
        appended([&] { return zu_FldList_appVector(get(), name.c_str(), xyz); });
    }
    /** See the first of them; the field owns the nested list from now on. */
    void append(const text& name, fields value)
    {
        appended([&] { return taken_over(value, zu_FldList_appList(get(), name.c_str(), value.get())); });
    }
    /** See the first of them; the field owns the string list from now on. */
    void append(const text& name, string_list value)
    {
        appended([&] { return taken_over(value, zu_FldList_appStrList(get(), name.c_str(), value.get())); });
    }
    /** Appends a field that has no value. */
    void append_unknown(const text& name)
    {
        appended([&] { return zu_FldList_appUnknown(get(), name.c_str()); });
    }

    /** Adds one more value under a name: the first is a plain field, from the second on they stand in a nested list.
     *  Moves the cursor. */
    void add(const text& name, const text& value)
    {
        appended([&] { return zu_FldList_addCharVal(get(), name.c_str(), value.c_str()); });
    }
    /** See the first of them; the value is of type I. */
    void add(const text& name, std::int32_t value)
    {
        appended([&] { return zu_FldList_addIntVal(get(), name.c_str(), value); });
    }
    /** See the first of them; the value is of type N. */
    void add(const text& name, double value)
    {
        appended([&] { return zu_FldList_addRealVal(get(), name.c_str(), value); });
    }

    /** Deletes the first field of a name. Moves the cursor. @return whether there was one. */
    bool remove(const text& name) { return zu_FldList_delFld(get(), name.c_str()) == 1; }
    /** A copy with its nested lists; string-list fields arrive as unknown ones. Current: none. */
    [[nodiscard]] fields copy() const { return fields(adopt, detail::made(zu_FldList_copy(get()))); }
    /** Appends copies of all fields of another list. Current of the other: none. */
    void append_all_of(const fields& other)
    {
        detail::inserted(zu_FldList_concatenate(get(), other.get()) == 1, get() != nullptr && other.get() != nullptr);
    }
    /** Sets every field of another list in this one, by name. Current of the other: none. */
    void combine(const fields& other)
    {
        detail::inserted(zu_FldList_combine(get(), other.get()) == 1, get() != nullptr && other.get() != nullptr);
    }
    /** The fields that differ from those of the same name in another list, see zu_FldList_diff. Moves both cursors.
     *  @return a list that holds nothing, and is empty, when there are none. */
    [[nodiscard]] fields diff(const fields& other, bool include_missing) const
    {
        return fields(adopt, zu_FldList_diff(get(), other.get(), include_missing ? 1 : 0));
    }

private:
    void append_all() {}
    template <class Name, class Value, class... Rest>
    void append_all(Name&& name, Value&& value, Rest&&... rest)
    {
        append(std::forward<Name>(name), std::forward<Value>(value));
        append_all(std::forward<Rest>(rest)...);
    }

    /** The list took over a value unless it had no memory for the field. */
    template <class Owner>
    static std::int32_t taken_over(Owner& value, std::int32_t result)
    {
        if (result != ZU_FLD_NO_MEMORY)
            static_cast<void>(value.release());
        return result;
    }

    template <class Operation>
    void appended(Operation operation)
    {
        detail::inserted(get() != nullptr && operation() == ZU_FLD_OK, get() != nullptr);
    }

    /** Changes a field and destroys the nested list that it held, which nobody else would. */
    template <class Operation>
    void replace(const text& name, Operation operation, const zu_wchar* new_text = nullptr)
    {
        const FldNode* const node = zu_FldList_find(get(), name.c_str());
        fields old_fields(adopt, node != nullptr && node->type == ZU_FLD_LIST ? node->value.list : nullptr);
        string_list old_strings(adopt, node != nullptr && node->type == ZU_FLD_STRLIST ? node->value.list : nullptr);
        const bool done = get() != nullptr && operation() == ZU_FLD_OK;
        if (!done) {
            static_cast<void>(old_fields.release());
            static_cast<void>(old_strings.release());
        }
        detail::inserted(done, get() != nullptr);
        // A field that is there takes a text without a status for the memory of its copy.
        if (node != nullptr && new_text != nullptr && node->value.text == nullptr)
            throw std::bad_alloc();
    }
};

} // namespace zu

#endif
