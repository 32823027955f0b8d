// Changing fields by name, fields of several values, and copying between lists.
#include "fields/fldnode.h"

using namespace zu;

namespace {

// Gives a field another type and value. The new value is made by then, so the old text may have been its source.
int32_t replace(FldNode& node, char type, FldValue value)
{
    if (isText(node.type))
        zu_Free(node.value.text);
    node.type = static_cast<uint16_t>(type);
    // The unknown type clears the integer alone; the whole value is new for the others.
    if (type == ZU_FLD_UNKNOWN)
        node.value.integer = 0;
    else
        node.value = value;
    return ZU_FLD_OK;
}

// The value of the present field is replaced, or the field appended with `append`.
template <class MakeValue, class Append>
int32_t modify(FldList* list, const zu_wchar* name, char type, MakeValue makeValue, Append append)
{
    FldNode* const node = zu_FldList_find(list, name);
    return node == nullptr ? append() : replace(*node, type, makeValue());
}

// Adds one more value with `appendTo`, which appends it to the list given.
template <class AppendTo>
int32_t addValue(FldList* list, const zu_wchar* name, AppendTo appendTo)
{
    const FldNode* node = zu_FldList_find(list, name);
    if (node == nullptr)
        return appendTo(list);
    if (node->type != ZU_FLD_LIST)
        node = zu_FldList_convertNodeToList(list, name);
    if (node != nullptr)
        appendTo(node->value.list);
    return ZU_FLD_OK;
}

} // namespace

int32_t zu_FldList_modChar(FldList* list, const zu_wchar* name, const zu_wchar* text)
{
    return modify(
        list, name, ZU_FLD_CHAR, [&] { return textValue(text, false); },
        [&] { return zu_FldList_appChar(list, name, text); });
}

int32_t zu_FldList_modHandle(FldList* list, const zu_wchar* name, const zu_wchar* text)
{
    return modify(
        list, name, ZU_FLD_HANDLE, [&] { return textValue(text, false); },
        [&] { return zu_FldList_appHandle(list, name, text); });
}

int32_t zu_FldList_modInt(FldList* list, const zu_wchar* name, int32_t value)
{
    return modify(
        list, name, ZU_FLD_INT, [&] { return integerValue(value); },
        [&] { return zu_FldList_appInt(list, name, value); });
}

int32_t zu_FldList_modLong(FldList* list, const zu_wchar* name, int32_t value)
{
    return modify(
        list, name, ZU_FLD_LONG, [&] { return integerValue(value); },
        [&] { return zu_FldList_appLong(list, name, value); });
}

int32_t zu_FldList_modReal(FldList* list, const zu_wchar* name, double value)
{
    return modify(
        list, name, ZU_FLD_REAL, [&] { return realValue(value); },
        [&] { return zu_FldList_appReal(list, name, value); });
}

int32_t zu_FldList_modPoint(FldList* list, const zu_wchar* name, const double* xyz)
{
    return modify(
        list, name, ZU_FLD_POINT, [&] { return pointValue(xyz); },
        [&] { return zu_FldList_appPoint(list, name, xyz); });
}

int32_t zu_FldList_modMpoint(FldList* list, const zu_wchar* name, const double* xyz)
{
    return modify(
        list, name, ZU_FLD_MPOINT, [&] { return pointValue(xyz); },
        [&] { return zu_FldList_appMpoint(list, name, xyz); });
}

int32_t zu_FldList_modDpoint(FldList* list, const zu_wchar* name, const double* xyz)
{
    return modify(
        list, name, ZU_FLD_DPOINT, [&] { return pointValue(xyz); },
        [&] { return zu_FldList_appDpoint(list, name, xyz); });
}

int32_t zu_FldList_modVector(FldList* list, const zu_wchar* name, const double* xyz)
{
    return modify(
        list, name, ZU_FLD_VECTOR, [&] { return pointValue(xyz); },
        [&] { return zu_FldList_appVector(list, name, xyz); });
}

int32_t zu_FldList_modList(FldList* list, const zu_wchar* name, FldList* value)
{
    return modify(
        list, name, ZU_FLD_LIST, [&] { return listValue(value); },
        [&] { return zu_FldList_appList(list, name, value); });
}

int32_t zu_FldList_modUnknown(FldList* list, const zu_wchar* name)
{
    return modify(
        list, name, ZU_FLD_UNKNOWN, [] { return integerValue(0); }, [&] { return zu_FldList_appUnknown(list, name); });
}

FldNode* zu_FldList_convertNodeToList(FldList* list, const zu_wchar* name)
{
    FldNode* const node = zu_FldList_find(list, name);
    if (node == nullptr) {
        zu_FldList_appList(list, name, nullptr);
        return nullptr;
    }
    if (node->type == ZU_FLD_LIST)
        return nullptr;
    FldList* const inner = zu_LnkList_create(node, nullptr);
    FldNode* const outer = inner == nullptr ? nullptr : zu_FldList_newList(name, inner);
    if (outer == nullptr) {
        zu_LnkList_destroy(inner, nullptr); // the field itself stays where it is
        return nullptr;
    }
    zu_LnkList_modCurr(list, outer, nullptr);
    return outer;
}

