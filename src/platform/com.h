// The host's components as the library uses them: owners of references and texts, making a component, raising errors.
// The types are those of zu_Com.h, which has the same ones on every system; a port supplies hasSystemComponents, and
// where the system has no COM, the functions of that header.
#pragma once

#include "platform/wide.h"
#include "zu_HostObjects.h"

#include <cstddef>
#include <utility>

namespace zu::platform {

// Whether the system has components of its own, apart from those that the process itself registers.
bool hasSystemComponents();

// Throws the _com_error of a failing call, with what source tells about it when it supports that for the interface.
// source may be null.
[[noreturn]] void raiseComError(HRESULT result, IUnknown* source, const IID& interfaceId);

} // namespace zu::platform

namespace zu {

// The identifier of an interface.
template <class Interface>
inline constexpr const IID* interfaceId = nullptr;
template <>
inline constexpr const IID* interfaceId<IUnknown> = &IID_IUnknown;
template <>
inline constexpr const IID* interfaceId<HostApplication> = &ZU_IID_HostApplication;
template <>
inline constexpr const IID* interfaceId<HostTranslator> = &ZU_IID_HostTranslator;
template <>
inline constexpr const IID* interfaceId<HostFileService> = &ZU_IID_HostFileService;
template <>
inline constexpr const IID* interfaceId<IniCache> = &ZU_IID_IniCache;
template <>
inline constexpr const IID* interfaceId<IniCacheGroup> = &ZU_IID_IniCacheGroup;
template <>
inline constexpr const IID* interfaceId<IniCacheEntry> = &ZU_IID_IniCacheEntry;
template <>
inline constexpr const IID* interfaceId<IniCacheGroups> = &ZU_IID_IniCacheGroups;
template <>
inline constexpr const IID* interfaceId<HostField> = &ZU_IID_HostField;
template <>
inline constexpr const IID* interfaceId<HostFieldCollection> = &ZU_IID_HostFieldCollection;
template <>
inline constexpr const IID* interfaceId<HostVariable> = &ZU_IID_HostVariable;
template <>
inline constexpr const IID* interfaceId<HostVariableList> = &ZU_IID_HostVariableList;

// Owns one reference.
template <class Interface>
class ComPtr
{
public:
    ComPtr() = default;
    // Takes a reference over.
    explicit ComPtr(Interface* reference) noexcept : object(reference) {}
    ComPtr(const ComPtr& other) noexcept : object(other.object)
    {
        if (object != nullptr)
            object->AddRef();
    }
    ComPtr(ComPtr&& other) noexcept : object(other.release()) {}
    ComPtr& operator=(ComPtr other) noexcept
    {
        std::swap(object, other.object);
        return *this;
    }
    ~ComPtr()
    {
        if (object != nullptr)
            object->Release();
    }

    // Adds a reference of its own to a borrowed pointer.
    static ComPtr sharing(Interface* borrowed) noexcept
    {
        if (borrowed != nullptr)
            borrowed->AddRef();
        return ComPtr(borrowed);
    }

    explicit operator bool() const noexcept { return object != nullptr; }
    Interface* get() const noexcept { return object; }
    Interface* operator->() const noexcept { return object; }
    // Gives the reference up.
    Interface* release() noexcept { return std::exchange(object, nullptr); }
    // Where a call stores a new reference; the old one is released.
    Interface** out() noexcept
    {
        *this = ComPtr();
        return &object;
    }
    void** outUntyped() noexcept { return reinterpret_cast<void**>(out()); }

private:
    Interface* object = nullptr;
};

// Owns a counted text.
class Bstr
{
public:
    Bstr() = default;
    // std::bad_alloc without memory.
    explicit Bstr(WideView text);
    Bstr(Bstr&& other) noexcept : text(other.release()) {}
    Bstr& operator=(Bstr&& other) noexcept
    {
        std::swap(text, other.text);
        return *this;
    }
    ~Bstr() { SysFreeString(text); }

    BSTR get() const noexcept { return text; }
    WideView view() const noexcept { return text == nullptr ? WideView() : WideView(text, SysStringLen(text)); }
    BSTR release() noexcept { return std::exchange(text, nullptr); }
    // Where a call stores a new text; the old one is released.
    BSTR* out() noexcept
    {
        *this = Bstr();
        return &text;
    }

private:
    BSTR text = nullptr;
};

// Raises the error of a call into object that failed.
template <class Interface>
void checkComCall(HRESULT result, Interface* object)
{
    if (FAILED(result)) [[unlikely]]
        platform::raiseComError(result, object, *interfaceId<Interface>);
}

// Makes a component of any kind of server and puts it into the running state; null when that fails at any point.
template <class Interface>
ComPtr<Interface> createComponent(const CLSID& clsid)
{
    // Local and remote servers take part, so the object is asked for by its basic interface and started first.
    ComPtr<IUnknown> object;
    ComPtr<Interface> component;
    if (FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_ALL, IID_IUnknown, object.outUntyped())) || !object ||
        FAILED(OleRun(object.get())) || FAILED(object->QueryInterface(*interfaceId<Interface>, component.outUntyped())))
        return ComPtr<Interface>();
    return component;
}

} // namespace zu
