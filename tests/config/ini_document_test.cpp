#include "config/ini_document.h"
#include "platform/files.h"
#include "support/wide.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace zutest;
using namespace std::string_literals;
using zu::ByteString;
using zu::IniDocument;

IniDocument parsed(std::string_view bytes)
{
    return IniDocument(ByteString(bytes));
}

// What a change gives, as a text that shows refusal too.
std::string shown(const std::optional<ByteString>& changed)
{
    return changed ? std::string(*changed) : "<refused>";
}

std::string ascii(WideView text)
{
    return std::string(text.begin(), text.end());
}

TEST(IniDocument, keepsEntriesInOrderAndTheFirstOfSeveralGroups)
{
    const IniDocument document =
        parsed("k=outside any group\n[ a ] rest\n\t KV = 1\n;x=1\n=nameless\nkv=2\n[b\n[A]\nm=3");
    ASSERT_EQ(document.groupCount(), 2u);
    EXPECT_EQ(ascii(document.groupName(0)), "a");
    EXPECT_EQ(ascii(document.groupName(1)), "b");
    ASSERT_EQ(document.entryCount(0), 3u);
    EXPECT_EQ(ascii(document.entry(0, 0).key), "KV");
    EXPECT_EQ(ascii(document.entry(0, 1).value), "nameless");
    EXPECT_EQ(document.findGroup(W("B")), 1u);
    EXPECT_EQ(document.value(W("A"), W("m")), std::nullopt);
    EXPECT_EQ(shown(document.withoutGroup(W("A"))), "k=outside any group\n[b\n");
}

TEST(IniDocument, setsValues)
{
    const std::tuple<const char*, std::string, WideLiteral, WideLiteral, WideLiteral, std::string> rows[] = {
        {"the same value", "[a]\n k  = 1 \r\n", W("a"), W("k"), W(" 1"), "[a]\n k  = 1 \r\n"},
        {"behind the last entry", "[a]\nk=v\n\n; of b\n[b]\n", W("a"), W("n"), W("1"),
         "[a]\nk=v\nn=1\n\n; of b\n[b]\n"},
        {"with a mark", "\xEF\xBB\xBF[a]\nk=v\n", W("a"), W("k"), W("\u0416"), "\xEF\xBB\xBF[a]\nk=\xD0\x96\n"},
        {"beside bytes that are no text", "\xFE\n[a]\n\xC3=\0\nk=v\xF5\n"s, W("a"), W("k"), W("1"),
         "\xFE\n[a]\n\xC3=\0\nk=1\n"s},
        {"key like a header", "[a]\n", W("a"), W("[k"), W("1"), "<refused>"},
        {"group with ]", "", W("a]"), W("k"), W("1"), "<refused>"},
        {"a file in 16-bit units", "\xFF\xFE[\0a\0]\0"s, W("a"), W("k"), W("1"), "<refused>"},
    };
    for (const auto& [what, before, group, key, value, after] : rows)
        EXPECT_EQ(shown(parsed(before).withValue(group, key, value)), after) << what;
    const ByteString end(zu::platform::lineEnd());
    EXPECT_EQ(parsed("x").withValue(W("a"), W("k"), W("1")), "x" + end + end + "[a]" + end + "k=1" + end);
    // What the text files of a system cannot express is refused; elsewhere it is UTF-8.
    ByteString probe;
    const bool expressible = zu::platform::encodeText(probe, W("\u0416"));
    EXPECT_EQ(shown(parsed("[a]\n").withValue(W("a"), W("k"), W("\u0416"))),
              expressible ? "[a]\nk=\xD0\x96\n" : "<refused>");
}

TEST(IniDocument, addsRemovesAndEmptiesGroups)
{
    const std::string_view before = "top\r\n[a]\r\nk=1\r\n;c\r\n\r\nK=2\r\nm=3\r\n[b]\r\nk=4";
    EXPECT_EQ(shown(parsed(before).withoutValue(W("A"), W("k"))), "top\r\n[a]\r\n;c\r\n\r\nm=3\r\n[b]\r\nk=4");
    EXPECT_EQ(shown(parsed(before).withoutEntries(W("A"))), "top\r\n[a]\r\n;c\r\n\r\n[b]\r\nk=4");
    EXPECT_EQ(shown(parsed(before).withoutGroup(W("A"))), "top\r\n[b]\r\nk=4");
    EXPECT_EQ(shown(parsed(before).withGroup(W("B"))), before);
    EXPECT_EQ(shown(parsed(before).withGroup(W("n"))), std::string(before) + "\r\n\r\n[n]\r\n");
}

// Random files of awkward pieces against the rules written down plainly.
struct Model
{
    std::vector<std::string> lines; // with their line ends

