#include "support/host.h"

#include "zu_Global.h"
#include "zu_Host.h"

namespace zutest {
namespace {

Wide lower(WideView text)
{
    Wide copy(text);
    for (zu_wchar& unit : copy) {
        if (unit >= W('A') && unit <= W('Z'))
            unit = static_cast<zu_wchar>(unit + 0x20);
    }
    return copy;
}

Wide textOf(BSTR text)
{
    return text == nullptr ? Wide() : Wide(text, SysStringLen(text));
}

std::string narrow(const Wide& text)
{
    std::string result;
    for (zu_wchar unit : text)
        result += unit < 0x7F ? static_cast<char>(unit) : '?';
    return result;
}

HRESULT give(BSTR* out, const Wide& text)
{
    *out = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return S_OK;
}

HRESULT give(VARIANT_BOOL* out, bool value)
{
    *out = value ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
}

// References, counted for the object and for the host.
template <class Interface>
class Object : public Interface
{
public:
    Object(TestHost& itsHost, const IID& itsId) : host(itsHost), id(itsId) { ++host.liveObjects; }

    HRESULT QueryInterface(REFIID iid, void** object) override
    {
        const bool known = iid == IID_IUnknown || iid == id;
        *object = known ? static_cast<Interface*>(this) : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG AddRef() override { return ++references; }
    ULONG Release() override
    {
        const ULONG left = --references;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual ~Object() { --host.liveObjects; }
    TestHost& host;

private:
    const IID& id;
    ULONG references = 1;
};

class Description final : public Object<IErrorInfo>
{
public:
    explicit Description(TestHost& itsHost) : Object(itsHost, IID_IErrorInfo), text(itsHost.description) {}
    HRESULT GetGUID(GUID*) override { return E_NOTIMPL; }
    HRESULT GetSource(BSTR*) override { return E_NOTIMPL; }
    HRESULT GetDescription(BSTR* out) override { return give(out, text); }
    HRESULT GetHelpFile(BSTR*) override { return E_NOTIMPL; }
    HRESULT GetHelpContext(DWORD*) override { return E_NOTIMPL; }

private:
    Wide text;
};

// Says that an object tells about its failures. It has an identity of its own, which nobody minds here.
class Support final : public Object<ISupportErrorInfo>
{
public:
    Support(TestHost& itsHost, const IID& interfaceId) : Object(itsHost, IID_ISupportErrorInfo), supported(interfaceId)
    {
    }
    HRESULT InterfaceSupportsErrorInfo(REFIID iid) override { return iid == supported ? S_OK : S_FALSE; }

private:
    const IID& supported;
};

class Runnable final : public Object<IRunnableObject>
{
public:
    explicit Runnable(TestHost& itsHost) : Object(itsHost, IID_IRunnableObject) {}
    HRESULT GetRunningClass(CLSID*) override { return E_NOTIMPL; }
    HRESULT Run(IBindCtx*) override { return host.enter("Application.Run"); }
    BOOL IsRunning() override { return 1; }
    HRESULT LockRunning(BOOL, BOOL) override { return S_OK; }
    HRESULT SetContainedObject(BOOL) override { return S_OK; }
};

// A dual interface; calls by name are refused.
template <class Interface>
class Dual : public Object<Interface>
{
public:
    Dual(TestHost& itsHost, const IID& itsId, const char* itsName)
        : Object<Interface>(itsHost, itsId), interfaceId(itsId), label(itsName)
    {
    }

    ~Dual() override { this->host.released.push_back(label); }

    HRESULT QueryInterface(REFIID iid, void** object) override
    {
        if (iid == IID_ISupportErrorInfo && !this->host.description.empty()) {
            *object = new Support(this->host, interfaceId);
            return S_OK;
        }
        if (iid == IID_IDispatch) {
            this->AddRef();
            *object = static_cast<IDispatch*>(this);
            return S_OK;
        }
        return Object<Interface>::QueryInterface(iid, object);
    }
    HRESULT GetTypeInfoCount(UINT* count) override
    {
        *count = 0;
        return S_OK;
    }
    HRESULT GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }

protected:
    // Runs a method unless it was told to fail.
    template <class Body>
    HRESULT method(const char* methodName, const std::vector<Wide>& arguments, Body body)
    {
        const HRESULT told = this->host.enter(std::string(label) + "." + methodName, arguments);
        if (told == S_OK)
            return body();
        if (!this->host.description.empty()) {
            auto* const info = new Description(this->host);
            SetErrorInfo(0, info);
            info->Release();
        }
        return told;
    }

private:
    const IID& interfaceId;
    const char* label;
};

class Translator final : public Dual<HostTranslator>
{
public:
    explicit Translator(TestHost& itsHost) : Dual(itsHost, ZU_IID_HostTranslator, "Translator") {}

