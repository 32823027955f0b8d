#include "containers/lnklist_sort.h"

#include "platform/wide.h"

#include <algorithm>
#include <random>
#include <utility>

namespace zu {
namespace {

struct Chain
{
    LnkNode* first;
    LnkNode* last;
};

// Whether a has no more nodes than b; costs the shorter length.
bool isNoLonger(Chain a, Chain b)
{
    while (a.first != a.last && b.first != b.last) {
        a.first = a.first->next;
        b.first = b.first->next;
    }
    return a.first == a.last;
}

// Merges the sorted runs [0, middle) and [middle, count) of from into to. Safe with callbacks that contradict
// themselves.
void merge(void** from, std::size_t middle, std::size_t count, void** to, zu_LnkListCompareCallback compare)
{
    std::size_t left = 0;
    std::size_t right = middle;
    for (std::size_t index = 0; index < count; ++index) {
        const bool takeRight = left == middle || (right < count && compare(from[right], from[left]) < 0);
        to[index] = from[takeRight ? right++ : left++];
    }
}

// Bottom-up merge sort with room for as many pointers again. Returns the half in which the result lies.
void** mergeSort(void** data, void** room, std::size_t count, zu_LnkListCompareCallback compare)
{
    for (std::size_t width = 1; width < count; width *= 2) {
        for (std::size_t start = 0; start < count; start += 2 * width) {
            const std::size_t length = std::min(2 * width, count - start);
            merge(data + start, std::min(width, length), length, room + start, compare);
        }
        std::swap(data, room);
    }
    return data;
}

// A node of the chain first to last, drawn in one pass.
LnkNode* drawn(LnkNode* first, LnkNode* last, std::minstd_rand& random)
{
    LnkNode* result = first;
    std::uint_fast32_t seen = 1;
    for (LnkNode* node = first; node != last;) {
        node = node->next;
        if (random() % ++seen == 0)
            result = node;
    }
    return result;
}

// Puts two elements drawn at random where the pivot is looked for, so that no order of the input is a bad one.
void scatter(Chain chain, std::minstd_rand& random)
{
    if (chain.first == chain.last)
        return;
    std::swap(chain.first->data, drawn(chain.first, chain.last, random)->data);
    LnkNode* const second = chain.first->next;
    std::swap(second->data, drawn(second, chain.last, random)->data);
}

// Each round cuts the chain in two, sorts the shorter part by recursion and goes on with the longer one.
void sortChain(Chain chain, zu_LnkListCompareCallback compare, std::minstd_rand* random)
{
    for (;;) {
        if (random != nullptr)
            scatter(chain, *random);
        void* const pivot = pivotOf(chain.first, compare);
        if (pivot == nullptr)
            return;
        LnkNode* const before = chain.first->prev;
        LnkNode* const after = chain.last->next;
        chain.last->next = nullptr;
        LnkList whole{0, chain.first, chain.last, nullptr};
        LnkList left;
        LnkList right;
        partitionChain(whole, left, right, pivot, compare);
        // Nodes never move, so all neighbours fit again.
        chain.first->prev = before;
        chain.last->next = after;
        if (left.first == nullptr || right.first == nullptr)
            return; // only a callback that contradicts itself gets here
        left.last->next = right.first;
        right.first->prev = left.last;
        const Chain lower{left.first, left.last};
        const Chain upper{right.first, right.last};
        const bool lowerIsShorter = isNoLonger(lower, upper);
        sortChain(lowerIsShorter ? lower : upper, compare, random);
        chain = lowerIsShorter ? upper : lower;
    }
}

} // namespace

void* pivotOf(LnkNode* head, zu_LnkListCompareCallback compare)
{
    if (head == nullptr || head->data == nullptr)
        return nullptr;
    for (const LnkNode* node = head->next; node != nullptr; node = node->next) {
        if (node->data == nullptr)
            continue;
        const int32_t order = compare(node->data, head->data);
        if (order != 0)
            return order < 0 ? head->data : node->data;
    }
    return nullptr;
}

void partitionChain(LnkList& list, LnkList& left, LnkList& right, void* pivot, zu_LnkListCompareCallback compare)
{
    left = {};
    right = {0, list.first, list.last, list.first};
    for (list.current = list.first; list.current != nullptr; list.current = list.current->next) {
        if (compare(list.current->data, pivot) >= 0)
            continue;
        left.last = left.last == nullptr ? list.first : left.last->next;
        left.first = list.first;
        right.first = left.last->next;
        if (left.last != list.current)
            std::swap(left.last->data, list.current->data);
    }
    if (left.last != nullptr)
        left.last->next = nullptr;
    if (right.first != nullptr)
        right.first->prev = nullptr;
    else
        right.last = nullptr;
}

bool holdsNull(const LnkList& list)
{
    const LnkNode* node = list.first;
    while (node != nullptr && node->data != nullptr)
        node = node->next;
    return node != nullptr;
}

bool sortGathered(LnkList& list, zu_LnkListCompareCallback compare)
{
    std::size_t count = 0;
    for (const LnkNode* node = list.first; node != nullptr; node = node->next)
        ++count;
    const HookPtr<void*[]> memory(static_cast<void**>(zu_Malloc(2 * count * sizeof(void*))));
    if (memory == nullptr)
        return false;
    void** data = memory.get();
    for (const LnkNode* node = list.first; node != nullptr; node = node->next)
        *data++ = node->data;
    void** sorted = mergeSort(memory.get(), memory.get() + count, count, compare);
    for (LnkNode* node = list.first; node != nullptr; node = node->next)
        node->data = *sorted++;
    return true;
}

void sortInPlace(LnkList& list, zu_LnkListCompareCallback compare)
{
    std::minstd_rand random;
    sortChain({list.first, list.last}, compare, &random);
}

void sortByFirstPivots(LnkList& list, zu_LnkListCompareCallback compare)
{
    sortChain({list.first, list.last}, compare, nullptr);
}

} // namespace zu
