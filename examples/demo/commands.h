// The commands of the demo tool. Each takes the words after its name and returns the tool's exit code.
#pragma once

#include <string>
#include <vector>

namespace demo {

using Words = std::vector<std::string>;

int runTour();                    // no command: the main job on the sample installation
int runExpand(const Words&);      // expand TEXT...
int runIni(const Words&);         // ini get|set|list|groups|lines ...
int runEnvironment(const Words&); // env NAME
int runDirectories(const Words&); // dirs
int runName(const Words&);        // name PATH [WIDTH]
int runDb(const Words&);          // db struct|dump|seek|set|add FILE ...

int usage();

} // namespace demo
