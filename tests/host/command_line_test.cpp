#include "platform/posix/command_line.h"
#include "support/wide.h"

#include <random>

namespace {

using namespace zutest;
namespace posix = zu::posix;

std::vector<Wide> argumentsOf(WideView line)
{
    std::vector<Wide> arguments;
    for (const auto& argument : posix::splitArguments(line))
        arguments.emplace_back(argument);
    return arguments;
}

TEST(CommandLine, arguments)
{
    const std::tuple<WideLiteral, std::vector<Wide>> rows[] = {
        {W(" \t "), {}},
        {W("a\" \"b"), {W("a b")}},
        {W("\"open end "), {W("open end ")}},
        {W("C:\\dir\\ \\\\server"), {W("C:\\dir\\"), W("\\\\server")}},
        {W("\\\"a\\\""), {W("\"a\"")}},
        {W("\"a\"\"b\" c"), {W("a\"b"), W("c")}},
    };
    for (const auto& [line, arguments] : rows)
        EXPECT_EQ(argumentsOf(line), arguments);
}

TEST(CommandLine, program)
{
    const struct
    {
        WideLiteral line;
        std::vector<Wide> programs; // the one that is meant, then what else may be
        WideLiteral rest;           // behind the last one
    } rows[] = {
        {W("prog a"), {W("prog"), W("prog a")}, W("")},
        {W("  C:\\My Progs\\x.exe  a"), {W("C:\\My"), W("C:\\My Progs\\x.exe"), W("C:\\My Progs\\x.exe  a")}, W("")},
        {W("\"C:\\My Progs\\\" a"), {W("C:\\My Progs\\")}, W(" a")},
        {W(""), {Wide()}, W("")},
    };
    for (const auto& row : rows) {
        posix::CommandLine command = posix::splitProgram(row.line);
        std::vector<Wide> programs{Wide(command.program)};
        while (posix::takeWord(row.line, command))
            programs.emplace_back(command.program);
        EXPECT_EQ(programs, row.programs);
        EXPECT_EQ(command.rest, row.rest);
    }
}

// The way in which a careful caller quotes.
Wide inQuotes(const Wide& argument)
{
    Wide out(1, W('"'));
    std::size_t backslashes = 0;
    for (zu_wchar unit : argument) {
        if (unit == W('"'))
            out.append(backslashes + 1, W('\\'));
        backslashes = unit == W('\\') ? backslashes + 1 : 0;
        out += unit;
    }
    return out + Wide(backslashes, W('\\')) + W('"');
}

TEST(CommandLine, whatIsQuotedComesBack)
{
    std::mt19937 random(7);
    const WideView units = W("ab \t\\\\\"\"\u0416");
    for (int round = 0; round < 5'000; ++round) {
        std::vector<Wide> arguments(random() % 4);
        Wide line;
        for (Wide& argument : arguments) {
            for (std::size_t length = random() % 9; length > 0; --length)
                argument += units[random() % units.size()];
            line += W(" ") + inQuotes(argument);
        }
        EXPECT_EQ(argumentsOf(line), arguments) << ::testing::PrintToString(line);
    }
}

} // namespace
