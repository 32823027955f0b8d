// The direct way to INI files: their lines, read and rewritten without the cache.
#include "config/ini_document.h"
#include "fields/field_owner.h"
#include "files/lists.h"
#include "files/stream.h"
#include "frame/console.h"
#include "frame/guard.h"
#include "platform/files.h"
#include "zu_File.h"
#include "zu_Fname.h"
#include "zu_Ini.h"

using namespace zu;

namespace {

constexpr int32_t lineSize = 1024;
constexpr std::size_t valueSize = 1024;
constexpr const zu_wchar* temporaryName = ZU_W("zu_tmp.ini");
using LineBuffer = text::Buffer<lineSize>;

void copyWhole(zu_wchar* out, WideView text)
{
    if (out != nullptr)
        text::copyCut(out, text.size(), text);
}

// Appends the lines up to the next header. False without memory.
bool readMembers(std::FILE* stream, StrList* lines, bool keepComments)
{
    LineBuffer line;
    while (zu_File_readLine(stream, line.units, lineSize) == 1) {
        WideView rest = line.view();
        while (!rest.empty() && text::isSpace(rest.front()))
            rest.remove_prefix(1);
        if (rest.empty() || (rest.front() == ZU_W(';') && !keepComments))
            continue;
        if (rest.front() == ZU_W('['))
            return true;
        if (!appendString(lines, rest))
            return false;
    }
    return true;
}

// The fields that can be written, as "key=value" lines.
HookVector<WideString> memberLines(FldList* list)
{
    HookVector<WideString> lines;
    for (zu_FldList_start(list); zu_FldList_eol(list) == 0; zu_FldList_next(list)) {
        const zu_wchar* const name = zu_FldList_curr(list)->name;
        text::Buffer<valueSize> value;
        const int32_t status = zu_FldList_currChar(list, value.units, value.capacity);
        if (name != nullptr && (status == ZU_FLD_OK || status == ZU_FLD_WRONG_TYPE))
            lines.push_back(formatted(ZU_W("%s=%s"), name, value.units));
    }
    return lines;
}

// Writes the new content beside the file and moves it over the file; *isTried says whether it came to moving.
bool replaceThrough(const WideString& temporary, const zu_wchar* file, std::string_view content, bool* isTried)
{
    // What only some may read must not stand in the file beside it for others, not even for a moment.
    if (!platform::replaceContent(temporary, {}))
        return false;
    platform::copyPermissions(file, temporary);
    *isTried = platform::replaceContent(temporary, content);
    if (*isTried && platform::replaceFile(temporary, file))
        return true;
    platform::removeFile(temporary);
    return false;
}

} // namespace

StrList* zu_Ini_getGroupLines(const zu_wchar* file, const zu_wchar* group, int32_t keepComments)
{
    return guarded<StrList*>(nullptr, [&]() -> StrList* {
        const Stream stream = openStream(text::view(file), "r");
        if (stream == nullptr)
            return nullptr;
        platform::skipByteOrderMark(stream.get());
        if (zu_Ini_findGroup(stream.get(), group) == 0)
            return nullptr;
        ListOwner lines(zu_StrList_create(nullptr));
        const bool complete = lines != nullptr && readMembers(stream.get(), lines.get(), keepComments != 0);
        return complete ? lines.release() : nullptr;
    });
}

FldList* zu_Ini_getGroupItems(const zu_wchar* file, const zu_wchar* group)
{
    const ListOwner lines(zu_Ini_getGroupLines(file, group, 0));
    if (lines == nullptr)
        return nullptr;
    FieldOwner items(zu_FldList_create(nullptr));
    const bool complete = items != nullptr && guarded(false, [&] {
                              for (const LnkNode* node = lines->first; node != nullptr; node = node->next) {
                                  const IniEntry member = iniEntryOf(stringOf(node));
                                  if (!member.key.empty() && !member.value.empty() &&
                                      zu_FldList_appChar(items.get(), WideString(member.key).c_str(),
                                                         WideString(member.value).c_str()) != ZU_FLD_OK)
                                      return false;
                              }
                              return true;
                          });
    return complete ? items.release() : nullptr;
}

int32_t zu_Ini_setGroupItems(const zu_wchar* file, const zu_wchar* group, FldList* list)
{
    if (file == nullptr || group == nullptr || list == nullptr)
        return 0;
    WideString temporary;
    bool isMoveTried = false;
    const int32_t written = guarded(0, [&] {
        temporary = file;
        temporary.resize(static_cast<std::size_t>(zu_Fname_extractPath(file, temporary.data())));
        temporary += temporaryName;
        // Among the processes that rewrite files of this directory, which share the temporary name.
        const platform::DirectoryLock lock(file);
        const bool isReadOnly =
            platform::hasAccess(file, platform::Access::exists) && !platform::hasAccess(file, platform::Access::write);
        if (!lock.held() || isReadOnly)
            return 0;
        const IniDocument document(platform::readContent(file).value_or(ByteString()));
        const std::optional<ByteString> changed = document.withGroupLines(group, memberLines(list));
        return changed && replaceThrough(temporary, file, *changed, &isMoveTried) ? 1 : 0;
    });
    // The host is told as zu_File_move tells it, but without the lock: it may write files of this directory itself.
    if (isMoveTried) {
        zu_File_revalidate(temporary.c_str());
        zu_File_revalidate(file);
    }
    return written;
}

int32_t zu_Ini_findGroup(FILE* stream, const zu_wchar* group)
{
    LineBuffer line;
    LineBuffer name;
    while (stream != nullptr && zu_File_readLine(stream, line.units, lineSize) == 1) {
        if (zu_Ini_getGroupName(line.units, name.units) == 1 && text::equalIgnoringCase(name.view(), text::view(group)))
            return 1;
    }
    return 0;
}

int32_t zu_Ini_getGroupName(zu_wchar* line, zu_wchar* name)
{
    const WideView whole = text::view(line);
    std::size_t start = 0;
    while (start < whole.size() && text::isSpace(whole[start]))
        ++start;
    if (start > 0)
        text::copyCut(line, whole.size() - start, whole.substr(start));
    const std::optional<WideView> header = iniHeaderName(text::view(line));
    copyWhole(name, header.value_or(WideView()));
    return header.has_value();
}

void zu_Ini_parse(const zu_wchar* line, zu_wchar* key, zu_wchar* value)
{
    const IniEntry member = iniEntryOf(text::view(line));
    // The line may be one of the two buffers: the part further behind is moved last.
    if (value == line) {
        copyWhole(key, member.key);
        copyWhole(value, member.value);
        return;
    }
    copyWhole(value, member.value);
    copyWhole(key, member.key);
}

int32_t zu_Ini_displayError(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key)
{
    return guarded(0, [&] {
        return printConsole(ZU_W("Error reading Ini File\nFile Name %s\nGroup Name %s\nVariable Name %s"), file, group,
                            key);
    });
}
