// Text in and out of the C++ interface.
#include "platform/utf8.h"
#include "support/wide.h"
#include "zu.hpp"
#include "zu_Str.h"

#include <random>

namespace {

using namespace zutest;
using namespace std::string_literals;

TEST(CppText, whatIsNoCharacterComesBack)
{
    const Wide pair{zu_wchar(0xD83D), zu_wchar(0xDE00)};
    EXPECT_EQ(zu::to_wide("\xF0\x9F\x98\x80"), pair);
    EXPECT_EQ(zu::to_wide(zu::to_wstring(pair)), pair);
    EXPECT_EQ(zu::to_wide("a\x80z"), (Wide{W('a'), zu_wchar(0xDC80), W('z')}));
    // The other lone surrogates are written as three bytes, which come back as the escapes of the same bytes.
    const Wide lone{zu_wchar(0xDE00), zu_wchar(0xD83D), W('x')};
    EXPECT_EQ(zu::to_utf8(lone), "\xED\xB8\x80\xED\xA0\xBDx");
    EXPECT_EQ(zu::to_utf8(zu::to_wide(zu::to_utf8(lone))), zu::to_utf8(lone));
    EXPECT_EQ(zu::to_wide(std::u32string{0x1F600, 0x110000}), pair + Wide{zu_wchar(0xFFFD)});
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
    const Wide all[] = {
        seen("k\xC3\xBChl"),
        seen(u"k\u00FChl"s),
        seen(L"k\u00FChl"s),
        // Views need not be terminated.
        seen(std::string_view("k\xC3\xBChler").substr(0, 5)),
        seen(std::u8string_view(u8"k\u00FChler").substr(0, 5)),
        seen(std::u16string_view(u"k\u00FChler").substr(0, 4)),
        seen(std::wstring_view(L"k\u00FChler").substr(0, 4)),
    };
    for (const Wide& text : all)
        EXPECT_EQ(text, cool);
    EXPECT_EQ(seen(zu::owned_text(zu::adopt, zu_Str_dup(cool.c_str()))), cool);
    EXPECT_EQ(seen(static_cast<const char*>(nullptr)), W("<null>"));
    EXPECT_EQ(seen("a\0b"s), W("a")) << "a text ends at its first zero";
    EXPECT_EQ(seen(L"\U0001F600"), (Wide{zu_wchar(0xD83D), zu_wchar(0xDE00)})) << "whatever wchar_t is";
    // What is wide and terminated already is not copied.
    EXPECT_EQ(zu::text(cool).c_str(), cool.c_str());
}

} // namespace
