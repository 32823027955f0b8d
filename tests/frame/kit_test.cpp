// The text kit, against the C runtime as a second opinion.
#include "frame/format.h"
#include "frame/text.h"
#include "platform/utf8.h"
#include "support/memory.h"
#include "support/wide.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using namespace zutest;
namespace text = zu::text;

std::string narrow(zu::WideView wide)
{
    const zu::ByteString bytes = zu::utf8::encode(wide);
    return std::string(bytes.begin(), bytes.end());
}

// A conversion with random flags, width and precision.
std::string randomConversion(std::mt19937& random, const char* types, bool unsignedType)
{
    std::string pattern = "%";
    for (char flag : std::string(unsignedType ? "-0" : "-+ 0")) {
        if (random() % 3 == 0)
            pattern += flag;
    }
    if (random() % 2 == 0)
        pattern += std::to_string(random() % 20 + 1);
    if (random() % 2 == 0)
        pattern.append(".").append(std::to_string(random() % 12));
    const std::size_t count = std::char_traits<char>::length(types);
    pattern += types[random() % count];
    return pattern;
}

template <class Value>
std::string byRuntime(const std::string& pattern, Value value)
{
    char buffer[512];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(buffer, sizeof buffer, pattern.c_str(), value);
#pragma GCC diagnostic pop
    return buffer;
}

TEST(Format, agreesWithTheRuntime)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    for (int round = 0; round < 20'000; ++round) {
        const auto integer = static_cast<int>(random() >> (random() % 32)) * (random() % 2 == 0 ? 1 : -1);
        const double real = mantissa(random) * std::pow(10.0, static_cast<int>(random() % 40) - 20);
        const std::string forInt = randomConversion(random, "di", false);
        const std::string forUnsigned = randomConversion(random, "uxX", true);
        const std::string forReal = randomConversion(random, "f", false);
        ASSERT_EQ(narrow(zu::formatted(widen(forInt), integer)), byRuntime(forInt, integer))
            << forInt << " " << integer;
        ASSERT_EQ(narrow(zu::formatted(widen(forUnsigned), integer)),
                  byRuntime(forUnsigned, static_cast<unsigned>(integer)))
            << forUnsigned << " " << integer;
        ASSERT_EQ(narrow(zu::formatted(widen(forReal), real)), byRuntime(forReal, real)) << forReal << " " << real;
    }
}

TEST(Format, textsCharactersAndLengthMarks)
{
    const std::tuple<WideLiteral, zu::WideString> rows[] = {
        {W("a = b"), zu::formatted(W("%s = %s"), W("a"), W("b"))},
        {W("ab   |   ab|abc"), zu::formatted(W("%-5s|%5s|%.3s"), W("ab"), W("ab"), W("abcdef"))},
        {W("x% y"), zu::formatted(W("%c%% %c"), W('x'), W('y'))},
        {W("01.02.65535.-1"), zu::formatted(W("%02hd.%02hd.%hu.%hd"), 1, 65538, 65535, 65535)},
        {W("-5 7 0x1f"), zu::formatted(W("%ld %*d %#x"), -5, 0, 7, 31)},
        {W("(null)"), zu::formatted(W("%s"), static_cast<const zu_wchar*>(nullptr))},
        {W("inf -inf nan"), zu::formatted(W("%f %f %f"), INFINITY, -INFINITY, std::abs(NAN))},
    };
    for (const auto& [after, result] : rows)
        EXPECT_EQ(Wide(result), Wide(after));
}

TEST(Format, aPatternFromOutsideReadsNothingThatIsNotThere)
{
    EXPECT_EQ(narrow(zu::formatted(W("%s %d"))), "%s %d");
    EXPECT_EQ(narrow(zu::formatted(W("%d %s"), W("text"), 5)), "%d %s") << "wrong kinds";
    EXPECT_EQ(narrow(zu::formatted(W("%n%q%-"), 1)), "%n%q%-");
    EXPECT_LE(zu::formatted(W("%999999999d"), 1).size(), 5000u);
}

TEST(Text, numbersAgreeWithTheRuntime)
{
    std::mt19937 random(2);
    const std::string alphabet = "0123456789+-.eE \tx";
    for (int round = 0; round < 100'000; ++round) {
        std::string number;
        for (std::size_t length = random() % 12; length > 0; --length)
            number += alphabet[random() % alphabet.size()];
        const double expected = std::strtod(number.c_str(), nullptr);
        ASSERT_EQ(text::toDouble(widen(number)), expected) << number;
        const long long integer =
            std::clamp<long long>(std::strtoll(number.c_str(), nullptr, 10), INT32_MIN, INT32_MAX);
        ASSERT_EQ(text::toInt(widen(number)), integer) << number;
    }
    const std::tuple<const char*, double> rows[] = {{"1e400", HUGE_VAL},
                                                    {"0.0001e-330", 0.0},
                                                    {"", 0.0},
                                                    {"inf", HUGE_VAL},
                                                    {"1e9223372036854775807", HUGE_VAL},
                                                    {"0.01e-9223372036854775808", 0.0},
                                                    {"0x1Fz", 31.0},
                                                    {"-0X.8", -0.5},
                                                    {"0xg", 0.0},
                                                    {"0x1p-2", 0.25},
                                                    {"0x1p-9999", 0.0}};
    for (const auto& [rowText, value] : rows)
        EXPECT_EQ(text::toDouble(widen(rowText)), value) << rowText;
    EXPECT_EQ(text::toInt(Wide(10'000, W('9'))), INT32_MAX);
    EXPECT_EQ(text::toDouble(Wide(10'000, W('9'))), HUGE_VAL);
}

TEST(Utf8, everyCharacterAndWhatIsNone)
{
    for (std::uint32_t codePoint = 0; codePoint < 0x110000; codePoint += codePoint < 0x1000 ? 1 : 61) {
        if (codePoint >= 0xD800 && codePoint < 0xE000)
            continue;
        Wide text;
        if (codePoint >= 0x10000)
            text += static_cast<zu_wchar>(0xD800 + ((codePoint - 0x10000) >> 10));
        text += static_cast<zu_wchar>(codePoint < 0x10000 ? codePoint : 0xDC00 + (codePoint & 0x3FF));
        const zu::ByteString bytes = zu::utf8::encode(text);
        EXPECT_EQ(bytes.size(), codePoint < 0x80 ? 1u : codePoint < 0x800 ? 2u : codePoint < 0x10000 ? 3u : 4u);
        ASSERT_EQ(Wide(zu::utf8::decode(bytes)), text) << codePoint;
    }
    const std::tuple<const char*, std::string, WideLiteral> rows[] = {
        {"overlong", "\xC0\x80", W("\xDCC0\xDC80")},
        {"encoded surrogate", "\xED\xA0\x80", W("\xDCED\xDCA0\xDC80")},
        {"beyond the last", "\xF4\x90\x80\x80", W("\xDCF4\xDC90\xDC80\xDC80")},
        {"cut short", "a\xE2\x82", W("a\xDCE2\xDC82")},
    };
    for (const auto& [what, rowBytes, rowText] : rows)
        EXPECT_EQ(Wide(zu::utf8::decode(rowBytes)), Wide(rowText)) << what;
    EXPECT_EQ(narrow(W("\xD801x\xDC01")), "\xED\xA0\x81x\xED\xB0\x81") << "other lone surrogates: three bytes";
}

} // namespace
