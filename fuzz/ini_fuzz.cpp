// INI documents of any content: what is read can be found, and a change changes nothing else.
#include "config/ini_document.h"

#include <cstdlib>

namespace {

using namespace zu;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

// The number of lines that differ; lines are compared with their line ends.
std::size_t changedLines(std::string_view before, std::string_view after)
{
    std::size_t changed = 0;
    while (!before.empty() || !after.empty()) {
        const std::string_view old = before.substr(0, std::min(before.find('\n'), before.size() - 1) + 1);
        const std::string_view now = after.substr(0, std::min(after.find('\n'), after.size() - 1) + 1);
        changed += old != now;
        before.remove_prefix(old.size());
        after.remove_prefix(now.size());
    }
    return changed;
}

void checkGroup(const IniDocument& document, std::size_t group)
{
    const WideView name = document.groupName(group);
    require(document.findGroup(name) == group);
    const std::size_t count = document.entryCount(group);
    for (std::size_t index = 0; index < count; index += 1 + count / 8) {
        const WideView key = document.entry(group, index).key;
        require(document.value(name, key).has_value());
        const auto changed = document.withValue(name, key, ZU_W("set"));
        if (!changed)
            continue;
        const IniDocument after(*changed);
        require(after.value(name, key) == WideView(ZU_W("set")) && after.entryCount(group) == count);
        require(changedLines(document.bytes(), *changed) <= 1);
        const auto removed = document.withoutValue(name, key);
        require(!removed || !IniDocument(*removed).value(name, key));
    }
    const auto emptied = document.withoutEntries(name);
    require(!emptied || IniDocument(*emptied).entryCount(group) == 0);
    const auto removed = document.withoutGroup(name);
    require(!removed || (IniDocument(*removed).findGroup(name) == IniDocument::none &&
                         IniDocument(*removed).groupCount() == document.groupCount() - 1));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const IniDocument document(ByteString(reinterpret_cast<const char*>(data), size));
    const std::size_t groups = document.groupCount();
    for (std::size_t group = 0; group < groups; group += 1 + groups / 8)
        checkGroup(document, group);

    // A group that is not there yet goes to the end.
    const WideView fresh = ZU_W("a name that no corpus has");
    const auto added = document.withValue(fresh, ZU_W("key"), ZU_W("value"));
    require(!added || (added->starts_with(document.bytes()) &&
                       IniDocument(*added).value(fresh, ZU_W("KEY")) == WideView(ZU_W("value"))));
    const auto lines = document.withGroupLines(fresh, {});
    require(!lines || (lines->starts_with(document.bytes()) && IniDocument(*lines).groupCount() == groups + 1));
    return 0;
}
