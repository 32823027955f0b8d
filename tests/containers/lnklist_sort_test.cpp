#include "support/memory.h"
#include "zu_LnkList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace {

using namespace zutest;

struct Item
{
    int32_t key;
    int32_t serial; // tells equal keys apart
};

int64_t comparisons = 0;
int32_t nullKey = 0;

int32_t keyOf(const void* data)
{
    return data == nullptr ? nullKey : static_cast<const Item*>(data)->key;
}

int32_t byKey(const void* a, const void* b)
{
    ++comparisons;
    return keyOf(a) - keyOf(b);
}

// A list with nodes that do not come from the library, so that a million of them cost little.
class Fixture
{
public:
    // Negative keys stand for null data.
    explicit Fixture(const std::vector<int32_t>& keys) : items(keys.size()), nodes(keys.size())
    {
        for (std::size_t index = 0; index < keys.size(); ++index) {
            items[index] = {keys[index], static_cast<int32_t>(index)};
            nodes[index] = {keys[index] < 0 ? nullptr : &items[index],
                            index + 1 < keys.size() ? &nodes[index + 1] : nullptr,
                            index > 0 ? &nodes[index - 1] : nullptr};
        }
        if (!nodes.empty())
            list = {nodes.size(), &nodes.front(), &nodes.back(), &nodes[nodes.size() / 2]};
    }

    std::vector<void*> data() const
    {
        std::vector<void*> result;
        for (const LnkNode& node : nodes)
            result.push_back(node.data);
        return result;
    }
    // Links and header as they were made: only data may have moved, none of it lost.
    void expectSameNodes() const
    {
        EXPECT_EQ(list.count, nodes.size());
        EXPECT_EQ(list.first, &nodes.front());
        EXPECT_EQ(list.last, &nodes.back());
        for (std::size_t index = 0; index < nodes.size(); ++index) {
            ASSERT_EQ(nodes[index].next, index + 1 < nodes.size() ? &nodes[index + 1] : nullptr);
            ASSERT_EQ(nodes[index].prev, index > 0 ? &nodes[index - 1] : nullptr);
        }
        std::vector<int32_t> seen(items.size(), 0);
        for (const LnkNode& node : nodes) {
            if (node.data != nullptr)
                ++seen[static_cast<std::size_t>(static_cast<const Item*>(node.data)->serial)];
        }
        for (std::size_t index = 0; index < items.size(); ++index)
            ASSERT_EQ(seen[index], items[index].key >= 0);
    }
    bool isSorted() const
    {
        return std::is_sorted(nodes.begin(), nodes.end(),
                              [](const LnkNode& a, const LnkNode& b) { return keyOf(a.data) < keyOf(b.data); });
    }

    std::vector<Item> items;
    std::vector<LnkNode> nodes;
    LnkList list{};
};

std::vector<int32_t> shape(const std::string& name, int32_t count)
{
    std::vector<int32_t> keys(static_cast<std::size_t>(count));
    std::iota(keys.begin(), keys.end(), 0);
    std::mt19937 random(5);
    if (name == "reversed")
        std::reverse(keys.begin(), keys.end());
    else if (name == "organ pipe")
        std::transform(keys.begin(), keys.end(), keys.begin(), [=](int32_t key) { return std::min(key, count - key); });
    else if (name == "two keys")
        std::transform(keys.begin(), keys.end(), keys.begin(), [](int32_t key) { return key % 2; });
    else if (name == "shuffled")
        std::shuffle(keys.begin(), keys.end(), random);
    return keys;
}

void sortMany(const std::string& name, int32_t count, int64_t allowed, double mostComparisons)
{
    Fixture fixture(shape(name, count));
    comparisons = 0;
    {
        const AllocationLimit limit(allowed);
        zu_LnkList_qSort(&fixture.list, byKey);
        EXPECT_EQ(limit.reached(), allowed == 0);
    }
    EXPECT_TRUE(fixture.isSorted()) << name;
    EXPECT_EQ(fixture.list.current, nullptr);
    EXPECT_LT(static_cast<double>(comparisons), mostComparisons * count) << name;
    fixture.expectSameNodes();
}

