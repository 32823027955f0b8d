// Text files are UTF-8, whatever the locale is.
#include "platform/files.h"
#include "platform/utf8.h"

#include <algorithm>
#include <cstring>

namespace zu::platform {
namespace {

constexpr std::size_t blockSize = 256;

// Reads up to the end of the line, or as much of it as fits. Returns the number of bytes, 0 at the end.
std::size_t readBlock(std::FILE* stream, char* block)
{
    // The runtime ends what it stored with a zero, which the text may hold as well. So the block is filled with line
    // feeds: the first one found is the text's own when a zero follows, and follows the zero otherwise.
    std::memset(block, '\n', blockSize);
    if (::fgets_unlocked(block, blockSize, stream) == nullptr)
        return 0;
    const auto* const feed = static_cast<const char*>(std::memchr(block, '\n', blockSize));
    if (feed == nullptr)
        return blockSize - 1;
    const auto index = static_cast<std::size_t>(feed - block);
    return index + 1 < blockSize && feed[1] == '\0' ? index + 1 : index - 1;
}

// The number of bytes at the end whose meaning depends on what follows.
std::size_t unfinishedTail(std::string_view bytes)
{
    if (bytes.ends_with('\r'))
        return 1;
    for (std::size_t tail = 1; tail <= 3 && tail <= bytes.size(); ++tail) {
        const auto byte = static_cast<unsigned char>(bytes[bytes.size() - tail]);
        if ((byte & 0xC0) != 0x80)
            return utf8::announcedLength(byte) > tail ? tail : 0;
    }
    return 0;
}

// Widens the ASCII characters at the front. Returns their number.
std::size_t widenInto(std::span<zu_wchar> out, std::string_view bytes)
{
    const std::size_t most = std::min(out.size(), bytes.size());
    std::size_t length = 0;
    for (std::uint64_t eight; length + 8 <= most; length += 8) {
        std::memcpy(&eight, bytes.data() + length, 8);
        if ((eight & 0x8080808080808080u) != 0)
            break;
    }
    while (length < most && static_cast<unsigned char>(bytes[length]) < 0x80)
        ++length;
    for (std::size_t index = 0; index < length; ++index)
        out[index] = static_cast<unsigned char>(bytes[index]);
    return length;
}

// Decodes as much as fits and returns the number of units.
std::size_t decodeInto(std::span<zu_wchar> out, std::string_view bytes)
{
    std::size_t length = 0;
    while (!bytes.empty() && length < out.size()) {
        const std::size_t plain = widenInto(out.subspan(length), bytes);
        length += plain;
        bytes.remove_prefix(plain);
        if (bytes.empty() || length == out.size())
            break;
        zu_wchar units[2];
        std::size_t count = 0;
        bytes.remove_prefix(utf8::decodeOne(bytes, units, count));
        for (std::size_t index = 0; index < count && length < out.size(); ++index)
            out[length++] = units[index];
    }
    return length;
}

} // namespace

std::size_t readCharacter(std::FILE* stream, zu_wchar (&units)[longestCharacter])
{
    const int first = getc_unlocked(stream);
    if (first == EOF)
        return 0;
    if (first == '\r') {
        const int next = getc_unlocked(stream);
        if (next != '\n' && next != EOF)
            std::ungetc(next, stream);
        units[0] = next == '\n' ? ZU_W('\n') : ZU_W('\r');
        return 1;
    }
    char bytes[4] = {static_cast<char>(first)};
    std::size_t length = 1;
    for (const std::size_t wanted = utf8::announcedLength(static_cast<unsigned char>(first)); length < wanted;
         ++length) {
        const int next = getc_unlocked(stream);
        if (next == EOF)
            break;
        if ((next & 0xC0) != 0x80) {
            std::ungetc(next, stream);
            break;
        }
        bytes[length] = static_cast<char>(next);
    }
    // One character, or each byte for itself.
    std::size_t count = 0;
    for (std::string_view rest(bytes, length); !rest.empty();) {
        zu_wchar decoded[2];
        std::size_t decodedCount = 0;
        rest.remove_prefix(utf8::decodeOne(rest, decoded, decodedCount));
        for (std::size_t index = 0; index < decodedCount; ++index)
            units[count++] = decoded[index];
    }
    return count;
}

bool readLine(std::FILE* stream, std::span<zu_wchar> out)
{
    // In front of each block stand the bytes of the one before that wait for the rest of their character.
    constexpr std::size_t mostHeld = 3;
    char bytes[mostHeld + blockSize];
    char* const block = bytes + mostHeld;
    std::size_t held = 0;
    std::size_t length = 0;
    bool ended = false;
    while (!ended) {
        const std::size_t count = readBlock(stream, block);
        const std::string_view text(block - held, held + count);
        ended = count > 0 && text.back() == '\n';
        const std::size_t lineEnd = !ended ? 0 : text.ends_with("\r\n") ? 2 : 1;
        held = ended || count == 0 ? 0 : unfinishedTail(text);
        const std::string_view whole = text.substr(0, text.size() - lineEnd - held);
        length += decodeInto(out.subspan(length, out.size() - 1 - length), whole);
        if (count == 0)
            break;
        std::memmove(block - held, whole.data() + whole.size(), held);
    }
    out[length] = 0;
    return length != 0 || ended;
}

void skipByteOrderMark(std::FILE* stream)
{
    zu_wchar units[longestCharacter];
    const long start = std::ftell(stream);
    if (readCharacter(stream, units) != 1 || units[0] != 0xFEFF)
        std::fseek(stream, start, SEEK_SET);
}

WideString decodeText(std::string_view bytes)
{
    return utf8::decode(bytes);
}

bool encodeText(ByteString& out, WideView text)
{
    utf8::append(out, text);
    return true;
}

std::string_view lineEnd()
{
    return "\n";
}

} // namespace zu::platform
