// What the objects of the built-in host share: references, memory from the hooks, and the part of IDispatch that says
// that calls by name are not supported.
#pragma once

#include "frame/guard.h"
#include "platform/com.h"

namespace zu::host {

template <class Interface>
class ComObject : public Interface
{
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    static void* operator new(std::size_t size) { return HookAllocator<std::byte>().allocate(size); }
    static void operator delete(void* block) { zu_Free(block); }

    HRESULT QueryInterface(REFIID iid, void** object) override
    {
        if (object == nullptr)
            return E_POINTER;
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == *interfaceId<Interface>;
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

    HRESULT GetTypeInfoCount(UINT* count) override
    {
        if (count == nullptr)
            return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }

protected:
    ComObject() = default;
    virtual ~ComObject() = default;

private:
    ULONG references = 1; // the maker's
};

// A new object as a reference to its interface; null without memory.
template <class Object, class Interface, class... Args>
ComPtr<Interface> makeObject(Args&&... args)
{
    return guarded(ComPtr<Interface>(), [&] { return ComPtr<Interface>(new Object(std::forward<Args>(args)...)); });
}

inline WideView viewOf(BSTR text)
{
    return text == nullptr ? WideView() : WideView(text, SysStringLen(text));
}

// Gives a text to a caller.
inline HRESULT give(BSTR* out, WideView text)
{
    if (out == nullptr)
        return E_POINTER;
    *out = nullptr;
    return guarded(E_OUTOFMEMORY, [&] {
        *out = Bstr(text).release();
        return S_OK;
    });
}

inline VARIANT_BOOL toVariantBool(bool value)
{
    return value ? VARIANT_TRUE : VARIANT_FALSE;
}

} // namespace zu::host
