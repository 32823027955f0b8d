#include "frame/format.h"
#include "frame/text.h"
#include "zu_Memory.h"
#include "zu_PointTravelList.h"

#include <cstddef>

static_assert(offsetof(PointTravelNode, point) == 0 && offsetof(PointTravelNode, label) == 24 &&
              offsetof(PointTravelNode, value) == 24 + 514 * sizeof(zu_wchar));

namespace {

using namespace zu;

// The lists that were registered last. An empty place has the number 0 and no list.
class Registry
{
public:
    int32_t add(PointTravelList* list)
    {
        const auto number = static_cast<int32_t>(nextNumber++);
        entries[next] = {number, list};
        next = (next + 1) % capacity;
        return number;
    }
    PointTravelList* find(int32_t number) const
    {
        for (const Entry& entry : entries) {
            if (entry.number == number)
                return entry.list;
        }
        return nullptr;
    }

private:
    static constexpr std::size_t capacity = 50;
    struct Entry
    {
        int32_t number = 0;
        PointTravelList* list = nullptr;
    };
    Entry entries[capacity];
    std::size_t next = 0;
    uint32_t nextNumber = 0;
};

Registry registry;

int32_t destroyNode(void* node)
{
    return zu_PointTravelNode_destroy(static_cast<PointTravelNode*>(node));
}

} // namespace

PointTravelNode* zu_PointTravelNode_create(const Point* point, const zu_wchar* label, const void*, int32_t value)
{
    if (point == nullptr)
        return nullptr;
    auto* const node = static_cast<PointTravelNode*>(zu_Malloc(sizeof(PointTravelNode)));
    if (node == nullptr)
        return nullptr;
    node->point = *point;
    // The label is a format on purpose, and there is nothing that it could read.
    formatArgs(node->label, text::view(label), {});
    node->value = value;
    return node;
}

int32_t zu_PointTravelNode_destroy(PointTravelNode* node)
{
    zu_Free(node);
    return node != nullptr;
}

PointTravelList* zu_PointTravelList_create(void)
{
    return zu_LnkList_create(nullptr);
}

int32_t zu_PointTravelList_destroy(PointTravelList* list)
{
    return zu_LnkList_destroy(list, destroyNode);
}

int32_t zu_PointTravelList_insEnd(PointTravelList* list, PointTravelNode* node)
{
    return node == nullptr ? 0 : zu_LnkList_insEnd(list, node);
}

int32_t zu_PointTravelList_start(PointTravelList* list)
{
    return zu_LnkList_start(list);
}

int32_t zu_PointTravelList_end(PointTravelList* list)
{
    return zu_LnkList_end(list);
}

int32_t zu_PointTravelList_next(PointTravelList* list)
{
    return zu_LnkList_next(list);
}

int32_t zu_PointTravelList_prev(PointTravelList* list)
{
    return zu_LnkList_prev(list);
}

int32_t zu_PointTravelList_eol(PointTravelList* list)
{
    return zu_LnkList_eol(list);
}

PointTravelNode* zu_PointTravelList_getCurr(PointTravelList* list)
{
    return static_cast<PointTravelNode*>(zu_LnkList_getCurr(list));
}

int32_t zu_PointTravelList_add(PointTravelList* list)
{
    return list == nullptr ? -1 : registry.add(list);
}

PointTravelList* zu_PointTravelList_get(int32_t number)
{
    return registry.find(number);
}
