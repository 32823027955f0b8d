// Printing field lists, to standard output and to the diagnostics channel, and reading them from "name=value" lines.
#include "containers/strlist.h"
#include "fields/fldnode.h"
#include "frame/console.h"
#include "frame/guard.h"
#include "zu_Diag.h"
#include "zu_Ini.h"

#include <limits>
#include <optional>

using namespace zu;

namespace {

constexpr const zu_wchar* traceSource = ZU_W("FLD");

// Names stand at the outermost level only; deeper ones are indented in their place.
WideString prefixOf(const FldNode& node, int32_t level)
{
    if (level <= 0)
        return formatted(ZU_W("%-16s "), node.name);
    return WideString(17 + 3 * (static_cast<std::size_t>(level) - 1), ZU_W(' '));
}

int32_t deeper(int32_t level)
{
    return level < std::numeric_limits<int32_t>::max() ? level + 1 : level;
}

// Type code and value; none for a text field without a text.
std::optional<WideString> bodyOf(const FldNode& node)
{
    const auto code = static_cast<zu_wchar>(node.type);
    const FldValue& value = node.value;
    if (isText(node.type))
        return value.text == nullptr ? std::nullopt : std::optional(formatted(ZU_W("%c:%s"), code, value.text));
    if (isPointLike(node.type))
        return formatted(ZU_W("%c:%.3f %.3f %.3f"), code, value.point[0], value.point[1], value.point[2]);
    if (isInteger(node.type))
        return formatted(node.type == ZU_FLD_INT ? ZU_W("%c:%d") : ZU_W("%c:%ld"), code, value.integer);
    if (node.type == ZU_FLD_REAL)
        return formatted(ZU_W("%c:%f"), code, value.real);
    return WideString(ZU_W("<undefined>"));
}

// Calls named(field) for each field that has a name.
template <class Named>
void forEachNamed(FldList* list, Named named)
{
    for (zu_FldList_start(list); zu_FldList_eol(list) == 0; zu_FldList_next(list)) {
        const FldNode* const node = zu_FldList_curr(list);
        if (node != nullptr && node->name != nullptr)
            named(*node);
    }
}

} // namespace

void zu_FldList_printList(FldList* list)
{
    zu_FldList_printLevelList(list, 0);
}

void zu_FldList_printLevelList(FldList* list, int32_t level)
{
    guarded([&] {
        forEachNamed(list, [&](const FldNode& node) {
            writeConsole(prefixOf(node, level));
            if (node.type == ZU_FLD_LIST) {
                writeConsole(ZU_W("\n"));
                zu_FldList_printLevelList(node.value.list, deeper(level));
            } else if (const std::optional<WideString> body = bodyOf(node)) {
                // A text field without a text gets no line break either: meant.
                writeConsole(*body);
                writeConsole(ZU_W("\n"));
            }
        });
    });
}

void zu_FldList_printListDiag(FldList* list, int32_t diagLevel, uint32_t mask)
{
    zu_FldList_printLevelListDiag(list, 0, diagLevel, mask);
}

void zu_FldList_printLevelListDiag(FldList* list, int32_t level, int32_t diagLevel, uint32_t mask)
{
    const auto isOn = [&] {
        return diagLevel <= zu_Diag_getLevel() && (mask & zu_Diag_getCondition()) != 0;
    };
    const auto put = [&](const WideString& line, uint32_t number) {
        zu_Diag_putOutputMsg(line.c_str(), traceSource, number);
    };
    guarded([&] {
        forEachNamed(list, [&](const FldNode& node) {
            if (node.type == ZU_FLD_LIST) {
                if (isOn())
                    put(prefixOf(node, level), __LINE__);
                zu_FldList_printLevelListDiag(node.value.list, deeper(level), diagLevel, mask);
            } else if (!isOn()) {
                return;
            } else if (const std::optional<WideString> body = bodyOf(node)) {
                put(prefixOf(node, level) + *body, __LINE__);
            }
        });
    });
}

FldList* zu_FldList_fromEnvList(LnkList* lines)
{
    if (lines == nullptr)
        return nullptr;
    FldList* list = nullptr;
    const bool complete = guarded(false, [&] {
        for (const LnkNode* node = lines->first; node != nullptr; node = node->next) {
            const WideView line = stringOf(node);
            WideString name(line.size() + 1, 0);
            WideString value(line.size() + 1, 0);
            zu_Ini_parse(line.data(), name.data(), value.data());
            if (name[0] == 0 || value[0] == 0)
                continue;
            if (list == nullptr)
                list = zu_FldList_create(nullptr);
            if (list == nullptr || zu_FldList_appChar(list, name.c_str(), value.c_str()) != ZU_FLD_OK)
                return false;
        }
        return true;
    });
    lines->current = nullptr;
    if (!complete) {
        zu_FldList_destroy(list);
        return nullptr;
    }
    zu_FldList_start(list);
    return list;
}