int32_t zu_FldList_addCharVal(FldList* list, const zu_wchar* name, const zu_wchar* text)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appChar(into, name, text); });
}

int32_t zu_FldList_addHandleVal(FldList* list, const zu_wchar* name, const zu_wchar* text)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appHandle(into, name, text); });
}

int32_t zu_FldList_addIntVal(FldList* list, const zu_wchar* name, int32_t value)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appInt(into, name, value); });
}

int32_t zu_FldList_addLongVal(FldList* list, const zu_wchar* name, int32_t value)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appLong(into, name, value); });
}

int32_t zu_FldList_addRealVal(FldList* list, const zu_wchar* name, double value)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appReal(into, name, value); });
}

int32_t zu_FldList_addPointVal(FldList* list, const zu_wchar* name, const double* xyz)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appPoint(into, name, xyz); });
}

int32_t zu_FldList_addMpointVal(FldList* list, const zu_wchar* name, const double* xyz)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appMpoint(into, name, xyz); });
}

int32_t zu_FldList_addDpointVal(FldList* list, const zu_wchar* name, const double* xyz)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appDpoint(into, name, xyz); });
}

int32_t zu_FldList_addVectorVal(FldList* list, const zu_wchar* name, const double* xyz)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appVector(into, name, xyz); });
}

int32_t zu_FldList_addUnknownVal(FldList* list, const zu_wchar* name)
{
    return addValue(list, name, [&](FldList* into) { return zu_FldList_appUnknown(into, name); });
}

int32_t zu_FldList_addVal(FldList* list, const zu_wchar* name, uint16_t type, const void* value)
{
    const auto* const text = static_cast<const zu_wchar*>(value);
    const auto* const xyz = static_cast<const double*>(value);
    const auto* const integer = static_cast<const int32_t*>(value);
    if (value == nullptr && (isInteger(type) || type == ZU_FLD_REAL))
        return ZU_FLD_NOTHING;
    switch (type) {
    case ZU_FLD_CHAR: zu_FldList_addCharVal(list, name, text); break;
    case ZU_FLD_HANDLE: zu_FldList_addHandleVal(list, name, text); break;
    case ZU_FLD_POINT: zu_FldList_addPointVal(list, name, xyz); break;
    case ZU_FLD_MPOINT: zu_FldList_addMpointVal(list, name, xyz); break;
    case ZU_FLD_DPOINT: zu_FldList_addDpointVal(list, name, xyz); break;
    case ZU_FLD_VECTOR: zu_FldList_addVectorVal(list, name, xyz); break;
    case ZU_FLD_INT: zu_FldList_addIntVal(list, name, *integer); break;
    case ZU_FLD_LONG: zu_FldList_addLongVal(list, name, *integer); break;
    case ZU_FLD_REAL: zu_FldList_addRealVal(list, name, *xyz); break;
    case ZU_FLD_UNKNOWN: zu_FldList_addUnknownVal(list, name); break;
    default: return ZU_FLD_NOTHING;
    }
    // Done, whatever became of the value: meant.
    return ZU_FLD_OK;
}

int32_t zu_FldList_copyFld(FldList* source, const zu_wchar* sourceName, FldList* target, const zu_wchar* targetName)
{
    if (source == nullptr || sourceName == nullptr || target == nullptr || targetName == nullptr)
        return 0;
    const FldNode* const node = zu_FldList_find(source, sourceName);
    if (node == nullptr)
        return 0;
    // Copies of the value: the target may be the source, and the field its own target.
    text::Buffer<512> text;
    double xyz[3] = {};
    int32_t integer = 0;
    double real = 0.0;
    switch (node->type) {
    case ZU_FLD_CHAR:
    case ZU_FLD_HANDLE:
        zu_FldList_currChar(source, text.units, text.capacity);
        zu_FldList_modChar(target, targetName, text.units);
        break;
    case ZU_FLD_POINT:
        zu_FldList_currPoint(source, xyz);
        zu_FldList_modPoint(target, targetName, xyz);
        break;
    case ZU_FLD_MPOINT:
        zu_FldList_currPoint(source, xyz);
        zu_FldList_modMpoint(target, targetName, xyz);
        break;
    case ZU_FLD_DPOINT:
        zu_FldList_currPoint(source, xyz);
        zu_FldList_modDpoint(target, targetName, xyz);
        break;
    case ZU_FLD_VECTOR:
        zu_FldList_currVector(source, xyz);
        zu_FldList_modVector(target, targetName, xyz);
        break;
    case ZU_FLD_INT:
        zu_FldList_currInt(source, &integer);
        zu_FldList_modInt(target, targetName, integer);
        break;
    case ZU_FLD_LONG:
        zu_FldList_currLong(source, &integer);
        zu_FldList_modLong(target, targetName, integer);
        break;
    case ZU_FLD_REAL:
        zu_FldList_currReal(source, &real);
        zu_FldList_modReal(target, targetName, real);
        break;
    default: break; // nested lists, string lists and unknown fields are not copied, and that counts as done
    }
    return 1;
}
