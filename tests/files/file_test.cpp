#include "files_support.h"
#include "zu_Dir.h"
#include "zu_File.h"

#if !defined(_WIN32)
#    include <sys/stat.h>
#endif

namespace {

using namespace zutest;

TEST(File, accessTests)
{
    Sandbox sandbox;
    sandbox.write(W("Plain"), "x");
    sandbox.write(W("locked"), "x");
    const Wide locked = sandbox.path(W("locked"));
    EXPECT_EQ(zu_File_setReadOnlyAccess(locked.c_str()), 1);
    const std::tuple<const char*, Wide, int32_t, int32_t> rows[] = {
        {"another case", sandbox.path(W("PLAIN")), 2, 1},
        {"a directory", sandbox.path(), 0, 1},
        {"read-only, for reading", locked, 4, 1},
        {"read-only, for both", locked, 6, 0},
    };
    for (const auto& [what, path, mode, granted] : rows)
        EXPECT_EQ(zu_File_hasAccess(path.c_str(), mode), granted) << what;
    EXPECT_EQ(zu_File_isWriteEnabled(locked.c_str()), 0);
    EXPECT_EQ(zu_File_setReadWriteAccess(locked.c_str()), 1);
    EXPECT_EQ(zu_File_isWriteEnabled(locked.c_str()), 1);
}

TEST(File, moveReplacesTheDestination)
{
    Sandbox sandbox;
    const auto move = [&](WideLiteral from, WideLiteral to) {
        return zu_File_move(sandbox.path(from).c_str(), sandbox.path(to).c_str());
    };
    sandbox.write(W("a"), "1");
    sandbox.write(W("b"), "2");
    EXPECT_EQ(move(W("a"), W("b")), 0);
    EXPECT_EQ(sandbox.read(W("b")), "1");
    EXPECT_FALSE(sandbox.exists(W("a")));
    EXPECT_EQ(move(W("b"), W("b")), 0) << "onto itself";
    EXPECT_EQ(move(W("b"), W("B")), 0) << "into another case";
    // Wine calls it done, and leaves the name as it was.
    EXPECT_TRUE(onWindows || entriesOf(sandbox) == std::vector<std::string>{"B"});
    EXPECT_EQ(move(W("B"), W("none\\b")), -1) << "no such directory";
    EXPECT_EQ(sandbox.read(W("B")), "1");
    EXPECT_EQ(move(W("a"), W("B")), -1);
    EXPECT_FALSE(sandbox.exists(W("B"))) << "deleted although there is no source";

    sandbox.write(W("c"), "3");
    if (onWindows)
        sandbox.write(W("d"), "4");
    else
        std::filesystem::create_hard_link(sandbox.native(W("c")), sandbox.native(W("d")));
    EXPECT_EQ(move(W("c"), W("d")), 0);
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"d"})) << "another link to the same file";

    std::filesystem::create_directory(sandbox.native(W("f")));
    EXPECT_EQ(move(W("f"), W("d")), 0) << "a directory takes the place of a file";
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"d/"}));
    if (!onWindows && makeLink(sandbox.native(W("d")), sandbox.native(W("link")))) {
        EXPECT_EQ(move(W("link"), W("link")), 0) << "a link to a directory onto itself";
        EXPECT_TRUE(sandbox.exists(W("link")));
    }
}

#if !defined(_WIN32)
TEST(File, nobodyWaitsAtAPipe)
{
    Sandbox sandbox;
    ASSERT_EQ(::mkfifo(sandbox.native(W("pipe")).c_str(), 0600), 0);
    const Wide pipe = sandbox.path(W("pipe"));
    EXPECT_EQ(zu_File_readFile(pipe.c_str()), nullptr);
    EXPECT_EQ(zu_File_readFileExactly(pipe.c_str()), nullptr);
    EXPECT_EQ(zu_File_copy(pipe.c_str(), sandbox.path(W("copy")).c_str()), 1);
    EXPECT_EQ(zu_File_slice(pipe.c_str(), 10), 0);
    sandbox.write(W("file"), "x");
    EXPECT_EQ(zu_File_append(pipe.c_str(), sandbox.path(W("file")).c_str()), 1);
}
#endif

