#include "zu_Env.h"

#include "config/ini_document.h"
#include "files/lists.h"
#include "frame/format.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/files.h"
#include "platform/profile.h"
#include "platform/runtime.h"
#include "zu_Ini.h"
#include "zu_Sys.h"

#include <algorithm>

using namespace zu;

namespace {

constexpr const zu_wchar* configurationFile = ZU_W("zu.ini");
constexpr const zu_wchar* generalGroup = ZU_W("GENERAL");

// Lines of the form "name = value". Made by the first setting; lives as long as the process.
StrList* session = nullptr;
// Nothing in the library reads it.
int32_t isApplicationSession = 0;

// Moves the store's cursor to the line of a variable. False, and no current, when there is none.
bool findVariable(WideView name)
{
    for (zu_StrList_start(session); zu_StrList_eol(session) == 0; zu_StrList_next(session)) {
        if (text::equalIgnoringCase(iniEntryOf(stringOf(session->current)).key, name))
            return true;
    }
    return false;
}

const zu_wchar* configurationPath()
{
    static text::Buffer<ZU_SYS_PATH_SIZE> path;
    return zu_Sys_getCfgName(path.units, configurationFile);
}

// Session, configuration, environment: the first that knows the name.
bool lookUp(WideString& value, const WideString& name)
{
    const zu_wchar* known = zu_Env_getSesLocal(name.c_str());
    if (known == nullptr)
        known = zu_Env_getIni(generalGroup, name.c_str());
    if (known != nullptr) {
        value = known;
        return true;
    }
    const auto variable = platform::environmentVariable(name);
    if (variable)
        value = *variable;
    return variable.has_value();
}

// Resolves the reference at position, which moves behind it. Empty where there is none.
WideString expandReference(WideView text, std::size_t& position)
{
    WideString value;
    if (position >= text.size() || text[position] != ZU_W('%'))
        return value;
    const std::size_t start = position + 1;
    const std::size_t close = text.find(ZU_W('%'), start);
    const WideString name(text.substr(start, close == WideView::npos ? close : close - start));
    position = close == WideView::npos ? text.size() : close + 1;
    if (!name.empty())
        lookUp(value, name);
    return value;
}

// The system has no reader of its own: the rules of the library's own files.
WideString readProfile(WideView file, WideView section, WideView key)
{
    const auto content = platform::readContent(file);
    if (!content)
        return WideString();
    const IniDocument document(*content);
    return WideString(document.value(section, key).value_or(WideView()));
}

} // namespace

zu_wchar* zu_Env_getSesLocal(const zu_wchar* name)
{
    static text::Buffer<512> value;
    if (session == nullptr || name == nullptr || !findVariable(name))
        return nullptr;
    return value.set(iniEntryOf(stringOf(session->current)).value);
}

zu_wchar* zu_Env_getSes(const zu_wchar* name)
{
    return zu_Env_getSesLocal(name);
}

int32_t zu_Env_setSesLocal(const zu_wchar* name, const zu_wchar* value)
{
    if (name == nullptr)
        return 1;
    if (session == nullptr)
        session = zu_StrList_create(nullptr);
    if (session == nullptr)
        return 1;
    const bool existed = findVariable(name);
    guarded([&] {
        if (!text::view(value).empty()) {
            const WideString line = formatted(ZU_W("%s = %s"), name, value);
            if (existed)
                zu_StrList_modCurr(session, line.c_str());
            else
                zu_StrList_insEnd(session, line.c_str());
        } else if (existed) {
            zu_StrList_delCurr(session);
        }
    });
    return existed ? 0 : 1;
}

int32_t zu_Env_setSes(const zu_wchar* name, const zu_wchar* value)
{
    return zu_Env_setSesLocal(name, value);
}

void zu_Env_resetSesLocal(void)
{
    zu_StrList_delAll(session);
}

void zu_Env_resetSes(void)
{
    zu_Env_resetSesLocal();
}

void zu_Env_setSesApp(void)
{
    isApplicationSession = 1;
}

StrList* zu_Env_getSesList(void)
{
    return session == nullptr ? nullptr : zu_StrList_copy(session);
}

zu_wchar* zu_Env_getIni(const zu_wchar* group, const zu_wchar* key)
{
    static zu_wchar* last = nullptr;
    return last = zu_Ini_get(configurationPath(), group, key);
}

int32_t zu_Env_setIni(const zu_wchar* group, const zu_wchar* key, const zu_wchar* value)
{
    return zu_Ini_set(configurationPath(), group, key, value);
}

FldList* zu_Env_getIniGroup(const zu_wchar* group)
{
    return zu_Ini_getGroup(configurationPath(), group);
}

int32_t zu_Env_displayIniError(const zu_wchar* group, const zu_wchar* key)
{
    return zu_Ini_displayError(configurationPath(), group, key);
}

zu_wchar* zu_Env_getWin(const zu_wchar* file, const zu_wchar* section, const zu_wchar* key)
{
    // Cleared when there is nothing to put in only: an argument may be the value of the call before.
    static text::Buffer<255> value;
    const bool found = file != nullptr && section != nullptr && key != nullptr && guarded(false, [&] {
                           auto read = platform::profileString(file, section, key, value.capacity);
                           value.set(read ? *read : readProfile(file, section, key));
                           return !value.view().empty();
                       });
    if (!found)
        value.clear();
    return found ? value.units : nullptr;
}

zu_wchar* zu_Env_expandVar(const zu_wchar* text, int32_t* position)
{
    static text::Buffer<512> value;
    const bool expanded = text != nullptr && position != nullptr && *position >= 0 && guarded(false, [&] {
                              auto index = static_cast<std::size_t>(*position);
                              value.set(expandReference(text, index));
                              *position = static_cast<int32_t>(index);
                              return true;
                          });
    if (!expanded)
        value.clear();
    return value.units;
}

zu_wchar* zu_Env_expandStr(const zu_wchar* text)
{
    static text::Buffer<512> expanded;
    const bool complete = guarded(false, [&] {
        const WideView from = text::view(text);
        WideString out;
        for (std::size_t index = 0; index < from.size();) {
            if (from[index] != ZU_W('%')) {
                out += from[index++];
            } else if (from.substr(index, 2) == ZU_W("%%")) {
                out += ZU_W('%');
                index += 2;
            } else {
                out += expandReference(from, index);
            }
        }
        expanded.set(out);
        return true;
    });
    if (!complete)
        expanded.clear();
    return expanded.units;
}

StrList* zu_Env_split(const zu_wchar* text)
{
    ListOwner items(zu_StrList_create(nullptr));
    WideView rest = text::view(text).substr(0, 512);
    bool complete = items != nullptr;
    while (complete && !rest.empty()) {
        const std::size_t end = std::min(rest.find(ZU_W(';')), rest.size());
        const WideView item = text::trimmed(rest.substr(0, end));
        complete = item.empty() || appendString(items.get(), item);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return complete && items->count > 0 ? items.release() : nullptr;
}
