#include "frame/format.h"

#include "frame/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace zu {
namespace {

// Counts everything and keeps what fits.
class BoundedSink
{
public:
    explicit BoundedSink(std::span<zu_wchar> buffer) : out(buffer) {}

    void put(zu_wchar unit)
    {
        if (length + 1 < out.size())
            out[length] = unit;
        ++length;
    }
    std::size_t finish()
    {
        out[std::min(length, out.size() - 1)] = 0;
        return length;
    }

private:
    std::span<zu_wchar> out;
    std::size_t length = 0;
};

class StringSink
{
public:
    void put(zu_wchar unit) { out.push_back(unit); }
    WideString out;
};

struct Conversion
{
    bool leftAligned = false;
    bool plus = false;
    bool blank = false;
    bool zeros = false;
    bool alternate = false;
    std::size_t width = 0;
    int precision = -1;
    bool halfWidth = false;
    zu_wchar type = 0;
};

// Widths and precisions beyond this serve nobody; a pattern from outside must not ask for gigabytes.
constexpr int largestWidth = 4096;
constexpr int largestPrecision = 99;

class Parser
{
public:
    Parser(WideView patternText, std::initializer_list<FormatArg> arguments)
        : pattern(patternText), next(arguments.begin()), end(arguments.end())
    {
    }

    bool atEnd() const { return position == pattern.size(); }
    zu_wchar take() { return pattern[position++]; }
    zu_wchar peek() const { return atEnd() ? zu_wchar(0) : pattern[position]; }
    WideView since(std::size_t start) const { return pattern.substr(start, position - start); }
    std::size_t here() const { return position; }
    const FormatArg* argument() { return next == end ? nullptr : next++; }

    // Reads what follows the percent sign. False when the pattern ends inside it.
    bool read(Conversion& conversion)
    {
        for (;; ++position) {
            switch (peek()) {
            case ZU_W('-'): conversion.leftAligned = true; continue;
            case ZU_W('+'): conversion.plus = true; continue;
            case ZU_W(' '): conversion.blank = true; continue;
            case ZU_W('0'): conversion.zeros = true; continue;
            case ZU_W('#'): conversion.alternate = true; continue;
            default: break;
            }
            break;
        }
        const int width = number();
        conversion.leftAligned = conversion.leftAligned || width < 0;
        conversion.width = static_cast<std::size_t>(std::min(std::abs(width), largestWidth));
        if (peek() == ZU_W('.')) {
            ++position;
            conversion.precision = number();
        }
        for (; peek() == ZU_W('h') || peek() == ZU_W('l'); ++position)
            conversion.halfWidth = peek() == ZU_W('h');
        if (atEnd())
            return false;
        conversion.type = take();
        return true;
    }

private:
    int number()
    {
        if (peek() == ZU_W('*')) {
            ++position;
            const FormatArg* arg = argument();
            const auto value = arg == nullptr ? 0 : static_cast<std::int64_t>(arg->integer);
            return static_cast<int>(std::clamp<std::int64_t>(value, -largestWidth, largestWidth));
        }
        int value = 0;
        for (; text::isDigit(peek()); ++position)
            value = std::min(largestWidth, value * 10 + (peek() - ZU_W('0')));
        return value;
    }

    WideView pattern;
    std::size_t position = 0;
    const FormatArg* next;
    const FormatArg* end;
};

template <class Sink>
void repeat(Sink& sink, zu_wchar unit, std::size_t count)
{
    for (; count > 0; --count)
        sink.put(unit);
}

template <class Sink>
void putText(Sink& sink, WideView body, const Conversion& conversion)
{
    if (conversion.precision >= 0)
        body = body.substr(0, static_cast<std::size_t>(conversion.precision));
    const std::size_t padding = conversion.width > body.size() ? conversion.width - body.size() : 0;
    if (!conversion.leftAligned)
        repeat(sink, ZU_W(' '), padding);
    for (zu_wchar unit : body)
        sink.put(unit);
    if (conversion.leftAligned)
        repeat(sink, ZU_W(' '), padding);
}

// Sign or base prefix, leading zeros and digits, padded to the width.
template <class Sink>
void putNumber(Sink& sink, std::string_view prefix, std::size_t leadingZeros, std::string_view digits,
               const Conversion& conversion, bool mayZeroFill)
{
    std::size_t used = prefix.size() + leadingZeros + digits.size();
    if (conversion.zeros && mayZeroFill && !conversion.leftAligned && used < conversion.width) {
        leadingZeros += conversion.width - used;
        used = conversion.width;
    }
    const std::size_t padding = conversion.width > used ? conversion.width - used : 0;
    if (!conversion.leftAligned)
        repeat(sink, ZU_W(' '), padding);
    for (char unit : prefix)
        sink.put(static_cast<zu_wchar>(unit));
    repeat(sink, ZU_W('0'), leadingZeros);
    for (char unit : digits)
        sink.put(static_cast<zu_wchar>(unit));
    if (conversion.leftAligned)
        repeat(sink, ZU_W(' '), padding);
}

std::string_view signFor(bool negative, const Conversion& conversion)
{
    return negative ? "-" : conversion.plus ? "+" : conversion.blank ? " " : "";
}

template <class Sink>
void putInteger(Sink& sink, std::uint64_t bits, const Conversion& conversion)
{
    const bool isSigned = conversion.type == ZU_W('d') || conversion.type == ZU_W('i');
    const bool isHex = conversion.type == ZU_W('x') || conversion.type == ZU_W('X');
    if (conversion.halfWidth)
        bits =
            isSigned ? static_cast<std::uint64_t>(static_cast<std::int16_t>(bits)) : static_cast<std::uint16_t>(bits);
    const bool negative = isSigned && static_cast<std::int64_t>(bits) < 0;
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, negative ? 0 - bits : bits, isHex ? 16 : 10);
    if (conversion.type == ZU_W('X'))
        std::transform(digits, result.ptr, digits, [](char c) { return c >= 'a' ? static_cast<char>(c - 0x20) : c; });
    auto count = static_cast<std::size_t>(result.ptr - digits);
    if (conversion.precision == 0 && bits == 0)
        count = 0;
    const auto wanted = static_cast<std::size_t>(std::max(conversion.precision, 0));
    std::string_view prefix = isSigned ? signFor(negative, conversion) : "";
    if (isHex && conversion.alternate && bits != 0)
        prefix = conversion.type == ZU_W('X') ? "0X" : "0x";
    putNumber(sink, prefix, wanted > count ? wanted - count : 0, std::string_view(digits, count), conversion,
              conversion.precision < 0);
}

