// The printf of the library: formats wide text, with the conversions and their meaning on the Windows runtime.
//
//     formatInto(buffer, ZU_W("%s = %s"), name, value);          // cut to the buffer
//     WideString line = formatted(ZU_W("%-16s %d\n"), name, 5);
//
// Conversions: %s (wide text), %c, %d %i, %u, %x %X, %f, with the flags "-+ 0#", width, precision ("*" too) and the
// length marks h, l, ll. The arguments carry their types, so a pattern that comes from outside can ask for anything: a
// conversion that finds no argument, or one of the wrong kind, is put in as it stands.
// The decimal separator is always a full stop.
#pragma once

#include "platform/wide.h"

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <span>

namespace zu {

class FormatArg
{
public:
    enum class Kind
    {
        text,
        character,
        signedInteger,
        unsignedInteger,
        real
    };

    FormatArg(WideView value) : kind(Kind::text), text(value) {}
    // A null text prints as the runtime prints it.
    FormatArg(const zu_wchar* value) : FormatArg(value == nullptr ? WideView(ZU_W("(null)")) : WideView(value)) {}
    FormatArg(const WideString& value) : FormatArg(WideView(value)) {}
    FormatArg(zu_wchar value) : kind(Kind::character), integer(static_cast<std::uint16_t>(value)) {}
    template <std::floating_point T>
    FormatArg(T value) : kind(Kind::real), real(static_cast<double>(value))
    {
    }
    template <std::signed_integral T>
    FormatArg(T value)
        : kind(Kind::signedInteger), integer(static_cast<std::uint64_t>(static_cast<std::int64_t>(value)))
    {
    }
    template <std::unsigned_integral T>
    requires(!std::same_as<T, zu_wchar>) FormatArg(T value) : kind(Kind::unsignedInteger), integer(value) {}

    Kind kind;
    WideView text;
    std::uint64_t integer = 0;
    double real = 0.0;
};

// Formats into out, which receives as much as fits and a terminator; out must not be empty.
// Returns the length of the whole result, which may exceed what was stored.
std::size_t formatArgs(std::span<zu_wchar> out, WideView pattern, std::initializer_list<FormatArg> args);

WideString formattedArgs(WideView pattern, std::initializer_list<FormatArg> args);

template <class... Args>
std::size_t formatInto(std::span<zu_wchar> out, WideView pattern, const Args&... args)
{
    return formatArgs(out, pattern, {FormatArg(args)...});
}

// For a caller's buffer of unstated size, which the caller guarantees to be large enough.
template <class... Args>
std::size_t formatUnbounded(zu_wchar* out, WideView pattern, const Args&... args)
{
    constexpr std::size_t unstated = std::size_t{1} << 30;
    return formatArgs(std::span<zu_wchar>(out, unstated), pattern, {FormatArg(args)...});
}

template <class... Args>
WideString formatted(WideView pattern, const Args&... args)
{
    return formattedArgs(pattern, {FormatArg(args)...});
}

} // namespace zu
