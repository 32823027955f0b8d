// Text files are in the runtime's text mode: in the "C" locale a byte is the character of the same number.
#include "platform/files.h"
#include "platform/utf8.h"

#include <climits>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <fcntl.h>
#include <io.h>

namespace zu::platform {
namespace {

bool isPlainLocale()
{
    const char* const locale = std::setlocale(LC_CTYPE, nullptr);
    return locale == nullptr || std::strcmp(locale, "C") == 0;
}

} // namespace

std::size_t readCharacter(std::FILE* stream, zu_wchar (&units)[longestCharacter])
{
    const std::wint_t unit = std::fgetwc(stream);
    if (unit == WEOF)
        return 0;
    units[0] = static_cast<zu_wchar>(unit);
    return 1;
}

bool readLine(std::FILE* stream, std::span<zu_wchar> out)
{
    std::size_t length = 0;
    std::wint_t unit = 0;
    while (length + 1 < out.size() && (unit = std::fgetwc(stream)) != WEOF && unit != L'\n')
        out[length++] = static_cast<zu_wchar>(unit);
    out[length] = 0;
    if (unit == WEOF)
        return length != 0;
    // Not byte by byte: a stream in a wide mode has two a character.
    while (unit != L'\n' && unit != WEOF)
        unit = std::fgetwc(stream);
    return length != 0 || unit != WEOF;
}

void skipByteOrderMark(std::FILE* stream)
{
    const long start = std::ftell(stream);
    if (std::fgetc(stream) == 0xEF && std::fgetc(stream) == 0xBB && std::fgetc(stream) == 0xBF) {
        std::fflush(stream);
        std::fseek(stream, start + 3, SEEK_SET);
        ::_setmode(::_fileno(stream), _O_U8TEXT);
        return;
    }
    std::fseek(stream, start, SEEK_SET);
}

WideString decodeText(std::string_view bytes)
{
    WideString out;
    out.reserve(bytes.size());
    if (isPlainLocale()) {
        for (char byte : bytes)
            out += static_cast<zu_wchar>(static_cast<unsigned char>(byte));
        return out;
    }
    while (!bytes.empty()) {
        wchar_t unit = 0;
        int length = std::mbtowc(&unit, bytes.data(), bytes.size());
        if (length <= 0) {
            length = 1;
            unit = static_cast<wchar_t>(static_cast<unsigned char>(bytes[0]));
        }
        out += unit;
        bytes.remove_prefix(static_cast<std::size_t>(length));
    }
    return out;
}

bool encodeText(ByteString& out, WideView text)
{
    const bool plain = isPlainLocale();
    for (zu_wchar unit : text) {
        if (plain) {
            if (unit > 0xFF)
                return false;
            out += static_cast<char>(static_cast<unsigned char>(unit));
            continue;
        }
        char bytes[MB_LEN_MAX];
        const int length = std::wctomb(bytes, unit);
        if (length <= 0)
            return false;
        out.append(bytes, static_cast<std::size_t>(length));
    }
    return true;
}

std::string_view lineEnd()
{
    return "\r\n";
}

} // namespace zu::platform
