// The way to INI files through the host's cache service.
#include "config/alias.h"
#include "fields/field_owner.h"
#include "files/lists.h"
#include "frame/format.h"
#include "frame/guard.h"
#include "frame/host_services.h"
#include "zu_File.h"
#include "zu_Ini.h"

#include <algorithm>

using namespace zu;

namespace {

using Cache = ComPtr<IniCache>;

constexpr std::size_t valueSize = 1024;
constexpr int32_t readSize = 512;

// A value of the cache; empty when there is none.
Bstr readValue(const Cache& cache, WideView file, WideView group, WideView key)
{
    Bstr value;
    VARIANT_BOOL found = VARIANT_FALSE; // not consulted: an empty text says as much
    checkComCall(cache->GetValue(Bstr(file).get(), Bstr(group).get(), Bstr(key).get(), value.out(), &found),
                 cache.get());
    return value;
}

bool setValue(const Cache& cache, WideView file, WideView group, WideView key, WideView value)
{
    VARIANT_BOOL done = VARIANT_FALSE;
    checkComCall(cache->SetValue(Bstr(file).get(), Bstr(group).get(), Bstr(key).get(), Bstr(value).get(), &done),
                 cache.get());
    return done != VARIANT_FALSE;
}

VARIANT integerVariant(LONG value)
{
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = VT_I4;
    variant.lVal = value;
    return variant;
}

// Null when there is no such group.
ComPtr<IniCacheGroup> findGroup(const Cache& cache, WideView file, WideView group)
{
    ComPtr<IniCacheGroup> found;
    checkComCall(cache->GetGroup(Bstr(file).get(), Bstr(group).get(), found.out()), cache.get());
    return found;
}

bool addGroup(const Cache& cache, WideView file, WideView group)
{
    VARIANT_BOOL done = VARIANT_FALSE;
    checkComCall(cache->AddGroup(Bstr(file).get(), Bstr(group).get(), &done), cache.get());
    return done != VARIANT_FALSE;
}

bool removeGroup(const Cache& cache, WideView file, WideView group)
{
    VARIANT_BOOL done = VARIANT_FALSE;
    checkComCall(cache->RemoveGroup(Bstr(file).get(), Bstr(group).get(), &done), cache.get());
    return done != VARIANT_FALSE;
}

template <class Collection>
LONG countOf(const ComPtr<Collection>& collection)
{
    LONG count = 0;
    checkComCall(collection->get_Count(&count), collection.get());
    return count;
}

template <class Item, class Collection>
ComPtr<Item> itemOf(const ComPtr<Collection>& collection, LONG index)
{
    ComPtr<Item> item;
    checkComCall(collection->get_Item(integerVariant(index), item.out()), collection.get());
    return item;
}

template <class Named>
Bstr nameOf(const ComPtr<Named>& named)
{
    Bstr name;
    checkComCall(named->get_Name(name.out()), named.get());
    return name;
}

Bstr valueOf(const ComPtr<IniCacheEntry>& entry)
{
    Bstr value;
    checkComCall(entry->get_Value(value.out()), entry.get());
    return value;
}

FldList* readGroup(const zu_wchar* file, const zu_wchar* group, bool expand, bool keepEmpty)
{
    return guarded<FldList*>(nullptr, [&]() -> FldList* {
        const Cache cache = host::iniCache();
        const ComPtr<IniCacheGroup> found =
            !cache ? ComPtr<IniCacheGroup>() : findGroup(cache, text::view(file), text::view(group));
        const LONG count = !found ? 0 : countOf(found);
        if (count <= 0)
            return nullptr;
        FieldOwner list(zu_FldList_create(nullptr));
        for (LONG index = 0; list != nullptr && index < count; ++index) {
            const ComPtr<IniCacheEntry> entry = itemOf<IniCacheEntry>(found, index);
            if (!entry)
                continue;
            const Bstr name = nameOf(entry);
            const Bstr value = valueOf(entry);
            if (name.view().empty() || (value.view().empty() && !keepEmpty))
                continue;
            WideString text(value.view().substr(0, valueSize));
            if (expand)
                text = expandAliases(text).substr(0, valueSize);
            if (zu_FldList_appChar(list.get(), WideString(name.view()).c_str(), text.c_str()) != ZU_FLD_OK)
                return nullptr;
        }
        return list.release();
    });
}

// Calls set(name, value) for each field that has a name and a value that reads as text.
template <class Set>
void forEachField(FldList* list, Set set)
{
    for (zu_FldList_start(list); zu_FldList_eol(list) == 0; zu_FldList_next(list)) {
        const zu_wchar* const name = zu_FldList_curr(list)->name;
        text::Buffer<valueSize> value;
        const int32_t status = zu_FldList_currChar(list, value.units, value.capacity);
        // The text of a number comes with the status "wrong type" and is as good.
        if (name != nullptr && (status == ZU_FLD_OK || status == ZU_FLD_WRONG_TYPE))
            set(WideView(name), value.view());
    }
}

// What becomes of one field in zu_Ini_setGroup: its text-read status, or 0.
int32_t setField(const zu_wchar* file, const zu_wchar* group, FldList* list, const zu_wchar* name)
{
    text::Buffer<readSize> value;
    const int32_t status = zu_FldList_currChar(list, value.units, value.capacity);
    const bool isUsable = status == ZU_FLD_OK || status == ZU_FLD_WRONG_TYPE;
    return isUsable && zu_Ini_set(file, group, name, value.units) != 0 ? 0 : status;
}

} // namespace

