#include "zu_File.h"

#include "files/file_service.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/binary_file.h"
#include "platform/directories.h"
#include "platform/files.h"

#include <limits>

namespace {

using namespace zu;

int32_t setWritable(const zu_wchar* path, bool writable)
{
    return guarded(0, [&] { return path != nullptr && platform::setWritable(path, writable) ? 1 : 0; });
}

} // namespace

int32_t zu_File_exists(const zu_wchar* path)
{
    return guarded(0, [&] { return path != nullptr && file_service::fileExists(path) ? 1 : 0; });
}

int32_t zu_File_hasAccess(const zu_wchar* path, int32_t mode)
{
    if (path == nullptr || *path == 0 || (mode != 0 && mode != 2 && mode != 4 && mode != 6))
        return 0;
    return guarded(0, [&] { return platform::hasAccess(path, static_cast<platform::Access>(mode)) ? 1 : 0; });
}

int32_t zu_File_isWriteEnabled(const zu_wchar* path)
{
    return zu_File_hasAccess(path, 2);
}

int32_t zu_File_setReadOnlyAccess(const zu_wchar* path)
{
    return setWritable(path, false);
}

int32_t zu_File_setReadWriteAccess(const zu_wchar* path)
{
    return setWritable(path, true);
}

int32_t zu_File_create(const zu_wchar* path)
{
    // Only the service says what exists: without it a file that is there is emptied. Meant.
    if (zu_File_exists(path) == 1)
        return 1;
    return guarded(0, [&] {
        platform::BinaryFile file = platform::BinaryFile::toWrite(text::view(path), {});
        return file && file.close() ? 1 : 0;
    });
}

int32_t zu_File_deleteSingle(const zu_wchar* path)
{
    if (path == nullptr || *path == 0)
        return 0;
    zu_File_revalidate(path);
    return guarded(0, [&] { return platform::removeFile(path) ? 1 : 0; });
}

int32_t zu_File_move(const zu_wchar* source, const zu_wchar* destination)
{
    if (source == nullptr || destination == nullptr || *source == 0 || *destination == 0)
        return -1;
    const int32_t result = guarded(-1, [&] {
        // No system puts a directory in the place of a file in one step.
        if (platform::isDirectory(source) && !platform::isLink(source))
            platform::removeFile(destination);
        if (platform::replaceFile(source, destination))
            return 0;
        // Moving deletes the destination first, whatever becomes of the rest; only a source that is there keeps it.
        if (!platform::hasAccess(source, platform::Access::exists))
            platform::removeFile(destination);
        return -1;
    });
    zu_File_revalidate(source);
    zu_File_revalidate(destination);
    return result;
}

void zu_File_revalidate(const zu_wchar* path)
{
    if (path != nullptr)
        guarded([&] { file_service::revalidate(path); });
}

int32_t zu_File_length(FILE* stream)
{
    const int64_t length = stream == nullptr ? -1 : platform::streamLength(stream);
    return length > std::numeric_limits<int32_t>::max() ? -1 : static_cast<int32_t>(length);
}

int32_t zu_File_getTime(const zu_wchar* path, int32_t* time)
{
    if (time == nullptr)
        return 1;
    *time = 0;
    return guarded(1, [&] {
        const std::optional<int64_t> seconds = platform::modificationTime(text::view(path));
        if (!seconds || *seconds != static_cast<int32_t>(*seconds))
            return 1;
        *time = static_cast<int32_t>(*seconds);
        return 0;
    });
}

int32_t zu_File_setTime(const zu_wchar* path, int32_t time)
{
    return guarded(-1, [&] { return platform::setModificationTime(text::view(path), time) ? 0 : -1; });
}

int32_t zu_File_cmpTime(const zu_wchar* a, const zu_wchar* b)
{
    return guarded(-1, [&] {
        const std::optional<int64_t> first = platform::modificationTime(text::view(a));
        if (!first)
            return -1;
        const std::optional<int64_t> second = platform::modificationTime(text::view(b));
        return !second || *first > *second ? 1 : *first < *second ? -1 : 0;
    });
}
