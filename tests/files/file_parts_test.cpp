#include "files_support.h"
#include "zu_File.h"

namespace {

using namespace zutest;

TEST(File, sliceCountsAnEmptyPartAtTheEnd)
{
    const std::tuple<const char*, std::size_t, int32_t, std::vector<std::size_t>> rows[] = {
        {"a multiple", 10, 5, {5, 5, 0}},
        {"empty", 0, 5, {0}},
        {"parts of many blocks", 700'000, 300'000, {300'000, 300'000, 100'000}},
    };
    for (const auto& [what, size, partSize, parts] : rows) {
        Sandbox sandbox;
        const Wide path = sandbox.path(W("Data.x.bin"));
        const std::string content = noise(size);
        sandbox.write(W("Data.x.bin"), content);
        const auto count = static_cast<int32_t>(parts.size());
        EXPECT_EQ(zu_File_slice(path.c_str(), partSize), count) << what;
        std::string joined;
        for (std::size_t number = 1; number <= parts.size(); ++number) {
            const std::string part = sandbox.read(W("Data.x.") + widen(std::to_string(number)));
            EXPECT_EQ(part.size(), parts[number - 1]) << what;
            joined += part;
        }
        EXPECT_TRUE(joined == content) << what;
        sandbox.write(W("Data.x.bin"), noise(1'000'000, 2));
        EXPECT_EQ(zu_File_mend(path.c_str()), count + 1) << what;
        EXPECT_TRUE(sandbox.read(W("Data.x.bin")) == content) << what;
        EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"Data.x.bin"})) << what;
    }
}

TEST(File, sliceAndMendRefuse)
{
    Sandbox sandbox;
    sandbox.write(W("data.2"), "0123456789");
    const Wide path = sandbox.path(W("data.2"));
    EXPECT_EQ(zu_File_slice(path.c_str(), 0), 0);
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"data.2"}));
    EXPECT_EQ(zu_File_slice(path.c_str(), 4), 0) << "the second part would be the file itself";
    EXPECT_EQ(zu_File_mend(path.c_str()), 0) << "the file is the second part";
    EXPECT_EQ(sandbox.read(W("data.2")), "0123456789");
    EXPECT_EQ(sandbox.read(W("data.1")), "0123");

    EXPECT_EQ(zu_File_mend(sandbox.path(W("other.3")).c_str()), 1) << "no parts";
    EXPECT_EQ(sandbox.read(W("other.3")), "");
    if (makeLink(sandbox.native(W("whole")), sandbox.native(W("whole.1")))) {
        EXPECT_EQ(zu_File_mend(sandbox.path(W("whole")).c_str()), 1) << "a part that leads to the file";
        EXPECT_EQ(sandbox.read(W("whole")), "");
    }
}

// Scrambling zeros shows the table itself.
std::string scrambleTable(const Sandbox& sandbox)
{
    sandbox.write(W("zeros"), std::string(512, '\0'));
    EXPECT_EQ(zu_File_encrypt(sandbox.path(W("table")).c_str(), sandbox.path(W("zeros")).c_str()), 1);
    return sandbox.read(W("table"));
}

TEST(File, scramblingIsAnExclusiveOrWithTheTable)
{
    Sandbox sandbox;
    const std::string table = scrambleTable(sandbox);
    ASSERT_EQ(table.size(), 512u);
    const Wide plain = sandbox.path(W("plain"));
    const Wide hidden = sandbox.path(W("hidden"));
    const Wide back = sandbox.path(W("back"));
    for (std::size_t size : {0u, 511u, 300'000u}) {
        std::string content = noise(size);
        sandbox.write(W("plain"), content);
        sandbox.write(W("hidden"), noise(400'000, 3));
        EXPECT_EQ(zu_File_encrypt(hidden.c_str(), plain.c_str()), 1);
        EXPECT_EQ(zu_File_decrypt(back.c_str(), hidden.c_str()), 1);
        EXPECT_TRUE(sandbox.read(W("back")) == content) << size;
        for (std::size_t index = 0; index < size; ++index)
            content[index] = static_cast<char>(content[index] ^ table[index % 512]);
        EXPECT_TRUE(sandbox.read(W("hidden")) == content) << size;
    }
    const Wide made = sandbox.path(W("made"));
    EXPECT_EQ(zu_File_encrypt(made.c_str(), sandbox.path(W("none")).c_str()), 0);
    EXPECT_EQ(sandbox.read(W("made")), "") << "the destination is made although there is no source";
}

#if defined(ZU_TEST_DEFAULT_SCRAMBLE_TABLE)
// Files of other installations are read with this very table.
TEST(File, theScrambleTableIsTheDocumentedOne)
{
    Sandbox sandbox;
    std::string expected;
    for (uint32_t x = 2053; expected.size() < 512;) {
        x ^= x << 13;
        x ^= x >> 17;
        x ^= x << 5;
        expected += static_cast<char>(static_cast<unsigned char>(x >> 24));
    }
    EXPECT_EQ(scrambleTable(sandbox), expected);
}
#endif

} // namespace
