#include "platform/process.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "zu_Fname.h"
#include "zu_Msg.h"
#include "zu_Sys.h"

#include <optional>

using namespace zu;

namespace {

// The document-management product, whose programs a child may need.
constexpr WideView documentProductKey = ZU_W("SOFTWARE\\Torvane\\Quorral\\08.11");
constexpr std::size_t longestValue = 32767; // bytes

// The caller's buffer for an error text; it takes what fits.
class ErrorText
{
public:
    ErrorText(zu_wchar* buffer, std::int32_t size)
        : out(size > 0 ? buffer : nullptr), room(out == nullptr ? 0 : static_cast<std::size_t>(size) - 1)
    {
        if (out != nullptr)
            out[0] = 0;
    }

    explicit operator bool() const { return out != nullptr; }
    void append(WideView part)
    {
        const std::size_t copied = text::copyCut(out, room, part);
        out += copied;
        room -= copied;
    }

private:
    zu_wchar* out; // the terminator
    std::size_t room;
};

void report(ErrorText& errors, const char* message, WideView program, std::uint32_t error)
{
    if (!errors)
        return;
    errors.append(zu_Msg(message, "TOOL", 5));
    errors.append(program);
    errors.append(platform::systemErrorText(error));
}

std::int32_t createProcess(WideView program, const zu_wchar* arguments, bool wait, ErrorText& errors)
{
    WideString commandLine(program);
    if (arguments != nullptr) {
        commandLine += ZU_W(' ');
        commandLine += arguments;
    }
    const platform::ProcessStart start = platform::startProcess(commandLine, wait);
    if (!start.started && start.error != 0)
        report(errors, "Unable to start the new process:", program, start.error);
    if (start.started && !start.released)
        report(errors, "Unable to close the process handle", program, start.error);
    return start.started;
}

// The directory of the document-management product's programs; none where the product is not installed.
std::optional<WideString> documentProductDirectory()
{
    const auto product = platform::RegistryKey::open(documentProductKey);
    auto directory = product ? product->text(ZU_W("Path"), longestValue) : std::nullopt;
    if (directory)
        *directory += ZU_W("bin\\");
    return directory;
}

std::int32_t launchViaShortcut(const zu_wchar* target, WideView arguments)
{
    // Before anything else: without shortcuts no directory is made for one.
    const platform::ShortcutMaker maker;
    if (!maker)
        return 0;
    zu_wchar directory[ZU_SYS_PATH_SIZE + 1];
    WideString file(zu_Sys_getTempDir(directory, 1));
    file += ZU_W("Skyloft.lnk");
    WideString workingDirectory(target[0] == ZU_W('"') ? target + 1 : target);
    zu_Fname_extractPath(workingDirectory.c_str(), workingDirectory.data());
    maker.save({target, ZU_W("Torvane Skyloft."), arguments, WideView(workingDirectory.c_str())}, file);
    platform::openFile(file);
    return 1;
}

} // namespace

int32_t zu_Sys_createProcess(const zu_wchar* program, const zu_wchar* arguments, int32_t wait, zu_wchar* errorText,
                             int32_t errorSize)
{
    ErrorText errors(errorText, errorSize);
    if (program == nullptr)
        return 0;
    return guarded(0, [&] { return createProcess(program, arguments, wait != 0, errors); });
}

int32_t zu_Sys_createProcess_addQRPath(const zu_wchar* program, const zu_wchar* arguments, int32_t wait,
                                       zu_wchar* errorText, int32_t errorSize)
{
    ErrorText(errorText, errorSize); // empty, too, when the search path cannot be extended
    return guarded(0, [&] {
        std::optional<platform::SearchPathFront> front;
        if (const auto directory = documentProductDirectory())
            front.emplace(*directory);
        return zu_Sys_createProcess(program, arguments, wait, errorText, errorSize);
    });
}

int32_t zu_Sys_launchProcessViaShortcut(const zu_wchar* target, const zu_wchar* arguments)
{
    if (target == nullptr)
        return 0;
    return guarded(0, [&] { return launchViaShortcut(target, text::view(arguments)); });
}
