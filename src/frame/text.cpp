#include "frame/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace zu::text {
namespace {

std::uint16_t asUnsigned(zu_wchar unit)
{
    return static_cast<std::uint16_t>(unit);
}

WideView withoutLeadingSpace(WideView text)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

bool takeSign(WideView& text)
{
    if (text.empty() || (text.front() != ZU_W('-') && text.front() != ZU_W('+')))
        return false;
    const bool negative = text.front() == ZU_W('-');
    text.remove_prefix(1);
    return negative;
}

// A real too far from 1 for the conversion: infinity or zero, by the place of its first significant digit.
double outOfRange(std::string_view number)
{
    std::size_t index = 0;
    std::int64_t place = 0;
    bool significant = false;
    bool fraction = false;
    for (; index < number.size() && number[index] != 'e' && number[index] != 'E'; ++index) {
        if (number[index] == '.') {
            fraction = true;
            continue;
        }
        significant = significant || number[index] != '0';
        if (significant && !fraction)
            ++place;
        else if (!significant && fraction)
            --place;
    }
    if (index < number.size()) {
        std::size_t from = index + 1;
        if (from < number.size() && number[from] == '+')
            ++from;
        std::int64_t exponent = 0;
        const auto result = std::from_chars(number.data() + from, number.data() + number.size(), exponent);
        // Beyond the digits that any text has.
        constexpr std::int64_t most = std::int64_t{1} << 62;
        if (result.ec == std::errc::result_out_of_range)
            exponent = number[from] == '-' ? -most : most;
        place += std::clamp(exponent, -most, most);
    }
    return place > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

// "0x" and a digit; without one the number is the 0 in front.
bool isHexadecimal(std::string_view number)
{
    constexpr std::string_view digits = "0123456789abcdefABCDEF";
    if (!number.starts_with("0x") && !number.starts_with("0X"))
        return false;
    const std::size_t digit = number.substr(2).starts_with('.') ? 3 : 2;
    return digit < number.size() && digits.find(number[digit]) != std::string_view::npos;
}

// Only its exponent takes a hexadecimal number so far.
double hexOutOfRange(std::string_view number)
{
    return number.find('-') == std::string_view::npos ? std::numeric_limits<double>::infinity() : 0.0;
}

} // namespace

WideView trimmed(WideView text)
{
    text = withoutLeadingSpace(text);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

int compare(WideView a, WideView b)
{
    const std::size_t shared = std::min(a.size(), b.size());
    for (std::size_t index = 0; index < shared; ++index) {
        if (a[index] != b[index])
            return asUnsigned(a[index]) < asUnsigned(b[index]) ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

int compareIgnoringCase(WideView a, WideView b)
{
    const std::size_t shared = std::min(a.size(), b.size());
    for (std::size_t index = 0; index < shared; ++index) {
        const zu_wchar first = upper(a[index]);
        const zu_wchar second = upper(b[index]);
        if (first != second)
            return asUnsigned(first) < asUnsigned(second) ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

std::size_t hash(WideView text, bool ignoreCase)
{
    // FNV-1a over the units.
    std::uint64_t value = 14695981039346656037u;
    for (zu_wchar unit : text) {
        value ^= asUnsigned(ignoreCase ? upper(unit) : unit);
        value *= 1099511628211u;
    }
    return static_cast<std::size_t>(value);
}

void makeUpper(zu_wchar* text)
{
    for (; *text != 0; ++text)
        *text = upper(*text);
}

void makeLower(zu_wchar* text)
{
    for (; *text != 0; ++text)
        *text = lower(*text);
}

std::size_t copyCut(zu_wchar* out, std::size_t capacity, WideView text)
{
    const std::size_t count = std::min(capacity, text.size());
    std::char_traits<zu_wchar>::move(out, text.data(), count);
    out[count] = 0;
    return count;
}

zu_wchar* duplicate(WideView text)
{
    auto* copy = static_cast<zu_wchar*>(zu_Malloc((text.size() + 1) * sizeof(zu_wchar)));
    if (copy != nullptr)
        copyCut(copy, text.size(), text);
    return copy;
}

std::int32_t toInt(WideView text)
{
    text = withoutLeadingSpace(text);
    const bool negative = takeSign(text);
    constexpr std::int64_t limit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    std::int64_t value = 0;
    for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1))
        value = std::min(limit, value * 10 + (text.front() - ZU_W('0')));
    value = negative ? -value : std::min(limit - 1, value);
    return static_cast<std::int32_t>(value);
}

double toDouble(WideView text)
{
    text = withoutLeadingSpace(text);
    const bool negative = takeSign(text);
    if (!text.empty() && (text.front() == ZU_W('-') || text.front() == ZU_W('+')))
        return 0.0;
    // More digits than any double needs to be told from its neighbours.
    char number[1100];
    std::size_t length = 0;
    for (; length < text.size() && length < sizeof number && text[length] < 0x7F; ++length)
        number[length] = static_cast<char>(text[length]);
    const std::string_view all(number, length);
    const bool isHex = isHexadecimal(all);
    const char* const first = isHex ? number + 2 : number;
    double value = 0.0;
    const auto result =
        std::from_chars(first, number + length, value, isHex ? std::chars_format::hex : std::chars_format::general);
    const std::string_view read(first, static_cast<std::size_t>(result.ptr - first));
    if (result.ec == std::errc::result_out_of_range)
        value = isHex ? hexOutOfRange(read) : outOfRange(read);
    else if (result.ec != std::errc())
        value = 0.0;
    return negative ? -value : value;
}

WideString widen(std::string_view ascii)
{
    return WideString(ascii.begin(), ascii.end());
}

} // namespace zu::text
