// Lists of the C++ interface.
#include "support/memory.h"
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
    EXPECT_TRUE(list.empty());
    list.push_back(u8"\u00D6l");
    list.push_back(std::string_view("water"));
    list.push_front(L"air");
    EXPECT_EQ(texts(list), (Texts{"air", "\xC3\x96l", "water"}));
    EXPECT_EQ(list.size(), 3u);
    list.sort();
    list.insert_sorted("steam");
    EXPECT_EQ(texts(list), (Texts{"air", "steam", "water", "\xC3\x96l"}));
    EXPECT_EQ(list.index_of("WATER"), std::nullopt);
    EXPECT_EQ(list.index_of("WATER", zu::letter_case::ignore), 2);
    EXPECT_EQ(list.index_of("air"), 0) << "the first is found too";
    list.append(zu::string_list::of("AIR", "air"));
    list.remove_duplicates();
    EXPECT_EQ(texts(list), (Texts{"air", "steam", "water", "\xC3\x96l", "AIR"}));
    list.remove_duplicates(zu::letter_case::ignore);
    EXPECT_EQ(texts(list), (Texts{"air", "steam", "water", "\xC3\x96l"}));
    EXPECT_THROW(list.push_back(nullptr), std::invalid_argument);
    const zu::string_list copy = list.copy();
    list.clear();
    EXPECT_TRUE(list);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(copy.size(), 4u);

    EXPECT_EQ(texts(zu::string_list::split(" pipe;; elbow ; tee", ";")), (Texts{"pipe", "elbow", "tee"}));
    EXPECT_FALSE(zu::string_list::split(";", ";"));
    EXPECT_TRUE(zu::string_list::split(";", ";").empty());
}

TEST(CppList, longStringsAreReadWhole)
{
    const Wide text(2000, W('x'));
    const auto list = zu::string_list::of(text);
    EXPECT_EQ(list.front(), text);
    EXPECT_EQ(str(zu_StrList_getNth(list.get(), 0)).size(), 512u) << "the flat reader cuts";
}

TEST(CppList, pointersOfTheCaller)
{
    int numbers[] = {1, 2, 3};
    zu::list<int> list;
    list.push_back(&numbers[1]);
    list.push_back(&numbers[2]);
    list.push_front(&numbers[0]);
    for (int* const number : list)
        *number *= 10;
    EXPECT_EQ(numbers[0] + numbers[1] + numbers[2], 60);
    const int constant = 4;
    zu::list<const int> constants;
    constants.push_back(&constant);
    EXPECT_EQ(constants.front(), &constant);
}

struct Counted
{
    explicit Counted(int& counter) : count(counter) { ++count; }
    ~Counted() { --count; }
    Counted(const Counted&) = delete;
    int& count;
};

TEST(CppList, ownedElementsAreDeletedOnce)
{
    int alive = 0;
    {
        zu::owning_list<Counted> list;
        list.push_back(std::make_unique<Counted>(alive));
        list.push_front(std::make_unique<Counted>(alive));
        EXPECT_EQ(alive, 2);
        {
            const AllocationLimit limit(0);
            EXPECT_THROW(list.push_back(std::make_unique<Counted>(alive)), std::bad_alloc);
        }
        EXPECT_EQ(alive, 2) << "what could not be inserted is gone";
        zu::owning_list<Counted> other = std::move(list);
        EXPECT_EQ(alive, 2);
        other.clear();
        EXPECT_EQ(alive, 0);
        other.push_back(std::make_unique<Counted>(alive));
    }
    EXPECT_EQ(alive, 0);
}

TEST(CppList, anExceptionReleasesWhatStands)
{
    const auto before = liveBlocks();
    EXPECT_THROW(
        {
            const auto names = zu::string_list::of("a", "b");
            auto fields = zu::fields::of("A", 1);
            for (const zu::wide_view name : names) {
                if (name == W("b"))
                    throw std::runtime_error("b");
                fields.set(name, 2);
            }
        },
        std::runtime_error);
    EXPECT_EQ(liveBlocks(), before);
}

TEST(CppList, integersAndPoints)
{
    zu::int_list numbers;
    numbers.push_back(-5);
    EXPECT_EQ(numbers.copy().front(), -5);
    auto points = zu::point_list::of({{0, 0, 0}, {5, 0, 0}});
    points.push_front({9, 9, 9});
    EXPECT_EQ(points.closest_to({4, 1, 0})->x, 5.0);
    EXPECT_EQ(points.front().z, 9.0);
    EXPECT_EQ(points.copy().size(), 3u);
    points.clear();
    EXPECT_FALSE(points.closest_to({0, 0, 0}));
    const auto vectors = zu::vector_list::of({{0, 0, 1}, {0, 2, 0}});
    EXPECT_EQ(vectors.closest_to({0, 3, 0})->y, 2.0);
}

} // namespace
