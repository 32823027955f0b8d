#include "frame/text.h"
#include "host/builtin/builtin.h"
#include "platform/files.h"
#include "platform/runtime.h"

#include <optional>

namespace zu::host {
namespace {

constexpr WideView separators = ZU_W("\\/");

std::optional<WideString> wantedDirectory()
{
    auto named = platform::environmentVariable(ZU_W("ZU_CFG_DIR"));
    if (named && !named->empty())
        return named;
    auto users = platform::userConfigurationDirectory();
    if (users)
        *users += ZU_W("\\zu");
    return users;
}

WideView parentOf(WideView path)
{
    const std::size_t separator = path.find_last_of(separators);
    return separator == WideView::npos ? WideView() : path.substr(0, separator);
}

void makeDirectories(WideView path)
{
    if (path.empty() || platform::isDirectory(path))
        return;
    makeDirectories(parentOf(path));
    platform::makeDirectory(path);
}

} // namespace

WideString configurationDirectory()
{
    const auto wanted = wantedDirectory();
    WideString full = wanted ? platform::fullPath(*wanted).value_or(WideString()) : WideString();
    // A root keeps its separator: without it, it would be the drive's current directory.
    while (full.size() > 3 && separators.find(full.back()) != WideView::npos)
        full.pop_back();
    return full;
}

void makeConfigurationDirectoryFor(WideView path)
{
    const WideString directory = configurationDirectory();
    // The library asks in lower case.
    if (!directory.empty() && text::equalIgnoringCase(parentOf(path), directory))
        makeDirectories(directory);
}

} // namespace zu::host
