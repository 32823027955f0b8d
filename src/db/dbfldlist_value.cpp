// The values of fields: the rule for setting them, and the readers.
#include "db/dbfld.h"

#include <algorithm>
#include <utility>

using namespace zu;
using namespace zu::db;

namespace {

constexpr std::size_t resultSize = 512;
using Result = text::Buffer<resultSize>;

DbFldNode* currentField(DbFldList* list)
{
    return static_cast<DbFldNode*>(zu_LnkList_getCurr(list));
}

zu_wchar* valueInto(Result& result, const DbFldNode* field)
{
    return result.set(field == nullptr ? WideView() : valueOf(*field));
}

zu_wchar* paddedInto(Result& result, const DbFldNode* field)
{
    zu_wchar* const text = valueInto(result, field);
    std::size_t length = result.view().size();
    if (field == nullptr)
        return text;
    for (const std::size_t width = std::min<std::size_t>(field->width, resultSize); length < width; ++length)
        text[length] = ZU_W(' ');
    text[length] = 0;
    return text;
}

// The beginning of the value that the conversions look at.
WideView numberOf(DbFldList* list)
{
    const DbFldNode* const field = currentField(list);
    return field == nullptr ? WideView() : valueOf(*field).substr(0, resultSize);
}

int32_t modify(DbFldNode* field, const zu_wchar* value)
{
    return field != nullptr && setValue(*field, value);
}

int32_t exchangeNumber(DbFldList* list, std::uint32_t DbFldNode::*member, int32_t number)
{
    DbFldNode* const field = currentField(list);
    if (field == nullptr)
        return 0;
    return static_cast<int32_t>(std::exchange(field->*member, static_cast<std::uint32_t>(number)));
}

int32_t numberIn(DbFldList* list, std::uint32_t DbFldNode::*member)
{
    const DbFldNode* const field = currentField(list);
    return field == nullptr ? 0 : static_cast<int32_t>(field->*member);
}

} // namespace

bool zu::db::setValue(DbFldNode& field, const zu_wchar* value)
{
    if (value == nullptr) {
        zu_Free(std::exchange(field.value, nullptr));
        return false;
    }
    WideView kept(value);
    while (!kept.empty() && text::isSpace(kept.back()))
        kept.remove_suffix(1);
    if (field.type == ZU_DBFLD_NUMBER || field.type == ZU_DBFLD_FLOAT)
        kept = text::trimmed(kept);
    // Copied before the old one goes: the new value may lie in it.
    zu_wchar* const copy = text::duplicate(kept);
    if (copy == nullptr)
        return false;
    zu_Free(std::exchange(field.value, copy));
    return true;
}

zu_wchar* zu_DbFldList_getCurrStr(DbFldList* list)
{
    static Result result;
    return valueInto(result, currentField(list));
}

zu_wchar* zu_DbFldList_getCurrStrPadded(DbFldList* list)
{
    static Result result;
    return paddedInto(result, currentField(list));
}

double zu_DbFldList_getCurrDouble(DbFldList* list)
{
    return text::toDouble(numberOf(list));
}

int32_t zu_DbFldList_getCurrInt(DbFldList* list)
{
    return text::toInt(numberOf(list));
}

zu_wchar* zu_DbFldList_getCurrName(DbFldList* list)
{
    static Result result;
    const DbFldNode* const field = currentField(list);
    return result.set(field == nullptr ? WideView() : WideView(field->name));
}

zu_wchar zu_DbFldList_getCurrType(DbFldList* list)
{
    const DbFldNode* const field = currentField(list);
    return field == nullptr ? zu_wchar{ZU_DBFLD_TEXT} : field->type;
}

int32_t zu_DbFldList_getCurrWidth(DbFldList* list)
{
    return numberIn(list, &DbFldNode::width);
}

int32_t zu_DbFldList_getCurrPrec(DbFldList* list)
{
    return numberIn(list, &DbFldNode::precision);
}

int32_t zu_DbFldList_modCurrVal(DbFldList* list, const zu_wchar* value)
{
    return modify(currentField(list), value);
}

int32_t zu_DbFldList_modCurrWidth(DbFldList* list, int32_t width)
{
    return exchangeNumber(list, &DbFldNode::width, width);
}

int32_t zu_DbFldList_modCurrPrec(DbFldList* list, int32_t precision)
{
    return exchangeNumber(list, &DbFldNode::precision, precision);
}

zu_wchar* zu_DbFldList_getNthStr(DbFldList* list, int32_t index)
{
    static Result result;
    return valueInto(result, zu_DbFldList_getNth(list, index));
}

zu_wchar* zu_DbFldList_getNthStrPadded(DbFldList* list, int32_t index)
{
    static Result result;
    return paddedInto(result, zu_DbFldList_getNth(list, index));
}

int32_t zu_DbFldList_modNthVal(DbFldList* list, int32_t index, const zu_wchar* value)
{
    return modify(zu_DbFldList_getNth(list, index), value);
}

zu_wchar* zu_DbFldList_getFldVal(DbFldList* list, const zu_wchar* name)
{
    static Result result;
    return valueInto(result, zu_DbFldList_findFld(list, name));
}

int32_t zu_DbFldList_modFldVal(DbFldList* list, const zu_wchar* name, const zu_wchar* value)
{
    return modify(zu_DbFldList_findFld(list, name), value);
}