    HRESULT Translate(BSTR text, BSTR section, LONG entry, BSTR* translation) override
    {
        const Wide number = widen(std::to_string(entry));
        return method("Translate", {textOf(text), textOf(section), number}, [&] {
            Wide entryKey = textOf(text);
            entryKey.append(W("|")).append(textOf(section)).append(W("|")).append(number);
            const auto found = host.translations.find(entryKey);
            return give(translation, found == host.translations.end() ? Wide() : found->second);
        });
    }
};

class FileService final : public Dual<HostFileService>
{
public:
    explicit FileService(TestHost& itsHost) : Dual(itsHost, ZU_IID_HostFileService, "FileService") {}

    HRESULT FileExists(BSTR path, VARIANT_BOOL* exists) override
    {
        return method("FileExists", {textOf(path)}, [&] { return give(exists, isIn(host.files, path)); });
    }
    HRESULT FolderExists(BSTR path, VARIANT_BOOL* exists) override
    {
        return method("FolderExists", {textOf(path)}, [&] { return give(exists, isIn(host.folders, path)); });
    }
    HRESULT Revalidate(BSTR path) override
    {
        return method("Revalidate", {textOf(path)}, [] { return S_OK; });
    }

private:
    static bool isIn(const std::vector<Wide>& paths, BSTR path)
    {
        return std::find(paths.begin(), paths.end(), lower(textOf(path))) != paths.end();
    }
};

class Entry final : public Dual<IniCacheEntry>
{
public:
    Entry(TestHost& itsHost, const std::pair<Wide, Wide>& content)
        : Dual(itsHost, ZU_IID_IniCacheEntry, "IniCacheEntry"), entry(content)
    {
    }
    HRESULT get_Value(BSTR* out) override
    {
        return method("Value", {}, [&] { return give(out, entry.second); });
    }
    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT get_Name(BSTR* out) override
    {
        return method("Name", {}, [&] { return give(out, entry.first); });
    }

private:
    std::pair<Wide, Wide> entry;
};

LONG indexIn(const VARIANT& value)
{
    return value.vt == VT_I4 ? value.lVal : value.vt == VT_INT ? value.intVal : value.vt == VT_I2 ? value.iVal : -1;
}

class Group final : public Dual<IniCacheGroup>
{
public:
    Group(TestHost& itsHost, const Wide& itsFile, const Wide& itsName)
        : Dual(itsHost, ZU_IID_IniCacheGroup, "IniCacheGroup"), file(itsFile), name(itsName)
    {
    }
    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT get_Name(BSTR* out) override
    {
        return method("Name", {}, [&] { return give(out, name); });
    }
    HRESULT get_Count(LONG* out) override
    {
        return method("Count", {}, [&] {
            *out = static_cast<LONG>(entries().size());
            return S_OK;
        });
    }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT get_Item(VARIANT index, IniCacheEntry** out) override
    {
        return method("Item", {widen(std::to_string(indexIn(index)))}, [&] {
            *out = nullptr;
            const auto place = static_cast<std::size_t>(indexIn(index));
            if (place >= entries().size())
                return DISP_E_BADINDEX;
            *out = new Entry(host, entries()[place]);
            return S_OK;
        });
    }
    HRESULT SetValue(BSTR key, BSTR value) override
    {
        return method("SetValue", {textOf(key), textOf(value)}, [&] {
            host.iniValue(file, name, textOf(key)) = textOf(value);
            return S_OK;
        });
    }
    HRESULT Reserved3() override { return E_NOTIMPL; }
    HRESULT RemoveAll(VARIANT_BOOL* removed) override
    {
        return method("RemoveAll", {}, [&] {
            if (auto* const group = host.findIniGroup(file, name))
                group->entries.clear();
            return give(removed, true);
        });
    }

private:
    std::vector<std::pair<Wide, Wide>> entries() const
    {
        const auto* const group = host.findIniGroup(file, name);
        return group == nullptr ? std::vector<std::pair<Wide, Wide>>() : group->entries;
    }
    Wide file;
    Wide name;
};

class Groups final : public Dual<IniCacheGroups>
{
public:
    Groups(TestHost& itsHost, const Wide& itsFile)
        : Dual(itsHost, ZU_IID_IniCacheGroups, "IniCacheGroups"), file(itsFile)
    {
    }
    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT Reserved3() override { return E_NOTIMPL; }
    HRESULT get_Item(VARIANT index, IniCacheGroup** out) override
    {
        return method("Item", {widen(std::to_string(indexIn(index)))}, [&] {
            *out = nullptr;
            const auto& groups = host.iniFiles[lower(file)];
            const auto place = static_cast<std::size_t>(indexIn(index));
            if (place >= groups.size())
                return DISP_E_BADINDEX;
            *out = new Group(host, file, groups[place].name);
            return S_OK;
        });
    }
    HRESULT get_Count(LONG* out) override
    {
        return method("Count", {}, [&] {
            *out = static_cast<LONG>(host.iniFiles[lower(file)].size());
            return S_OK;
        });
    }

private:
    Wide file;
};

class Cache final : public Dual<IniCache>
{
public:
    explicit Cache(TestHost& itsHost) : Dual(itsHost, ZU_IID_IniCache, "IniCache") {}

    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT Reserved3() override { return E_NOTIMPL; }
    HRESULT Reserved4() override { return E_NOTIMPL; }

