// Command lines as Windows has them: one text, in which blanks separate the arguments.
#pragma once

#include "platform/wide.h"

namespace zu::posix {

// The program at the front: up to a blank, or between double quotes, in which nothing is escaped. Both parts are views
// of the line; the rest begins with what follows the program.
struct CommandLine
{
    WideView program;
    WideView rest;
};
CommandLine splitProgram(WideView line);

// A program whose name holds blanks may stand without quotes: the next longer name that a command line may mean, with
// one more word than the one before. False when there is none.
bool takeWord(WideView line, CommandLine& command);

// The arguments of the rest. Double quotes keep blanks together, and two of them between quotes stand for one;
// backslashes are plain, except that before a quote two stand for one, and one that is left makes the quote plain.
HookVector<WideString> splitArguments(WideView rest);

} // namespace zu::posix
