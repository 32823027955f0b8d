#include "platform/utf8.h"

#include <cstring>

namespace zu::utf8 {
namespace {

constexpr std::uint32_t escapeBase = 0xDC00;

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0) == 0x80;
}

// Decodes one valid sequence; 0 when there is none at the front.
std::size_t validSequence(std::string_view bytes, std::uint32_t& codePoint)
{
    const auto byteAt = [&](std::size_t index) {
        return static_cast<unsigned char>(bytes[index]);
    };
    const std::size_t length = announcedLength(byteAt(0));
    if (length == 1 || length > bytes.size())
        return 0;
    std::uint32_t value = byteAt(0) & (0x7Fu >> length);
    for (std::size_t index = 1; index < length; ++index) {
        if (!isContinuation(byteAt(index)))
            return 0;
        value = (value << 6) | (byteAt(index) & 0x3Fu);
    }
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < smallest[length] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return 0;
    codePoint = value;
    return length;
}

// The number of ASCII bytes at the front, found eight at a time.
std::size_t asciiPrefix(std::string_view bytes)
{
    std::size_t index = 0;
    for (; index + 8 <= bytes.size(); index += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, bytes.data() + index, 8);
        if ((eight & 0x8080808080808080u) != 0)
            break;
    }
    while (index < bytes.size() && static_cast<unsigned char>(bytes[index]) < 0x80)
        ++index;
    return index;
}

} // namespace

std::size_t announcedLength(unsigned char first)
{
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    if (first >= 0xE0 && first <= 0xEF)
        return 3;
    if (first >= 0xF0 && first <= 0xF4)
        return 4;
    return 1;
}

std::size_t decodeOne(std::string_view bytes, zu_wchar (&units)[2], std::size_t& unitCount)
{
    unitCount = 0;
    if (bytes.empty())
        return 0;
    unitCount = 1;
    const auto first = static_cast<unsigned char>(bytes[0]);
    if (first < 0x80) {
        units[0] = first;
        return 1;
    }
    std::uint32_t codePoint = 0;
    const std::size_t length = validSequence(bytes, codePoint);
    if (length == 0) {
        units[0] = static_cast<zu_wchar>(escapeBase + first);
        return 1;
    }
    if (codePoint < 0x10000) {
        units[0] = static_cast<zu_wchar>(codePoint);
    } else {
        units[0] = static_cast<zu_wchar>(0xD800 + ((codePoint - 0x10000) >> 10));
        units[1] = static_cast<zu_wchar>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
        unitCount = 2;
    }
    return length;
}

void append(WideString& out, std::string_view bytes)
{
    // Each byte gives at most one unit, so one growth is enough.
    std::size_t end = out.size();
    out.resize(end + bytes.size());
    while (!bytes.empty()) {
        const std::size_t ascii = asciiPrefix(bytes);
        for (std::size_t index = 0; index < ascii; ++index)
            out[end + index] = static_cast<zu_wchar>(static_cast<unsigned char>(bytes[index]));
        end += ascii;
        bytes.remove_prefix(ascii);
        if (bytes.empty())
            break;
        zu_wchar units[2];
        std::size_t count = 0;
        bytes.remove_prefix(decodeOne(bytes, units, count));
        for (std::size_t index = 0; index < count; ++index)
            out[end++] = units[index];
    }
    out.resize(end);
}

std::size_t encodeOne(WideView text, char (&bytes)[4], std::size_t& byteCount)
{
    const auto unitAt = [&](std::size_t index) {
        return std::uint32_t{static_cast<std::uint16_t>(text[index])};
    };
    byteCount = 0;
    const auto put = [&](std::uint32_t byte) {
        bytes[byteCount++] = static_cast<char>(static_cast<unsigned char>(byte));
    };
    const std::uint32_t unit = unitAt(0);
    if (unit < 0x80) {
        put(unit);
    } else if (unit < 0x800) {
        put(0xC0 | (unit >> 6));
        put(0x80 | (unit & 0x3F));
    } else if (unit >= 0xD800 && unit <= 0xDBFF && text.size() > 1 && unitAt(1) >= 0xDC00 && unitAt(1) <= 0xDFFF) {
        const std::uint32_t codePoint = 0x10000 + ((unit - 0xD800) << 10) + (unitAt(1) - 0xDC00);
        put(0xF0 | (codePoint >> 18));
        put(0x80 | ((codePoint >> 12) & 0x3F));
        put(0x80 | ((codePoint >> 6) & 0x3F));
        put(0x80 | (codePoint & 0x3F));
        return 2;
    } else if (unit >= escapeBase + 0x80 && unit <= escapeBase + 0xFF) {
        put(unit - escapeBase);
    } else {
        put(0xE0 | (unit >> 12));
        put(0x80 | ((unit >> 6) & 0x3F));
        put(0x80 | (unit & 0x3F));
    }
    return 1;
}

void append(ByteString& out, WideView text)
{
    out.reserve(out.size() + text.size());
    while (!text.empty()) {
        char bytes[4];
        std::size_t count = 0;
        text.remove_prefix(encodeOne(text, bytes, count));
        out.append(bytes, count);
    }
}

WideString decode(std::string_view bytes)
{
    WideString out;
    append(out, bytes);
    return out;
}

ByteString encode(WideView text)
{
    ByteString out;
    append(out, text);
    return out;
}

} // namespace zu::utf8