TEST(File, timesAreComparedInSeconds)
{
    Sandbox sandbox;
    sandbox.write(W("old"), "");
    sandbox.write(W("new"), "");
    const Wide older = sandbox.path(W("old"));
    const Wide newer = sandbox.path(W("new"));
    const Wide missing = sandbox.path(W("none"));
    EXPECT_EQ(zu_File_setTime(older.c_str(), 1'000'000'001), 0);
    EXPECT_EQ(zu_File_setTime(newer.c_str(), 1'000'000'002), 0);
    int32_t time = -1;
    EXPECT_EQ(zu_File_getTime(older.c_str(), &time), 0);
    EXPECT_EQ(time, 1'000'000'001);
    const auto cmp = [](const Wide& a, const Wide& b) {
        return zu_File_cmpTime(a.c_str(), b.c_str());
    };
    EXPECT_TRUE(allAre(-1, {cmp(older, newer), cmp(missing, older)}));
    EXPECT_TRUE(allAre(1, {cmp(newer, older), cmp(older, missing)}));
    EXPECT_EQ(cmp(newer, newer), 0);

    // Both times are set, also those before 1970, and also those of a file that may not be written.
    EXPECT_EQ(zu_File_setReadOnlyAccess(older.c_str()), 1);
    EXPECT_EQ(zu_File_setTime(older.c_str(), -86'400), 0);
    EXPECT_EQ(zu_File_getTime(older.c_str(), &time), 0);
    EXPECT_EQ(time, -86'400);
    zu_File_setReadWriteAccess(older.c_str());

    time = 7;
    EXPECT_EQ(zu_File_getTime(missing.c_str(), &time), 1);
    EXPECT_EQ(time, 0);
    using namespace std::chrono;
    const auto late = std::filesystem::file_time_type::clock::now() + hours(24 * 365 * 100);
    std::filesystem::last_write_time(sandbox.native(W("new")), late);
    EXPECT_EQ(zu_File_getTime(newer.c_str(), &time), 1) << "does not fit 32 bits";
}

TEST(File, lengthOfAStream)
{
    Sandbox sandbox;
    sandbox.write(W("four"), "1\n23");
    StreamOf stream(sandbox, "four", "r+");
    EXPECT_EQ(std::fgetc(stream), '1');
    EXPECT_EQ(zu_File_length(stream), 4);
    EXPECT_EQ(std::fgetc(stream), '\n') << "the position stays";
    EXPECT_EQ(zu_File_length(nullptr), -1);
    std::filesystem::resize_file(sandbox.native(W("four")), std::uintmax_t{1} << 31);
    EXPECT_EQ(zu_File_length(stream), -1);
}

// Names that no directory can hold, or that lead nowhere: the failure value everywhere, and nothing made.
TEST(File, badNames)
{
    Sandbox sandbox;
    sandbox.write(W("good"), "x");
    std::vector<std::pair<std::string, Wide>> names = {
        {"5,000 units", sandbox.path(Wide(5000, W('n')))},
        {"below a file", sandbox.path(W("good\\x"))},
        {"no such drive", W("Q:\\x")},
        {"a directory", sandbox.path()},
        {"empty", Wide()},
    };
    if (makeLink(sandbox.native(W("loop")), sandbox.native(W("loop"))))
        names.push_back({"a link to itself", sandbox.path(W("loop"))});
    const Wide good = sandbox.path(W("good"));
    for (const auto& [what, name] : names) {
        const zu_wchar* const bad = name.c_str();
        zu_wchar found[300];
        int32_t time = 0;
        EXPECT_EQ(zu_File_exists(bad), 0) << what;
        EXPECT_EQ(zu_File_hasAccess(bad, 0), what == "a directory") << what;
        EXPECT_TRUE(allAre(0, {zu_File_create(bad), zu_File_delete(bad, 1), zu_File_slice(bad, 10), zu_File_mend(bad),
                               zu_File_encrypt(bad, good.c_str())}))
            << what;
        EXPECT_TRUE(allAre(1, {zu_File_copy(bad, good.c_str()), zu_File_copy(good.c_str(), bad),
                               zu_File_append(bad, good.c_str()), zu_File_append(good.c_str(), bad)}))
            << what;
        EXPECT_TRUE(allNull({zu_File_readFile(bad), zu_File_readFileExactly(bad)})) << what;
        EXPECT_EQ(zu_File_getTime(bad, &time), what != "a directory") << what;
        if (what != "a directory" && what != "a link to itself") {
            EXPECT_EQ(zu_File_findFirst(bad, found), -1) << what;
            EXPECT_EQ(zu_File_deleteSingle(bad), 0) << what;
            EXPECT_EQ(zu_File_move(good.c_str(), bad), -1) << what;
        }
        EXPECT_EQ(sandbox.read(W("good")), "x") << what;
    }
    for (const auto& entry : entriesOf(sandbox))
        EXPECT_TRUE(entry == "good" || entry == "loop") << entry;
}

TEST(File, nullNamesAndStreams)
{
    Sandbox sandbox;
    sandbox.write(W("good"), "x");
    const Wide path = sandbox.path(W("good"));
    const zu_wchar* const good = path.c_str();
    StreamOf stream(sandbox, "good", "r+");
    zu_wchar line[2];
    int32_t time = 0;
    EXPECT_TRUE(allAre(0, {zu_File_readLine(nullptr, line, 1), zu_File_encrypt(nullptr, good), zu_File_mend(nullptr),
                           zu_File_decrypt(good, nullptr), zu_File_slice(nullptr, 5), zu_File_exists(nullptr),
                           zu_Dir_exists(nullptr), zu_File_deleteSingle(nullptr), zu_File_deleteSingle(W("")),
                           zu_File_delete(nullptr, 1), zu_File_delete(W(""), 0), zu_File_setReadWriteAccess(nullptr),
                           zu_File_hasAccess(nullptr, 0)}));
    EXPECT_TRUE(allAre(1, {zu_File_append(nullptr, good), zu_File_copy(good, nullptr), zu_File_copy(nullptr, good),
                           zu_File_copyRest(nullptr, stream), zu_File_copyRest(stream, nullptr),
                           zu_File_getTime(good, nullptr), zu_File_getTime(nullptr, &time)}));
    EXPECT_TRUE(allAre(-1, {zu_Dir_change(nullptr), zu_Dir_delete(nullptr), zu_File_move(nullptr, good),
                            zu_File_setTime(nullptr, 1), zu_Dir_create(W("")), zu_Dir_deleteTree(nullptr)}));
    EXPECT_TRUE(allNull({zu_Dir_getParent(nullptr), zu_Dir_list(nullptr), zu_File_readFile(nullptr),
                         zu_File_readFileExactly(nullptr)}));
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"good"}));
}

TEST(File, namesBeyondAscii)
{
    // Cyrillic, a pair of surrogates, and a surrogate alone.
    for (WideLiteral name : {W("\u0447\u0435\u0440\u0442\u0451\u0436.txt"), W("\U0001F4C4.txt"), W("\xD800.txt")}) {
        if (onWindows && Wide(name).front() == 0xD800)
            continue; // Wine's files have names in UTF-8
        Sandbox sandbox;
        const Wide path = sandbox.path() + W("\\") + name;
        const Wide copy = path + W(".copy");
        ASSERT_EQ(zu_File_create(path.c_str()), 1);
        EXPECT_EQ(zu_File_hasAccess(path.c_str(), 2), 1);
        zu_wchar found[300];
        EXPECT_EQ(zu_File_findFirst(sandbox.path(W("*.txt")).c_str(), found), 0);
        // Where names are bytes, half a pair comes back as what its bytes are, which leads to the same file.
        const bool isWhole = onWindows || Wide(name).front() != 0xD800;
        EXPECT_EQ(str(found), isWhole ? Wide(name) : str(found));
        EXPECT_EQ(zu_File_hasAccess((sandbox.path() + W("\\") + str(found)).c_str(), 2), 1);
        EXPECT_NE(zu_File_findNext(found), 0);
        EXPECT_EQ(zu_File_copy(path.c_str(), copy.c_str()), 0);
        EXPECT_EQ(zu_File_move(copy.c_str(), path.c_str()), 0);
        EXPECT_EQ(zu_File_deleteSingle(path.c_str()), 1);
        EXPECT_TRUE(entriesOf(sandbox).empty());
    }
}

} // namespace
