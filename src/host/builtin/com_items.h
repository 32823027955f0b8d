// Collections of the built-in host: their counts, and their items by a number in a VARIANT.
#pragma once

#include "host/builtin/com_object.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace zu::host {

// The index in a value of an integer type; none in any other.
inline std::optional<std::int64_t> indexIn(const VARIANT& value)
{
    switch (value.vt) {
    case VT_I1: return value.cVal;
    case VT_UI1: return value.bVal;
    case VT_I2: return value.iVal;
    case VT_UI2: return value.uiVal;
    case VT_I4: return value.lVal;
    case VT_UI4: return value.ulVal;
    case VT_INT: return value.intVal;
    case VT_UINT: return value.uintVal;
    case VT_I8: return value.llVal;
    default: return std::nullopt;
    }
}

// Hands out item number index of count, counted from first, which make(place) makes; places count from 0.
template <class Interface, class Make>
HRESULT giveItem(Interface** out, const VARIANT& index, std::size_t count, Make make, std::int64_t first = 0)
{
    if (out == nullptr)
        return E_POINTER;
    *out = nullptr;
    const auto place = indexIn(index);
    if (!place)
        return DISP_E_TYPEMISMATCH;
    if (*place < first || static_cast<std::uint64_t>(*place - first) >= count)
        return DISP_E_BADINDEX;
    *out = ComPtr<Interface>(make(static_cast<std::size_t>(*place - first))).release();
    return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

inline HRESULT giveCount(LONG* out, std::size_t count)
{
    if (out == nullptr)
        return E_POINTER;
    *out = static_cast<LONG>(std::min(count, std::size_t{std::numeric_limits<LONG>::max()}));
    return S_OK;
}

} // namespace zu::host
