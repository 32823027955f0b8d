// The INI cache of the built-in host. A group, or the groups of a file, show the file as it was when they were asked
// for; what is changed through a group shows in it at once.
#include "frame/console.h"
#include "host/builtin/builtin.h"
#include "host/builtin/com_items.h"
#include "host/builtin/ini_files.h"

namespace zu::host {
namespace {

using Document = IniFiles::Document;

class Cache final : public ComObject<IniCache>
{
public:
    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT Reserved3() override { return E_NOTIMPL; }
    HRESULT Reserved4() override { return E_NOTIMPL; }

    HRESULT GetGroup(BSTR file, BSTR name, IniCacheGroup** group) override;
    HRESULT GetValue(BSTR file, BSTR group, BSTR key, BSTR* value, VARIANT_BOOL* found) override;
    HRESULT GetGroups(BSTR file, IniCacheGroups** groups) override;
    HRESULT AddGroup(BSTR file, BSTR group, VARIANT_BOOL* added) override;
    HRESULT SetValue(BSTR file, BSTR group, BSTR key, BSTR value, VARIANT_BOOL* set) override;
    HRESULT RemoveGroup(BSTR file, BSTR group, VARIANT_BOOL* removed) override;
    HRESULT ResetCache() override;
    HRESULT Reload(BSTR file) override;
    HRESULT ViewCache() override;

    IniFiles files;

private:
    template <class Change>
    HRESULT change(BSTR file, VARIANT_BOOL* done, Change make)
    {
        if (done == nullptr)
            return E_POINTER;
        *done = toVariantBool(guarded(false, [&] { return files.write(viewOf(file), make) != nullptr; }));
        return S_OK;
    }
};

class Entry final : public ComObject<IniCacheEntry>
{
public:
    Entry(Document document, std::size_t group, std::size_t index)
        : shown(std::move(document)), entry(shown->entry(group, index))
    {
    }

    HRESULT get_Value(BSTR* value) override { return give(value, entry.value); }
    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT get_Name(BSTR* name) override { return give(name, entry.key); }

private:
    Document shown;
    IniEntry entry; // views into it
};

class Group final : public ComObject<IniCacheGroup>
{
public:
    Group(ComPtr<Cache> itsCache, WideView file, Document document, std::size_t group)
        : cache(std::move(itsCache)), path(file), name(document->groupName(group)), shown(std::move(document)),
          index(group)
    {
    }

    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT get_Name(BSTR* out) override { return give(out, name); }
    HRESULT get_Count(LONG* count) override { return giveCount(count, entryCount()); }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT get_Item(VARIANT place, IniCacheEntry** entry) override
    {
        return giveItem(entry, place, entryCount(),
                        [&](std::size_t number) { return makeObject<Entry, IniCacheEntry>(shown, index, number); });
    }
    HRESULT SetValue(BSTR key, BSTR value) override
    {
        return guarded(E_OUTOFMEMORY, [&] {
            const bool done = change(
                [&](const IniDocument& document) { return document.withValue(name, viewOf(key), viewOf(value)); });
            return done ? S_OK : E_FAIL;
        });
    }
    HRESULT Reserved3() override { return E_NOTIMPL; }
    HRESULT RemoveAll(VARIANT_BOOL* removed) override
    {
        if (removed == nullptr)
            return E_POINTER;
        *removed = toVariantBool(guarded(
            false, [&] { return change([&](const IniDocument& document) { return document.withoutEntries(name); }); }));
        return S_OK;
    }

private:
    std::size_t entryCount() const { return index == IniDocument::none ? 0 : shown->entryCount(index); }

    template <class Change>
    bool change(Change make)
    {
        Document changed = cache->files.write(path, make);
        if (changed == nullptr)
            return false;
        shown = std::move(changed);
        // Somebody else may have moved the group in the file, or removed it.
        index = shown->findGroup(name);
        return true;
    }