zu_wchar* zu_Ini_get(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key)
{
    return zu_Ini_getValue(file, group, key, 1, readSize);
}

zu_wchar* zu_Ini_getAbsolute(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key)
{
    return zu_Ini_getValue(file, group, key, 0, readSize);
}

zu_wchar* zu_Ini_getValue(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key, int32_t expand,
                          int32_t maxLength)
{
    static text::Buffer<valueSize> result;
    result.clear();
    return guarded<zu_wchar*>(nullptr, [&]() -> zu_wchar* {
        const Cache cache = host::iniCache();
        if (!cache)
            return nullptr;
        const Bstr read = readValue(cache, text::view(file), text::view(group), text::view(key));
        WideString value(read.view().substr(0, valueSize));
        if (expand != 0)
            value = expandAliases(value);
        // Up to the terminator that a file's NUL byte is.
        WideView kept = WideView(value.c_str()).substr(0, static_cast<std::size_t>(std::max(maxLength, 0)));
        while (!kept.empty() && text::isSpace(kept.front()))
            kept.remove_prefix(1);
        return kept.empty() ? nullptr : result.set(kept);
    });
}

int32_t zu_Ini_set(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key, const zu_wchar* value)
{
    return guarded(1, [&] {
        const Cache cache = host::iniCache();
        const bool written =
            cache && setValue(cache, text::view(file), text::view(group), text::view(key), text::view(value));
        return written ? 0 : 1;
    });
}

int32_t zu_Ini_setAndVerify(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key, const zu_wchar* value,
                            int32_t* status)
{
    // The value may be the result of an earlier reading, which the one below replaces.
    text::Buffer<valueSize> wanted;
    const bool isComparable = text::view(value, valueSize + 1).size() <= valueSize;
    wanted.set(text::view(value, valueSize));
    const int32_t written = zu_Ini_set(file, group, key, value);
    if (status != nullptr)
        *status = written;
    const zu_wchar* const reread = zu_Ini_getValue(file, group, key, 0, valueSize);
    return isComparable && reread != nullptr && text::equalIgnoringCase(reread, wanted.view());
}

FldList* zu_Ini_getGroup(const zu_wchar* file, const zu_wchar* group)
{
    return readGroup(file, group, true, false);
}

FldList* zu_Ini_getGroupWithNulls(const zu_wchar* file, const zu_wchar* group)
{
    return readGroup(file, group, true, true);
}

FldList* zu_Ini_getGroupAbsolute(const zu_wchar* file, const zu_wchar* group)
{
    return readGroup(file, group, false, false);
}

FldList* zu_Ini_getGroupValues(const zu_wchar* file, const zu_wchar* group, int32_t expand)
{
    return readGroup(file, group, expand != 0, false);
}

int32_t zu_Ini_setGroup(const zu_wchar* file, const zu_wchar* group, FldList* list, int32_t onlyExisting)
{
    if (zu_File_hasAccess(file, 2) == 0)
        return 0;
    // The last field decides, so a later success hides an earlier failure: meant.
    int32_t result = 1;
    for (zu_FldList_start(list); zu_FldList_eol(list) == 0; zu_FldList_next(list)) {
        const zu_wchar* const name = zu_FldList_curr(list)->name;
        if (name == nullptr)
            result = 0;
        else if (onlyExisting == 0 || zu_Ini_get(file, group, name) != nullptr)
            result = setField(file, group, list, name);
    }
    return result;
}

int32_t zu_Ini_setGroupEx(const zu_wchar* file, const zu_wchar* group, FldList* list)
{
    return guarded(0, [&] {
        const Cache cache = host::iniCache();
        if (!cache)
            return 0;
        const WideView path = text::view(file);
        const WideView name = text::view(group);
        removeGroup(cache, path, name);
        if (!addGroup(cache, path, name))
            return 0;
        forEachField(list, [&](WideView key, WideView value) { setValue(cache, path, name, key, value); });
        return findGroup(cache, path, name) ? 1 : 0;
    });
}

