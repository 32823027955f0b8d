// Lists of the C++ interface.
#include "support/wide.h"
#include "zu.hpp"

namespace {

using namespace zutest;
using Texts = std::vector<std::string>;

Texts texts(const zu::string_list& list)
{
    Texts all;
    for (const zu::wide_view text : list)
        all.push_back(zu::to_utf8(text));
    return all;
}

TEST(CppList, strings)
{
    zu::string_list list;
    list.push_back(u8"\u00D6l");
    list.push_back(std::string_view("water"));
    list.push_front(L"air");
    list.sort();
    list.insert_sorted("steam");
    EXPECT_EQ(texts(list), (Texts{"air", "steam", "water", "\xC3\x96l"}));
    EXPECT_EQ(list.index_of("WATER"), std::nullopt);
    EXPECT_EQ(list.index_of("WATER", zu::letter_case::ignore), 2);
    list.append(zu::string_list::of("AIR", "air"));
    list.remove_duplicates();
    list.remove_duplicates(zu::letter_case::ignore);
    EXPECT_EQ(texts(list), (Texts{"air", "steam", "water", "\xC3\x96l"}));
    EXPECT_THROW(list.push_back(nullptr), std::invalid_argument);

    EXPECT_EQ(texts(zu::string_list::split(" pipe;; elbow ; tee", ";")), (Texts{"pipe", "elbow", "tee"}));
    EXPECT_FALSE(zu::string_list::split(";", ";"));
}

TEST(CppList, longStringsAreReadWhole)
{
    const Wide text(2000, W('x'));
    const auto list = zu::string_list::of(text);
    EXPECT_EQ(list.front(), text);
}

} // namespace
