#include "support/memory.h"
#include "support/wide.h"
#include "zu_LnkList.h"

#include <random>

namespace {

using namespace zutest;

// Elements are pointers into this array.
char pool[64];

std::vector<void*> freed;
int32_t noteFreed(void* data)
{
    freed.push_back(data);
    return 0;
}

LnkList* listOf(const std::vector<void*>& content)
{
    LnkList* const list = zu_LnkList_create(nullptr);
    for (void* data : content)
        EXPECT_EQ(zu_LnkList_insEnd(list, data), 1);
    return list;
}

// The list as a vector and an index: what the operations mean, without links.
struct Model
{
    std::vector<void*> content;
    int current = -1; // none
    std::vector<void*> dropped;

    int size() const { return static_cast<int>(content.size()); }
    void* at(int index) const { return index < 0 ? nullptr : content[static_cast<std::size_t>(index)]; }
    int insert(int index, void* data)
    {
        content.insert(content.begin() + index, data);
        current += current >= index;
        return 1;
    }
    int insBefore(void* data)
    {
        if (content.empty())
            return content.push_back(data), setPos(0);
        current = std::max(current, 0);
        return insert(current, data);
    }
    int insAfter(void* data)
    {
        if (content.empty())
            return content.push_back(data), setPos(0);
        current = current < 0 ? size() - 1 : current;
        return insert(current + 1, data);
    }
    int insNth(int index, void* data) { return getNth(index) != nullptr ? insBefore(data) : insAfter(data); }
    int drop()
    {
        if (at(current) != nullptr)
            dropped.push_back(at(current));
        return current >= 0;
    }
    int delCurr()
    {
        if (drop() == 0)
            return 0;
        content.erase(content.begin() + current);
        current = std::min(current, size() - 1);
        return 1;
    }
    int modCurr(void* data)
    {
        if (drop() == 0)
            return 0;
        content[static_cast<std::size_t>(current)] = data;
        return 1;
    }
    void* getNth(int index)
    {
        if (index < 0)
            return nullptr;
        current = index < size() ? index : -1;
        return at(current);
    }
    int setPos(int index)
    {
        index = std::max(index, 0);
        current = index < size() ? index : -1;
        return 1;
    }
    void* getNthSavePos(int index)
    {
        const int saved = current;
        void* const data = getNth(index);
        setPos(saved); // none ends on the head
        return data;
    }
    int skip(int steps)
    {
        if (current >= 0)
            current = current + steps >= 0 && current + steps < size() ? current + steps : -1;
        return current >= 0;
    }
    void* search(void* data)
    {
        const auto found = std::find(content.begin(), content.end(), data);
        current = data == nullptr || found == content.end() ? -1 : static_cast<int>(found - content.begin());
        return at(current);
    }
    int move(int from, int to)
    {
        if (from < 0 || to < 0 || from >= size() || to >= size())
            return 0;
        if (from == to)
            return 1;
        void* const data = at(from);
        content.erase(content.begin() + from);
        content.insert(content.begin() + to, data);
        current = to;
        return 1;
    }
    int delAll()
    {
        std::copy_if(content.begin(), content.end(), std::back_inserter(dropped),
                     [](void* data) { return data != nullptr; });
        content.clear();
        current = -1;
        return 1;
    }
};

void expectSame(const LnkList* list, const Model& model, const char* what)
{
    ASSERT_EQ(list->count, model.content.size()) << what;
    const LnkNode* previous = nullptr;
    const LnkNode* node = list->first;
    for (int index = 0; index < model.size(); ++index, previous = node, node = node->next) {
        ASSERT_NE(node, nullptr) << what;
        ASSERT_EQ(node->prev, previous) << what;
        ASSERT_EQ(node->data, model.at(index)) << what;
        ASSERT_EQ(node == list->current, index == model.current) << what;
    }
    ASSERT_EQ(node, nullptr) << what;
    ASSERT_EQ(list->last, previous) << what;
    ASSERT_EQ(list->current == nullptr, model.current < 0) << what;
}

int32_t isOther(const void* data, const void* key)
{
    return data == key ? 0 : 1;
}

struct Arguments
{
    int index;
    int other;
    void* data;
};

// An operation on the list and on the model; the results are compared.
struct Operation
{
    const char* what;
    std::intptr_t (*onList)(LnkList* list, const Arguments& with);
    std::intptr_t (*onModel)(Model& model, const Arguments& with);
};

std::intptr_t id(void* data)
{
    return reinterpret_cast<std::intptr_t>(data);
}

#define ON_LIST(expression)                                                                                            \
    [](LnkList* list, [[maybe_unused]] const Arguments& with) -> std::intptr_t {                                       \
        return expression;                                                                                             \
    }
#define ON_MODEL(expression)                                                                                           \
    [](Model& model, [[maybe_unused]] const Arguments& with) -> std::intptr_t {                                        \
        return expression;                                                                                             \
    }

constexpr Operation operations[] = {
    {"insStart", ON_LIST(zu_LnkList_insStart(list, with.data)), ON_MODEL(model.insert(0, with.data))},
    {"insEnd", ON_LIST(zu_LnkList_insEnd(list, with.data)), ON_MODEL(model.insert(model.size(), with.data))},
    {"insBefore", ON_LIST(zu_LnkList_insBefore(list, with.data)), ON_MODEL(model.insBefore(with.data))},
    {"insAfter", ON_LIST(zu_LnkList_insAfter(list, with.data)), ON_MODEL(model.insAfter(with.data))},
    {"insNth", ON_LIST(zu_LnkList_insNth(list, with.index, with.data)), ON_MODEL(model.insNth(with.index, with.data))},
    {"delCurr", ON_LIST(zu_LnkList_delCurr(list, noteFreed)), ON_MODEL(model.delCurr())},
    {"delNth", ON_LIST(zu_LnkList_delNth(list, with.index, noteFreed)),
     ON_MODEL(model.getNth(with.index) == nullptr ? 0 : model.delCurr())},
    {"modCurr", ON_LIST(zu_LnkList_modCurr(list, with.data, noteFreed)), ON_MODEL(model.modCurr(with.data))},
    {"modNth", ON_LIST(zu_LnkList_modNth(list, with.index, with.data, noteFreed)),
     ON_MODEL(model.getNth(with.index) == nullptr ? 0 : model.modCurr(with.data))},
    {"start", ON_LIST(zu_LnkList_start(list)), ON_MODEL((model.setPos(0), model.size() > 0))},
    {"end", ON_LIST(zu_LnkList_end(list)), ON_MODEL((model.current = model.size() - 1) >= 0)},
    {"skip", ON_LIST(zu_LnkList_skip(list, with.index)), ON_MODEL(model.skip(with.index))},
    {"next", ON_LIST(zu_LnkList_next(list)), ON_MODEL(model.skip(1))},
    {"prev", ON_LIST(zu_LnkList_prev(list)), ON_MODEL(model.skip(-1))},
    {"getNth", ON_LIST(id(zu_LnkList_getNth(list, with.index))), ON_MODEL(id(model.getNth(with.index)))},
    {"setPos", ON_LIST(zu_LnkList_setPos(list, with.index)), ON_MODEL(model.setPos(with.index))},
    {"getNthSavePos", ON_LIST(id(zu_LnkList_getNthSavePos(list, with.index))),
     ON_MODEL(id(model.getNthSavePos(with.index)))},
    {"search", ON_LIST(id(zu_LnkList_search(list, with.data, isOther))), ON_MODEL(id(model.search(with.data)))},
    {"move", ON_LIST(zu_LnkList_move(list, with.index, with.other)), ON_MODEL(model.move(with.index, with.other))},
    {"delAll", ON_LIST(with.index + with.other == 0 ? zu_LnkList_delAll(list, noteFreed) : 1),
     ON_MODEL(with.index + with.other == 0 ? model.delAll() : 1)},
};

TEST(LnkList, behavesAsAVectorWithACursor)
{
    std::mt19937 random(3);
    LnkList* const list = zu_LnkList_create(nullptr);
    Model model;
    for (int round = 0; round < 40'000; ++round) {
        const Operation& operation = operations[random() % std::size(operations)];
        const Arguments with{static_cast<int>(random() % 12) - 2, static_cast<int>(random() % 12) - 2,
                             random() % 8 == 0 ? nullptr : &pool[random() % 64]};
        freed.clear();
        model.dropped.clear();
        ASSERT_EQ(operation.onList(list, with), operation.onModel(model, with)) << operation.what;
        expectSame(list, model, operation.what);
        ASSERT_FALSE(HasFatalFailure());
        ASSERT_EQ(freed, model.dropped) << operation.what;
        ASSERT_EQ(zu_LnkList_getPos(list), model.current);
        ASSERT_EQ(zu_LnkList_eol(list), model.current < 0);
        ASSERT_EQ(zu_LnkList_isLast(list), model.current == model.size() - 1) << "an empty list is at its last, too";
        ASSERT_EQ(zu_LnkList_length(list), model.content.size());
        ASSERT_EQ(zu_LnkList_getCurr(list), model.at(model.current));
    }
    zu_LnkList_destroy(list, nullptr);
}

TEST(LnkList, join)
{
    const std::tuple<const char*, std::vector<void*>, std::vector<void*>> rows[] = {
        {"both", {&pool[0], &pool[1]}, {&pool[2], &pool[3]}},
        {"first empty", {}, {&pool[2], nullptr}},
        {"second empty", {&pool[0]}, {}},
    };
    for (const auto& [what, rowA, b] : rows) {
        const int64_t before = liveBlocks();
        LnkList* const a = listOf(rowA);
        Model expected;
        expected.content = rowA;
        expected.content.insert(expected.content.end(), b.begin(), b.end());
        expected.setPos(0);
        EXPECT_EQ(zu_LnkList_join(a, listOf(b)), 1);
        expectSame(a, expected, what);
        zu_LnkList_destroy(a, nullptr);
        EXPECT_EQ(liveBlocks(), before) << what;
    }
    LnkList* const list = listOf({&pool[0], &pool[1]});
    EXPECT_TRUE(
        allAre(0, {zu_LnkList_join(nullptr, list), zu_LnkList_join(list, nullptr), zu_LnkList_join(list, list)}));
    EXPECT_EQ(list->count, 2u);
    zu_LnkList_destroy(list, nullptr);
}

TEST(LnkList, withoutMemoryNothingChanges)
{
    LnkList* made = nullptr;
    sweepAllocations([&] { made = zu_LnkList_create(&pool[0], &pool[1], static_cast<void*>(nullptr)); },
                     [&] { EXPECT_EQ(made, nullptr); });
    zu_LnkList_end(made);
    const Model unchanged{{&pool[0], &pool[1]}, 1, {}};
    {
        const AllocationLimit limit(0);
        EXPECT_TRUE(allAre(0, {zu_LnkList_insStart(made, &pool[2]), zu_LnkList_insEnd(made, &pool[2]),
                               zu_LnkList_insBefore(made, &pool[2]), zu_LnkList_insAfter(made, &pool[2])}));
    }
    expectSame(made, unchanged, "unchanged");
    zu_LnkList_destroy(made, nullptr);
}

TEST(LnkList, noList)
{
    for (const Operation& operation : operations)
        EXPECT_EQ(operation.onList(nullptr, Arguments{0, 0, pool}), 0) << operation.what;
    EXPECT_EQ(zu_LnkList_eol(nullptr), 1);
    EXPECT_EQ(zu_LnkList_getPos(nullptr), -1);
    EXPECT_EQ(zu_LnkList_isLast(nullptr), 0);
    EXPECT_EQ(zu_LnkList_length(nullptr), 0u);
    EXPECT_TRUE(allNull({zu_LnkList_getCurr(nullptr), zu_LnkList_findPivot(nullptr, isOther)}));
    zu_LnkList_sort(nullptr, isOther);
    zu_LnkList_qSort(nullptr, isOther);
    LnkList empty{};
    zu_LnkList_partition(nullptr, &empty, &empty, pool, isOther);
}

TEST(LnkList, skipsOfAnyLengthEnd)
{
    LnkList* const list = listOf({&pool[0], &pool[1], &pool[2], &pool[3], &pool[4]});
    for (int32_t steps : {-10, 10, INT32_MIN, INT32_MAX}) {
        zu_LnkList_setPos(list, 2);
        EXPECT_EQ(zu_LnkList_skip(list, steps), 0);
        EXPECT_EQ(zu_LnkList_eol(list), 1);
    }
    EXPECT_EQ(zu_LnkList_setPos(list, INT32_MAX), 1);
    EXPECT_EQ(zu_LnkList_getNth(list, INT32_MAX), nullptr);
    EXPECT_EQ(zu_LnkList_move(list, 0, INT32_MAX), 0);
    zu_LnkList_destroy(list, nullptr);
}

} // namespace