template <class Sink>
void putReal(Sink& sink, double value, const Conversion& conversion)
{
    const std::string_view sign = signFor(std::signbit(value), conversion);
    if (!std::isfinite(value)) {
        putNumber(sink, sign, 0, std::isnan(value) ? "nan" : "inf", conversion, false);
        return;
    }
    // 309 digits before the point, the point, and the precision.
    char digits[309 + 1 + largestPrecision + 1];
    const int precision = conversion.precision < 0 ? 6 : std::min(conversion.precision, largestPrecision);
    const auto result =
        std::to_chars(digits, digits + sizeof digits, std::abs(value), std::chars_format::fixed, precision);
    char* end = result.ptr;
    if (precision == 0 && conversion.alternate)
        *end++ = '.';
    putNumber(sink, sign, 0, std::string_view(digits, static_cast<std::size_t>(end - digits)), conversion, true);
}

// False when the argument is missing or does not fit the conversion.
template <class Sink>
bool putConversion(Sink& sink, const Conversion& conversion, const FormatArg* arg)
{
    if (arg == nullptr)
        return false;
    const bool isInteger = arg->kind == FormatArg::Kind::signedInteger ||
                           arg->kind == FormatArg::Kind::unsignedInteger || arg->kind == FormatArg::Kind::character;
    switch (conversion.type) {
    case ZU_W('s'):
        if (arg->kind != FormatArg::Kind::text)
            return false;
        putText(sink, arg->text, conversion);
        return true;
    case ZU_W('c'): {
        if (!isInteger)
            return false;
        const auto unit = static_cast<zu_wchar>(arg->integer);
        putText(sink, WideView(&unit, 1), conversion);
        return true;
    }
    case ZU_W('d'):
    case ZU_W('i'):
    case ZU_W('u'):
    case ZU_W('x'):
    case ZU_W('X'):
        if (!isInteger)
            return false;
        // An unsigned conversion of a negative int shows its 32 bits, as the runtime does.
        putInteger(sink,
                   conversion.type != ZU_W('d') && conversion.type != ZU_W('i') &&
                           arg->kind == FormatArg::Kind::signedInteger
                       ? static_cast<std::uint32_t>(arg->integer)
                       : arg->integer,
                   conversion);
        return true;
    case ZU_W('f'):
        if (arg->kind != FormatArg::Kind::real)
            return false;
        putReal(sink, arg->real, conversion);
        return true;
    default: return false;
    }
}

template <class Sink>
void formatTo(Sink& sink, WideView pattern, std::initializer_list<FormatArg> args)
{
    Parser parser(pattern, args);
    while (!parser.atEnd()) {
        const std::size_t start = parser.here();
        const zu_wchar unit = parser.take();
        if (unit != ZU_W('%')) {
            sink.put(unit);
            continue;
        }
        if (parser.peek() == ZU_W('%')) {
            sink.put(parser.take());
            continue;
        }
        Conversion conversion;
        if (!parser.read(conversion) || !putConversion(sink, conversion, parser.argument())) {
            for (zu_wchar literal : parser.since(start))
                sink.put(literal);
        }
    }
}

} // namespace

std::size_t formatArgs(std::span<zu_wchar> out, WideView pattern, std::initializer_list<FormatArg> args)
{
    BoundedSink sink(out);
    formatTo(sink, pattern, args);
    return sink.finish();
}

WideString formattedArgs(WideView pattern, std::initializer_list<FormatArg> args)
{
    StringSink sink;
    formatTo(sink, pattern, args);
    return std::move(sink.out);
}

} // namespace zu
