// Values and arrays of automation.
#include "platform/posix/com_element.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

using zu::posix::Element;

// What stands in front of an array: the type of its elements.
struct ArrayPrefix
{
    std::uint64_t type;
};

constexpr USHORT hasText = 0x100;
constexpr USHORT hasUnknown = 0x200;
constexpr USHORT hasDispatch = 0x400;
constexpr USHORT hasVariant = 0x800;
constexpr USHORT hasType = 0x80;

USHORT featuresOf(VARTYPE type)
{
    const USHORT kind = type == VT_BSTR       ? hasText
                        : type == VT_UNKNOWN  ? hasUnknown
                        : type == VT_DISPATCH ? hasDispatch
                        : type == VT_VARIANT  ? hasVariant
                                              : USHORT{0};
    return static_cast<USHORT>(kind | hasType);
}

ArrayPrefix* prefixOf(SAFEARRAY* array)
{
    return reinterpret_cast<ArrayPrefix*>(array) - 1;
}

VARTYPE typeOf(SAFEARRAY* array)
{
    return static_cast<VARTYPE>(prefixOf(array)->type);
}

// The number of elements; 0 when it, or their size in bytes, is beyond the range.
std::size_t countOf(const SAFEARRAYBOUND* bounds, UINT dimensions, std::size_t size)
{
    std::size_t count = 1;
    for (UINT index = 0; index < dimensions; ++index) {
        count *= bounds[index].cElements;
        if (count > std::numeric_limits<std::uint32_t>::max() / size)
            return 0;
    }
    return count;
}

std::size_t countOf(const SAFEARRAY* array)
{
    return countOf(array->rgsabound, array->cDims, array->cbElements);
}

// The bounds of a dimension counted from 1.
const SAFEARRAYBOUND* boundsOf(const SAFEARRAY* array, UINT dimension)
{
    return dimension == 0 || dimension > array->cDims ? nullptr : &array->rgsabound[array->cDims - dimension];
}

void* elementAt(SAFEARRAY* array, std::size_t index)
{
    return static_cast<char*>(array->pvData) + index * array->cbElements;
}

// The element of these indices; null when they are out of bounds.
void* elementAt(SAFEARRAY* array, const LONG* indices)
{
    std::size_t place = 0;
    std::size_t stride = 1;
    for (UINT dimension = 1; dimension <= array->cDims; ++dimension) {
        const SAFEARRAYBOUND& bounds = *boundsOf(array, dimension);
        const std::int64_t offset = std::int64_t{indices[dimension - 1]} - bounds.lLbound;
        if (offset < 0 || offset >= std::int64_t{bounds.cElements})
            return nullptr;
        place += static_cast<std::size_t>(offset) * stride;
        stride *= bounds.cElements;
    }
    return elementAt(array, place);
}

void freeArray(SAFEARRAY* array)
{
    std::free(array->pvData);
    std::free(prefixOf(array));
}

} // namespace

// Values -------------------------------------------------------------------------------------------------------------

void zu_Com_VariantInit(VARIANT* value)
{
    if (value != nullptr)
        *value = VARIANT{};
}

HRESULT zu_Com_VariantClear(VARIANT* value)
{
    if (value == nullptr)
        return E_INVALIDARG;
    if (!zu::posix::isVariantType(value->vt))
        return DISP_E_BADVARTYPE;
    if ((value->vt & VT_BYREF) == 0) {
        if ((value->vt & VT_ARRAY) != 0) {
            const HRESULT result = zu_Com_SafeArrayDestroy(value->parray);
            if (FAILED(result))
                return result;
        } else {
            Element(value->vt).release(&value->llVal);
        }
    }
    value->vt = VT_EMPTY;
    return S_OK;
}

HRESULT zu_Com_VariantCopy(VARIANT* to, VARIANT* from)
{
    if (to == nullptr || from == nullptr)
        return E_INVALIDARG;
    if (to == from)
        return S_OK;
    // The second test says in terms of the type alone what the first implies: values hold no values.
    if (!zu::posix::isVariantType(from->vt) || from->vt == VT_VARIANT)
        return DISP_E_BADVARTYPE;
    // The copy is made first: from may lie within what to owns.
    VARIANT copy = *from;
    HRESULT result = S_OK;
    if ((from->vt & VT_BYREF) == 0) {
        result = (from->vt & VT_ARRAY) != 0 ? zu_Com_SafeArrayCopy(from->parray, &copy.parray)
                                            : Element(from->vt).copy(&copy.llVal, &from->llVal);
    }
    if (FAILED(result))
        return result;
    result = zu_Com_VariantClear(to);
    if (FAILED(result)) {
        zu_Com_VariantClear(&copy);
        return result;
    }
    *to = copy;
    return S_OK;
}

// Arrays -------------------------------------------------------------------------------------------------------------

SAFEARRAY* zu_Com_SafeArrayCreate(VARTYPE type, UINT dimensions, SAFEARRAYBOUND* bounds)
{
    const std::size_t size = Element(type).size();
    if (size == 0 || dimensions == 0 || dimensions > std::numeric_limits<USHORT>::max() || bounds == nullptr)
        return nullptr;
    const std::size_t count = countOf(bounds, dimensions, size);
    bool isEmpty = false;
    for (UINT index = 0; index < dimensions; ++index)
        isEmpty = isEmpty || bounds[index].cElements == 0;
    if (count == 0 && !isEmpty)
        return nullptr;
    auto* const prefix = static_cast<ArrayPrefix*>(
        std::calloc(1, sizeof(ArrayPrefix) + sizeof(SAFEARRAY) + (dimensions - 1) * sizeof(SAFEARRAYBOUND)));
    void* const data = std::calloc(count == 0 ? 1 : count, size);
    if (prefix == nullptr || data == nullptr) {
        std::free(prefix);
        std::free(data);
        return nullptr;
    }
    prefix->type = type;
    auto* const array = reinterpret_cast<SAFEARRAY*>(prefix + 1);
    array->cDims = static_cast<USHORT>(dimensions);
    array->fFeatures = featuresOf(type);
    array->cbElements = static_cast<std::uint32_t>(size);
    array->pvData = data;
    SAFEARRAYBOUND* const reversed = array->rgsabound;
    for (UINT index = 0; index < dimensions; ++index)
        reversed[index] = bounds[dimensions - 1 - index];
    return array;
}

