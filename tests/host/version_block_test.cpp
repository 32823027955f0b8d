#include "host/file_version_info.h"
#include "platform/posix/version_note.h"
#include "support/wide.h"

namespace {

using namespace zutest;
using zu::CFileVersionInfo;
using zu::Translation;
using zu::VersionBlock;
namespace posix = zu::posix;

constexpr posix::VersionText german[] = {{u"FileVersion", u"1.2"}, {u"Comments", u"gr\u00fcn"}};
constexpr posix::VersionText english[] = {
    {u"CompanyName", u"A"},    {u"FileDescription", u"Bc"}, {u"FileVersion", u""},   {u"InternalName", u"Def"},
    {u"LegalCopyright", u"G"}, {u"OriginalFilename", u"H"}, {u"ProductName", u"I"},  {u"ProductVersion", u"J"},
    {u"Comments", u"K"},       {u"LegalTrademarks", u"L"},  {u"PrivateBuild", u"M"}, {u"SpecialBuild", u"N"}};
constexpr posix::VersionTable tables[] = {{0x0407, 1200, german}, {0x0409, 0x04E4, english}};
constexpr posix::VersionData data{.file = {1, 2, 3, 4}, .product = {5, 6, 7, 0xFFFF}, .tables = tables};

std::string blockOf(const posix::VersionData& version)
{
    std::vector<unsigned char> bytes(posix::VersionBlockWriter({}).write(version));
    posix::VersionBlockWriter(bytes).write(version);
    return std::string(bytes.begin(), bytes.end());
}

TEST(VersionBlock, everythingWrittenIsRead)
{
    const std::string bytes = blockOf(data);
    const VersionBlock block(bytes);
    const auto fixed = block.fixedInfo();
    ASSERT_TRUE(fixed);
    EXPECT_EQ(fixed->signature, 0xFEEF04BD);
    EXPECT_EQ(fixed->fileVersionHigh, 0x00010002u);
    EXPECT_EQ(fixed->productVersionLow, 0x0007FFFFu);
    const auto table = block.translations();
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table[1].language, 0x0409);
    EXPECT_EQ(table[1].codePage, 0x04E4);
    EXPECT_EQ(block.text({W("stringfileinfo"), W("040704b0"), W("COMMENTS")}), zu::WideString(W("gr\u00fcn")));
    EXPECT_FALSE(block.text({W("StringFileInfo"), W("040704E4"), W("Comments")}));
}

TEST(VersionBlock, allTextsOfTheChosenLanguage)
{
    CFileVersionInfo info;
    ASSERT_TRUE(info.load(blockOf(data), 0x0409));
    const WideLiteral expected[] = {W("A"), W("Bc"), W(""),  W("Def"), W("G"), W("H"),
                                    W("I"), W("J"),  W("K"), W("L"),   W("M"), W("N")};
    for (std::size_t which = 0; which < std::size(expected); ++which)
        EXPECT_EQ(info.text(static_cast<CFileVersionInfo::Text>(which)), expected[which]) << which;
    EXPECT_EQ(info.fixedInfo().productVersionHigh, 0x00050006u);
    // Nothing of the language before stays.
    ASSERT_TRUE(info.load(blockOf(data), 0x0807));
    EXPECT_EQ(info.text(CFileVersionInfo::Text::fileVersion), W("1.2"));
    EXPECT_EQ(info.text(CFileVersionInfo::Text::companyName), W(""));
    EXPECT_FALSE(info.load("", 0x0409));
    EXPECT_EQ(info.text(CFileVersionInfo::Text::fileVersion), W(""));
    EXPECT_EQ(info.fixedInfo().signature, 0u);
}

TEST(VersionBlock, choiceOfALanguage)
{
    const std::tuple<const char*, std::uint16_t, std::vector<std::uint16_t>, std::size_t> rows[] = {
        {"the user's before its relatives", 0x0809, {0x0409, 0x0809}, 1},
        {"a relative before neutral", 0x0807, {0x0000, 0x0407}, 1},
        {"neutral", 0x0407, {0x0409, 0x0400, 0x0000}, 2},
        {"any English", 0x0407, {0x040C, 0x0809, 0x0409}, 1},
    };
    for (const auto& [what, user, rowTable, chosen] : rows) {
        std::vector<Translation> table;
        for (std::uint16_t language : rowTable)
            table.push_back({language, static_cast<std::uint16_t>(table.size())});
        EXPECT_EQ(zu::chooseTranslation(table, user).codePage, chosen) << what;
    }
}

TEST(VersionBlock, aBlockCutAnywhereIsNone)
{
    const std::string bytes = blockOf(data);
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        const std::vector<char> cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
        CFileVersionInfo info;
        EXPECT_FALSE(info.load(std::string_view(cut.data(), size), 0x0409)) << size;
        EXPECT_FALSE(VersionBlock(std::string_view(cut.data(), size)).fixedInfo()) << size;
    }
}

} // namespace
