#include "files_support.h"
#include "support/lists.h"
#include "support/memory.h"
#include "zu_File.h"

namespace {

using namespace zutest;

TEST(File, readLineCutsAndSkips)
{
    // until the result is 0
    const std::tuple<const char*, std::string_view, int32_t, std::vector<Wide>> rows[] = {
        {"rest of the line skipped", "abcdef\ngh\n", 3, {W("abc"), W("gh")}},
        {"carriage return and line feed", "a\r\n\r\nb", 9, {W("a"), W(""), W("b")}},
        {"carriage return alone", "a\rb\r\r\nc\r", 9, {W("a\rb\r"), W("c\r")}},
        {"nothing fits", "a\n\nb\n", 0, {W(""), W(""), W("")}},
        {"zero inside", std::string_view("a\0b\nc", 5), 9, {W("a"), W("c")}},
    };
    Sandbox sandbox;
    for (const auto& [what, content, maximum, lines] : rows) {
        sandbox.write(W("lines"), content);
        StreamOf stream(sandbox, "lines", "r");
        WideBuffer<10> buffer;
        for (const Wide& line : lines) {
            EXPECT_EQ(zu_File_readLine(stream, buffer, maximum), 1) << what;
            EXPECT_EQ(buffer.str(), line) << what;
        }
        EXPECT_EQ(zu_File_readLine(stream, buffer, maximum), 0) << what;
        EXPECT_EQ(buffer.str(), W("")) << what;
    }
}

TEST(File, readLineKeepsBytesThatAreNoText)
{
    if (onWindows)
        GTEST_SKIP() << "there a byte is a character of its own";
    const std::tuple<const char*, const char*, Wide> rows[] = {
        {"cut by the line feed", "a\xE2\x82\n", W("a\xDCE2\xDC82")},
        {"cut by the end", "a\xF0\x9F", W("a\xDCF0\xDC9F")},
        {"continuation alone", "\x80z\n", W("\xDC80z")},
    };
    Sandbox sandbox;
    for (const auto& [what, content, line] : rows) {
        sandbox.write(W("lines"), content);
        StreamOf stream(sandbox, "lines", "r");
        WideBuffer<20> buffer;
        EXPECT_EQ(zu_File_readLine(stream, buffer, 19), 1) << what;
        EXPECT_EQ(buffer.str(), line) << what;
    }
}

// Lines of all lengths around the blocks that they are read in, against a reading of the whole content at once.
TEST(File, readLineAgreesWithAModel)
{
    Sandbox sandbox;
    const std::string letters = noise(100'000);
    for (unsigned seed = 1; seed <= 40; ++seed) {
        std::string content;
        std::size_t at = seed * 997;
        for (int line = 0; line < 60; ++line) {
            const std::size_t length = static_cast<unsigned char>(letters[at++]) * 3u;
            for (std::size_t count = 0; count < length; ++count, at = (at + 7) % letters.size()) {
                const unsigned pick = static_cast<unsigned char>(letters[at]);
                content += pick == 0 && !onWindows ? "\xE2\x82\xAC"
                           : pick < 8              ? "\r"
                                                   : std::string(1, char('0' + pick % 70));
            }
            content += line % 2 != 0 ? "\r\n" : "\n";
        }
        sandbox.write(W("lines"), content);
        StreamOf stream(sandbox, "lines", "r");
        const std::size_t maximum = 100 + seed * 20;
        std::size_t start = 0;
        WideBuffer<1000> buffer;
        while (zu_File_readLine(stream, buffer, static_cast<int32_t>(maximum)) == 1) {
            const std::size_t end = content.find('\n', start);
            ASSERT_NE(end, std::string::npos);
            const std::string line = content.substr(start, end - start - (end > start && content[end - 1] == '\r'));
            Wide expected;
            for (std::size_t index = 0; index < line.size() && expected.size() < maximum; ++index) {
                const bool isEuro = line[index] == '\xE2';
                expected += isEuro ? W('\u20ac') : static_cast<zu_wchar>(line[index]);
                index += isEuro ? 2 : 0;
            }
            ASSERT_EQ(buffer.str(), expected) << seed << " at " << start;
            start = end + 1;
        }
        EXPECT_EQ(start, content.size());
    }
}

TEST(File, wholeFilesAsLists)
{
    const Wide long512(512, W('x'));
    const std::vector<Wide> none = {W("<no list>")};
    const std::tuple<const char*, std::string, std::vector<Wide>, std::vector<Wide>> rows[] = {
        {"tabs and empty lines", "a\tb\n\n\t\n c \n", std::vector<Wide>{W("a b"), W(" "), W(" c ")},
         std::vector<Wide>{W("a\tb\n"), W("\n"), W("\t\n"), W(" c \n")}},
        {"last line without its end", "a\nb", {W("a")}, {W("a\n")}},
        {"empty", "", none, none},
        {"cut",
         std::string(600, 'x').append("\n").append(512, 'x').append("\n"),
         {long512, long512},
         {long512 + W("\n"), long512 + W("\n")}},
    };
    Sandbox sandbox;
    const Wide path = sandbox.path(W("lines"));
    for (const auto& [what, content, lines, exactLines] : rows) {
        sandbox.write(W("lines"), content);
        EXPECT_EQ(takeStrings(zu_File_readFile(path.c_str())), lines) << what;
        EXPECT_EQ(takeStrings(zu_File_readFileExactly(path.c_str())), exactLines) << what;
    }

    sandbox.write(W("lines"), "a\nb\nc\n");
    sweepMaking([&] { return zu_File_readFile(path.c_str()); }, zu_StrList_destroy);
}

} // namespace
