/** @file zu_cpp/lists.hpp
 *  @ingroup cpp
 *  Lists: ranges over them, and owners of generic, string and integer lists. Part of zu.hpp.
 *
 *      auto names = zu::string_list::split("pipe; elbow; tee", ";");
 *      for (zu::wide_view name : names)
 *          std::cout << zu::to_utf8(name) << '\n';
 *
 *  Ranges walk the nodes of a list and leave its cursor alone. They are valid as standard lists are: an iterator as
 *  long as its element. Operations of the owners are those of the flat families; one whose flat operation moves the
 *  cursor says so.
 */
#ifndef ZU_CPP_LISTS_HPP
#define ZU_CPP_LISTS_HPP

#include "../zu_IntList.h"
#include "../zu_LnkList.h"
#include "../zu_StrList.h"
#include "text.hpp"

#include <cstddef>
#include <iterator>
#include <ranges>
#include <type_traits>

namespace zu {

/** Whether letters of different case are different. */
enum class letter_case : std::int32_t
{
    exact = 0, /**< they are */
    ignore = 1 /**< they are not */
};

/** A list that somebody else owns, as a range of constant elements. Element says how the data of a node are read; a
 *  view of nothing is empty. */
template <class Element>
class list_view
{
public:
    /** Walks the nodes of a list, both ways; from its end too. Valid as long as its element. */
    class iterator
    {
    public:
        using value_type = typename Element::value_type;          /**< an element by itself */
        using reference = typename Element::reference;            /**< what reading gives; may be a value */
        using difference_type = std::ptrdiff_t;                   /**< as in every iterator */
        using pointer = void;                                     /**< elements need not lie in memory */
        using iterator_concept = std::bidirectional_iterator_tag; /**< it goes both ways */
        /** For algorithms older than C++20, which want references. */
        using iterator_category = std::conditional_t<std::is_reference_v<reference>, std::bidirectional_iterator_tag,
                                                     std::input_iterator_tag>;

        /** Stands nowhere; to be assigned to. */
        iterator() noexcept = default;
        /** Stands on a node of a list; a null node is the end. */
        iterator(const LnkList* whole, const LnkNode* at) noexcept : list(whole), node(at) {}

        /** The element. */
        reference operator*() const { return Element::read(node->data); }
        /** The element, or a holder of it where elements are made on reading. */
        auto operator->() const
        {
            if constexpr (std::is_reference_v<reference>)
                return &**this;
            else
                return holder{**this};
        }
        /** Moves to the next element, from the last one to the end. */
        iterator& operator++() noexcept
        {
            node = node->next;
            return *this;
        }
        /** The same; gives the old place. */
        iterator operator++(int) noexcept
        {
            const iterator before = *this;
            ++*this;
            return before;
        }
        /** Moves to the element before, from the end to the last one. */
        iterator& operator--() noexcept
        {
            node = node == nullptr ? list->last : node->prev;
            return *this;
        }
        /** The same; gives the old place. */
        iterator operator--(int) noexcept
        {
            const iterator before = *this;
            --*this;
            return before;
        }
        /** Whether both stand on the same element, or both at an end. */
        friend bool operator==(const iterator& a, const iterator& b) noexcept { return a.node == b.node; }

    private:
        struct holder
        {
            reference held;
            const reference* operator->() const noexcept { return &held; }
        };
        const LnkList* list = nullptr;
        const LnkNode* node = nullptr;
    };
    /** The same: elements cannot be changed through a view. */
    using const_iterator = iterator;

    /** A view of nothing. */
    list_view() noexcept = default;
    /** A view of a list whose elements fit; null is nothing. */
    explicit list_view(LnkList* borrowed) noexcept : list(borrowed) {}

