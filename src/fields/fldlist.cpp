// Making, appending, finding and destroying fields.
#include "fields/fldnode.h"
#include "zu_StrList.h"

#include <cstdarg>
#include <cstddef>

static_assert(offsetof(FldNode, name) == 0 && offsetof(FldNode, type) == 8 && offsetof(FldNode, isPresent) == 10 &&
              offsetof(FldNode, mark) == 12 && offsetof(FldNode, value) == 16 && sizeof(FldNode) == 40);

namespace zu {
namespace {

zu_wchar* upperCaseCopy(const zu_wchar* text)
{
    zu_wchar* const copy = text == nullptr ? nullptr : text::duplicate(text);
    if (copy != nullptr)
        text::makeUpper(copy);
    return copy;
}

FldNode* newNode(const zu_wchar* name, char type, FldValue value)
{
    auto* const node = static_cast<FldNode*>(zu_Calloc(1, sizeof(FldNode)));
    if (node == nullptr) {
        if (isText(static_cast<std::uint16_t>(type)))
            zu_Free(value.text);
        return nullptr;
    }
    node->name = upperCaseCopy(name);
    node->type = static_cast<std::uint16_t>(type);
    node->isPresent = 1;
    node->value = value;
    return node;
}

std::int32_t append(FldList* list, FldNode* node)
{
    if (node == nullptr)
        return ZU_FLD_NO_MEMORY;
    if (zu_LnkList_insEnd(list, node) == 1)
        return ZU_FLD_OK;
    // A null list takes the field without keeping it; a list without memory does not take what the field adopted.
    if (list != nullptr && (node->type == ZU_FLD_LIST || node->type == ZU_FLD_STRLIST))
        node->value.list = nullptr;
    zu_FldList_destroyNode(node);
    return list == nullptr ? ZU_FLD_OK : ZU_FLD_NO_MEMORY;
}

std::int32_t hasName(const void* node, const void* name)
{
    const bool matches = text::equalIgnoringCase(text::view(static_cast<const FldNode*>(node)->name),
                                                 text::view(static_cast<const zu_wchar*>(name)));
    return matches ? 0 : 1;
}

// The callers' marker for an absent value.
constexpr int absentInt = -9999;
constexpr double absentReal = -9999.0;
constexpr double absentRealWithin = 0.01;

// Appends one field of the builder. The arguments are taken in the promoted types of a variable list.
void appendArgument(FldList* list, const zu_wchar* name, std::uint16_t type, std::va_list& arguments)
{
    switch (type) {
    case ZU_FLD_CHAR: zu_FldList_appChar(list, name, va_arg(arguments, const zu_wchar*)); break;
    case ZU_FLD_HANDLE: zu_FldList_appHandle(list, name, va_arg(arguments, const zu_wchar*)); break;
    case ZU_FLD_POINT:
    case ZU_FLD_MPOINT:
    case ZU_FLD_DPOINT:
    case ZU_FLD_VECTOR: {
        double xyz[3];
        for (double& coordinate : xyz)
            coordinate = va_arg(arguments, double);
        append(list, newNode(name, static_cast<char>(type), pointValue(xyz)));
        break;
    }
    case ZU_FLD_INT:
    case ZU_FLD_LONG: {
        const int value = va_arg(arguments, int);
        append(list, newNode(name, static_cast<char>(type), integerValue(value == absentInt ? 0 : value)));
        break;
    }
    case ZU_FLD_REAL: {
        const double value = va_arg(arguments, double);
        zu_FldList_appReal(list, name, std::abs(value - absentReal) < absentRealWithin ? 0.0 : value);
        break;
    }
    default:
        static_cast<void>(va_arg(arguments, void*));
        zu_FldList_appUnknown(list, name);
        break;
    }
}

} // namespace

FldValue textValue(const zu_wchar* text, bool upperCase)
{
    FldValue value{};
    value.text = upperCase ? upperCaseCopy(text) : text == nullptr ? nullptr : text::duplicate(text);
    return value;
}

FldValue integerValue(std::int32_t integer)
{
    FldValue value{};
    value.integer = integer;
    return value;
}

FldValue realValue(double real)
{
    FldValue value{};
    value.real = real;
    return value;
}

FldValue pointValue(const double* xyz)
{
    FldValue value{};
    for (int axis = 0; axis < 3; ++axis)
        value.point[axis] = xyz == nullptr ? 0.0 : xyz[axis];
    return value;
}

FldValue listValue(LnkList* list)
{
    FldValue value{};
    value.list = list;
    return value;
}

FldNode* newStrListNode(const zu_wchar* name, LnkList* value)
{
    return newNode(name, ZU_FLD_STRLIST, listValue(value));
}

} // namespace zu

using namespace zu;

FldList* zu_FldList_create(const zu_wchar* name, ...)
{
    FldList* const list = zu_LnkList_create(nullptr);
    if (list == nullptr)
        return nullptr;
    std::va_list arguments;
    va_start(arguments, name);
    while (name != nullptr) {
        const auto type = static_cast<std::uint16_t>(va_arg(arguments, int));
        appendArgument(list, name, type, arguments);
        name = va_arg(arguments, const zu_wchar*);
    }
    va_end(arguments);
    return list;
}

FldList* zu_FldList_copy(FldList* list)
{
    FldList* const copy = zu_FldList_create(nullptr);
    if (copy == nullptr || list == nullptr || zu_FldList_concatenate(copy, list) == 1)
        return copy;
    zu_FldList_destroy(copy);
    return nullptr;
}

int32_t zu_FldList_destroy(FldList* list)
{
    return zu_LnkList_destroy(list, zu_FldList_destroyNode);
}

