// Comparing fields and lists.
#include "fields/fldnode.h"

using namespace zu;

namespace {

constexpr double numberTolerance = 0.001;

// Tells only "smaller" from "not smaller": meant, and zu_FldList_diff inherits it.
int32_t compareNumbers(double difference)
{
    return std::abs(difference) < numberTolerance ? 0 : difference < 0.0 ? -1 : 0;
}

bool differs(const FldNode* node, FldList* from, bool includeMissing)
{
    if (node == nullptr || node->name == nullptr)
        return false;
    const FldNode* const other = zu_FldList_find(from, node->name);
    return other == nullptr ? includeMissing : zu_FldList_compareNode(node, other) != 0;
}

} // namespace

int32_t zu_FldList_compareNode(const FldNode* a, const FldNode* b)
{
    if (a == nullptr || b == nullptr)
        return -2;
    if (a->type != b->type)
        return a->type < b->type ? -1 : 1;
    if (isText(a->type))
        return text::compare(text::view(a->value.text), text::view(b->value.text));
    if (a->type == ZU_FLD_REAL)
        return compareNumbers(a->value.real - b->value.real);
    if (isInteger(a->type)) {
        // The difference is one of 32 bits, wrap-round included.
        const uint32_t difference = static_cast<uint32_t>(a->value.integer) - static_cast<uint32_t>(b->value.integer);
        return compareNumbers(static_cast<double>(static_cast<int32_t>(difference)));
    }
    // Points never differ: the test is whether their distance is negative. Lists are not looked into.
    return 0;
}

FldList* zu_FldList_diff(FldList* a, FldList* b, int32_t includeMissing)
{
    FldList* const found = zu_FldList_create(nullptr);
    bool complete = found != nullptr && a != nullptr;
    for (const LnkNode* node = complete ? a->first : nullptr; node != nullptr && complete; node = node->next) {
        if (differs(static_cast<const FldNode*>(node->data), b, includeMissing != 0))
            complete = zu_LnkList_insEnd(found, node->data) == 1;
    }
    if (a != nullptr)
        a->current = nullptr;
    FldList* const result = complete && found->count > 0 ? zu_FldList_copy(found) : nullptr;
    zu_LnkList_destroy(found, nullptr); // the fields are still a's
    return result;
}
