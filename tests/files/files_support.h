// What the tests of files and directories share.
#pragma once

#include "support/sandbox.h"

#include <cstdio>
#include <memory>

namespace zutest {

// Names of one system are not names of the other, and neither are some of its failures.
inline const bool onWindows = std::filesystem::path::preferred_separator == '\\';

// A stream of the runtime on a file of the sandbox, opened as a host would open it.
class StreamOf
{
public:
    StreamOf(const Sandbox& sandbox, const char* name, const char* mode)
    {
        // The runtime's narrow names cannot hold all of the sandbox's path.
        std::filesystem::current_path(sandbox.native());
        file = std::fopen(name, mode);
        EXPECT_NE(file, nullptr) << name;
    }
    ~StreamOf() { std::fclose(file); }
    StreamOf(const StreamOf&) = delete;
    StreamOf& operator=(const StreamOf&) = delete;
    operator std::FILE*() const { return file; }

private:
    std::FILE* file = nullptr;
};

// The names in a directory of the sandbox, sorted, directories with a slash.
inline std::vector<std::string> entriesOf(const Sandbox& sandbox, WideView directory = {})
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(sandbox.native(directory)))
        names.push_back(entry.path().filename().string() +
                        (entry.symlink_status().type() == std::filesystem::file_type::directory ? "/" : ""));
    std::sort(names.begin(), names.end());
    return names;
}

// Makes a link; false where the system has none for us.
inline bool makeLink(const std::filesystem::path& target, const std::filesystem::path& link)
{
    std::error_code failed;
    if (std::filesystem::is_directory(target, failed))
        std::filesystem::create_directory_symlink(target, link, failed);
    else
        std::filesystem::create_symlink(target, link, failed);
    return !failed;
}

// Bytes without a pattern, the same for the same seed.
inline std::string noise(std::size_t size, unsigned seed = 1)
{
    std::string bytes(size, '\0');
    for (char& byte : bytes) {
        seed = seed * 1664525u + 1013904223u;
        byte = static_cast<char>(static_cast<unsigned char>(seed >> 24));
    }
    return bytes;
}

} // namespace zutest