int32_t zu_FldList_destroyNode(void* data)
{
    auto* const node = static_cast<FldNode*>(data);
    if (node == nullptr)
        return 0;
    zu_Free(node->name);
    if (isText(node->type))
        zu_Free(node->value.text);
    else if (node->type == ZU_FLD_LIST && node->value.list != nullptr)
        zu_FldList_destroy(node->value.list);
    else if (node->type == ZU_FLD_STRLIST && node->value.list != nullptr)
        zu_StrList_destroy(node->value.list);
    zu_Free(node);
    return 1;
}

FldNode* zu_FldList_newChar(const zu_wchar* name, const zu_wchar* text)
{
    return newNode(name, ZU_FLD_CHAR, textValue(text, false));
}

FldNode* zu_FldList_newHandle(const zu_wchar* name, const zu_wchar* text)
{
    return newNode(name, ZU_FLD_HANDLE, textValue(text, true));
}

FldNode* zu_FldList_newInt(const zu_wchar* name, int32_t value)
{
    return newNode(name, ZU_FLD_INT, integerValue(value));
}

FldNode* zu_FldList_newLong(const zu_wchar* name, int32_t value)
{
    return newNode(name, ZU_FLD_LONG, integerValue(value));
}

FldNode* zu_FldList_newReal(const zu_wchar* name, double value)
{
    return newNode(name, ZU_FLD_REAL, realValue(value));
}

FldNode* zu_FldList_newPoint(const zu_wchar* name, const double* xyz)
{
    return newNode(name, ZU_FLD_POINT, pointValue(xyz));
}

FldNode* zu_FldList_newMpoint(const zu_wchar* name, const double* xyz)
{
    return newNode(name, ZU_FLD_MPOINT, pointValue(xyz));
}

FldNode* zu_FldList_newDpoint(const zu_wchar* name, const double* xyz)
{
    return newNode(name, ZU_FLD_DPOINT, pointValue(xyz));
}

FldNode* zu_FldList_newVector(const zu_wchar* name, const double* xyz)
{
    return newNode(name, ZU_FLD_VECTOR, pointValue(xyz));
}

FldNode* zu_FldList_newList(const zu_wchar* name, FldList* value)
{
    return newNode(name, ZU_FLD_LIST, listValue(value));
}

FldNode* zu_FldList_newUnknown(const zu_wchar* name)
{
    return newNode(name, ZU_FLD_UNKNOWN, integerValue(0));
}

int32_t zu_FldList_appChar(FldList* list, const zu_wchar* name, const zu_wchar* text)
{
    return append(list, zu_FldList_newChar(name, text));
}

int32_t zu_FldList_appHandle(FldList* list, const zu_wchar* name, const zu_wchar* text)
{
    return append(list, zu_FldList_newHandle(name, text));
}

int32_t zu_FldList_appInt(FldList* list, const zu_wchar* name, int32_t value)
{
    return append(list, zu_FldList_newInt(name, value));
}

int32_t zu_FldList_appLong(FldList* list, const zu_wchar* name, int32_t value)
{
    return append(list, zu_FldList_newLong(name, value));
}

int32_t zu_FldList_appReal(FldList* list, const zu_wchar* name, double value)
{
    return append(list, zu_FldList_newReal(name, value));
}

int32_t zu_FldList_appPoint(FldList* list, const zu_wchar* name, const double* xyz)
{
    return append(list, zu_FldList_newPoint(name, xyz));
}

int32_t zu_FldList_appMpoint(FldList* list, const zu_wchar* name, const double* xyz)
{
    return append(list, zu_FldList_newMpoint(name, xyz));
}

int32_t zu_FldList_appDpoint(FldList* list, const zu_wchar* name, const double* xyz)
{
    return append(list, zu_FldList_newDpoint(name, xyz));
}

int32_t zu_FldList_appVector(FldList* list, const zu_wchar* name, const double* xyz)
{
    return append(list, zu_FldList_newVector(name, xyz));
}

int32_t zu_FldList_appList(FldList* list, const zu_wchar* name, FldList* value)
{
    return append(list, zu_FldList_newList(name, value));
}

int32_t zu_FldList_appStrList(FldList* list, const zu_wchar* name, LnkList* value)
{
    return append(list, newStrListNode(name, value));
}

int32_t zu_FldList_appUnknown(FldList* list, const zu_wchar* name)
{
    return append(list, zu_FldList_newUnknown(name));
}

FldNode* zu_FldList_find(FldList* list, const zu_wchar* name)
{
    return static_cast<FldNode*>(zu_LnkList_search(list, name, hasName));
}

FldNode* zu_FldList_curr(FldList* list)
{
    return static_cast<FldNode*>(zu_LnkList_getCurr(list));
}

int32_t zu_FldList_delCurr(FldList* list)
{
    return zu_LnkList_delCurr(list, zu_FldList_destroyNode);
}

int32_t zu_FldList_delFld(FldList* list, const zu_wchar* name)
{
    if (list == nullptr || name == nullptr || zu_FldList_find(list, name) == nullptr)
        return 0;
    zu_FldList_delCurr(list);
    return 1;
}

int32_t zu_FldList_start(FldList* list)
{
    return zu_LnkList_start(list);
}

int32_t zu_FldList_next(FldList* list)
{
    return zu_LnkList_next(list);
}

int32_t zu_FldList_prev(FldList* list)
{
    return zu_LnkList_prev(list);
}

int32_t zu_FldList_eol(FldList* list)
{
    return zu_LnkList_eol(list);
}

uint32_t zu_FldList_count(FldList* list)
{
    return zu_LnkList_length(list);
}
