#include "files_support.h"
#include "zu_File.h"

#include <atomic>
#include <fstream>
#include <thread>

namespace {

using namespace zutest;

TEST(File, copyKeepsContentAndTime)
{
    Sandbox sandbox;
    const Wide from = sandbox.path(W("from"));
    const Wide to = sandbox.path(W("to"));
    sandbox.write(W("to"), noise(500'000, 9));
    for (std::size_t size : {0u, 131072u, 300'001u}) {
        const std::string content = noise(size);
        sandbox.write(W("from"), content);
        zu_File_setTime(from.c_str(), 1'234'567'890);
        EXPECT_EQ(zu_File_copy(from.c_str(), to.c_str()), 0) << size;
        EXPECT_TRUE(sandbox.read(W("to")) == content) << size;
        EXPECT_EQ(zu_File_cmpTime(from.c_str(), to.c_str()), 0) << size;
    }
    // What may not be written is what the destination says, not the source.
    zu_File_setReadOnlyAccess(from.c_str());
    EXPECT_EQ(zu_File_copy(from.c_str(), to.c_str()), 0);
    EXPECT_EQ(zu_File_isWriteEnabled(to.c_str()), 1);
    zu_File_setReadWriteAccess(from.c_str());
    zu_File_setReadOnlyAccess(to.c_str());
    EXPECT_EQ(zu_File_copy(from.c_str(), to.c_str()), 1) << "read-only";
    EXPECT_EQ(sandbox.read(W("to")), noise(300'001));
    zu_File_setReadWriteAccess(to.c_str());
}

TEST(File, copyOntoItselfLeavesTheFileAlone)
{
    Sandbox sandbox;
    sandbox.write(W("file"), "content");
    const Wide file = sandbox.path(W("file"));
    std::error_code failed;
    std::filesystem::create_hard_link(sandbox.native(W("file")), sandbox.native(W("link")), failed);
    const std::tuple<const char*, Wide> rows[] = {
        {"the same name", file},
        {"another case", sandbox.path(W("FILE"))},
        {"another way", sandbox.path(W("none\\..\\file"))},
        {"another link", sandbox.path(W("link"))},
    };
    for (const auto& [what, other] : rows) {
        EXPECT_EQ(zu_File_copy(file.c_str(), other.c_str()), 1) << what;
        EXPECT_EQ(zu_File_append(other.c_str(), file.c_str()), 1) << what;
        EXPECT_EQ(zu_File_encrypt(other.c_str(), file.c_str()), 0) << what;
        EXPECT_EQ(sandbox.read(W("file")), "content") << what;
    }
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"file", "link"}));
}

TEST(File, appendTakesTheDestinationFirst)
{
    Sandbox sandbox;
    const Wide to = sandbox.path(W("to"));
    const Wide from = sandbox.path(W("from"));
    sandbox.write(W("from"), "second\r\n");
    EXPECT_EQ(zu_File_append(to.c_str(), from.c_str()), 0);
    EXPECT_EQ(zu_File_append(to.c_str(), from.c_str()), 0);
    EXPECT_EQ(sandbox.read(W("to")), "second\r\nsecond\r\n");
    EXPECT_EQ(zu_File_append(sandbox.path(W("new")).c_str(), nullptr), 1);
    EXPECT_FALSE(sandbox.exists(W("new"))) << "the source is opened first";
}

TEST(File, copyRestStartsAtThePositionsOfTheStreams)
{
    Sandbox sandbox;
    const std::string content = noise(200'000);
    for (const char* mode : {"w+b", "a+b"}) {
        sandbox.write(W("from"), content);
        sandbox.write(W("to"), "");
        {
            StreamOf from(sandbox, "from", "rb");
            StreamOf to(sandbox, "to", mode);
            // What the streams have read ahead and hold back counts.
            for (int count = 0; count < 3; ++count)
                std::fgetc(from);
            std::fputs("head", to);
            EXPECT_EQ(zu_File_copyRest(to, from), 0);
            EXPECT_EQ(std::fgetc(from), EOF);
            std::fputs("tail", to);
        }
        EXPECT_TRUE(sandbox.read(W("to")) == "head" + content.substr(3) + "tail") << mode;
    }
    StreamOf from(sandbox, "from", "rb");
    StreamOf same(sandbox, "from", "ab");
    EXPECT_EQ(zu_File_copyRest(same, from), 1);
}

// A device that is always full stands for every disk that is.
TEST(File, whatCannotBeWrittenIsReported)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no full device on this system";
    Sandbox sandbox;
    const Wide file = sandbox.path(W("file.bin"));
    for (std::size_t size : {10u, 300'000u}) {
        sandbox.write(W("file.bin"), noise(size));
        sandbox.write(W("full.1"), noise(size));
        for (WideLiteral name : {W("full.bin"), W("file.2")}) {
            std::filesystem::remove(sandbox.native(name));
            ASSERT_TRUE(makeLink("/dev/full", sandbox.native(name)));
        }
        const Wide full = sandbox.path(W("full.bin"));
        EXPECT_EQ(zu_File_copy(file.c_str(), full.c_str()), 1) << size;
        EXPECT_EQ(zu_File_append(full.c_str(), file.c_str()), 1) << size;
        EXPECT_EQ(zu_File_encrypt(full.c_str(), file.c_str()), 0) << size;
        EXPECT_EQ(zu_File_slice(file.c_str(), 4), 0) << size;
        EXPECT_EQ(zu_File_mend(full.c_str()), 0) << size;
        EXPECT_EQ(sandbox.read(W("full.1")).size(), size) << "the part is still there";
    }
}

TEST(File, aFileThatGrowsOrVanishesWhileItIsCopied)
{
    Sandbox sandbox;
    sandbox.write(W("log"), "");
    const Wide log = sandbox.path(W("log"));
    const Wide copy = sandbox.path(W("copy"));
    std::atomic<bool> done = false;
    std::thread writer([&, path = sandbox.native(W("log"))] {
        std::string line = "0 line\n";
        for (int round = 0; round < 4'000; ++round) {
            line[0] = static_cast<char>('0' + round % 10);
            std::ofstream file;
            while (!file.is_open()) // the copy may keep others off
                file.open(path, std::ios::binary | std::ios::app);
            file << line;
            file.close();
            std::error_code error;
            if (round % 500 == 499)
                std::filesystem::remove(path, error); // it begins anew
        }
        done = true;
    });
    while (!done) {
        sandbox.write(W("copy"), "old");
        if (zu_File_copy(log.c_str(), copy.c_str()) != 0)
            continue;
        // A success is the beginning of what the file was.
        const std::string content = sandbox.read(W("copy"));
        for (std::size_t at = 0; at < content.size(); at += 7) {
            const char digit = static_cast<char>('0' + at / 7 % 10);
            ASSERT_EQ(content.substr(at, 7), (digit + std::string(" line\n")).substr(0, content.size() - at)) << at;
        }
    }
    writer.join();
}

// Their length is not what the system says, and none of its own ways of copying takes them.
TEST(File, filesOfTheSystemCanBeCopied)
{
    if (onWindows)
        GTEST_SKIP() << "no such files on this system";
    Sandbox sandbox;
    EXPECT_EQ(zu_File_copy(W("C:\\proc\\self\\cmdline"), sandbox.path(W("copy")).c_str()), 0);
    EXPECT_NE(sandbox.read(W("copy")), "");
    EXPECT_EQ(zu_File_append(sandbox.path(W("copy")).c_str(), W("C:\\proc\\version")), 0);
    EXPECT_NE(sandbox.read(W("copy")).find("Linux"), std::string::npos);
}

} // namespace
