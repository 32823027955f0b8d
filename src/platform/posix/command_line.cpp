#include "platform/posix/command_line.h"

#include <algorithm>

namespace zu::posix {
namespace {

constexpr WideView blanks = ZU_W(" \t");

bool isBlank(zu_wchar unit)
{
    return blanks.find(unit) != WideView::npos;
}

WideView withoutBlanks(WideView text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text;
}

// Reads one argument off the front of the rest, which must not be empty or begin with a blank.
WideString takeArgument(WideView& rest)
{
    WideString argument;
    bool isQuoted = false;
    while (!rest.empty() && (isQuoted || !isBlank(rest.front()))) {
        const std::size_t backslashes = std::min(rest.find_first_not_of(ZU_W('\\')), rest.size());
        rest.remove_prefix(backslashes);
        if (rest.empty() || rest.front() != ZU_W('"')) {
            argument.append(backslashes, ZU_W('\\'));
            // Plain text; a blank here is looked at by the loop.
            if (!rest.empty() && (isQuoted || !isBlank(rest.front()))) {
                argument += rest.front();
                rest.remove_prefix(1);
            }
            continue;
        }
        argument.append(backslashes / 2, ZU_W('\\'));
        rest.remove_prefix(1);
        if (backslashes % 2 != 0) {
            argument += ZU_W('"');
        } else if (isQuoted && rest.starts_with(ZU_W('"'))) {
            argument += ZU_W('"');
            rest.remove_prefix(1);
        } else {
            isQuoted = !isQuoted;
        }
    }
    return argument;
}

} // namespace

CommandLine splitProgram(WideView line)
{
    line = withoutBlanks(line);
    if (line.starts_with(ZU_W('"'))) {
        line.remove_prefix(1);
        const std::size_t quote = std::min(line.find(ZU_W('"')), line.size());
        return {line.substr(0, quote), line.substr(std::min(quote + 1, line.size()))};
    }
    const std::size_t end = std::min(line.find_first_of(blanks), line.size());
    return {line.substr(0, end), line.substr(end)};
}

bool takeWord(WideView line, CommandLine& command)
{
    line = withoutBlanks(line);
    const std::size_t word = command.rest.find_first_not_of(blanks);
    if (line.starts_with(ZU_W('"')) || word == WideView::npos)
        return false;
    const std::size_t end = std::min(command.rest.find_first_of(blanks, word), command.rest.size());
    command.rest.remove_prefix(end);
    command.program = line.substr(0, line.size() - command.rest.size());
    return true;
}

HookVector<WideString> splitArguments(WideView rest)
{
    HookVector<WideString> arguments;
    for (rest = withoutBlanks(rest); !rest.empty(); rest = withoutBlanks(rest))
        arguments.push_back(takeArgument(rest));
    return arguments;
}

} // namespace zu::posix
