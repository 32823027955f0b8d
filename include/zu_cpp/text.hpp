/** @file zu_cpp/text.hpp
 *  @ingroup cpp
 *  Text between C++ and the library: UTF-8 and wide strings in, UTF-8 and wide strings out. Part of zu.hpp.
 *
 *      zu::session::set("FLUID", "K\u00FChlwasser");      // UTF-8 here, u"..." and L"..." as well
 *      if (auto fluid = zu::session::get("FLUID"))        // a zu::wide_string
 *          std::cout << zu::to_utf8(*fluid) << '\n';
 */
#ifndef ZU_CPP_TEXT_HPP
#define ZU_CPP_TEXT_HPP

#include "../zu_Memory.h"
#include "owner.hpp"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zu {

/** The library's text as a standard string: std::wstring on Windows, std::u16string elsewhere. */
using wide_string = std::basic_string<zu_wchar>;
/** A view of the library's text. */
using wide_view = std::basic_string_view<zu_wchar>;

namespace detail {

template <class Unit>
concept text_unit = std::same_as<Unit, char> || std::same_as<Unit, char8_t> || std::same_as<Unit, char16_t> ||
    std::same_as<Unit, char32_t> || std::same_as<Unit, wchar_t>;

inline void append_code_point(wide_string& out, std::uint32_t code_point)
{
    if (code_point > 0x10FFFF)
        code_point = 0xFFFD;
    if (code_point < 0x10000) {
        out += static_cast<zu_wchar>(code_point);
    } else {
        out += static_cast<zu_wchar>(0xD800 + ((code_point - 0x10000) >> 10));
        out += static_cast<zu_wchar>(0xDC00 + ((code_point - 0x10000) & 0x3FF));
    }
}

/** Whether a value is the first, or the second, half of a surrogate pair. */
constexpr bool is_high(std::uint32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool is_low(std::uint32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/** The valid sequence of two to four bytes that stands at a position. @return its length; 0 when there is none. */
template <class Unit>
std::size_t utf8_sequence(std::basic_string_view<Unit> bytes, std::size_t at, std::uint32_t& code_point)
{
    const auto byte_at = [&](std::size_t index) {
        return std::uint32_t{static_cast<unsigned char>(bytes[index])};
    };
    const std::uint32_t first = byte_at(at);
    const std::size_t length = first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
    if (length == 0 || length > bytes.size() - at)
        return 0;
    std::uint32_t value = first & (0x7Fu >> length);
    for (std::size_t index = at + 1; index < at + length; ++index) {
        if ((byte_at(index) & 0xC0) != 0x80)
            return 0;
        value = (value << 6) | (byte_at(index) & 0x3F);
    }
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < smallest[length] || value > 0x10FFFF || is_high(value) || is_low(value))
        return 0;
    code_point = value;
    return length;
}

/** The character at a position of wide text, which moves behind it: a pair of surrogates is one, a lone one itself. */
template <class Unit>
std::uint32_t next_code_point(std::basic_string_view<Unit> text, std::size_t& at)
{
    if constexpr (sizeof(Unit) == 4) {
        return static_cast<std::uint32_t>(text[at++]);
    } else {
        const std::uint32_t unit = static_cast<std::uint16_t>(text[at++]);
        if (is_high(unit) && at < text.size()) {
            const std::uint32_t second = static_cast<std::uint16_t>(text[at]);
            if (is_low(second)) {
                ++at;
                return 0x10000 + ((unit - 0xD800) << 10) + (second - 0xDC00);
            }
        }
        return unit;
    }
}

/** Bytes and the characters they stand for, both ways without a loss: see zu::to_utf8. */
template <class Byte>
std::basic_string<Byte> encode_utf8(wide_view text)
{
    std::basic_string<Byte> out;
    out.reserve(text.size());
    const auto put = [&out](std::uint32_t value) {
        out += static_cast<Byte>(static_cast<unsigned char>(value));
    };
    for (std::size_t at = 0; at < text.size();) {
        const std::uint32_t code_point = next_code_point(text, at);
        if (code_point < 0x80) {
            put(code_point);
        } else if (code_point < 0x800) {
            put(0xC0 | (code_point >> 6));
            put(0x80 | (code_point & 0x3F));
        } else if (code_point >= 0xDC80 && code_point <= 0xDCFF) {
            put(code_point - 0xDC00);
        } else if (code_point < 0x10000) {
            put(0xE0 | (code_point >> 12));
            put(0x80 | ((code_point >> 6) & 0x3F));
            put(0x80 | (code_point & 0x3F));
        } else {
            put(0xF0 | (code_point >> 18));
            put(0x80 | ((code_point >> 12) & 0x3F));
            put(0x80 | ((code_point >> 6) & 0x3F));
            put(0x80 | (code_point & 0x3F));
        }
    }
    return out;
}

} // namespace detail

/** Wide text of any text.
 *
 *  Text of char and char8_t is UTF-8. A byte that is no part of valid UTF-8 becomes one of the lone surrogates U+DC80
 *  to U+DCFF, the rule of the library's own files, and to_utf8 makes the byte of it again. Text of char16_t is taken
 *  as it is, and so is one of wchar_t where that has 16 bits; where it has 32, and in text of char32_t, characters
 *  beyond U+FFFF become pairs, and values that are no characters U+FFFD. */
template <detail::text_unit Unit>
wide_string to_wide(std::basic_string_view<Unit> text)
{
    if constexpr (std::same_as<Unit, zu_wchar>) {
        return wide_string(text);
    } else if constexpr (sizeof(Unit) == 1) {
        wide_string out;
        out.reserve(text.size());
        for (std::size_t at = 0; at < text.size();) {
            const auto first = static_cast<unsigned char>(text[at]);
            std::uint32_t code_point = first;
            const std::size_t length = first < 0x80 ? 1 : detail::utf8_sequence(text, at, code_point);
            detail::append_code_point(out, length == 0 ? 0xDC00u + first : code_point);
            at += length == 0 ? 1 : length;
        }
        return out;
    } else {
        wide_string out;
        out.reserve(text.size());
        for (const Unit unit : text)
            detail::append_code_point(out, static_cast<std::uint32_t>(unit));
        return out;
    }
}
/** See to_wide. A null pointer gives the empty text. */
template <detail::text_unit Unit>
wide_string to_wide(const Unit* text)
{
    return text == nullptr ? wide_string() : to_wide(std::basic_string_view<Unit>(text));
}
/** See to_wide. */
template <detail::text_unit Unit>
wide_string to_wide(const std::basic_string<Unit>& text)
{
    return to_wide(std::basic_string_view<Unit>(text));
}

/** The UTF-8 of wide text. Lone surrogates survive: U+DC80 to U+DCFF become the byte that they stand for, any other its
 *  three bytes. */
inline std::string to_utf8(wide_view text)
{
    return detail::encode_utf8<char>(text);
}

/** to_utf8 as a string of char8_t. */
inline std::u8string to_u8string(wide_view text)
{
    return detail::encode_utf8<char8_t>(text);
}

/** Wide text as a string of the system's wchar_t, of whatever size that is. */
inline std::wstring to_wstring(wide_view text)
{
    if constexpr (std::same_as<zu_wchar, wchar_t>) {
        return std::wstring(text.begin(), text.end());
    } else {
        std::wstring out;
        for (std::size_t at = 0; at < text.size();)
            out += static_cast<wchar_t>(detail::next_code_point(text, at));
        return out;
    }
}

namespace detail {

struct text_family
{
    static void destroy(zu_wchar* text) { zu_Free(text); }
};

/** A text in one of the library's buffers, or a null one, as a value of its own. */
inline std::optional<wide_string> optional_text(const zu_wchar* text)
{
    return text == nullptr ? std::nullopt : std::optional<wide_string>(text);
}
inline wide_string text_or_empty(const zu_wchar* text)
{
    return text == nullptr ? wide_string() : wide_string(text);
}

} // namespace detail

/** A text that the library gave out as "new"; zu_Free releases it. */
class owned_text : public detail::owner<zu_wchar, detail::text_family>
{
public:
    /** Holds nothing. */
    owned_text() noexcept = default;
    /** Takes over a text from the library; null holds nothing. */
    owned_text(adopt_t, zu_wchar* text) noexcept : owner(adopt, text) {}