    /** The first element; the end when there is none. */
    iterator begin() const noexcept { return iterator(list, list == nullptr ? nullptr : list->first); }
    /** The end, behind the last element. */
    iterator end() const noexcept { return iterator(list, nullptr); }
    /** The number of elements. */
    std::size_t size() const { return zu_LnkList_length(list); }
    /** Whether there is no element. */
    bool empty() const noexcept { return list == nullptr || list->first == nullptr; }
    /** The first element; there must be one. */
    decltype(auto) front() const { return *begin(); }
    /** The last element; there must be one. */
    decltype(auto) back() const { return *--end(); }
    /** @return the list for a flat call; may be null. */
    LnkList* get() const noexcept { return list; }

private:
    LnkList* list = nullptr;
};

namespace detail {

/** Data that are a pointer to something of the caller's. */
template <class T>
struct pointer_element
{
    using value_type = T*;
    using reference = T*;
    static reference read(void* data) noexcept { return static_cast<T*>(data); }
};

/** Data that are a value, owned by the list, and never null. */
template <class T>
struct value_element
{
    using value_type = T;
    using reference = const T&;
    static reference read(void* data) noexcept { return *static_cast<const T*>(data); }
};

struct integer_element
{
    using value_type = std::int32_t;
    using reference = const std::int32_t&;
    static reference read(void* data) noexcept { return static_cast<const IntListNode*>(data)->value; }
};

struct string_element
{
    using value_type = wide_view;
    using reference = wide_view;
    static reference read(void* data) noexcept
    {
        const zu_wchar* const text = data == nullptr ? nullptr : static_cast<const StrListNode*>(data)->string;
        return text == nullptr ? wide_view() : wide_view(text);
    }
};

/** An owner of a list that is a range of its elements. */
template <class Element, class Family>
class list_owner : public owner<LnkList, Family>
{
public:
    using view_type = list_view<Element>;
    using iterator = typename view_type::iterator;
    using const_iterator = iterator;
    using value_type = typename Element::value_type;

    /** The elements, for as long as the list lives. */
    view_type view() const noexcept { return view_type(this->get()); }
    iterator begin() const noexcept { return view().begin(); }
    iterator end() const noexcept { return view().end(); }
    /** The number of elements; 0 when nothing is held. */
    std::size_t size() const { return view().size(); }
    /** Whether there is no element, or nothing is held. */
    bool empty() const noexcept { return view().empty(); }
    /** The first element; there must be one. */
    decltype(auto) front() const { return view().front(); }
    /** The last element; there must be one. */
    decltype(auto) back() const { return view().back(); }

protected:
    using owner<LnkList, Family>::owner;
    list_owner() noexcept = default;
};

template <class T>
struct borrowing_family
{
    static constexpr zu_LnkListFreeCallback freeData = nullptr;
    static void destroy(LnkList* list) { zu_LnkList_destroy(list, nullptr); }
};

template <class T>
struct deleting_family
{
    static std::int32_t freeData(void* data)
    {
        delete static_cast<T*>(data);
        return 1;
    }
    static void destroy(LnkList* list) { zu_LnkList_destroy(list, &deleting_family::freeData); }
};

template <class T, class Family>
class generic_list : public list_owner<pointer_element<T>, Family>
{
public:
    /** An empty list. Throws std::bad_alloc without memory. */
    generic_list() : generic_list(adopt, made(zu_LnkList_create(nullptr))) {}
    /** Takes over a list whose data are T; null holds nothing. */
    generic_list(adopt_t, LnkList* list) noexcept : list_owner<pointer_element<T>, Family>(adopt, list) {}

    /** Empties the list. */
    void clear() { zu_LnkList_delAll(this->get(), Family::freeData); }

protected:
    void insert_last(T* data)
    {
        using mutable_type = std::remove_const_t<T>;
        inserted(zu_LnkList_insEnd(this->get(), const_cast<mutable_type*>(data)) == 1, this->get() != nullptr);
    }
    void insert_first(T* data)
    {
        using mutable_type = std::remove_const_t<T>;
        inserted(zu_LnkList_insStart(this->get(), const_cast<mutable_type*>(data)) == 1, this->get() != nullptr);
    }
};

} // namespace detail

/** A list of pointers to things of the caller's, which must outlive their places in it. */
template <class T>
class list : public detail::generic_list<T, detail::borrowing_family<T>>
{
public:
    /** Those of an empty list, and of one taken over (zu::adopt). */
    using detail::generic_list<T, detail::borrowing_family<T>>::generic_list;

    /** Appends. Throws std::bad_alloc without memory. Current: unchanged. */
    void push_back(T* data) { this->insert_last(data); }
    /** Puts in front. Throws std::bad_alloc without memory. Current: unchanged. */
    void push_front(T* data) { this->insert_first(data); }
};

/** A list that owns what its elements point to: they come from new, and the list deletes them. */
template <class T>
class owning_list : public detail::generic_list<T, detail::deleting_family<T>>
{
public:
    /** Those of an empty list, and of one taken over (zu::adopt), whose data it deletes in the end. */
    using detail::generic_list<T, detail::deleting_family<T>>::generic_list;

