#include "host/builtin/classes.h"

#include "host/builtin/builtin.h"

namespace zu::host {
namespace {

// There as long as the library is, so that references to it need no counting.
class ClassObject final : public IClassFactory
{
public:
    constexpr ClassObject(const CLSID& clsid, ComPtr<IUnknown> (*maker)()) : classId(clsid), make(maker) {}

    HRESULT QueryInterface(REFIID iid, void** object) override
    {
        if (object == nullptr)
            return E_POINTER;
        const bool known = iid == IID_IUnknown || iid == IID_IClassFactory;
        *object = known ? static_cast<IClassFactory*>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG AddRef() override { return 1; }
    ULONG Release() override { return 1; }

    HRESULT CreateInstance(IUnknown* outer, REFIID iid, void** object) override
    {
        if (object == nullptr)
            return E_POINTER;
        *object = nullptr;
        if (outer != nullptr)
            return CLASS_E_NOAGGREGATION;
        const ComPtr<IUnknown> made = make();
        return made ? made->QueryInterface(iid, object) : E_OUTOFMEMORY;
    }
    HRESULT LockServer(BOOL) override { return S_OK; }

    const CLSID& classId;

private:
    ComPtr<IUnknown> (*make)();
};

template <class Interface, ComPtr<Interface> (*maker)()>
ComPtr<IUnknown> makeUnknown()
{
    return ComPtr<IUnknown>(maker().release());
}

ClassObject classes[BuiltInClasses::count] = {
    {ZU_CLSID_HostField, makeUnknown<HostField, makeBuiltInField>},
    {ZU_CLSID_HostFieldCollection, makeUnknown<HostFieldCollection, makeBuiltInFieldCollection>},
    {ZU_CLSID_HostVariableList, makeUnknown<HostVariableList, makeBuiltInVariableList>},
};

} // namespace

BuiltInClasses BuiltInClasses::registered()
{
    BuiltInClasses result;
    for (std::size_t index = 0; index < count; ++index) {
        DWORD& cookie = result.cookies[index];
        if (FAILED(CoRegisterClassObject(classes[index].classId, &classes[index], CLSCTX_INPROC_SERVER,
                                         REGCLS_MULTIPLEUSE, &cookie)))
            cookie = 0;
    }
    return result;
}

BuiltInClasses::~BuiltInClasses()
{
    for (const DWORD cookie : cookies) {
        if (cookie != 0)
            CoRevokeClassObject(cookie);
    }
}

} // namespace zu::host
