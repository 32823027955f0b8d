#include "support/wide.h"
#include "zu_Base36.h"

#include <cmath>
#include <limits>
#include <random>

namespace {

using namespace zutest;
using testing::PrintToString;

TEST(Base36, values)
{
    const std::tuple<WideLiteral, double> rows[] = {
        {W("00A"), 10}, {W("zz"), -37}, {W(""), 0}, {nullptr, 0}, {W("1\u0416"), 35},
    };
    for (const auto& [digits, value] : rows)
        EXPECT_EQ(zu_Base36_toBase10(digits), value) << PrintToString(str(digits));
    EXPECT_EQ(zu_Base36_toBase10(Wide(1000, W('Z')).c_str()), std::numeric_limits<double>::infinity());
}

TEST(Base36, whatHasNoText)
{
    EXPECT_EQ(str(zu_Base36_fromBase10(-0.0)), W("0"));
    EXPECT_EQ(str(zu_Base36_fromBase10(ZU_BASE36_MAX)), W("1000000000"));
    for (const double value : {std::nextafter(ZU_BASE36_MAX, INFINITY), -1.0, static_cast<double>(NAN)})
        EXPECT_EQ(str(zu_Base36_fromBase10(value)), W("")) << value;
}

// The conversion by a table of powers and doubles, step by step.
Wide byPowers(double value)
{
    const WideLiteral digits = W("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    double power[10] = {1};
    for (int k = 1; k < 10; ++k)
        power[k] = power[k - 1] * 36;
    int n = 1;
    for (int k = 8; k >= 0 && n == 1; --k)
        n = value > power[k] ? k + 1 : 1;
    Wide text;
    for (; n >= 1; --n) {
        if (power[n - 1] < value && value < power[n]) {
            const double digit = std::floor(value / power[n - 1]);
            text += digits[static_cast<int>(digit)];
            value -= digit * power[n - 1];
        } else if (value == power[n]) {
            return text + W("1") + Wide(static_cast<std::size_t>(n), W('0'));
        } else if (value == power[n - 1]) {
            return text + W("1") + Wide(static_cast<std::size_t>(n - 1), W('0'));
        } else {
            text += n < 2 ? digits[static_cast<int>(value)] : W('0');
        }
    }
    return text;
}

TEST(Base36, agreesWithTheTableOfPowers)
{
    std::mt19937_64 random(2);
    for (int round = 0; round < 20'000; ++round) {
        const uint64_t magnitude = uint64_t{1} << (random() % 47);
        double value = std::min(static_cast<double>(random() % magnitude), ZU_BASE36_MAX);
        if (round % 4 == 0)
            value = std::pow(36.0, static_cast<double>(random() % 9)) * static_cast<double>(1 + random() % 36);
        else if (round % 4 == 1)
            value += 0.25;
        const Wide text = str(zu_Base36_fromBase10(value));
        ASSERT_EQ(text, byPowers(value)) << value;
        ASSERT_EQ(zu_Base36_toBase10(text.c_str()), std::floor(value));
    }
}

TEST(Base36, comparingAndCounting)
{
    EXPECT_EQ(zu_Base36_compare(W("10"), W("Z")), 1);
    EXPECT_EQ(zu_Base36_compare(W("00A"), W("A")), 0);
    const std::tuple<WideLiteral, uint32_t, WideLiteral> rows[] = {
        {W("009"), 1, W("A")},
        {W("zz"), 1, W("")},
        {W("1000000000"), 1, W("")},
        {W("0"), UINT32_MAX, W("1Z141Z3")},
    };
    for (const auto& [before, step, after] : rows) {
        WideBuffer<11> text{before};
        EXPECT_EQ(zu_Base36_increment(text, step), 1);
        EXPECT_EQ(text.str(), after) << PrintToString(str(before));
    }
    EXPECT_EQ(zu_Base36_increment(nullptr, 1), 0);
}

} // namespace
