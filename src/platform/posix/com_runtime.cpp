// Apartments, class objects and error objects of a process, for systems without COM. There is no marshalling: whichever
// thread finds an object calls it directly.
#include "platform/com.h"

#include <algorithm>
#include <mutex>

namespace zu {
namespace {

// How a thread was prepared, and what the last failing call left for it.
struct Apartment
{
    std::uint32_t initialised = 0;
    bool isMultithreaded = false;
    ComPtr<IErrorInfo> errorInfo;
};

Apartment& apartment()
{
    static thread_local Apartment own;
    return own;
}

struct Registration
{
    CLSID clsid;
    ComPtr<IUnknown> factory;
    DWORD context;
    const Apartment* owner; // null for the multithreaded one
    DWORD cookie;
};

// The process's part. Its memory does not come from the hooks: a host registers its class objects before anything else,
// perhaps before it installs hooks, and revokes them last.
struct Process
{
    std::mutex mutex;
    std::vector<Registration> registrations;
    DWORD lastCookie = 0;
    std::uint32_t multithreaded = 0;
};

Process& process()
{
    // Never destroyed: class objects may be in use until the very end.
    static Process* const only = new Process;
    return *only;
}

// A thread without an apartment of its own is in the multithreaded one while there is one.
bool isPrepared()
{
    if (apartment().initialised > 0)
        return true;
    const std::lock_guard lock(process().mutex);
    return process().multithreaded > 0;
}

const Apartment* ownerOfRegistrations()
{
    const Apartment& own = apartment();
    return own.initialised > 0 && !own.isMultithreaded ? &own : nullptr;
}

// The factory of a class that counts as one of the kinds of server wanted; null without one.
ComPtr<IUnknown> findFactory(const CLSID& clsid, DWORD context)
{
    const std::lock_guard lock(process().mutex);
    for (const Registration& each : process().registrations) {
        if (each.clsid == clsid && (each.context & context) != 0)
            return each.factory;
    }
    return ComPtr<IUnknown>();
}

// Takes out the registrations that a condition holds for, so that they are released without the lock.
template <class Condition>
std::vector<Registration> takeRegistrations(Condition condition)
{
    std::vector<Registration> taken;
    const std::lock_guard lock(process().mutex);
    auto& all = process().registrations;
    const auto rest = std::stable_partition(all.begin(), all.end(), [&](const auto& each) { return !condition(each); });
    std::move(rest, all.end(), std::back_inserter(taken));
    all.erase(rest, all.end());
    return taken;
}

} // namespace

bool platform::hasSystemComponents()
{
    return false;
}

} // namespace zu

using namespace zu;

HRESULT zu_Com_CoInitialize(void* reserved)
{
    return zu_Com_CoInitializeEx(reserved, COINIT_APARTMENTTHREADED);
}

HRESULT zu_Com_CoInitializeEx(void* reserved, DWORD flags)
{
    constexpr DWORD known = COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE | COINIT_SPEED_OVER_MEMORY;
    if (reserved != nullptr || (flags & ~known) != 0)
        return E_INVALIDARG;
    const bool multithreaded = (flags & COINIT_APARTMENTTHREADED) == 0;
    Apartment& own = apartment();
    if (own.initialised > 0 && own.isMultithreaded != multithreaded)
        return RPC_E_CHANGED_MODE;
    own.isMultithreaded = multithreaded;
    if (own.initialised++ > 0)
        return S_FALSE;
    if (multithreaded) {
        const std::lock_guard lock(process().mutex);
        ++process().multithreaded;
    }
    return S_OK;
}

void zu_Com_CoUninitialize(void)
{
    Apartment& own = apartment();
    if (own.initialised == 0 || --own.initialised > 0)
        return;
    const Apartment* const owner = own.isMultithreaded ? nullptr : &own;
    if (own.isMultithreaded) {
        const std::lock_guard lock(process().mutex);
        if (--process().multithreaded > 0)
            return;
    }
    takeRegistrations([&](const Registration& each) { return each.owner == owner; });
    own.errorInfo = ComPtr<IErrorInfo>();
}

HRESULT zu_Com_CoCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object)
{
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    ComPtr<IClassFactory> factory;
    const HRESULT result = zu_Com_CoGetClassObject(clsid, context, nullptr, IID_IClassFactory, factory.outUntyped());
    return FAILED(result) ? result : factory->CreateInstance(outer, iid, object);
}

HRESULT zu_Com_CoGetClassObject(REFCLSID clsid, DWORD context, void*, REFIID iid, void** object)
{
    if (object == nullptr)
        return E_INVALIDARG;
    *object = nullptr;
    if (!isPrepared())
        return CO_E_NOTINITIALIZED;
    const ComPtr<IUnknown> factory = findFactory(clsid, context);
    return factory ? factory->QueryInterface(iid, object) : REGDB_E_CLASSNOTREG;
}

HRESULT zu_Com_CoRegisterClassObject(REFCLSID clsid, IUnknown* factory, DWORD context, DWORD flags, DWORD* cookie)
{
    if (factory == nullptr || cookie == nullptr || flags > REGCLS_MULTI_SEPARATE)
        return E_INVALIDARG;
    *cookie = 0;
    if (!isPrepared())
        return CO_E_NOTINITIALIZED;
    if (flags == REGCLS_MULTIPLEUSE && (context & CLSCTX_LOCAL_SERVER) != 0)
        context |= CLSCTX_INPROC_SERVER;
    try {
        auto reference = ComPtr<IUnknown>::sharing(factory);
        const Apartment* const owner = ownerOfRegistrations();
        const std::lock_guard lock(process().mutex);
        process().registrations.push_back({clsid, std::move(reference), context, owner, process().lastCookie + 1});
        *cookie = ++process().lastCookie;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
    return S_OK;
}

HRESULT zu_Com_CoRevokeClassObject(DWORD cookie)
{
    if (!isPrepared())
        return CO_E_NOTINITIALIZED;
    return takeRegistrations([&](const Registration& each) { return each.cookie == cookie; }).empty() ? E_INVALIDARG
                                                                                                      : S_OK;
}

HRESULT zu_Com_OleRun(IUnknown* object)
{
    if (object == nullptr)
        return E_INVALIDARG;
    ComPtr<IRunnableObject> runnable;
    // Most objects run as soon as they are there, and know no such interface.
    if (FAILED(object->QueryInterface(IID_IRunnableObject, runnable.outUntyped())) || !runnable)
        return S_OK;
    return runnable->Run(nullptr);
}

HRESULT zu_Com_SetErrorInfo(ULONG reserved, IErrorInfo* info)
{
    if (reserved != 0)
        return E_INVALIDARG;
    apartment().errorInfo = ComPtr<IErrorInfo>::sharing(info);
    return S_OK;
}

HRESULT zu_Com_GetErrorInfo(ULONG reserved, IErrorInfo** info)
{
    if (reserved != 0 || info == nullptr)
        return E_INVALIDARG;
    *info = apartment().errorInfo.release();
    return *info == nullptr ? S_FALSE : S_OK;
}
