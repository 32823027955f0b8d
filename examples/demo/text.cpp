#include "text.h"

#include "commands.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace demo {

Wide wide(std::string_view utf8)
{
    Wide text;
    for (std::size_t index = 0; index < utf8.size();) {
        const auto first = static_cast<unsigned char>(utf8[index]);
        const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        std::uint32_t codePoint = length == 1 ? first : first & (0x7Fu >> length);
        for (std::size_t next = index + 1; next < index + length && next < utf8.size(); ++next)
            codePoint = (codePoint << 6) | (static_cast<unsigned char>(utf8[next]) & 0x3Fu);
        if (codePoint >= 0x10000) {
            text += static_cast<zu_wchar>(0xD7C0 + (codePoint >> 10));
            text += static_cast<zu_wchar>(0xDC00 + (codePoint & 0x3FF));
        } else {
            text += static_cast<zu_wchar>(codePoint);
        }
        index += length;
    }
    return text;
}

std::string utf8(const zu_wchar* text)
{
    if (text == nullptr)
        return "(none)";
    std::string bytes;
    const auto put = [&bytes](std::uint32_t byte) {
        bytes += static_cast<char>(static_cast<unsigned char>(byte));
    };
    for (; *text != 0; ++text) {
        std::uint32_t codePoint = static_cast<std::uint16_t>(*text);
        if (codePoint >= 0xD800 && codePoint < 0xDC00 && text[1] >= 0xDC00 && text[1] < 0xE000)
            codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (static_cast<std::uint16_t>(*++text) - 0xDC00u);
        if (codePoint < 0x80) {
            put(codePoint);
        } else if (codePoint < 0x800) {
            put(0xC0 | (codePoint >> 6));
            put(0x80 | (codePoint & 0x3F));
        } else if (codePoint < 0x10000) {
            put(0xE0 | (codePoint >> 12));
            put(0x80 | ((codePoint >> 6) & 0x3F));
            put(0x80 | (codePoint & 0x3F));
        } else {
            put(0xF0 | (codePoint >> 18));
            put(0x80 | ((codePoint >> 12) & 0x3F));
            put(0x80 | ((codePoint >> 6) & 0x3F));
            put(0x80 | (codePoint & 0x3F));
        }
    }
    return bytes;
}

int columnsOf(const std::string& text)
{
    return static_cast<int>(std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

void printColumn(const std::string& text, int width)
{
    const int blanks = std::max(0, std::abs(width) - columnsOf(text));
    std::printf("%*s%s%*s", width > 0 ? blanks : 0, "", text.c_str(), width < 0 ? blanks : 0, "");
}

void print(const char* label, const zu_wchar* value)
{
    std::printf("%-22s %s\n", label, utf8(value).c_str());
}

int printStrings(const Strings& strings, const char* whenNone)
{
    if (strings == nullptr)
        return notFound(whenNone);
    for (zu_StrList_start(strings.get()); zu_StrList_eol(strings.get()) == 0; zu_StrList_next(strings.get()))
        std::printf("%s\n", utf8(zu_StrList_getCurr(strings.get())).c_str());
    return 0;
}

} // namespace demo
