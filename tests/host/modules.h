// Modules that the tests load and let go again.
#pragma once

#include "support/wide.h"

#include <filesystem>
#include <string>

namespace zutest {

// The directory that library, tests and test modules stand in.
std::filesystem::path programDirectory();

class LoadedModule
{
public:
    // A module of the tests by its name; it fails the test when it cannot be loaded.
    explicit LoadedModule(const char* name);
    // The same by its file.
    explicit LoadedModule(std::filesystem::path moduleFile);
    ~LoadedModule();
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    // The file's path, as callers of the library write it.
    Wide path() const;

private:
    std::filesystem::path file;
    void* handle;
};

} // namespace zutest
