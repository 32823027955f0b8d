// Reading fields, by name and at the cursor. The two ways differ on purpose: see the header.
#include "fields/fldnode.h"
#include "frame/format.h"

using namespace zu;

namespace {

// The status and value that an integer reader gives; text is for the readers that look into texts.
int32_t readInteger(const FldNode& node, int32_t* value, bool readsText)
{
    int32_t number = 0;
    bool hasNumber = true;
    if (isInteger(node.type))
        number = node.value.integer;
    else if (node.type == ZU_FLD_REAL)
        number = truncated(node.value.real);
    else if (node.type == ZU_FLD_CHAR && readsText && node.value.text != nullptr)
        number = text::toInt(node.value.text);
    else
        hasNumber = false;
    if (hasNumber && value != nullptr)
        *value = number;
    return hasNumber && node.type != ZU_FLD_CHAR ? ZU_FLD_OK : ZU_FLD_WRONG_TYPE;
}

// The number of a field; false when it has none.
bool numberOf(const FldNode& node, double* value)
{
    double number = 0.0;
    if (isInteger(node.type))
        number = node.value.integer;
    else if (node.type == ZU_FLD_REAL)
        number = node.value.real;
    else if (node.type == ZU_FLD_CHAR && node.value.text != nullptr)
        number = text::toDouble(node.value.text);
    else
        return false;
    if (value != nullptr)
        *value = number;
    return true;
}

int32_t readPoint(const FldNode& node, double* xyz)
{
    if (!isPointLike(node.type))
        return ZU_FLD_WRONG_TYPE;
    copyPoint(xyz, node);
    return ZU_FLD_OK;
}

void clear(zu_wchar* buffer)
{
    if (buffer != nullptr)
        buffer[0] = 0;
}

} // namespace

void zu::formatNumber(zu_wchar* buffer, const FldNode& node)
{
    if (buffer == nullptr)
        return;
    if (isInteger(node.type))
        formatUnbounded(buffer, node.type == ZU_FLD_INT ? ZU_W("%d") : ZU_W("%ld"), node.value.integer);
    else if (node.type == ZU_FLD_REAL)
        formatUnbounded(buffer, ZU_W("%f"), node.value.real);
    else
        buffer[0] = 0;
}

int32_t zu_FldList_getChar(FldList* list, const zu_wchar* name, zu_wchar* buffer, int32_t capacity)
{
    clear(buffer);
    const FldNode* const node = zu_FldList_find(list, name);
    if (node == nullptr)
        return ZU_FLD_NOT_FOUND;
    if (isText(node->type)) {
        copyToBuffer(buffer, capacity, node->value.text);
        return ZU_FLD_OK;
    }
    // A number is handed over as text, and the status tells that it was none: meant.
    formatNumber(buffer, *node);
    return ZU_FLD_WRONG_TYPE;
}

int32_t zu_FldList_getHandle(FldList* list, const zu_wchar* name, zu_wchar* buffer, int32_t capacity)
{
    clear(buffer);
    const FldNode* const node = zu_FldList_find(list, name);
    if (node == nullptr)
        return ZU_FLD_NOT_FOUND;
    if (!isText(node->type))
        return ZU_FLD_WRONG_TYPE;
    copyToBuffer(buffer, capacity, node->value.text);
    return ZU_FLD_OK;
}

int32_t zu_FldList_getInt(FldList* list, const zu_wchar* name, int32_t* value)
{
    const FldNode* const node = zu_FldList_find(list, name);
    // The number in a text is stored with the status "wrong type": meant.
    return node == nullptr ? ZU_FLD_NOT_FOUND : readInteger(*node, value, true);
}

int32_t zu_FldList_getLong(FldList* list, const zu_wchar* name, int32_t* value)
{
    return zu_FldList_getInt(list, name, value);
}