    /** @return a view of it; empty when nothing is held. */
    wide_view view() const noexcept { return get() == nullptr ? wide_view() : wide_view(get()); }
    /** The same as view(). */
    operator wide_view() const noexcept { return view(); }
    /** A copy. */
    wide_string wide() const { return wide_string(view()); }
    /** A copy in UTF-8. */
    std::string utf8() const { return to_utf8(view()); }
};

/** An argument: any text, as the terminated wide text that a call takes.
 *
 *  Made implicitly of literals, views and strings of char and char8_t (UTF-8), char16_t, char32_t and wchar_t; the
 *  rule is that of to_wide. Text that is terminated and of the library's own units is passed on as it stands, all other
 *  is converted or copied. So a text lives no longer than what it was made of: it is for parameters and not to be kept.
 *  nullptr is the null text. The library ends a text at its first zero unit, also one that lies inside a view. */
class text
{
public:
    /** The null text. */
    text(std::nullptr_t) noexcept : units(nullptr) {}
    /** A terminated text or a literal; null gives the null text. */
    template <detail::text_unit Unit>
    text(const Unit* terminated)
    {
        if constexpr (std::same_as<Unit, zu_wchar>)
            units = terminated;
        else
            units = terminated == nullptr ? nullptr : keep(to_wide(terminated));
    }
    /** A string. */
    template <detail::text_unit Unit>
    text(const std::basic_string<Unit>& string)
    {
        if constexpr (std::same_as<Unit, zu_wchar>)
            units = string.c_str();
        else
            units = keep(to_wide(string));
    }
    /** A view, which need not be terminated: it is always copied. */
    template <detail::text_unit Unit>
    text(std::basic_string_view<Unit> view) : units(keep(to_wide(view)))
    {
    }
    /** A text of the library, passed on as it stands; the null text when nothing is held. */
    text(const owned_text& string) noexcept : units(string.get()) {}
    text(const text&) = delete;
    text& operator=(const text&) = delete;

    /** @return the terminated text; null for the null text. */
    const zu_wchar* c_str() const noexcept { return units; }
    /** @return a view of it; empty for the null text. */
    wide_view view() const noexcept { return units == nullptr ? wide_view() : wide_view(units); }

private:
    const zu_wchar* keep(wide_string&& made)
    {
        own = std::move(made);
        return own.c_str();
    }
    wide_string own;
    const zu_wchar* units;
};

} // namespace zu

#endif
