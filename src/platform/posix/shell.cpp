// Files are opened by the desktop's own chooser of programs. It has no shortcut files.
#include "platform/shell.h"

#include "platform/posix/path.h"
#include "platform/process.h"
#include "platform/utf8.h"

#include <optional>

namespace zu::platform {
namespace {

constexpr std::intptr_t opened = 33;
constexpr std::intptr_t fileNotFound = 2;

} // namespace

std::intptr_t openInEditor(WideView file)
{
    return openFile(file);
}

std::intptr_t openFile(WideView file)
{
    const auto native = posix::nativePath(file);
    if (!native)
        return fileNotFound;
    // Quoted, with what a command line would read otherwise escaped.
    WideString command = ZU_W("xdg-open \"");
    std::size_t backslashes = 0;
    for (zu_wchar unit : utf8::decode(*native)) {
        if (unit == ZU_W('"'))
            command.append(backslashes + 1, ZU_W('\\'));
        command += unit;
        backslashes = unit == ZU_W('\\') ? backslashes + 1 : 0;
    }
    command.append(backslashes, ZU_W('\\'));
    command += ZU_W('"');
    return startProcess(command, false).started ? opened : fileNotFound;
}

ShortcutMaker::ShortcutMaker() : link(nullptr) {}

ShortcutMaker::~ShortcutMaker() = default;

bool ShortcutMaker::save(const Shortcut&, WideView) const
{
    return false;
}

} // namespace zu::platform
