// What all owners share: one release, whatever is moved where; failures of memory; ranges that standard algorithms
// take.
#include "support/memory.h"
#include "support/wide.h"
#include "zu.hpp"

#include <algorithm>

namespace {

using namespace zutest;

// A full owner of each kind.
template <class Owner>
Owner filled()
{
    if constexpr (std::is_same_v<Owner, zu::string_list>) {
        return Owner::of("a", "b");
    } else if constexpr (std::is_same_v<Owner, zu::int_list>) {
        Owner list;
        list.push_back(7);
        return list;
    } else if constexpr (std::is_same_v<Owner, zu::point_list> || std::is_same_v<Owner, zu::vector_list>) {
        return Owner::of({{1, 2, 3}});
    } else if constexpr (std::is_same_v<Owner, zu::owning_list<std::string>>) {
        Owner list;
        list.push_back(std::make_unique<std::string>("an element of a good length"));
        return list;
    } else if constexpr (std::is_same_v<Owner, zu::fields>) {
        return Owner::of("A", "x", "B", zu::fields::of("C", 1), "D", zu::string_list::of("y"));
    } else if constexpr (std::is_same_v<Owner, zu::row>) {
        return Owner::of("A", "x");
    } else if constexpr (std::is_same_v<Owner, zu::owning_tree<std::string>>) {
        Owner tree;
        tree.root().add("a", std::make_unique<std::string>("data of a good length"));
        return tree;
    } else if constexpr (std::is_same_v<Owner, zu::ntuple>) {
        return Owner(3);
    } else if constexpr (std::is_same_v<Owner, zu::matrix>) {
        return Owner(2, 3);
    } else if constexpr (std::is_same_v<Owner, zu::owned_text>) {
        return zu::string_list::of("a", "b").join(",");
    } else {
        return Owner();
    }
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
static_assert(std::bidirectional_iterator<zu::fields::iterator>);
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
    std::vector<int> backwards(std::make_reverse_iterator(numbers.end()), std::make_reverse_iterator(numbers.begin()));
    EXPECT_EQ(backwards, (std::vector<int>{6, 2, 9, 5, 1, 4, 1, 3}));

    const auto names = zu::string_list::of("tee", "elbow", "pipe");
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
    EXPECT_THROW(names.push_back("x"), std::invalid_argument);
    EXPECT_TRUE(zu::strings_view().empty());
}

} // namespace