int32_t zu_Ini_updateGroup(const zu_wchar* file, const zu_wchar* group, FldList* list)
{
    return guarded(0, [&] {
        const Cache cache = host::iniCache();
        if (!cache)
            return 0;
        const WideView path = text::view(file);
        const WideView name = text::view(group);
        ComPtr<IniCacheGroup> found = findGroup(cache, path, name);
        if (found) {
            VARIANT_BOOL emptied = VARIANT_FALSE;
            checkComCall(found->RemoveAll(&emptied), found.get());
            if (emptied == VARIANT_FALSE)
                return 0;
        } else if (addGroup(cache, path, name)) {
            found = findGroup(cache, path, name);
            if (!found)
                return 0;
        }
        forEachField(list, [&](WideView key, WideView value) {
            // A group that could not be added shows only here, as the error for a null pointer: meant.
            if (!found)
                platform::raiseComError(E_POINTER, nullptr, IID_NULL);
            checkComCall(found->SetValue(Bstr(key).get(), Bstr(value).get()), found.get());
        });
        return 1;
    });
}

int32_t zu_Ini_addGroup(const zu_wchar* file, const zu_wchar* group)
{
    return guarded(0, [&] {
        const Cache cache = host::iniCache();
        if (!cache || findGroup(cache, text::view(file), text::view(group)))
            return 0;
        return addGroup(cache, text::view(file), text::view(group)) ? 1 : 0;
    });
}

int32_t zu_Ini_removeGroup(const zu_wchar* file, const zu_wchar* group)
{
    return guarded(0, [&] {
        const Cache cache = host::iniCache();
        return cache && removeGroup(cache, text::view(file), text::view(group)) ? 1 : 0;
    });
}

StrList* zu_Ini_findAllGroups(const zu_wchar* file)
{
    return zu_Ini_findPrefixGroups(file, ZU_W(""));
}

StrList* zu_Ini_findPrefixGroups(const zu_wchar* file, const zu_wchar* prefix)
{
    return guarded<StrList*>(nullptr, [&]() -> StrList* {
        const Cache cache = host::iniCache();
        if (!cache)
            return nullptr;
        ComPtr<IniCacheGroups> groups;
        checkComCall(cache->GetGroups(Bstr(text::view(file)).get(), groups.out()), cache.get());
        const LONG count = !groups ? 0 : countOf(groups);
        const WideView wanted = text::view(prefix);
        ListOwner names;
        for (LONG index = 0; index < count; ++index) {
            const ComPtr<IniCacheGroup> group = itemOf<IniCacheGroup>(groups, index);
            if (!group)
                continue;
            const Bstr name = nameOf(group);
            if (!text::equalIgnoringCase(name.view().substr(0, wanted.size()), wanted))
                continue;
            if (names == nullptr)
                names.reset(zu_StrList_create(nullptr));
            if (names == nullptr || !appendString(names.get(), name.view()))
                return nullptr;
        }
        return names.release();
    });
}

const zu_wchar* zu_Ini_getGroupNameSuffix(const zu_wchar* name)
{
    const std::size_t stop = text::view(name).find(ZU_W('.'));
    return stop == WideView::npos ? name : name + stop + 1;
}

zu_wchar* zu_Ini_getNextIncrSuffix(const zu_wchar* file, const zu_wchar* prefix)
{
    static text::Buffer<7> result;
    result.set(ZU_W("0"));
    const ListOwner names(zu_Ini_findPrefixGroups(file, prefix));
    if (names == nullptr)
        return result.units;
    int64_t highest = -1;
    for (const LnkNode* node = names->first; node != nullptr; node = node->next)
        highest = std::max<int64_t>(highest, text::toInt(zu_Ini_getGroupNameSuffix(stringOf(node).data())));
    formatInto(result.units, ZU_W("%d"), highest + 1);
    return result.units;
}

void zu_Ini_resetCache(void)
{
    guarded([] {
        if (const Cache cache = host::iniCache())
            checkComCall(cache->ResetCache(), cache.get());
    });
}

void zu_Ini_reload(const zu_wchar* file)
{
    guarded([&] {
        zu_File_revalidate(file);
        if (const Cache cache = host::iniCache())
            checkComCall(cache->Reload(Bstr(text::view(file)).get()), cache.get());
    });
}

void zu_Ini_viewCache(void)
{
    guarded([] {
        if (const Cache cache = host::iniCache())
            checkComCall(cache->ViewCache(), cache.get());
    });
}
