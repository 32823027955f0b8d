// What the content of a value, or of an element of an array, is by its type: how large it is and what it owns.
#pragma once

#include "zu_Com.h"

#include <cstring>

namespace zu::posix {

class Element
{
public:
    explicit Element(VARTYPE elementType) : type(elementType) {}

    // In bytes; 0 for a type that there is no element of.
    std::size_t size() const
    {
        switch (type) {
        case VT_I1:
        case VT_UI1: return 1;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL: return 2;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_ERROR:
        case VT_R4: return 4;
        case VT_R8:
        case VT_CY:
        case VT_DATE:
        case VT_I8:
        case VT_UI8:
        case VT_BSTR:
        case VT_UNKNOWN:
        case VT_DISPATCH: return 8;
        case VT_VARIANT: return sizeof(VARIANT);
        default: return 0;
        }
    }

    bool isPointer() const { return type == VT_BSTR || type == VT_UNKNOWN || type == VT_DISPATCH; }
    bool ownsSomething() const { return isPointer() || type == VT_VARIANT; }

    void release(void* place) const
    {
        if (type == VT_VARIANT) {
            zu_Com_VariantClear(static_cast<VARIANT*>(place));
        } else if (type == VT_BSTR) {
            zu_Com_SysFreeString(pointerAt<BSTR>(place));
        } else if (isPointer()) {
            if (auto* const object = pointerAt<IUnknown*>(place))
                object->Release();
        }
    }

    // Copies onto a place that owns nothing.
    HRESULT copy(void* to, const void* from) const
    {
        if (type == VT_VARIANT) {
            zu_Com_VariantInit(static_cast<VARIANT*>(to));
            return zu_Com_VariantCopy(static_cast<VARIANT*>(to), static_cast<VARIANT*>(const_cast<void*>(from)));
        }
        if (type == VT_BSTR) {
            const BSTR text = pointerAt<BSTR>(from);
            const BSTR made = text == nullptr ? nullptr
                                              : zu_Com_SysAllocStringByteLen(reinterpret_cast<const char*>(text),
                                                                             zu_Com_SysStringByteLen(text));
            std::memcpy(to, &made, sizeof made);
            return made == nullptr && text != nullptr ? E_OUTOFMEMORY : S_OK;
        }
        if (isPointer()) {
            if (auto* const object = pointerAt<IUnknown*>(from))
                object->AddRef();
        }
        std::memcpy(to, from, size());
        return S_OK;
    }

private:
    template <class Pointer>
    static Pointer pointerAt(const void* place)
    {
        Pointer pointer;
        std::memcpy(&pointer, place, sizeof pointer);
        return pointer;
    }

    VARTYPE type;
};

// Whether a VARIANT can be of this type.
inline bool isVariantType(VARTYPE type)
{
    const auto kind = static_cast<VARTYPE>(type & VT_TYPEMASK);
    if ((type & ~(VT_TYPEMASK | VT_ARRAY | VT_BYREF)) != 0)
        return false;
    if ((type & (VT_ARRAY | VT_BYREF)) != 0)
        return Element(kind).size() != 0;
    return kind == VT_EMPTY || kind == VT_NULL || (kind != VT_VARIANT && Element(kind).size() != 0);
}

} // namespace zu::posix