int32_t zu_FldList_getReal(FldList* list, const zu_wchar* name, double* value)
{
    if (value != nullptr)
        *value = 0.0;
    const FldNode* const node = zu_FldList_find(list, name);
    if (node == nullptr)
        return ZU_FLD_NOT_FOUND;
    // As for integers: the number in a text comes with the status "wrong type".
    return numberOf(*node, value) && node->type != ZU_FLD_CHAR ? ZU_FLD_OK : ZU_FLD_WRONG_TYPE;
}

int32_t zu_FldList_getPoint(FldList* list, const zu_wchar* name, double* xyz)
{
    const FldNode* const node = zu_FldList_find(list, name);
    return node == nullptr ? ZU_FLD_NOT_FOUND : readPoint(*node, xyz);
}

int32_t zu_FldList_getVector(FldList* list, const zu_wchar* name, double* xyz)
{
    return zu_FldList_getPoint(list, name, xyz);
}

int32_t zu_FldList_currFldname(FldList* list, zu_wchar* buffer)
{
    const FldNode* const node = zu_FldList_curr(list);
    if (node == nullptr || node->name == nullptr || buffer == nullptr)
        return ZU_FLD_NO_CURRENT;
    const WideView name(node->name);
    text::copyCut(buffer, name.size(), name);
    return ZU_FLD_OK;
}

int32_t zu_FldList_currFldtype(FldList* list, uint16_t* type)
{
    const FldNode* const node = zu_FldList_curr(list);
    if (node == nullptr)
        return ZU_FLD_NO_CURRENT;
    if (type != nullptr)
        *type = node->type;
    return ZU_FLD_OK;
}

int32_t zu_FldList_currChar(FldList* list, zu_wchar* buffer, int32_t capacity)
{
    const FldNode* const node = zu_FldList_curr(list);
    if (node == nullptr)
        return ZU_FLD_NO_CURRENT;
    if (isText(node->type)) {
        copyToBuffer(buffer, capacity, node->value.text);
        return ZU_FLD_OK;
    }
    formatNumber(buffer, *node);
    return ZU_FLD_WRONG_TYPE;
}

int32_t zu_FldList_currHandle(FldList* list, zu_wchar* buffer, int32_t capacity)
{
    const FldNode* const node = zu_FldList_curr(list);
    if (node == nullptr)
        return ZU_FLD_NO_CURRENT;
    if (isText(node->type)) {
        copyToBuffer(buffer, capacity, node->value.text);
        return ZU_FLD_OK;
    }
    clear(buffer);
    return ZU_FLD_WRONG_TYPE;
}

int32_t zu_FldList_currInt(FldList* list, int32_t* value)
{
    const FldNode* const node = zu_FldList_curr(list);
    return node == nullptr ? ZU_FLD_NO_CURRENT : readInteger(*node, value, false);
}

int32_t zu_FldList_currLong(FldList* list, int32_t* value)
{
    return zu_FldList_currInt(list, value);
}

int32_t zu_FldList_currReal(FldList* list, double* value)
{
    const FldNode* const node = zu_FldList_curr(list);
    if (node == nullptr)
        return ZU_FLD_NO_CURRENT;
    // Unlike the reader by name, this one counts the number in a text as done.
    const bool isNullText = node->type == ZU_FLD_CHAR && node->value.text == nullptr;
    return numberOf(*node, value) || isNullText ? ZU_FLD_OK : ZU_FLD_WRONG_TYPE;
}

int32_t zu_FldList_currPoint(FldList* list, double* xyz)
{
    const FldNode* const node = zu_FldList_curr(list);
    return node == nullptr ? ZU_FLD_NO_CURRENT : readPoint(*node, xyz);
}

int32_t zu_FldList_currVector(FldList* list, double* xyz)
{
    return zu_FldList_currPoint(list, xyz);
}

int32_t zu_FldList_currList(FldList* list, LnkList** value)
{
    const FldNode* const node = zu_FldList_curr(list);
    if (node == nullptr || (node->type != ZU_FLD_LIST && node->type != ZU_FLD_STRLIST))
        return ZU_FLD_WRONG_TYPE;
    if (value != nullptr)
        *value = node->value.list;
    return ZU_FLD_OK;
}