SAFEARRAY* zu_Com_SafeArrayCreateVector(VARTYPE type, LONG lowerBound, uint32_t count)
{
    SAFEARRAYBOUND bounds = {count, lowerBound};
    return zu_Com_SafeArrayCreate(type, 1, &bounds);
}

HRESULT zu_Com_SafeArrayDestroy(SAFEARRAY* array)
{
    if (array == nullptr)
        return S_OK;
    if (array->cLocks != 0)
        return DISP_E_ARRAYISLOCKED;
    const Element element(typeOf(array));
    for (std::size_t index = countOf(array); element.ownsSomething() && index-- > 0;)
        element.release(elementAt(array, index));
    freeArray(array);
    return S_OK;
}

HRESULT zu_Com_SafeArrayCopy(SAFEARRAY* array, SAFEARRAY** copy)
{
    if (copy == nullptr)
        return E_INVALIDARG;
    *copy = nullptr;
    if (array == nullptr)
        return S_OK;
    // As many bounds as the original has, in the order that it stores them.
    SAFEARRAY* const made = zu_Com_SafeArrayCreate(typeOf(array), array->cDims, array->rgsabound);
    if (made == nullptr)
        return E_OUTOFMEMORY;
    std::memcpy(made->rgsabound, array->rgsabound, array->cDims * sizeof(SAFEARRAYBOUND));
    const Element element(typeOf(array));
    const std::size_t count = countOf(array);
    for (std::size_t index = 0; index < count; ++index) {
        const HRESULT result = element.copy(elementAt(made, index), elementAt(array, index));
        if (FAILED(result)) {
            zu_Com_SafeArrayDestroy(made);
            return result;
        }
    }
    *copy = made;
    return S_OK;
}

UINT zu_Com_SafeArrayGetDim(SAFEARRAY* array)
{
    return array == nullptr ? 0 : array->cDims;
}

UINT zu_Com_SafeArrayGetElemsize(SAFEARRAY* array)
{
    return array == nullptr ? 0 : array->cbElements;
}

HRESULT zu_Com_SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* type)
{
    if (array == nullptr || type == nullptr)
        return E_INVALIDARG;
    *type = typeOf(array);
    return S_OK;
}

HRESULT zu_Com_SafeArrayGetLBound(SAFEARRAY* array, UINT dimension, LONG* bound)
{
    if (array == nullptr || bound == nullptr)
        return E_INVALIDARG;
    const SAFEARRAYBOUND* const bounds = boundsOf(array, dimension);
    if (bounds == nullptr)
        return DISP_E_BADINDEX;
    *bound = bounds->lLbound;
    return S_OK;
}

HRESULT zu_Com_SafeArrayGetUBound(SAFEARRAY* array, UINT dimension, LONG* bound)
{
    if (array == nullptr || bound == nullptr)
        return E_INVALIDARG;
    const SAFEARRAYBOUND* const bounds = boundsOf(array, dimension);
    if (bounds == nullptr)
        return DISP_E_BADINDEX;
    *bound = static_cast<LONG>(static_cast<std::uint32_t>(bounds->lLbound) + bounds->cElements - 1);
    return S_OK;
}

HRESULT zu_Com_SafeArrayAccessData(SAFEARRAY* array, void** data)
{
    if (array == nullptr || data == nullptr)
        return E_INVALIDARG;
    if (array->cLocks == std::numeric_limits<USHORT>::max())
        return E_UNEXPECTED;
    ++array->cLocks;
    *data = array->pvData;
    return S_OK;
}

HRESULT zu_Com_SafeArrayUnaccessData(SAFEARRAY* array)
{
    if (array == nullptr)
        return E_INVALIDARG;
    if (array->cLocks == 0)
        return E_UNEXPECTED;
    --array->cLocks;
    return S_OK;
}

HRESULT zu_Com_SafeArrayGetElement(SAFEARRAY* array, LONG* indices, void* element)
{
    if (array == nullptr || indices == nullptr || element == nullptr)
        return E_INVALIDARG;
    const void* const place = elementAt(array, indices);
    return place == nullptr ? DISP_E_BADINDEX : Element(typeOf(array)).copy(element, place);
}

HRESULT zu_Com_SafeArrayPutElement(SAFEARRAY* array, LONG* indices, void* element)
{
    if (array == nullptr || indices == nullptr)
        return E_INVALIDARG;
    void* const place = elementAt(array, indices);
    if (place == nullptr)
        return DISP_E_BADINDEX;
    const Element kind(typeOf(array));
    // Texts and interfaces are given as themselves, everything else by its address.
    const void* const source = kind.isPointer() ? static_cast<const void*>(&element) : element;
    if (source == nullptr)
        return E_INVALIDARG;
    VARIANT copy = {};
    const HRESULT result = kind.copy(&copy, source);
    if (FAILED(result))
        return result;
    kind.release(place);
    std::memcpy(place, &copy, kind.size());
    return S_OK;
}
