// A program for tests to start. After ZU_TEST_DELAY milliseconds it writes what it was given into the file ZU_TEST_OUT,
// which appears in one step: its search path, the number of files that are open, and its arguments, a line each.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace fs = std::filesystem;

namespace {

std::string utf8(const fs::path& text)
{
    const auto bytes = text.u8string();
    return std::string(bytes.begin(), bytes.end());
}

std::ptrdiff_t openFiles()
{
    std::error_code error;
    const fs::directory_iterator descriptors("/proc/self/fd", error);
    // One of them is the iterator's.
    return error ? 0 : std::distance(begin(descriptors), end(descriptors)) - 1;
}

int run(const fs::path::value_type* const* arguments)
{
    const char* const out = std::getenv("ZU_TEST_OUT");
    const char* const delay = std::getenv("ZU_TEST_DELAY");
    const char* const path = std::getenv("PATH");
    if (out == nullptr)
        return 2;
    if (delay != nullptr)
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(delay)));
    const std::ptrdiff_t files = openFiles();
    const std::string unfinished = std::string(out) + ".part";
    std::ofstream file(unfinished, std::ios::binary);
    file << (path == nullptr ? "" : path) << '\n' << files << '\n';
    while (*++arguments != nullptr)
        file << utf8(*arguments) << '\n';
    file.close();
    fs::rename(unfinished, out);
    return 0;
}

} // namespace

#if defined(_WIN32)
int wmain(int, wchar_t** arguments)
#else
int main(int, char** arguments)
#endif
{
    return run(arguments);
}
