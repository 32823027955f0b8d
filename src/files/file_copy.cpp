#include "zu_File.h"

#include "files/copy_buffer.h"
#include "files/stream.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/binary_file.h"

namespace {

using namespace zu;

// Two names that differ in nothing but case are one file to callers, whatever the file system makes of them.
bool isSameName(WideView a, WideView b)
{
    const std::optional<WideString> first = platform::fullPath(a);
    const std::optional<WideString> second = platform::fullPath(b);
    return text::equalIgnoringCase(first ? *first : a, second ? *second : b);
}

} // namespace

int32_t zu_File_copy(const zu_wchar* source, const zu_wchar* destination)
{
    if (source == nullptr || destination == nullptr || *source == 0 || *destination == 0)
        return 1;
    const bool copied = guarded(false, [&] {
        return !isSameName(source, destination) && platform::copyFile(source, destination, copyBuffer());
    });
    if (!copied)
        return 1;
    zu_File_revalidate(destination);
    return 0;
}

int32_t zu_File_copyRest(FILE* destination, FILE* source)
{
    if (destination == nullptr || source == nullptr)
        return 1;
    return platform::copyRest(destination, source, copyBuffer()) ? 0 : 1;
}

int32_t zu_File_append(const zu_wchar* destination, const zu_wchar* source)
{
    return guarded(1, [&] {
        const Stream from = openStream(text::view(source), "rt");
        Stream to = from == nullptr ? Stream() : openStream(text::view(destination), "at");
        if (to == nullptr)
            return 1;
        const int32_t failed = zu_File_copyRest(to.get(), from.get());
        return closeWritten(to) ? failed : 1;
    });
}
