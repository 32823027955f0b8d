#include "support/memory.h"
#include "support/process.h"

#include <gtest/gtest.h>

#include <filesystem>

// Huge requests must reach the library as a null result here too.
#if defined(__SANITIZE_ADDRESS__)
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options()
{
    return "allocator_may_return_null=1:detect_stack_use_after_return=1";
}
#endif

#if defined(_WIN32)
int wmain(int argc, wchar_t** argv)
#else
int main(int argc, char** argv)
#endif
{
    zutest::installHooks();
    std::vector<zutest::Wide> commandLine;
    for (int index = 0; index < argc; ++index)
        commandLine.push_back(std::filesystem::path(argv[index]).string<zu_wchar>());
    if (const auto result = zutest::runHelper(commandLine))
        return *result;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
