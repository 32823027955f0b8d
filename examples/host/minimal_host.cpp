// A host as small as it can be: an application object with its configuration directory, an INI cache that keeps values
// in memory, and a translator that answers from a table. The program then uses the library, which finds all of it.
#include <zu.h>

#include <cstddef>
#include <cstdio>
#include <map>
#include <string>

namespace {

using Text = std::basic_string<zu_wchar>;

// A null BSTR is the empty text.
Text textOf(BSTR text)
{
    return text == nullptr ? Text() : Text(text, SysStringLen(text));
}

// Names of files, groups and keys ignore case.
Text lower(Text name)
{
    for (zu_wchar& unit : name) {
        if (unit >= ZU_W('A') && unit <= ZU_W('Z'))
            unit = static_cast<zu_wchar>(unit + 32);
    }
    return name;
}

// Results that are texts are new ones, which the caller releases.
HRESULT give(BSTR* out, const Text& text)
{
    *out = SysAllocString(text.c_str());
    return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

// What all objects have: a count of references, the interface by its identifier, and no calls by name.
template <class Interface, const IID& interfaceId>
class Object : public Interface
{
public:
    HRESULT QueryInterface(REFIID id, void** object) override
    {
        const bool known = id == interfaceId || id == IID_IUnknown || id == IID_IDispatch;
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
    HRESULT GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }

protected:
    virtual ~Object() = default;

private:
    ULONG references = 1;
};

class Translator final : public Object<HostTranslator, ZU_IID_HostTranslator>
{
public:
    HRESULT Translate(BSTR text, BSTR, LONG, BSTR* translation) override
    {
        static const std::map<Text, Text> table = {
            {ZU_W("Unable to open the table"), ZU_W("Die Tabelle kann nicht ge\u00F6ffnet werden")},
            {ZU_W("Pipe"), ZU_W("Rohr")},
        };
        const auto found = table.find(textOf(text));
        return give(translation, found == table.end() ? Text() : found->second);
    }
};

// Single values are enough for zu_Ini_get, zu_Ini_set and all that the library reads for itself.
class Settings final : public Object<IniCache, ZU_IID_IniCache>
{
public:
    HRESULT GetValue(BSTR file, BSTR group, BSTR key, BSTR* value, VARIANT_BOOL* found) override
    {
        const auto place = values.find(keyOf(file, group, key));
        *found = place == values.end() ? VARIANT_FALSE : VARIANT_TRUE;
        return give(value, place == values.end() ? Text() : place->second);
    }
    HRESULT SetValue(BSTR file, BSTR group, BSTR key, BSTR value, VARIANT_BOOL* set) override
    {
        if (lower(textOf(group)) == ZU_W("license"))
            return E_ACCESSDENIED; // to show what becomes of a failure
        values[keyOf(file, group, key)] = textOf(value);
        *set = VARIANT_TRUE;
        return S_OK;
    }
    HRESULT GetGroup(BSTR, BSTR, IniCacheGroup**) override { return E_NOTIMPL; }
    HRESULT GetGroups(BSTR, IniCacheGroups**) override { return E_NOTIMPL; }
    HRESULT AddGroup(BSTR, BSTR, VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT RemoveGroup(BSTR, BSTR, VARIANT_BOOL*) override { return E_NOTIMPL; }
    HRESULT ResetCache() override { return S_OK; }
    HRESULT Reload(BSTR) override { return S_OK; }
    HRESULT ViewCache() override { return S_OK; }
    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT Reserved3() override { return E_NOTIMPL; }
    HRESULT Reserved4() override { return E_NOTIMPL; }

private:
    static Text keyOf(BSTR file, BSTR group, BSTR key)
    {
        const Text separator(1, ZU_W('|'));
        return lower(textOf(file) + separator + textOf(group) + separator + textOf(key));
    }

    std::map<Text, Text> values;
};

class Application final : public Object<HostApplication, ZU_IID_HostApplication>
{
public:
    ~Application() override { std::puts("the application object is released"); }

    // Each result is a reference that the library releases; null is "there is none".
    HRESULT get_Translator(HostTranslator** service) override
    {
        *service = new Translator;
        return S_OK;
    }
    HRESULT get_IniCache(IniCache** service) override
    {
        *service = new Settings;
        return S_OK;
    }
    HRESULT get_FileService(HostFileService** service) override
    {
        *service = nullptr;
        return S_OK;
    }
    HRESULT get_ConfigurationDirectory(BSTR* directory) override { return give(directory, ZU_W("C:\\Plant\\Cfg")); }
    HRESULT get_ApplicationGroup(BSTR* out) override { return give(out, group); }
    HRESULT put_ApplicationGroup(BSTR newGroup) override
    {
        group = textOf(newGroup);
        return S_OK;
    }
    HRESULT get_BaseSectionName(BSTR* name) override { return give(name, ZU_W("GENERAL")); }

private:
    Text group;
};

// The class object: it lives as long as the program, so its references need no count.
class Factory final : public IClassFactory
{
public:
    HRESULT QueryInterface(REFIID id, void** object) override
    {
        const bool known = id == IID_IClassFactory || id == IID_IUnknown;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG AddRef() override { return 2; }
    ULONG Release() override { return 1; }
    HRESULT CreateInstance(IUnknown* outer, REFIID id, void** object) override
    {
        *object = nullptr;
        if (outer != nullptr)
            return CLASS_E_NOAGGREGATION;
        auto* const application = new Application;
        const HRESULT result = application->QueryInterface(id, object);
        application->Release(); // the caller has the only reference now
        return result;
    }
    HRESULT LockServer(BOOL) override { return S_OK; }
};

void print(const char* what, const zu_wchar* text)
{
    std::printf("%s: ", what);
    for (; text != nullptr && *text != 0; ++text)
        std::putchar(*text < 0x80 ? static_cast<char>(*text) : '?');
    std::putchar('\n');
}

} // namespace

int main()
{
    // Before the library is used: it asks for its host once.
    static Factory factory;
    DWORD cookie = 0;
    if (FAILED(CoInitialize(nullptr)) ||
        FAILED(CoRegisterClassObject(ZU_CLSID_HostApplication, &factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                     &cookie)))
        return 1;

    zu_wchar path[ZU_SYS_PATH_SIZE + 1];
    print("configuration", zu_Sys_getCfgName(path, ZU_W("zu.ini")));

    // The library's own settings go through the host's INI cache, and so does any other file.
    zu_Env_setIni(ZU_W("GENERAL"), ZU_W("LANGUAGE"), ZU_W("DEU"));
    zu_Ini_set(ZU_W("C:\\Plant\\pipes.ini"), ZU_W("PIPE.1"), ZU_W("SIZE"), ZU_W("114.3"));
    print("size", zu_Ini_get(ZU_W("c:\\plant\\PIPES.ini"), ZU_W("pipe.1"), ZU_W("size")));

    // LANGUAGE is not English, so the translator is asked; what it does not know stays as it is.
    print("translated", zu_Msg("Unable to open the table", "TOOL", 1));
    print("translated", zu_MsgDBCols(ZU_W("Pipe"), 1));
    print("unknown", zu_Msg("Elbow", "TOOL", 1));

    // A method that fails comes back as an exception.
    try {
        zu_Ini_set(ZU_W("C:\\Plant\\pipes.ini"), ZU_W("LICENSE"), ZU_W("KEY"), ZU_W("1"));
    } catch (const _com_error& error) {
        std::printf("raised: %08X\n", static_cast<unsigned int>(error.Error()));
    }

    // In this order: the library lets go of the objects while COM is still there.
    zu_Global_destroyData();
    CoRevokeClassObject(cookie);
    CoUninitialize();
}
