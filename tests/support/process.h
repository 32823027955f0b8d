// Other processes of a test: the test program itself, started again in the role of a helper.
//
//     const HelperRole writer("writer", [](const std::vector<Wide>& arguments) { ...; return 0; });
//
//     TEST(...) { HelperProcess process("writer", {W("argument")}); EXPECT_EQ(process.wait(), 0); }
#pragma once

#include "support/wide.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace zutest {

// A role, named for the process's command line; an object at namespace scope.
class HelperRole
{
public:
    using Main = int (*)(const std::vector<Wide>& arguments);
    HelperRole(const char* name, Main main);
};

// Runs the role that the command line asks for; none when it asks for tests.
std::optional<int> runHelper(const std::vector<Wide>& commandLine);

class HelperProcess
{
public:
    HelperProcess(const std::string& role, const std::vector<Wide>& arguments);
    // Kills it when it is still running.
    ~HelperProcess();
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;

    // Waits for the end. Returns the result of the role; -1 when the process was killed.
    int wait();
    // Ends it at once, wherever it stands.
    void kill();

private:
    std::intptr_t process;
};

} // namespace zutest
