#include "zu_Timer.h"

#include "frame/text.h"
#include "platform/runtime.h"
#include "zu_LnkList.h"

#include <cstddef>

static_assert(offsetof(TimerNode, startTicks) == (ZU_TIMER_NAME_SIZE + 1) * sizeof(zu_wchar));

namespace {

using namespace zu;

// All timers; null before the first one.
LnkList* registry = nullptr;

// The clock as a timer's field holds it: its low 32 bits.
int32_t ticksNow()
{
    return static_cast<int32_t>(static_cast<uint32_t>(platform::elapsedMilliseconds()));
}

// Right across the wrap of the field, because the difference wraps with it.
double secondsSince(int32_t startTicks)
{
    return (static_cast<uint32_t>(ticksNow()) - static_cast<uint32_t>(startTicks)) / 1000.0;
}

int32_t matches(const void* node, const void* name)
{
    return zu_TimerNode_compare(static_cast<const TimerNode*>(node), static_cast<const zu_wchar*>(name));
}

int32_t release(void* node)
{
    zu_TimerNode_delete(static_cast<TimerNode*>(node));
    return 1;
}

// The first timer of that name, on which the registry's cursor then stands; null when there is none.
TimerNode* find(const zu_wchar* name)
{
    return static_cast<TimerNode*>(zu_LnkList_search(registry, name, matches));
}

} // namespace

int32_t zu_Timer_create(const zu_wchar* name)
{
    if (registry == nullptr)
        registry = zu_LnkList_create(nullptr);
    TimerNode* const node = registry == nullptr ? nullptr : zu_TimerNode_create(name);
    if (node == nullptr)
        return 0;
    if (zu_LnkList_insEnd(registry, node) == 1)
        return 1;
    zu_TimerNode_delete(node);
    return 0;
}

double zu_Timer_check(const zu_wchar* name)
{
    const TimerNode* const node = find(name);
    return node == nullptr ? 0.0 : secondsSince(node->startTicks);
}

double zu_Timer_reset(const zu_wchar* name)
{
    TimerNode* const node = find(name);
    if (node == nullptr) {
        zu_Timer_create(name);
        return 0.0;
    }
    const double seconds = secondsSince(node->startTicks);
    node->startTicks = ticksNow();
    return seconds;
}

double zu_Timer_delete(const zu_wchar* name)
{
    const TimerNode* const node = find(name);
    if (node == nullptr)
        return 0.0;
    const double seconds = secondsSince(node->startTicks);
    zu_LnkList_delCurr(registry, release);
    return seconds;
}

int32_t zu_Timer_clearAll()
{
    zu_LnkList_destroy(registry, release);
    registry = nullptr;
    return 1;
}

TimerNode* zu_TimerNode_create(const zu_wchar* name)
{
    if (name == nullptr)
        return nullptr;
    auto* const node = static_cast<TimerNode*>(zu_Malloc(sizeof(TimerNode)));
    if (node == nullptr)
        return nullptr;
    text::copyCut(node->name, ZU_TIMER_NAME_SIZE, text::view(name, ZU_TIMER_NAME_SIZE));
    node->startTicks = ticksNow();
    return node;
}

int32_t zu_TimerNode_compare(const TimerNode* node, const zu_wchar* name)
{
    if (node == nullptr || name == nullptr)
        return -1;
    return text::compare(text::view(node->name, ZU_TIMER_NAME_SIZE), text::view(name, ZU_TIMER_NAME_SIZE));
}

void zu_TimerNode_delete(TimerNode* node)
{
    zu_Free(node);
}
