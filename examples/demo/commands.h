// The commands of the demo tool. Each takes the words after its name and returns the tool's exit code.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace demo {

using Words = std::vector<std::string>;

int runTour(const Words&);        // tour
int runReport(const Words&);      // report [LINE...]
int runExpand(const Words&);      // expand TEXT...
int runIni(const Words&);         // ini get|set|list|groups|lines ...
int runEnvironment(const Words&); // env NAME
int runDirectories(const Words&); // dirs
int runName(const Words&);        // name PATH [WIDTH]
int runDb(const Words&);          // db struct|dump|seek|set|add FILE ...
int runFile(const Words&);        // file info|lines|find|copy|... PATH ...
int runDir(const Words&);         // dir list|create|delete|... PATH
int runMsg(const Words&);         // msg text|format|keywords ...
int runSys(const Words&);         // sys info|module|product|run|start ...

int usage();
int notFound(const char* what); // tells it, and answers 1

// A command by its name, with how many words it takes behind that.
struct Command
{
    const char* name;
    std::size_t fewest;
    std::size_t most;
    int (*run)(const Words&);
};
constexpr std::size_t any = 1000;
// Runs the one that the first word names with the words behind it.
int runCommand(std::span<const Command> commands, const Words& words);

} // namespace demo
