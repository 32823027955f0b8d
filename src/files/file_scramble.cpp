#include "zu_File.h"

#include "files/copy_buffer.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/binary_file.h"

#include <algorithm>

#ifdef ZU_SCRAMBLE_TABLE
#    include ZU_SCRAMBLE_TABLE
#else
#    include "files/scramble_table.h"
#endif

namespace {

using namespace zu;
using platform::BinaryFile;

constexpr std::size_t tableSize = 512;
static_assert(std::size(scrambleTable) == tableSize && sizeof scrambleTable[0] == 1);

// bytes starts at a multiple of the table's size in the file.
void scramble(std::span<unsigned char> bytes)
{
    for (; !bytes.empty(); bytes = bytes.subspan(std::min(tableSize, bytes.size()))) {
        const std::size_t count = std::min(tableSize, bytes.size());
        for (std::size_t index = 0; index < count; ++index)
            bytes[index] ^= scrambleTable[index];
    }
}

// Writes the scrambled form of the first length bytes.
bool scrambleTo(BinaryFile& target, BinaryFile& source, std::int64_t length)
{
    const std::span<unsigned char> block = copyBuffer();
    static_assert(copyBufferSize % tableSize == 0);
    while (length > 0) {
        const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(length, std::ssize(block)));
        const std::span<unsigned char> bytes = block.first(wanted);
        if (source.read(bytes) != std::ssize(bytes))
            return false;
        scramble(bytes);
        if (!target.write(bytes))
            return false;
        length -= std::ssize(bytes);
    }
    return true;
}

} // namespace

int32_t zu_File_encrypt(const zu_wchar* destination, const zu_wchar* source)
{
    return guarded(0, [&] {
        // The destination is created even where the source is missing; it is not emptied where it is the source.
        BinaryFile from = BinaryFile::toRead(text::view(source));
        BinaryFile to = BinaryFile::toWrite(text::view(destination), from);
        if (!from || !to)
            return 0;
        const std::int64_t length = from.size();
        return length >= 0 && scrambleTo(to, from, length) && to.close() ? 1 : 0;
    });
}

int32_t zu_File_decrypt(const zu_wchar* destination, const zu_wchar* source)
{
    return zu_File_encrypt(destination, source);
}
