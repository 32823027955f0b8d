// Wide text in tests.
#pragma once

#include "zu_Api.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#define W(text) ZU_W(text)

namespace zutest {

using Wide = std::basic_string<zu_wchar>;
using WideView = std::basic_string_view<zu_wchar>;
using WideLiteral = const zu_wchar*;

// A terminated text as a value that compares and prints; null shows as such.
inline Wide str(const zu_wchar* text)
{
    return text == nullptr ? Wide(W("<null>")) : Wide(text);
}

inline Wide widen(std::string_view ascii)
{
    return Wide(ascii.begin(), ascii.end());
}

// Whether calls gave one and the same result: what they answer to arguments that they cannot use.
template <class T>
testing::AssertionResult allAre(const T& wanted, const std::vector<T>& results)
{
    for (std::size_t index = 0; index < results.size(); ++index) {
        if (results[index] != wanted)
            return testing::AssertionFailure() << "call " << index << ": " << testing::PrintToString(results[index]);
    }
    return testing::AssertionSuccess();
}
inline testing::AssertionResult allNull(const std::vector<const void*>& results)
{
    return allAre<const void*>(nullptr, results);
}

// A caller's buffer for Size units, with a fence behind it that every check looks at.
template <std::size_t Size>
class WideBuffer
{
public:
    WideBuffer() { units[Size] = fence; }
    explicit WideBuffer(WideView text) : WideBuffer() { *this = text; }
    ~WideBuffer() { EXPECT_EQ(units[Size], fence) << "written past the buffer's end"; }
    WideBuffer(const WideBuffer&) = delete;
    WideBuffer& operator=(WideView text)
    {
        EXPECT_LT(text.size(), Size);
        units[text.copy(units, Size - 1)] = 0;
        return *this;
    }

    operator zu_wchar*() { return units; }
    Wide str() const { return Wide(units); }

private:
    static constexpr zu_wchar fence = 0x7E7E;
    zu_wchar units[Size + 1] = {};
};

} // namespace zutest
