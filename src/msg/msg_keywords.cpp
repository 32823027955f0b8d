// Keyword lists: a keyword of the program and what the user calls it.
#include "files/lists.h"
#include "frame/format.h"
#include "frame/guard.h"
#include "frame/trace.h"
#include "msg/translate.h"
#include "platform/files.h"
#include "zu_Env.h"
#include "zu_File.h"
#include "zu_Msg.h"
#include "zu_Str.h"
#include "zu_Sys.h"

#include <clocale>
#include <memory>

using namespace zu;

namespace {

constexpr const zu_wchar* generalGroup = ZU_W("GENERAL");

struct DestroyPairs
{
    void operator()(MsgKeyWordList* list) const { zu_MsgKeyWordList_destroy(list); }
};

// Writes a diagnostic line, from level 2.
template <class... Args>
void diagnose(std::uint32_t line, WideView pattern, const Args&... args)
{
    if (!trace::msg.isOn(2))
        return;
    const std::size_t length = formatInto({zu_Diag_getDiagMsgBuf(), ZU_DIAG_MSG_SIZE + 1}, pattern, args...);
    zu_Diag_putOutput(static_cast<int32_t>(length), zu_Diag_getDiagMsgBuf(), trace::msg.source, line);
}

// Switches the process to the configured locale, if there is one.
void switchLocale()
{
    const WideString wanted(text::view(zu_Env_getIni(generalGroup, ZU_W("LANG_LOCALE"))));
    if (wanted.empty())
        return;
    ByteString name;
    const char* const set = platform::encodeText(name, wanted) ? std::setlocale(LC_ALL, name.c_str()) : nullptr;
    diagnose(__LINE__, ZU_W("Current locale set to %s original locale %s"), wanted,
             set == nullptr ? WideString() : platform::decodeText(set));
}

// What separates the translated keywords.
WideString separator()
{
    const WideString language(text::view(zu_Env_getIni(generalGroup, ZU_W("LANGUAGE"))));
    if (language.empty())
        return ZU_W(",");
    switchLocale();
    text::Buffer<ZU_SYS_PATH_SIZE> directory;
    const WideString path = formatted(ZU_W("%sLanguage\\SEP_%s.dbf"), zu_Sys_getNetDir(directory.units), language);
    return zu_File_exists(path.c_str()) == 1 ? WideString(zu_Msg(",", "SEP", 1)) : WideString(ZU_W(","));
}

// Pairs what both lists have; null when they have nothing in common.
MsgKeyWordList* pairUp(const StrList* sources, const StrList* translations)
{
    std::unique_ptr<MsgKeyWordList, DestroyPairs> pairs;
    const LnkNode* translation = translations == nullptr ? nullptr : translations->first;
    for (const LnkNode* source = sources->first; source != nullptr && translation != nullptr;
         source = source->next, translation = translation->next) {
        if (pairs == nullptr)
            pairs.reset(zu_MsgKeyWordList_create());
        zu_MsgKeyWordList_append(pairs.get(), stringOf(source).data(), stringOf(translation).data());
    }
    return pairs.release();
}

} // namespace

MsgKeyWordList* zu_Msg_getKeyWordList(const zu_wchar* keywords, const zu_wchar* section, int32_t)
{
    if (keywords == nullptr || section == nullptr)
        return nullptr;
    return guarded<MsgKeyWordList*>(nullptr, [&]() -> MsgKeyWordList* {
        const WideString translated(translate(keywords, section, 1));
        const ListOwner sources(zu_StrList_fromDelimitedString(keywords, ZU_W(",")));
        if (sources == nullptr)
            return nullptr;
        const WideString delimiter = separator();
        const ListOwner translations(zu_StrList_fromDelimitedString(translated.c_str(), delimiter.c_str()));
        // Several keywords that come back as one are of no use.
        const bool isUnusable = translated.find(delimiter) == WideString::npos && sources->count > 1;
        MsgKeyWordList* const pairs =
            isUnusable ? zu_MsgKeyWordList_create() : pairUp(sources.get(), translations.get());
        if (pairs != nullptr)
            diagnose(__LINE__, ZU_W("Leaving with key word string count is %d"), zu_LnkList_length(pairs));
        return pairs;
    });
}

MsgKeyWordList* zu_MsgKeyWordList_create(void)
{
    return zu_LnkList_create(nullptr);
}

int32_t zu_MsgKeyWordList_append(MsgKeyWordList* list, const zu_wchar* source, const zu_wchar* translation)
{
    if (list == nullptr || source == nullptr || translation == nullptr)
        return 0;
    MsgKeyWordListNode* const node = zu_MsgKeyWordListNode_create(source, translation);
    if (node != nullptr && zu_LnkList_insEnd(list, node) == 0)
        zu_MsgKeyWordListNode_destroy(node);
    // 0 whether or not it was appended: meant.
    return 0;
}

zu_wchar* zu_MsgKeyWordList_find(MsgKeyWordList* list, const zu_wchar* keyword)
{
    static text::Buffer<ZU_MSG_SIZE> result;
    result.set(text::view(keyword));
    for (zu_LnkList_start(list); keyword != nullptr && zu_LnkList_eol(list) == 0; zu_LnkList_next(list)) {
        const auto* const node = static_cast<const MsgKeyWordListNode*>(zu_LnkList_getCurr(list));
        if (node == nullptr || zu_Str_cmpi(node->source, keyword) != 0)
            continue;
        if (node->translation != nullptr)
            result.set(node->translation);
        break;
    }
    return result.units;
}

int32_t zu_MsgKeyWordList_destroy(MsgKeyWordList* list)
{
    return zu_LnkList_destroy(list, zu_MsgKeyWordListNode_destroy);
}

MsgKeyWordListNode* zu_MsgKeyWordListNode_create(const zu_wchar* source, const zu_wchar* translation)
{
    auto* const node = static_cast<MsgKeyWordListNode*>(zu_Calloc(1, sizeof(MsgKeyWordListNode)));
    if (node == nullptr)
        return nullptr;
    node->source = zu_Str_dup(source);
    node->translation = zu_Str_dup(translation);
    const bool isComplete =
        (node->source != nullptr || source == nullptr) && (node->translation != nullptr || translation == nullptr);
    if (isComplete)
        return node;
    zu_MsgKeyWordListNode_destroy(node);
    return nullptr;
}

int32_t zu_MsgKeyWordListNode_destroy(void* data)
{
    auto* const node = static_cast<MsgKeyWordListNode*>(data);
    if (node == nullptr)
        return 0;
    zu_Free(node->source);
    zu_Free(node->translation);
    zu_Free(node);
    return 1;
}
