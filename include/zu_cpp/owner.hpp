/** @file zu_cpp/owner.hpp
 *  @ingroup cpp
 *  What all owners of the C++ interface have in common. Part of zu.hpp.
 *
 *      zu::string_list names(zu::adopt, zu_StrList_fromDelimitedString(ZU_W("pipe; elbow"), ZU_W(";")));
 *      if (names)                                  // false when nothing is held
 *          zu_StrList_sort(names.get());           // lent: a flat call on what the owner keeps
 *      StrList* list = names.release();            // handed out: zu_StrList_destroy(list) is up to the caller now
 *      names.reset(list);                          // and taken over again
 *
 *  Owners move and do not copy. One that was moved from holds nothing; an owner that goes out of scope releases what it
 *  holds with the destroy operation of the family.
 */
#ifndef ZU_CPP_OWNER_HPP
#define ZU_CPP_OWNER_HPP

#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>
#include <utility>

namespace zu {

/** Says that an owner takes over what it is given: zu::string_list names(zu::adopt, zu_Ini_findAllGroups(file)). */
struct adopt_t
{
    explicit adopt_t() = default;
};
/** The mark itself. */
inline constexpr adopt_t adopt{};

namespace detail {

/** Holds one record of the library, or nothing, and releases it with the destroy operation of its family. Moves, but
 *  does not copy; what was moved from holds nothing. */
template <class Record, class Family>
class owner
{
public:
    using record_type = Record;

    /** @return the record for a flat call, still owned; null when nothing is held. */
    Record* get() const noexcept { return held.get(); }
    /** Hands the record out: the caller releases it from now on. */
    [[nodiscard]] Record* release() noexcept { return held.release(); }
    /** Releases what is held and takes over another record, or nothing. */
    void reset(Record* record = nullptr) noexcept { held.reset(record); }
    /** Whether a record is held. An owner that a call returns holds none where the flat call gives null. */
    explicit operator bool() const noexcept { return held != nullptr; }

protected:
    owner() noexcept = default;
    owner(adopt_t, Record* record) noexcept : held(record) {}
    owner(owner&&) noexcept = default;
    owner& operator=(owner&&) noexcept = default;
    ~owner() = default;

private:
    struct destroyer
    {
        void operator()(Record* record) const noexcept { Family::destroy(record); }
    };
    std::unique_ptr<Record, destroyer> held;
};

/** A record just made, which is null without memory. */
template <class Record>
Record* made(Record* record)
{
    if (record == nullptr)
        throw std::bad_alloc();
    return record;
}

/** Looks at the result of an operation that fails for null arguments and without memory. */
inline void inserted(bool done, bool has_arguments)
{
    if (done)
        return;
    if (!has_arguments)
        throw std::invalid_argument("zu: nothing to insert, or no list to insert it into");
    throw std::bad_alloc();
}

/** Looks at the result of an operation that fails for arguments that do not fit alone. */
inline void fits(std::int32_t result)
{
    if (result != 1)
        throw std::invalid_argument("zu: operands that do not fit");
}

} // namespace detail
} // namespace zu

#endif