    /** Appends. Throws std::bad_alloc without memory; data is deleted then. Current: unchanged. */
    void push_back(std::unique_ptr<T> data)
    {
        this->insert_last(data.get());
        static_cast<void>(data.release());
    }
    /** Puts in front. Throws std::bad_alloc without memory; data is deleted then. Current: unchanged. */
    void push_front(std::unique_ptr<T> data)
    {
        this->insert_first(data.get());
        static_cast<void>(data.release());
    }
};

namespace detail {

struct string_list_family
{
    static void destroy(StrList* list) { zu_StrList_destroy(list); }
};
struct int_list_family
{
    static void destroy(IntList* list) { zu_IntList_destroy(list); }
};

} // namespace detail

/** A string list that somebody else owns. */
using strings_view = list_view<detail::string_element>;

/** A list of texts. Elements are read whole, beyond the 512 units of the flat readers. */
class string_list : public detail::list_owner<detail::string_element, detail::string_list_family>
{
public:
    /** An empty list. Throws std::bad_alloc without memory, as all operations here that insert. */
    string_list() : string_list(adopt, detail::made(zu_StrList_create(nullptr))) {}
    /** Takes over a list from the library; null holds nothing. */
    string_list(adopt_t, StrList* list) noexcept : list_owner(adopt, list) {}

    /** A list of the texts given. */
    template <class... Texts>
    static string_list of(const Texts&... texts)
    {
        string_list made;
        (made.push_back(texts), ...);
        return made;
    }
    /** The items of a text between any of the delimiters, see zu_StrList_fromDelimitedString.
     *  @return a list that holds nothing, and is empty, when there is no item. */
    static string_list split(const text& string, const text& delimiters)
    {
        return string_list(adopt, zu_StrList_fromDelimitedString(string.c_str(), delimiters.c_str()));
    }

    /** Appends a copy. Current: unchanged. */
    void push_back(const text& string) { check(zu_StrList_insEnd(get(), string.c_str()), string); }
    /** Puts a copy in front. Current: unchanged. */
    void push_front(const text& string) { check(zu_StrList_insStart(get(), string.c_str()), string); }
    /** Inserts a copy behind the elements that are not greater. Current: the element behind it. */
    void insert_sorted(const text& string) { check(zu_StrList_insSorted(get(), string.c_str()), string); }
    /** Appends copies of another list's elements. Current of the other: none. */
    void append(const string_list& other)
    {
        detail::inserted(zu_StrList_concatenate(get(), other.get()) == 1, get() != nullptr && other.get() != nullptr);
    }
    /** Empties the list. */
    void clear() { zu_StrList_delAll(get()); }

    /** Sorts by the units. Current: as zu_LnkList_qSort. */
    void sort() { zu_StrList_sort(get()); }
    /** Keeps the first occurrence of each text. Current: none. */
    void remove_duplicates(letter_case letters = letter_case::exact)
    {
        reset(zu_StrList_removeDuplicates(release(), static_cast<std::uint8_t>(letters)));
    }
    /** @return the index of the first element that equals a text. Current: the element, or none. */
    [[nodiscard]] std::optional<std::int32_t> index_of(const text& string, letter_case letters = letter_case::exact)
    {
        const std::int32_t index = zu_StrList_search(get(), string.c_str(), static_cast<std::int32_t>(letters));
        return index < 0 ? std::nullopt : std::optional(index);
    }
    /** A copy without a current element. Current: none. */
    [[nodiscard]] string_list copy() const { return string_list(adopt, detail::made(zu_StrList_copy(get()))); }
    /** The elements as one text with a delimiter between them. Current: none.
     *  @return nothing for an empty list. */
    [[nodiscard]] owned_text join(const text& delimiter) const
    {
        return owned_text(adopt, zu_StrList_toDelimitedString(get(), delimiter.c_str()));
    }

private:
    void check(std::int32_t result, const text& string) const
    {
        detail::inserted(result == 1, get() != nullptr && string.c_str() != nullptr);
    }
};

/** A list of 32-bit integers. */
class int_list : public detail::list_owner<detail::integer_element, detail::int_list_family>
{
public:
    /** An empty list. Throws std::bad_alloc without memory, as all operations here that insert. */
    int_list() : int_list(adopt, detail::made(zu_IntList_create(nullptr))) {}
    /** Takes over a list from the library; null holds nothing. */
    int_list(adopt_t, IntList* list) noexcept : list_owner(adopt, list) {}

    /** Appends a value. Current: unchanged. */
    void push_back(std::int32_t value)
    {
        const auto before = size();
        zu_IntList_insEnd(get(), value);
        detail::inserted(size() == before + 1, get() != nullptr);
    }
    /** A copy without a current element. */
    [[nodiscard]] int_list copy() const { return int_list(adopt, detail::made(zu_IntList_copy(get()))); }
};

} // namespace zu

/** @cond */
// Iterators outlive the view, and views are cheap to copy.
template <class Element>
inline constexpr bool std::ranges::enable_borrowed_range<zu::list_view<Element>> = true;
template <class Element>
inline constexpr bool std::ranges::enable_view<zu::list_view<Element>> = true;
/** @endcond */

#endif
