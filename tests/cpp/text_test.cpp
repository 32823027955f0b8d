// Text in and out of the C++ interface.
#include "platform/utf8.h"
#include "support/memory.h"
#include "support/wide.h"
#include "zu.hpp"
#include "zu_Str.h"

#include <random>

namespace {

using namespace zutest;
using namespace std::string_literals;

TEST(CppText, utf8AndBack)
{
    const struct
    {
        const char* what;
        std::string bytes;
        Wide units;
    } rows[] = {
        {"nothing", "", W("")},
        {"ASCII", "pipe", W("pipe")},
        {"two bytes", "K\xC3\xBChl", W("K\u00FChl")},
        {"three bytes", "\xE2\x82\xAC", W("\u20AC")},
        {"four bytes", "\xF0\x9F\x98\x80!", {zu_wchar(0xD83D), zu_wchar(0xDE00), W('!')}},
        {"the last character", "\xF4\x8F\xBF\xBF", {zu_wchar(0xDBFF), zu_wchar(0xDFFF)}},
        {"a zero", "a\0b"s, {W('a'), zu_wchar(0), W('b')}},
        {"a lone continuation", "a\x80z", {W('a'), zu_wchar(0xDC80), W('z')}},
        {"overlong", "\xC0\x80", {zu_wchar(0xDCC0), zu_wchar(0xDC80)}},
        {"overlong in three", "\xE0\x9F\xBF", {zu_wchar(0xDCE0), zu_wchar(0xDC9F), zu_wchar(0xDCBF)}},
        {"cut short", "\xE2\x82", {zu_wchar(0xDCE2), zu_wchar(0xDC82)}},
        {"cut short by a letter", "\xE2\x82x", {zu_wchar(0xDCE2), zu_wchar(0xDC82), W('x')}},
        {"an encoded surrogate", "\xED\xA0\x80", {zu_wchar(0xDCED), zu_wchar(0xDCA0), zu_wchar(0xDC80)}},
        {"too large", "\xF4\x90\x80\x80", {zu_wchar(0xDCF4), zu_wchar(0xDC90), zu_wchar(0xDC80), zu_wchar(0xDC80)}},
        {"no first byte", "\xFF", {zu_wchar(0xDCFF)}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(zu::to_wide(row.bytes), row.units) << row.what;
        EXPECT_EQ(zu::to_utf8(row.units), row.bytes) << row.what;
        const auto u8 = zu::to_u8string(row.units);
        EXPECT_EQ(std::string(u8.begin(), u8.end()), row.bytes) << row.what;
        EXPECT_EQ(zu::to_wide(zu::to_wstring(row.units)), row.units) << row.what;
    }
    // The other lone surrogates are written as three bytes, which come back as the escapes of the same bytes.
    const Wide lone{zu_wchar(0xDE00), zu_wchar(0xD83D), W('x')};
    EXPECT_EQ(zu::to_utf8(lone), "\xED\xB8\x80\xED\xA0\xBDx");
    EXPECT_EQ(zu::to_utf8(zu::to_wide(zu::to_utf8(lone))), zu::to_utf8(lone));
    EXPECT_EQ(zu::to_wide(std::u32string{0x1F600, 0x110000}),
              (Wide{zu_wchar(0xD83D), zu_wchar(0xDE00), zu_wchar(0xFFFD)}));
}

TEST(CppText, convertsAsTheLibraryDoes)
{
    std::mt19937 random(7);
    const unsigned char bytes[] = {'a', 0x80, 0xBF, 0xC3, 0xE0, 0xA0, 0xE2, 0xED, 0xF0, 0x90, 0xF4, 0xFF};
    const zu_wchar units[] = {W('a'), 0x7F,   0x80,   0x7FF,  0x800,  0xD7FF, 0xD800,
                              0xDBFF, 0xDC00, 0xDC80, 0xDCFF, 0xDFFF, 0xFFFF};
    for (int round = 0; round < 20'000; ++round) {
        std::string byteText;
        Wide wideText;
        for (auto count = random() % 9; count > 0; --count) {
            byteText += static_cast<char>(bytes[random() % std::size(bytes)]);
            wideText += units[random() % std::size(units)];
        }
        const auto decoded = zu::utf8::decode(byteText);
        ASSERT_EQ(zu::to_wide(byteText), Wide(decoded.begin(), decoded.end()));
        ASSERT_EQ(zu::to_utf8(zu::to_wide(byteText)), byteText);
        const auto encoded = zu::utf8::encode(wideText);
        ASSERT_EQ(zu::to_utf8(wideText), std::string(encoded.begin(), encoded.end()));
    }
}

Wide seen(const zu::text& argument)
{
    return str(argument.c_str());
}

TEST(CppText, argumentsOfAnyKind)
{
    const Wide cool = W("k\u00FChl");
    EXPECT_EQ(seen("k\xC3\xBChl"), cool);
    EXPECT_EQ(seen(u8"k\u00FChl"), cool);
    EXPECT_EQ(seen(u"k\u00FChl"), cool);
    EXPECT_EQ(seen(L"k\u00FChl"), cool);
    EXPECT_EQ(seen("k\xC3\xBChl"s), cool);
    EXPECT_EQ(seen(u8"k\u00FChl"s), cool);
    EXPECT_EQ(seen(u"k\u00FChl"s), cool);
    EXPECT_EQ(seen(L"k\u00FChl"s), cool);
    // Views need not be terminated.
    EXPECT_EQ(seen(std::string_view("k\xC3\xBChler").substr(0, 5)), cool);
    EXPECT_EQ(seen(std::u8string_view(u8"k\u00FChler").substr(0, 5)), cool);
    EXPECT_EQ(seen(std::u16string_view(u"k\u00FChler").substr(0, 4)), cool);
    EXPECT_EQ(seen(std::wstring_view(L"k\u00FChler").substr(0, 4)), cool);
    EXPECT_EQ(seen(zu::owned_text(zu::adopt, zu_Str_dup(cool.c_str()))), cool);
    EXPECT_EQ(seen(nullptr), W("<null>"));
    EXPECT_EQ(seen(static_cast<const char*>(nullptr)), W("<null>"));
    EXPECT_EQ(zu::text(nullptr).view(), W(""));
    EXPECT_EQ(seen(""), W(""));
    EXPECT_EQ(seen("a\0b"s), W("a")) << "a text ends at its first zero";
    EXPECT_EQ(seen(L"\U0001F600"), (Wide{zu_wchar(0xD83D), zu_wchar(0xDE00)})) << "whatever wchar_t is";
    EXPECT_EQ(zu::to_wstring(Wide{zu_wchar(0xD83D), zu_wchar(0xDE00)}), L"\U0001F600");
    // What is wide and terminated already is not copied.
    EXPECT_EQ(zu::text(cool).c_str(), cool.c_str());
    EXPECT_EQ(zu::text(cool.c_str()).c_str(), cool.c_str());
}

TEST(CppText, ownedTexts)
{
    const auto before = liveBlocks();
    {
        zu::owned_text text(zu::adopt, zu_Str_dup(W("K\u00FChl")));
        EXPECT_EQ(text.utf8(), "K\xC3\xBChl");
        EXPECT_EQ(text.wide(), W("K\u00FChl"));
        const zu::owned_text nothing;
        EXPECT_FALSE(nothing);
        EXPECT_EQ(nothing.view(), W(""));
        text = zu::string_list::of("a", "b").join(", ");
        EXPECT_EQ(text.view(), W("a, b"));
        EXPECT_FALSE(zu::string_list().join(", "));
    }
    EXPECT_EQ(liveBlocks(), before);
}

} // namespace