    ComPtr<Cache> cache;
    WideString path;
    WideString name;
    Document shown;
    std::size_t index;
};

class Groups final : public ComObject<IniCacheGroups>
{
public:
    Groups(ComPtr<Cache> itsCache, WideView file, Document document)
        : cache(std::move(itsCache)), path(file), shown(std::move(document))
    {
    }

    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT Reserved3() override { return E_NOTIMPL; }
    HRESULT get_Item(VARIANT place, IniCacheGroup** group) override
    {
        return giveItem(group, place, shown->groupCount(), [&](std::size_t number) {
            return makeObject<Group, IniCacheGroup>(cache, WideView(path), shown, number);
        });
    }
    HRESULT get_Count(LONG* count) override { return giveCount(count, shown->groupCount()); }

private:
    ComPtr<Cache> cache;
    WideString path;
    Document shown;
};

HRESULT Cache::GetGroup(BSTR file, BSTR name, IniCacheGroup** group)
{
    if (group == nullptr)
        return E_POINTER;
    *group = nullptr;
    return guarded(S_OK, [&] {
        const Document document = files.read(viewOf(file));
        const std::size_t index = document == nullptr ? IniDocument::none : document->findGroup(viewOf(name));
        if (index != IniDocument::none)
            *group = new Group(ComPtr<Cache>::sharing(this), viewOf(file), document, index);
        return S_OK;
    });
}

HRESULT Cache::GetValue(BSTR file, BSTR group, BSTR key, BSTR* value, VARIANT_BOOL* found)
{
    if (value == nullptr || found == nullptr)
        return E_POINTER;
    *value = nullptr;
    *found = VARIANT_FALSE;
    return guarded(S_OK, [&] {
        const Document document = files.read(viewOf(file));
        const auto text = document == nullptr ? std::nullopt : document->value(viewOf(group), viewOf(key));
        if (text) {
            *value = Bstr(*text).release();
            *found = VARIANT_TRUE;
        }
        return S_OK;
    });
}

HRESULT Cache::GetGroups(BSTR file, IniCacheGroups** groups)
{
    if (groups == nullptr)
        return E_POINTER;
    *groups = nullptr;
    return guarded(S_OK, [&] {
        if (const Document document = files.read(viewOf(file)))
            *groups = new Groups(ComPtr<Cache>::sharing(this), viewOf(file), document);
        return S_OK;
    });
}

// False when the group is there already.
HRESULT Cache::AddGroup(BSTR file, BSTR group, VARIANT_BOOL* added)
{
    return change(file, added, [&](const IniDocument& document) {
        const WideView name = viewOf(group);
        return document.findGroup(name) == IniDocument::none ? document.withGroup(name) : std::nullopt;
    });
}

HRESULT Cache::SetValue(BSTR file, BSTR group, BSTR key, BSTR value, VARIANT_BOOL* set)
{
    return change(file, set, [&](const IniDocument& document) {
        return document.withValue(viewOf(group), viewOf(key), viewOf(value));
    });
}

// False when there is no such group.
HRESULT Cache::RemoveGroup(BSTR file, BSTR group, VARIANT_BOOL* removed)
{
    return change(file, removed, [&](const IniDocument& document) {
        const WideView name = viewOf(group);
        return document.findGroup(name) == IniDocument::none ? std::nullopt : document.withoutGroup(name);
    });
}

HRESULT Cache::ResetCache()
{
    files.forgetAll();
    return S_OK;
}

HRESULT Cache::Reload(BSTR file)
{
    return guarded(S_OK, [&] {
        files.forget(viewOf(file));
        return S_OK;
    });
}

// The files held, in the form of INI files, on standard output.
HRESULT Cache::ViewCache()
{
    return guarded(S_OK, [&] {
        files.forEach([](WideView path, const IniDocument& document) {
            printConsole(ZU_W("%s\n"), path);
            for (std::size_t group = 0; group < document.groupCount(); ++group) {
                printConsole(ZU_W("[%s]\n"), document.groupName(group));
                for (std::size_t index = 0; index < document.entryCount(group); ++index) {
                    const IniEntry entry = document.entry(group, index);
                    printConsole(ZU_W("%s=%s\n"), entry.key, entry.value);
                }
            }
        });
        return S_OK;
    });
}

} // namespace

ComPtr<IniCache> makeBuiltInIniCache()
{
    return makeObject<Cache, IniCache>();
}

} // namespace zu::host
