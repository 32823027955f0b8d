// What all owners share: one release, whatever is moved where; failures of memory; ranges that standard algorithms
// take.
#include "support/memory.h"
#include "support/wide.h"
#include "zu.hpp"

#include <algorithm>
#include <numeric>

namespace {

using namespace zutest;

// A full owner of each kind.
template <class Owner>
Owner filled();
template <>
zu::string_list filled()
{
    return zu::string_list::of("a", "b");
}
template <>
zu::int_list filled()
{
    zu::int_list list;
    list.push_back(7);
    return list;
}
template <>
zu::point_list filled()
{
    return zu::point_list::of({{1, 2, 3}});
}
template <>
zu::vector_list filled()
{
    return zu::vector_list::of({{1, 2, 3}});
}
template <>
zu::owning_list<std::string> filled()
{
    zu::owning_list<std::string> list;
    list.push_back(std::make_unique<std::string>("an element of a good length"));
    return list;
}
template <>
zu::fields filled()
{
    return zu::fields::of("A", "x", "B", zu::fields::of("C", 1), "D", zu::string_list::of("y"));
}
template <>
zu::row filled()
{
    return zu::row::of("A", "x");
}
template <>
zu::owning_tree<std::string> filled()
{
    zu::owning_tree<std::string> tree;
    tree.root().add("a", std::make_unique<std::string>("data of a good length"));
    return tree;
}
template <>
zu::ntuple filled()
{
    return zu::ntuple(3);
}
template <>
zu::matrix filled()
{
    return {2, 3};
}
template <>
zu::rotation filled()
{
    return {};
}
template <>
zu::transform filled()
{
    return {};
}
template <>
zu::owned_text filled()
{
    return filled<zu::string_list>().join(",");
}

template <class Owner>
class CppOwner : public testing::Test
{
};
using Owners = testing::Types<zu::string_list, zu::int_list, zu::point_list, zu::vector_list,
                              zu::owning_list<std::string>, zu::fields, zu::row, zu::owning_tree<std::string>,
                              zu::ntuple, zu::matrix, zu::rotation, zu::transform, zu::owned_text>;
TYPED_TEST_SUITE(CppOwner, Owners);

TYPED_TEST(CppOwner, releasesOnce)
{
    static_assert(!std::is_copy_constructible_v<TypeParam> && !std::is_copy_assignable_v<TypeParam>);
    static_assert(std::is_nothrow_move_constructible_v<TypeParam> && std::is_nothrow_move_assignable_v<TypeParam>);
    static_assert(!std::is_convertible_v<decltype(std::declval<TypeParam>().get()), TypeParam>, "adoption is explicit");
    const auto before = liveBlocks();
    {
        TypeParam first = filled<TypeParam>();
        auto* const record = first.get();
        EXPECT_TRUE(first);
        TypeParam second(std::move(first));
        EXPECT_FALSE(first);
        EXPECT_EQ(second.get(), record);

        first = filled<TypeParam>();
        first = std::move(second); // the old one goes
        EXPECT_EQ(first.get(), record);
        EXPECT_FALSE(second);

        TypeParam& same = first;
        first = std::move(same);
        EXPECT_EQ(first.get(), record) << "moved to itself";

        auto* const released = first.release();
        EXPECT_EQ(released, record);
        EXPECT_FALSE(first);
        const TypeParam third(zu::adopt, released);
        EXPECT_EQ(third.get(), record);

        TypeParam fourth = filled<TypeParam>();
        fourth.reset();
        EXPECT_FALSE(fourth);
        EXPECT_GT(liveBlocks(), before);
    }
    EXPECT_EQ(liveBlocks(), before);
}

TYPED_TEST(CppOwner, throwsWithoutMemory)
{
    bool threw = false;
    sweepAllocations(
        [&] {
            threw = false;
            try {
                filled<TypeParam>();
            } catch (const std::bad_alloc&) {
                threw = true;
            }
        },
        // An owned text may be nothing instead: the flat call cannot say why.
        [&] { EXPECT_TRUE(threw || (std::is_same_v<TypeParam, zu::owned_text>)); });
}

// Ranges.

static_assert(std::bidirectional_iterator<zu::string_list::iterator>);
static_assert(std::bidirectional_iterator<zu::list<int>::iterator>);
static_assert(std::bidirectional_iterator<zu::int_list::iterator>);
static_assert(std::bidirectional_iterator<zu::point_list::iterator>);
static_assert(std::bidirectional_iterator<zu::fields::iterator>);
static_assert(std::bidirectional_iterator<zu::row::iterator>);
static_assert(std::forward_iterator<zu::tree<int>::iterator>);
static_assert(std::input_iterator<zu::row_range::iterator>);
static_assert(std::ranges::view<zu::strings_view> && std::ranges::borrowed_range<zu::strings_view>);
static_assert(std::ranges::sized_range<zu::string_list> && std::ranges::common_range<zu::string_list>);
static_assert(std::ranges::input_range<zu::row_range>);
static_assert(
    std::is_same_v<std::iterator_traits<zu::int_list::iterator>::iterator_category, std::bidirectional_iterator_tag>);

TEST(CppRange, standardAlgorithms)
{
    zu::int_list numbers;
    for (const int value : {3, 1, 4, 1, 5, 9, 2, 6})
        numbers.push_back(value);
    EXPECT_EQ(std::ranges::max(numbers), 9);
    EXPECT_EQ(std::ranges::count(numbers, 1), 2);
    EXPECT_EQ(std::accumulate(numbers.begin(), numbers.end(), 0), 31);
    EXPECT_EQ(*std::ranges::find_if(numbers, [](int value) { return value > 4; }), 5);
    std::vector<int> backwards(std::make_reverse_iterator(numbers.end()), std::make_reverse_iterator(numbers.begin()));
    EXPECT_EQ(backwards, (std::vector<int>{6, 2, 9, 5, 1, 4, 1, 3}));
    EXPECT_EQ(numbers.front(), 3);
    EXPECT_EQ(numbers.back(), 6);

    const auto names = zu::string_list::of("tee", "elbow", "pipe");
    EXPECT_EQ(names.begin()->size(), 3u);
    EXPECT_EQ(zu::point_list::of({{1, 2, 3}}).begin()->y, 2.0);
    EXPECT_EQ(std::ranges::distance(names), 3);
    EXPECT_EQ(*std::ranges::min_element(names), W("elbow"));
    EXPECT_EQ(std::ranges::next(names.begin(), 3), names.end());
    // An iterator may outlive the view that it came from.
    EXPECT_EQ(*std::ranges::find(names.view(), zu::wide_view(W("pipe"))), W("pipe"));
}

TEST(CppRange, theCursorStays)
{
    const auto names = zu::string_list::of("a", "b", "c");
    zu_StrList_start(names.get());
    zu_StrList_next(names.get());
    const LnkNode* const at = names.get()->current;
    Wide all;
    for (const zu::wide_view outer : names) {
        for (const zu::wide_view inner : names)
            all += inner;
        all += outer;
    }
    EXPECT_EQ(all, W("abcaabcbabcc"));
    EXPECT_EQ(names.get()->current, at);
}

TEST(CppRange, ofNothing)
{
    zu::string_list names = zu::string_list::of("a");
    const zu::string_list taken = std::move(names);
    EXPECT_TRUE(names.empty());
    EXPECT_EQ(names.size(), 0u);
    EXPECT_EQ(names.begin(), names.end());
    EXPECT_THROW(names.push_back("x"), std::invalid_argument);
    EXPECT_TRUE(zu::strings_view().empty());
    EXPECT_EQ(zu::strings_view().begin(), zu::strings_view().end());
}

} // namespace