    HRESULT GetGroup(BSTR file, BSTR name, IniCacheGroup** out) override
    {
        return method("GetGroup", {textOf(file), textOf(name)}, [&] {
            const auto* const group = host.findIniGroup(textOf(file), textOf(name));
            *out = group == nullptr ? nullptr : new Group(host, textOf(file), group->name);
            return S_OK;
        });
    }
    HRESULT GetValue(BSTR file, BSTR group, BSTR key, BSTR* value, VARIANT_BOOL* found) override
    {
        return method("GetValue", {textOf(file), textOf(group), textOf(key)}, [&] {
            *value = nullptr;
            *found = VARIANT_FALSE;
            if (const auto* const place = host.findIniGroup(textOf(file), textOf(group))) {
                for (const auto& [name, text] : place->entries) {
                    if (lower(name) == lower(textOf(key))) {
                        *found = VARIANT_TRUE;
                        return give(value, text);
                    }
                }
            }
            return S_OK;
        });
    }
    HRESULT GetGroups(BSTR file, IniCacheGroups** out) override
    {
        return method("GetGroups", {textOf(file)}, [&] {
            *out = host.iniFiles.count(lower(textOf(file))) == 0 ? nullptr : new Groups(host, textOf(file));
            return S_OK;
        });
    }
    HRESULT AddGroup(BSTR file, BSTR group, VARIANT_BOOL* added) override
    {
        return method("AddGroup", {textOf(file), textOf(group)}, [&] {
            const bool isNew = !host.refusesNewGroups && host.findIniGroup(textOf(file), textOf(group)) == nullptr;
            if (isNew)
                host.iniFiles[lower(textOf(file))].push_back({textOf(group), {}});
            return give(added, isNew);
        });
    }
    HRESULT SetValue(BSTR file, BSTR group, BSTR key, BSTR value, VARIANT_BOOL* set) override
    {
        return method("SetValue", {textOf(file), textOf(group), textOf(key), textOf(value)}, [&] {
            host.iniValue(textOf(file), textOf(group), textOf(key)) = textOf(value);
            return give(set, true);
        });
    }
    HRESULT RemoveGroup(BSTR file, BSTR group, VARIANT_BOOL* removed) override
    {
        return method("RemoveGroup", {textOf(file), textOf(group)}, [&] {
            auto& groups = host.iniFiles[lower(textOf(file))];
            return give(removed, std::erase_if(groups, [&](const TestHost::IniGroup& each) {
                                     return lower(each.name) == lower(textOf(group));
                                 }) != 0);
        });
    }
    HRESULT ResetCache() override
    {
        return method("ResetCache", {}, [] { return S_OK; });
    }
    HRESULT Reload(BSTR file) override
    {
        return method("Reload", {textOf(file)}, [] { return S_OK; });
    }
    HRESULT ViewCache() override
    {
        return method("ViewCache", {}, [] { return S_OK; });
    }
};

class Application final : public Dual<HostApplication>
{
public:
    explicit Application(TestHost& itsHost) : Dual(itsHost, ZU_IID_HostApplication, "Application")
    {
        ++host.applicationsMade;
    }

