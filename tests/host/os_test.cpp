#include "host/os_code.h"
#include "support/configured.h"
#include "support/host.h"

#include <chrono>
#include <thread>

namespace {

using namespace zutest;
using zu::platform::OsFamily;
using zu::platform::OsRecord;

TEST(Os, codes)
{
    const std::tuple<OsRecord, int> rows[] = {
        {{OsFamily::windows9x, 4, 0, 1080}, 2},   {{OsFamily::windows9x, 4, 0, 1081}, 3},
        {{OsFamily::windows9x, 4, 10, 1997}, 0},  {{OsFamily::windows9x, 4, 10, 1998}, 4},
        {{OsFamily::windows9x, 4, 10, 1999}, 5},  {{OsFamily::windows9x, 4, 10, 2183}, 6},
        {{OsFamily::windows9x, 4, 90, 1}, 7},     {{OsFamily::windowsNt, 3, 51, 1}, 101},
        {{OsFamily::windowsNt, 4, 0, 1381}, 102}, {{OsFamily::windowsNt, 5, 0, 1}, 103},
        {{OsFamily::windowsNt, 5, 1, 1}, 104},    {{OsFamily::windowsNt, 5, 2, 1}, 105},
        {{OsFamily::windowsNt, 6, 0, 6000}, 106}, {{OsFamily::windowsNt, 6, 1, 7601}, 0},
        {{OsFamily::windowsCe, 6, 0, 0}, 201},    {{OsFamily::other, 6, 0, 0}, 0},
    };
    for (const auto& [os, code] : rows)
        EXPECT_EQ(static_cast<int>(zu::classify(os)), code) << os.major << "." << os.minor << "." << os.build;
}

TEST(Os, thisOne)
{
    EXPECT_EQ(zu_Global_isVista(), 0);
#if defined(_WIN32)
    EXPECT_EQ(zu_Global_isOSWithUACSupport(), 1);
#else
    EXPECT_EQ(zu_Global_isOSWithUACSupport(), 0);
#endif
}

TEST(Os, theFileServiceDecidesWhatTheEditorShows)
{
    Sandbox sandbox;
    sandbox.write(W("notes.txt"), "text");
    const Wide path = sandbox.path(W("notes.txt"));
    sandbox.setEnvironment("PATH", "/no/such");
    TestHost host;
    EXPECT_EQ(zu_Global_openFileinNotepad(path.c_str()), 0) << "though the file exists";
    const std::vector<std::string> calls = host.calls();
    EXPECT_TRUE(!calls.empty() && calls.back().starts_with("FileService.FileExists "));
    host.fail("FileService.FileExists", E_FAIL);
    EXPECT_THROW(zu_Global_openFileinNotepad(path.c_str()), _com_error);
    host.fail("FileService.FileExists", S_OK);
    EXPECT_TRUE(allAre<intptr_t>(0, {zu_Global_openFileinNotepad(W("")), zu_Global_openFileinNotepad(nullptr)}));
    host.hasFileService = false;
    zu_Global_destroyData();
    EXPECT_EQ(zu_Global_openFileinNotepad(path.c_str()), 0);
}

#if defined(_WIN32)

TEST(Os, anEditorIsStarted)
{
    Configured sandbox;
    sandbox.write(W("notes.txt"), "text");
    EXPECT_GT(zu_Global_openFileinNotepad(sandbox.path(W("notes.txt")).c_str()), 32);
    EXPECT_EQ(zu_Global_openFileinNotepad(sandbox.path(W("none.txt")).c_str()), 0);
}

#else

TEST(Os, anEditorIsStarted)
{
    Configured sandbox;
    const Wide name = W("no\"tes \\\".txt");
    const std::string native = sandbox.native().string() + "/no\"tes /\".txt";
    std::filesystem::create_directory(sandbox.native(W("no\"tes ")));
    sandbox.write(W("no\"tes \\\".txt"), "text");
    EXPECT_EQ(zu_Global_openFileinNotepad(sandbox.path(W("none.txt")).c_str()), 0);
    sandbox.setEnvironment("PATH", sandbox.native().string());
    const intptr_t refused = zu_Global_openFileinNotepad(sandbox.path(name).c_str());
    EXPECT_TRUE(refused > 0 && refused <= 32) << "no opener on the path";

    sandbox.write(W("xdg-open"), "#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" >\"${0%/*}/part\"; PATH=/bin:/usr/bin; mv "
                                 "\"${0%/*}/part\" \"${0%/*}/shown\"\n");
    std::filesystem::permissions(sandbox.native(W("xdg-open")), std::filesystem::perms::owner_all);
    EXPECT_GT(zu_Global_openFileinNotepad(sandbox.path(name).c_str()), 32);
    for (int tries = 0; tries < 1000 && !sandbox.exists(W("shown")); ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(sandbox.read(W("shown")), "1|" + native + "|");
}

#endif

} // namespace