    explicit Model(std::string_view bytes)
    {
        while (!bytes.empty()) {
            const std::size_t length = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
            lines.emplace_back(bytes.substr(0, length));
            bytes.remove_prefix(length);
        }
    }
    static std::string trimmed(std::string text)
    {
        text.erase(0, text.find_first_not_of(" \t\r\n"));
        text.erase(text.find_last_not_of(" \t\r\n") + 1);
        return text;
    }
    static std::string lower(std::string text)
    {
        for (char& unit : text)
            unit = static_cast<char>(std::tolower(static_cast<unsigned char>(unit)));
        return text;
    }
    static bool isHeader(const std::string& line) { return trimmed(line).starts_with('['); }
    static std::string nameOf(const std::string& line)
    {
        const std::string text = trimmed(line).substr(1);
        return lower(trimmed(text.substr(0, text.find(']'))));
    }
    static std::string keyOf(const std::string& line) { return trimmed(line.substr(0, line.find('='))); }
    static std::string valueOf(const std::string& line)
    {
        const std::size_t from = line.find('=');
        return from == std::string::npos
                   ? ""
                   : trimmed(line.substr(std::min(line.find_first_not_of("= \t\r\n", from), line.size())));
    }
    // The line of the first entry of that key in the first group of that name; the number of lines without one.
    std::size_t find(const std::string& group, const std::string& key) const
    {
        std::size_t index = 0;
        while (index < lines.size() && !(isHeader(lines[index]) && nameOf(lines[index]) == group))
            ++index;
        for (++index; index < lines.size() && !isHeader(lines[index]); ++index) {
            const std::string text = trimmed(lines[index]);
            if (!text.empty() && text[0] != ';' && lower(keyOf(text)) == key && (keyOf(text) + valueOf(text)) != "")
                return index;
        }
        return lines.size();
    }
};

TEST(IniDocument, agreesWithThePlainRulesOnRandomFiles)
{
    std::mt19937 random(20240611);
    const char* const pieces[] = {"[a]", "[B ]", "[", "]",  "k",  "K",    "m",  "=",     " = ",  " ",
                                  "\t",  ";",    "v", "\n", "\n", "\r\n", "\r", "[a]\n", "k=v\n"};
    for (int round = 0; round < 3000; ++round) {
        std::string bytes;
        for (auto left = random() % 40; left > 0; --left)
            bytes += pieces[random() % std::size(pieces)];
        const Model model(bytes);
        const IniDocument document = parsed(bytes);
        for (const std::string group : {"a", "b", ""}) {
            for (const std::string key : {"k", "m", "kv"}) {
                const std::size_t line = model.find(group, key);
                const auto value = document.value(widen(group), widen(key));
                ASSERT_EQ(value.has_value(), line < model.lines.size()) << bytes;
                if (!value)
                    continue;
                ASSERT_EQ(ascii(*value), Model::valueOf(model.lines[line])) << bytes;
                // Setting it changes the line's text and nothing else.
                Model changed(bytes);
                std::string& text = changed.lines[line];
                const std::string end = text.ends_with("\r\n") ? "\r\n" : text.ends_with("\n") ? "\n" : "";
                text = Model::keyOf(text) + "=set" + end;
                std::string wanted;
                for (const std::string& each : changed.lines)
                    wanted += each;
                ASSERT_EQ(shown(document.withValue(widen(group), widen(key), W("set"))), wanted) << bytes;
            }
        }
    }
}

TEST(IniDocument, theFuzzCorpusHolds)
{
    int replayed = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ZU_INI_CORPUS)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++replayed;
    }
    EXPECT_GE(replayed, 10);
}

TEST(IniDocument, isLinearInLinesAndTheirLength)
{
    // A line of 10 MB, and a quarter of a million entries in as many groups and in one; quadratic work would not end.
    std::string bytes = "[long]\nk=" + std::string(10'000'000, 'x') + "\n[many]\n";
    for (int index = 0; index < 250'000; ++index)
        bytes += "key" + std::to_string(index) + "=1\n";
    for (int index = 0; index < 250'000; ++index)
        bytes += "[g" + std::to_string(index) + "]\nk=" + std::to_string(index) + "\n";
    const IniDocument document = parsed(bytes);
    EXPECT_EQ(document.groupCount(), 250'002u);
    EXPECT_EQ(document.value(W("LONG"), W("k"))->size(), 10'000'000u);
    EXPECT_EQ(document.value(W("many"), W("KEY249999")), zu::WideView(W("1")));
    EXPECT_EQ(document.value(W("g249999"), W("k")), zu::WideView(W("249999")));
    const auto changed = document.withValue(W("g0"), W("k"), W("set"));
    ASSERT_TRUE(changed);
    const std::size_t at = bytes.find("[g0]\nk=0\n") + 7;
    EXPECT_TRUE(*changed == ByteString(bytes.substr(0, at) + "set" + bytes.substr(at + 1)));
    const auto emptied = document.withoutEntries(W("many"));
    ASSERT_TRUE(emptied);
    EXPECT_EQ(emptied->size(), bytes.size() - (bytes.find("[g0]") - bytes.find("key0")));
}

} // namespace
