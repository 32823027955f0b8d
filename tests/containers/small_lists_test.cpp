#include "support/memory.h"
#include "support/wide.h"
#include "zu_IntList.h"
#include "zu_Queue.h"
#include "zu_Stack.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace zutest;

std::vector<int32_t> valuesOf(IntList* list)
{
    std::vector<int32_t> values;
    for (zu_IntList_start(list); zu_IntList_eol(list) == 0; zu_IntList_next(list))
        values.push_back(*zu_IntList_getCurr(list));
    return values;
}

TEST(IntList, ownsItsValues)
{
    int32_t one = 1;
    const int32_t least = INT32_MIN;
    IntList* list = nullptr;
    sweepAllocations([&] { list = zu_IntList_create(&one, &least, static_cast<int32_t*>(nullptr)); },
                     [&] { EXPECT_EQ(list, nullptr); });
    one = 99;
    EXPECT_EQ(*zu_IntList_getCurr(list), 1) << "the first is current, and a copy";
    *zu_IntList_getCurr(list) = 7;
    zu_IntList_insEnd(list, -3);
    EXPECT_EQ(valuesOf(list), (std::vector<int32_t>{7, INT32_MIN, -3}));
    EXPECT_EQ(zu_IntList_getCurr(list), nullptr);
    EXPECT_EQ(zu_IntList_length(list), 3u);

    IntList* copy = nullptr;
    sweepAllocations([&] { copy = zu_IntList_copy(list); }, [&] { EXPECT_EQ(copy, nullptr); });
    zu_IntList_start(list);
    *zu_IntList_getCurr(list) = 8;
    EXPECT_EQ(valuesOf(copy), (std::vector<int32_t>{7, INT32_MIN, -3}));
    zu_IntList_destroy(copy);
    zu_IntList_destroy(list);
}

int freed = 0;
int32_t countFreed(void*)
{
    return ++freed;
}

TEST(Queue, firstInFirstOut)
{
    char data[3];
    Queue* const queue = zu_Queue_create(data, data);
    EXPECT_EQ(zu_Queue_empty(queue), 1) << "the arguments are ignored";
    for (char& datum : data) {
        EXPECT_EQ(zu_Queue_push(queue, &datum), 1);
        EXPECT_EQ(queue->current, queue->first);
    }
    EXPECT_EQ(zu_Queue_push(queue, nullptr), 1);
    EXPECT_EQ(zu_Queue_length(queue), 4u);
    for (char& datum : data)
        EXPECT_EQ(zu_Queue_pop(queue), &datum);
    EXPECT_EQ(zu_Queue_empty(queue), 0);
    EXPECT_EQ(zu_Queue_pop(queue), nullptr) << "a stored null";
    EXPECT_EQ(zu_Queue_empty(queue), 1);
    EXPECT_EQ(zu_Queue_pop(queue), nullptr);
    zu_Queue_push(queue, data);
    zu_Queue_push(queue, nullptr);
    EXPECT_EQ(zu_Queue_destroy(queue, countFreed), 1);
    EXPECT_EQ(freed, 1);
}

TEST(Stack, lastInFirstOut)
{
    char data[3];
    Stack* const stack = zu_Stack_create(nullptr);
    for (char& datum : data) {
        EXPECT_EQ(zu_Stack_push(stack, &datum), 1);
        EXPECT_EQ(stack->current, stack->first);
    }
    {
        const AllocationLimit limit(0);
        EXPECT_EQ(zu_Stack_push(stack, data), 0);
        EXPECT_EQ(zu_Queue_push(stack, data), 0);
        EXPECT_EQ(zu_Stack_create(nullptr), nullptr);
    }
    for (int index = 2; index >= 0; --index)
        EXPECT_EQ(zu_Stack_pop(stack), &data[index]);
    EXPECT_EQ(zu_Stack_empty(stack), 1);
    EXPECT_EQ(zu_Stack_pop(stack), nullptr);
    EXPECT_EQ(zu_Stack_destroy(stack, nullptr), 1);
}

TEST(Queue, noContainer)
{
    EXPECT_TRUE(allAre(0, {zu_Queue_push(nullptr, &freed), zu_Stack_push(nullptr, &freed),
                           zu_Queue_destroy(nullptr, nullptr), zu_Stack_destroy(nullptr, nullptr)}));
    EXPECT_TRUE(allNull({zu_Queue_pop(nullptr), zu_Stack_pop(nullptr), zu_IntList_getCurr(nullptr)}));
    EXPECT_TRUE(allAre(1, {zu_Queue_empty(nullptr), zu_Stack_empty(nullptr)}));
    EXPECT_EQ(zu_Queue_length(nullptr), 0u);
    zu_IntList_destroy(nullptr);
    zu_IntList_insEnd(nullptr, 1);
    IntList* const copy = zu_IntList_copy(nullptr);
    EXPECT_EQ(zu_IntList_length(copy), 0u) << "an empty copy";
    zu_IntList_destroy(copy);
    IntListNode* const node = zu_IntListNode_create(-5);
    EXPECT_EQ(node->value, -5);
    zu_IntListNode_destroy(node);
}

} // namespace
