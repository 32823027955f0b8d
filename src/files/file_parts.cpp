#include "zu_File.h"

#include "frame/format.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/binary_file.h"
#include "platform/files.h"
#include "zu_Fname.h"

#include <limits>

namespace {

using namespace zu;
using platform::BinaryFile;

constexpr std::size_t blockSize = 131072;
constexpr std::int64_t everything = std::numeric_limits<std::int64_t>::max();

using Block = HookPtr<unsigned char[]>;

Block allocateBlock()
{
    return Block(static_cast<unsigned char*>(zu_Malloc(blockSize)));
}

WideString partName(WideView path, int32_t number)
{
    const WideString extension = formatted(ZU_W("%d"), number);
    WideString name(path);
    name.append(extension.size() + 1, zu_wchar(0));
    zu_Fname_addExt(name.data(), extension.c_str());
    return WideString(name.c_str());
}

int32_t slice(WideView path, std::int64_t partSize, std::span<unsigned char> block)
{
    BinaryFile whole = BinaryFile::toRead(path);
    if (!whole)
        return 0;
    for (int32_t number = 1;; ++number) {
        BinaryFile part = BinaryFile::toWrite(partName(path, number), whole);
        if (!part)
            return 0;
        const std::int64_t copied = part.copyFrom(whole, partSize, block);
        if (copied < 0 || !part.close())
            return 0;
        // A full part is followed by another, even an empty one: only that tells the end. Meant.
        if (copied < partSize)
            return number;
    }
}

// Whether the file to be joined is itself one of the parts that would go into it ("data.2" of "data.1" to "data.3").
bool isPartOfItself(WideView path)
{
    const std::int32_t own = text::toInt(path.substr(path.find_last_of(ZU_W(".")) + 1));
    if (own < 1 || partName(path, own) != path)
        return false;
    int32_t number = 1;
    while (number <= own && platform::isFile(partName(path, number)))
        ++number;
    return number > own;
}

int32_t mend(WideView path, std::span<unsigned char> block)
{
    if (isPartOfItself(path))
        return 0;
    BinaryFile whole = BinaryFile::toWrite(path, {});
    if (!whole)
        return 0;
    int32_t number = 1;
    for (;; ++number) {
        BinaryFile part = BinaryFile::toRead(partName(path, number));
        if (!part || part.isSameAs(whole))
            break;
        if (whole.copyFrom(part, everything, block) < 0)
            return 0;
    }
    if (!whole.close())
        return 0;
    // Only now: a failure on the way leaves every part.
    for (int32_t joined = 1; joined < number; ++joined)
        platform::removeFile(partName(path, joined));
    return number;
}

} // namespace

int32_t zu_File_slice(const zu_wchar* path, int32_t partSize)
{
    if (path == nullptr || partSize <= 0)
        return 0;
    return guarded(0, [&] {
        const Block block = allocateBlock();
        return block == nullptr ? 0 : slice(path, partSize, {block.get(), blockSize});
    });
}

int32_t zu_File_mend(const zu_wchar* path)
{
    if (path == nullptr)
        return 0;
    return guarded(0, [&] {
        const Block block = allocateBlock();
        return block == nullptr ? 0 : mend(path, {block.get(), blockSize});
    });
}
