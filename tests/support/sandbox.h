// A world of a test's own: a fresh directory, removed afterwards, and an environment that is put back.
#pragma once

#include "support/wide.h"

#include <filesystem>
#include <map>
#include <optional>

namespace zutest {

class Sandbox
{
public:
    // The directory's name holds a capital, a blank and a letter beyond ASCII.
    Sandbox();
    ~Sandbox();
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    // The path of a name inside, as callers of the library write it: with a drive letter and backslashes.
    Wide path(WideView name = {}) const;
    // The same place for the runtime.
    std::filesystem::path native(WideView name = {}) const;

    // Writes bytes as they are.
    void write(WideView name, std::string_view bytes) const;
    // Reads them back; a text that no file holds when there is no such file.
    std::string read(WideView name) const;
    bool exists(WideView name) const;

    // Sets a variable of the process environment (in UTF-8) until the sandbox ends; none removes it.
    void setEnvironment(const std::string& name, const std::optional<std::string>& value);

private:
    std::filesystem::path root;
    std::filesystem::path previousDirectory;
    std::map<std::string, std::optional<std::string>> savedEnvironment;
};

} // namespace zutest
