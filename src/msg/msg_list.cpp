// Lists of messages, translated together.
#include "frame/text.h"
#include "frame/trace.h"
#include "msg/translate.h"
#include "zu_Msg.h"
#include "zu_Str.h"

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <utility>

static_assert(offsetof(MsgNode, text) == 40 && offsetof(MsgNode, section) == 48 && offsetof(MsgNode, number) == 84 &&
              offsetof(MsgNode, padWidth) == 88);

using namespace zu;

namespace {

struct DestroyList
{
    void operator()(MsgList* list) const { zu_MsgList_destroy(list); }
};
// Owner of a list under construction, which a COM error of the translator must not leak.
using Owner = std::unique_ptr<MsgList, DestroyList>;

int32_t destroyNode(void* data)
{
    auto* const node = static_cast<MsgNode*>(data);
    zu_Free(node->text);
    zu_Free(node);
    return 1;
}

bool append(MsgList* list, const zu_wchar* key, const zu_wchar* text, const zu_wchar* section, uint32_t number)
{
    MsgNode* const node = zu_MsgNode_create(key, text, section, number, 0);
    if (node == nullptr)
        return false;
    if (zu_LnkList_insEnd(list, node) == 1)
        return true;
    destroyNode(node);
    return false;
}

void translateNode(MsgNode& node)
{
    text::Buffer<ZU_MSG_SIZE> result;
    if (text::view(node.text).empty() || text::view(node.section).empty())
        return;
    result.set(text::view(translate(node.text, node.section, static_cast<int32_t>(node.number))));
    if (result.view().starts_with(ZU_W('^')))
        return;
    if (node.padWidth >= 1)
        zu_Str_pad(result.units, static_cast<uint32_t>(std::min(node.padWidth, ZU_MSG_SIZE)));
    zu_wchar* const copy = text::duplicate(result.view());
    if (copy != nullptr)
        zu_Free(std::exchange(node.text, copy));
}

} // namespace

MsgNode* zu_MsgNode_create(const zu_wchar* key, const zu_wchar* text, const zu_wchar* section, uint32_t number,
                           int32_t padWidth)
{
    HookPtr<MsgNode> node(static_cast<MsgNode*>(zu_Calloc(1, sizeof(MsgNode))));
    if (node == nullptr)
        return nullptr;
    text::copyCut(node->key, ZU_MSG_KEY_SIZE, text::view(key));
    text::copyCut(node->section, ZU_MSG_KEY_SIZE, text::view(section));
    node->number = number;
    node->padWidth = padWidth;
    node->text = zu_Str_dup(text);
    return node->text == nullptr && text != nullptr ? nullptr : node.release();
}

int32_t zu_Msg_multiple(MsgList* list)
{
    for (zu_LnkList_start(list); zu_LnkList_eol(list) == 0; zu_LnkList_next(list)) {
        if (auto* const node = static_cast<MsgNode*>(zu_LnkList_getCurr(list)))
            translateNode(*node);
    }
    return 1;
}

MsgList* zu_Msg_mlt(const zu_wchar* key, ...)
{
    Owner list(zu_LnkList_create(nullptr));
    va_list arguments;
    va_start(arguments, key);
    bool complete = list != nullptr;
    int number = 0;
    while (complete && key != nullptr) {
        const auto* const text = va_arg(arguments, const zu_wchar*);
        if (text == nullptr)
            break;
        const auto* const section = va_arg(arguments, const zu_wchar*);
        if (section != nullptr)
            number = va_arg(arguments, int);
        complete = append(list.get(), key, text, section, static_cast<uint32_t>(number));
        // After a number 0 the key serves again: meant.
        if (number != 0)
            key = va_arg(arguments, const zu_wchar*);
    }
    va_end(arguments);
    if (!complete)
        return nullptr;
    zu_Msg_multiple(list.get());
    return list.release();
}

MsgList* zu_Msg_mltReadArray(const MsgRecord* records)
{
    Owner list(zu_LnkList_create(nullptr));
    bool complete = list != nullptr;
    for (; complete && records != nullptr && !text::view(records->key).empty(); ++records)
        complete = append(list.get(), records->key, records->text, records->section, records->number);
    if (!complete)
        return nullptr;
    zu_Msg_multiple(list.get());
    return list.release();
}

zu_wchar* zu_Msg_find(MsgList* list, const zu_wchar* key)
{
    static text::Buffer<ZU_MSG_SIZE> result;
    result.set(text::view(key));
    for (zu_LnkList_start(list); zu_LnkList_eol(list) == 0; zu_LnkList_next(list)) {
        const auto* const node = static_cast<const MsgNode*>(zu_LnkList_getCurr(list));
        if (node != nullptr && node->text != nullptr && text::view(node->key) == text::view(key))
            return result.set(node->text);
    }
    return result.units;
}

int32_t zu_MsgList_destroy(MsgList* list)
{
    zu_LnkList_delAll(list, destroyNode);
    return zu_LnkList_destroy(list, nullptr);
}
