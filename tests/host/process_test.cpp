#include "host/modules.h"
#include "host/registry.h"
#include "support/configured.h"
#include "support/host.h"
#include "zu_Msg.h"
#include "zu_Sys.h"

#include <chrono>
#include <sstream>
#include <thread>

#if !defined(_WIN32)
#    include <csignal>
#    include <fcntl.h>
#    include <sys/wait.h>
#endif

namespace fs = std::filesystem;

namespace {

using namespace zutest;

// A directory to start programs in, with a program that tells what it was given.
class Process : public testing::Test
{
protected:
    Process()
    {
        fs::current_path(sandbox.native());
        install(W("child.exe"));
        sandbox.setEnvironment("ZU_TEST_OUT", "out.txt");
        sandbox.setEnvironment("ZU_TEST_DELAY", "0");
    }

    void install(WideView name)
    {
        const fs::path built = programDirectory() / "zu_test_child";
        fs::copy_file(fs::exists(built) ? built : fs::path(built).concat(".exe"), sandbox.native(name));
    }
    Wide quotedChild() const { return W("\"") + sandbox.path(W("child.exe")) + W("\""); }

    struct Report
    {
        std::string path;
        std::string openFiles;
        std::vector<std::string> arguments;
    };
    // What the child wrote; waits for it when told to.
    Report report(bool wait = false)
    {
        for (int tries = 0; wait && tries < 1000 && !sandbox.exists(W("out.txt")); ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        EXPECT_TRUE(sandbox.exists(W("out.txt")));
        std::istringstream text(sandbox.read(W("out.txt")));
        fs::remove(sandbox.native(W("out.txt")));
        Report result;
        std::getline(text, result.path);
        std::getline(text, result.openFiles);
        for (std::string line; std::getline(text, line);)
            result.arguments.push_back(line);
        return result;
    }

    Sandbox sandbox;
};

TEST_F(Process, argumentsArriveAsTheyAreQuoted)
{
    // null: none
    const std::tuple<WideLiteral, std::vector<std::string>> rows[] = {
        {nullptr, {}},
        {W("\"with blanks\" \"\" c:\\dir\\"), {"with blanks", "", "c:\\dir\\"}},
        {W("\"say \\\"yes\\\"\" \\\"x"), {"say \"yes\"", "\"x"}},
        {W("\u00e4\u0416 $HOME `a` 'b c' x;y|z>q"), {"\xC3\xA4\xD0\x96", "$HOME", "`a`", "'b", "c'", "x;y|z>q"}},
    };
    for (const auto& [line, arguments] : rows) {
        WideBuffer<100> error(W("old"));
        EXPECT_EQ(zu_Sys_createProcess(quotedChild().c_str(), line, 1, error, 100), 1);
        EXPECT_EQ(report().arguments, arguments);
    }
}

TEST_F(Process, waitsOnlyWhenToldTo)
{
    sandbox.setEnvironment("ZU_TEST_DELAY", "400");
    EXPECT_EQ(zu_Sys_createProcess(quotedChild().c_str(), W("waited for"), 1, nullptr, 0), 1);
    EXPECT_EQ(report().arguments.size(), 2u);
    EXPECT_EQ(zu_Sys_createProcess(quotedChild().c_str(), W("alone"), 0, nullptr, 0), 1);
    EXPECT_FALSE(sandbox.exists(W("out.txt")));
    EXPECT_EQ(report(true).arguments, std::vector<std::string>{"alone"});
}

TEST_F(Process, howAProgramIsFound)
{
    install(W("bare name.exe"));
    fs::create_directory(sandbox.native(W("Sub")));
    fs::rename(sandbox.native(W("bare name.exe")), sandbox.native(W("Sub\\bare name.exe")));
    // Without quotes a blank may end the name or belong to it.
    EXPECT_EQ(zu_Sys_createProcess(W("Sub\\bare name.exe"), nullptr, 1, nullptr, 0), 1);
    report();
    EXPECT_EQ(zu_Sys_createProcess(W("\"Sub\\BARE Name.EXE\""), W("a"), 1, nullptr, 0), 1) << "in another case";
    EXPECT_EQ(report().arguments, std::vector<std::string>{"a"});
    const char separator = fs::path::preferred_separator == '\\' ? ';' : ':';
    sandbox.setEnvironment("PATH", std::string("Sub") + separator + std::getenv("PATH"));
    EXPECT_EQ(zu_Sys_createProcess(W("\"bare name.exe\""), W("a"), 1, nullptr, 0), 1) << "along PATH";
    EXPECT_EQ(report().arguments, std::vector<std::string>{"a"});
}

TEST_F(Process, whatWentWrongIsTold)
{
    const Wide program = sandbox.path(W("no such program.exe"));
    WideBuffer<400> whole;
    EXPECT_EQ(zu_Sys_createProcess(program.c_str(), W("a b"), 1, whole, 400), 0);
    const Wide start = Wide(W("Unable to start the new process:\n")) + program;
    EXPECT_EQ(whole.str().substr(0, start.size()), start) << "the program without its arguments";
    EXPECT_GT(whole.str().size(), start.size() + 3) << "and what the system says";
    for (int32_t size : {1, 34, 200, 0, -5}) {
        WideBuffer<400> cut;
        std::fill_n(static_cast<zu_wchar*>(cut), 400, W('~'));
        EXPECT_EQ(zu_Sys_createProcess(program.c_str(), W("a b"), 0, cut, size), 0);
        const auto room = static_cast<std::size_t>(std::max(size, 0));
        if (room > 0) {
            EXPECT_EQ(Wide(cut), whole.str().substr(0, room - 1)) << size;
        }
        EXPECT_EQ(Wide(cut + room, cut + 400), Wide(400 - room, W('~'))) << size;
    }
    EXPECT_EQ(zu_Sys_createProcess(program.c_str(), nullptr, 0, nullptr, 50), 0);
}

TEST_F(Process, programsThatCannotBe)
{
    sandbox.write(W("text.exe"), "no program");
    const WideLiteral programs[] = {W(""), W("\""), W("\"\""), W("text.exe"), W("Q:\\a.exe")};
    for (WideLiteral program : programs) {
        WideBuffer<200> error;
        EXPECT_EQ(zu_Sys_createProcess(program, nullptr, 1, error, 200), 0) << ::testing::PrintToString(Wide(program));
        EXPECT_NE(error.str(), W(""));
    }
    WideBuffer<200> error(W("old"));
    EXPECT_EQ(zu_Sys_createProcess(nullptr, W("a"), 1, error, 200), 0);
    EXPECT_EQ(error.str(), W(""));
    EXPECT_EQ(zu_Sys_createProcess(Wide(40'000, W('x')).c_str(), nullptr, 1, error, 200), 0);
}

TEST_F(Process, theSearchPathIsExtendedForTheChildOnly)
{
    fs::create_directories(sandbox.native(W("QR\\bin")));
    fs::rename(sandbox.native(W("child.exe")), sandbox.native(W("QR\\bin\\zu quorral.exe")));
    zu_Sys_createProcess(W("\"QR\\bin\\zu quorral.exe\""), nullptr, 1, nullptr, 0);
    const std::string before = report().path;
    const WideLiteral program = W("\"zu quorral.exe\"");
    {
        Registry registry(sandbox);
        registry.addText(W("SOFTWARE\\Torvane\\Quorral"), W("Path"), sandbox.path(W("QR\\")));
        EXPECT_EQ(zu_Sys_createProcess_addQRPath(program, nullptr, 1, nullptr, 0), 0) << "another version";
        registry.addText(W("SOFTWARE\\Torvane\\Quorral\\08.11"), W("Path"), sandbox.path(W("QR\\")));
        EXPECT_EQ(zu_Sys_createProcess(program, nullptr, 1, nullptr, 0), 0);
        EXPECT_EQ(zu_Sys_createProcess_addQRPath(program, W("\"a b\""), 1, nullptr, 0), 1);
        const Report inside = report();
        EXPECT_EQ(inside.arguments, std::vector<std::string>{"a b"});
        EXPECT_EQ(inside.path.size() - before.size(), inside.path.rfind(before)) << "in front of the others";
    }
    zu_Sys_createProcess(W("\"QR\\bin\\zu quorral.exe\""), nullptr, 1, nullptr, 0);
    EXPECT_EQ(report().path, before);
}

TEST_F(Process, aShortcutIsWrittenAndOpened)
{
    Configured world("[GENERAL]\nKVTMP=Temp\n");
    EXPECT_EQ(zu_Sys_launchProcessViaShortcut(nullptr, W("a")), 0);
#if defined(_WIN32)
    EXPECT_EQ(zu_Sys_launchProcessViaShortcut(quotedChild().c_str(), nullptr), 0) << "COM is not initialised";
    EXPECT_FALSE(sandbox.exists(W("Temp")));
    const ComThread com;
    EXPECT_EQ(zu_Sys_launchProcessViaShortcut(quotedChild().c_str(), W("a \"b c\"")), 1);
    EXPECT_EQ(report(true).arguments, (std::vector<std::string>{"a", "b c"}));
    const std::string link = sandbox.read(W("Temp\\1\\Skyloft.lnk"));
    const auto holds = [&](WideView text) {
        return link.find(std::string(reinterpret_cast<const char*>(text.data()), text.size() * 2)) != std::string::npos;
    };
    EXPECT_TRUE(holds(W("Torvane Skyloft.")));
    EXPECT_TRUE(holds(sandbox.path() + W("\\"))) << "the working directory, without the quote";
    EXPECT_EQ(zu_Sys_launchProcessViaShortcut(sandbox.path(W("child.exe")).c_str(), nullptr), 1);
    EXPECT_TRUE(report(true).arguments.empty());
#else
    EXPECT_EQ(zu_Sys_launchProcessViaShortcut(quotedChild().c_str(), W("a")), 0);
    EXPECT_FALSE(sandbox.exists(W("Temp")));
#endif
}

#if !defined(_WIN32)

TEST_F(Process, caseCountsAlongThePath)
{
    fs::create_directory(sandbox.native(W("1")));
    fs::create_directory(sandbox.native(W("2")));
    sandbox.write(W("1\\Tool"), "#!/bin/sh\necho 1 >out.txt\n");
    sandbox.write(W("2\\tool"), "#!/bin/sh\necho 2 >out.txt\n");
    fs::permissions(sandbox.native(W("1\\Tool")), fs::perms::owner_all);
    sandbox.setEnvironment("PATH", "1:2:/no/such:");
    EXPECT_EQ(zu_Sys_createProcess(W("tool"), nullptr, 1, nullptr, 0), 1) << "the other one may not be executed";
    EXPECT_EQ(report().path, "1");
    fs::permissions(sandbox.native(W("2\\tool")), fs::perms::owner_all);
    EXPECT_EQ(zu_Sys_createProcess(W("tool"), nullptr, 1, nullptr, 0), 1);
    EXPECT_EQ(report().path, "2");
    EXPECT_EQ(zu_Sys_createProcess(W("TOOL"), nullptr, 1, nullptr, 0), 1);
    EXPECT_EQ(report().path, "1");
}

TEST_F(Process, theChildHasNoneOfOurFiles)
{
    const int file = ::open("/dev/null", O_RDONLY); // not marked to be closed
    ASSERT_GT(file, 2);
    for (int32_t wait : {1, 0}) {
        EXPECT_EQ(zu_Sys_createProcess(quotedChild().c_str(), nullptr, wait, nullptr, 0), 1);
        EXPECT_EQ(report(true).openFiles, "3");
    }
    ::close(file);
}

void collectAll(int)
{
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
}

TEST_F(Process, noTraceInTheHost)
{
    const struct
    {
        const char* what;
        void (*handler)(int);
    } rows[] = {{"default", SIG_DFL}, {"ignored", SIG_IGN}, {"collected by the host", collectAll}};
    sandbox.setEnvironment("ZU_TEST_DELAY", "100");
    for (const auto& row : rows) {
        const auto previous = std::signal(SIGCHLD, row.handler);
        EXPECT_EQ(zu_Sys_createProcess(quotedChild().c_str(), nullptr, 1, nullptr, 0), 1) << row.what;
        report();
        EXPECT_EQ(zu_Sys_createProcess(quotedChild().c_str(), nullptr, 0, nullptr, 0), 1) << row.what;
        EXPECT_EQ(zu_Sys_createProcess(W("none"), nullptr, 0, nullptr, 0), 0) << row.what;
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << row.what << ": a child is left";
        EXPECT_EQ(errno, ECHILD) << row.what;
        report(true);
        EXPECT_EQ(std::signal(SIGCHLD, previous), row.handler) << row.what;
    }
}

#endif

} // namespace