    HRESULT QueryInterface(REFIID iid, void** object) override
    {
        if (iid == IID_IRunnableObject) {
            *object = new Runnable(host);
            return S_OK;
        }
        const HRESULT told = iid == ZU_IID_HostApplication ? host.enter("Application.QueryInterface") : S_OK;
        return told == S_OK ? Dual::QueryInterface(iid, object) : told;
    }
    HRESULT get_Translator(HostTranslator** out) override
    {
        return method("get_Translator", {}, [&] {
            *out = host.hasTranslator ? new Translator(host) : nullptr;
            return S_OK;
        });
    }
    HRESULT get_IniCache(IniCache** out) override
    {
        return method("get_IniCache", {}, [&] {
            *out = new Cache(host);
            return S_OK;
        });
    }
    HRESULT get_FileService(HostFileService** out) override
    {
        return method("get_FileService", {}, [&] {
            *out = host.hasFileService ? new FileService(host) : nullptr;
            return S_OK;
        });
    }
    HRESULT get_ConfigurationDirectory(BSTR* out) override
    {
        return method("get_ConfigurationDirectory", {}, [&] { return give(out, host.configurationDirectory); });
    }
    HRESULT get_ApplicationGroup(BSTR* out) override
    {
        return method("get_ApplicationGroup", {}, [&] { return give(out, host.applicationGroup); });
    }
    HRESULT put_ApplicationGroup(BSTR group) override
    {
        return method("put_ApplicationGroup", {textOf(group)}, [&] {
            host.applicationGroup = textOf(group);
            return S_OK;
        });
    }
    HRESULT get_BaseSectionName(BSTR* out) override
    {
        return method("get_BaseSectionName", {}, [&] { return give(out, host.baseSectionName); });
    }
};

class Factory final : public Object<IClassFactory>
{
public:
    explicit Factory(TestHost& itsHost) : Object(itsHost, IID_IClassFactory) {}

    HRESULT CreateInstance(IUnknown* outer, REFIID iid, void** object) override
    {
        *object = nullptr;
        if (outer != nullptr)
            return CLASS_E_NOAGGREGATION;
        const HRESULT told = host.enter("ClassFactory.CreateInstance");
        if (told != S_OK)
            return told;
        auto* const application = new Application(host);
        const HRESULT result = application->QueryInterface(iid, object);
        application->Release();
        return result;
    }
    HRESULT LockServer(BOOL) override { return S_OK; }
};

} // namespace

ComThread::ComThread()
{
    const HRESULT result = CoInitialize(nullptr);
    EXPECT_TRUE(SUCCEEDED(result)) << std::hex << result;
}

ComThread::~ComThread()
{
    CoUninitialize();
}

TestHost::TestHost() : factory(new Factory(*this)), builtInBefore(zu_Host_setBuiltIn(0))
{
    zu_Global_destroyData();
    EXPECT_EQ(CoRegisterClassObject(ZU_CLSID_HostApplication, factory, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                    REGCLS_MULTIPLEUSE, &cookie),
              S_OK);
}

TestHost::~TestHost()
{
    SetErrorInfo(0, nullptr);
    zu_Global_destroyData();
    EXPECT_EQ(CoRevokeClassObject(cookie), S_OK);
    EXPECT_EQ(factory->Release(), 0u) << "the class object is still referenced";
    EXPECT_EQ(liveObjects, 0) << "objects of the host are still referenced";
    zu_Host_setBuiltIn(builtInBefore);
}

void TestHost::fail(const std::string& method, HRESULT result)
{
    failures[method] = result;
}

HRESULT TestHost::enter(const std::string& method, const std::vector<Wide>& arguments)
{
    std::string line = method;
    for (const Wide& argument : arguments)
        (line += ' ') += narrow(argument);
    recorded.push_back(line);
    if (whenCalled)
        whenCalled(line);
    const auto told = failures.find(method);
    return told == failures.end() ? S_OK : told->second;
}

std::vector<std::string> TestHost::calls()
{
    return std::exchange(recorded, {});
}

TestHost::IniGroup* TestHost::findIniGroup(WideView file, WideView group)
{
    const auto found = iniFiles.find(lower(file));
    if (found == iniFiles.end())
        return nullptr;
    for (IniGroup& each : found->second) {
        if (lower(each.name) == lower(group))
            return &each;
    }
    return nullptr;
}

Wide& TestHost::iniValue(WideView file, WideView group, WideView key)
{
    IniGroup* place = findIniGroup(file, group);
    if (place == nullptr) {
        auto& groups = iniFiles[lower(file)];
        groups.push_back({Wide(group), {}});
        place = &groups.back();
    }
    for (auto& [name, value] : place->entries) {
        if (lower(name) == lower(key))
            return value;
    }
    return place->entries.emplace_back(Wide(key), Wide()).second;
}

HRESULT raisedBy(const std::function<void()>& call)
{
    try {
        call();
    } catch (const _com_error& error) {
        return error.Error();
    }
    return S_OK;
}

Wide takeBstr(BSTR text)
{
    Wide result = textOf(text);
    SysFreeString(text);
    return result;
}

} // namespace zutest