TEST(LnkListSort, manyElements)
{
    for (const char* name : {"sorted", "reversed", "organ pipe", "two keys", "shuffled"})
        sortMany(name, 1'000'000, 1, 20);
    // Without memory for a faster way.
    for (const char* name : {"sorted", "organ pipe", "two keys"})
        sortMany(name, 200'000, 0, 40);
}

// The stated rule of the quick sort, on a range of pointers.
void* pivotByRule(const std::vector<void*>& data)
{
    for (std::size_t index = 1; !data.empty() && data[0] != nullptr && index < data.size(); ++index) {
        if (data[index] != nullptr && keyOf(data[index]) != keyOf(data[0]))
            return keyOf(data[index]) < keyOf(data[0]) ? data[0] : data[index];
    }
    return nullptr;
}

std::size_t partitionByRule(std::vector<void*>& data, const void* pivot)
{
    std::size_t left = 0;
    for (std::size_t index = 0; index < data.size(); ++index) {
        if (keyOf(data[index]) < keyOf(pivot))
            std::swap(data[left++], data[index]);
    }
    return left;
}

void sortByRule(std::vector<void*>& data)
{
    const void* const pivot = pivotByRule(data);
    if (pivot == nullptr)
        return;
    const auto middle = data.begin() + static_cast<std::ptrdiff_t>(partitionByRule(data, pivot));
    std::vector<void*> left(data.begin(), middle);
    std::vector<void*> right(middle, data.end());
    if (left.empty() || right.empty())
        return;
    sortByRule(left);
    sortByRule(right);
    std::copy(right.begin(), right.end(), std::copy(left.begin(), left.end(), data.begin()));
}

TEST(LnkListSort, listsWithNullDataAreSortedByTheRule)
{
    std::mt19937 random(9);
    for (int round = 0; round < 5'000; ++round) {
        std::vector<int32_t> keys(2 + random() % 30);
        for (int32_t& key : keys)
            key = static_cast<int32_t>(random() % 12) - 2;
        keys[random() % keys.size()] = -1;
        nullKey = static_cast<int32_t>(random() % 12) - 1;
        Fixture fixture(keys);
        std::vector<void*> expected = fixture.data();
        const bool isLeft = pivotByRule(expected) == nullptr;
        sortByRule(expected);
        const LnkNode* const current = fixture.list.current;
        zu_LnkList_qSort(&fixture.list, byKey);
        ASSERT_EQ(fixture.data(), expected);
        ASSERT_EQ(fixture.list.current, isLeft ? current : nullptr);
        fixture.expectSameNodes();
    }
    nullKey = 0;
}

TEST(LnkListSort, pivotAndPartition)
{
    std::mt19937 random(10);
    for (int round = 0; round < 5'000; ++round) {
        std::vector<int32_t> keys(1 + random() % 12);
        for (int32_t& key : keys)
            key = static_cast<int32_t>(random() % 7) - 1;
        Fixture fixture(keys);
        std::vector<void*> expected = fixture.data();
        void* const pivot = zu_LnkList_findPivot(&fixture.list, byKey);
        ASSERT_EQ(pivot, pivotByRule(expected));
        if (pivot == nullptr)
            continue;
        const std::size_t count = partitionByRule(expected, pivot);
        LnkList left{99, nullptr, nullptr, nullptr};
        LnkList right = left;
        zu_LnkList_partition(&fixture.list, &left, &right, pivot, byKey);
        ASSERT_EQ(fixture.data(), expected);
        ASSERT_EQ(fixture.list.current, nullptr);
        LnkNode* const nodes = fixture.nodes.data();
        ASSERT_EQ(left.first, nodes);
        ASSERT_EQ(left.last, nodes + count - 1);
        ASSERT_EQ(right.first, nodes + count);
        ASSERT_EQ(right.last, &fixture.nodes.back());
        ASSERT_EQ(right.current, nodes);
        ASSERT_EQ(left.last->next, nullptr);
        ASSERT_EQ(right.first->prev, nullptr);
    }
    LnkList list = Fixture({}).list;
    EXPECT_EQ(zu_LnkList_findPivot(&list, byKey), nullptr);
    LnkList header{1, nullptr, nullptr, nullptr};
    zu_LnkList_partition(&list, &header, &header, nullptr, byKey);
    EXPECT_EQ(header.count, 1u) << "one header twice is refused";
}

std::mt19937 chance(21);
int32_t atRandom(const void*, const void*)
{
    return static_cast<int32_t>(chance() % 3) - 1;
}

int32_t alwaysBefore(const void*, const void*)
{
    return -1;
}

int32_t alwaysAfter(const void*, const void*)
{
    return 1;
}

TEST(LnkListSort, contradictoryCallbacksLoseNothing)
{
    for (zu_LnkListCompareCallback compare : {atRandom, alwaysBefore, alwaysAfter}) {
        for (int round = 0; round < 300; ++round) {
            std::vector<int32_t> keys(2 + chance() % 40, 1);
            if (round % 3 == 0)
                keys[chance() % keys.size()] = -1;
            Fixture fixture(keys);
            {
                const AllocationLimit limit(round % 2);
                zu_LnkList_qSort(&fixture.list, compare);
            }
            zu_LnkList_sort(&fixture.list, compare);
            fixture.expectSameNodes();
        }
    }
}

TEST(LnkListSort, selectionSortLeavesNullsAndTheCursor)
{
    std::mt19937 random(12);
    for (int round = 0; round < 2'000; ++round) {
        std::vector<int32_t> keys(1 + random() % 20);
        for (int32_t& key : keys)
            key = static_cast<int32_t>(random() % 8) - 2;
        Fixture fixture(keys);
        // Each place in turn receives the earliest of the least that are left, in exchange.
        std::vector<Item*> items;
        for (Item& item : fixture.items) {
            if (item.key >= 0)
                items.push_back(&item);
        }
        for (auto place = items.begin(); place != items.end(); ++place)
            std::iter_swap(place,
                           std::min_element(place, items.end(), [](Item* a, Item* b) { return a->key < b->key; }));
        const LnkNode* const current = fixture.list.current;
        zu_LnkList_sort(&fixture.list, byKey);
        auto next = items.begin();
        for (std::size_t index = 0; index < keys.size(); ++index)
            ASSERT_EQ(fixture.nodes[index].data, keys[index] < 0 ? nullptr : *next++);
        ASSERT_EQ(fixture.list.current, current);
    }
}

} // namespace
