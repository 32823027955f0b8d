#include "zu_Array.h"

#include "frame/trace.h"

#include <cstring>
#include <limits>

Array* zu_Array_create(uint64_t count, uint64_t elementSize, const void* initial)
{
    ZU_TRACE(array);
    if (count == 0)
        return nullptr;
    auto* const array = static_cast<Array*>(zu_Malloc(sizeof(Array)));
    if (array == nullptr)
        return nullptr;
    *array = {0, elementSize, nullptr};
    const bool fits = elementSize == 0 || count <= std::numeric_limits<uint64_t>::max() / elementSize;
    array->data = fits ? zu_Malloc(count * elementSize) : nullptr;
    if (array->data == nullptr)
        return array;
    std::memset(array->data, 0, count * elementSize);
    array->count = count;
    for (uint64_t index = 0; index < count && initial != nullptr; ++index) {
        void* const element = zu_Array_getAddress(array, index);
        if (element == nullptr)
            break; // so are all that follow
        std::memcpy(element, initial, elementSize);
    }
    return array;
}

int32_t zu_Array_destroy(Array* array, zu_ArrayDestroyCallback destroy)
{
    ZU_TRACE(array);
    if (array == nullptr)
        return 0;
    for (uint64_t index = 0; destroy != nullptr && array->data != nullptr && index < array->count; ++index) {
        void* const element = zu_Array_getAddress(array, index);
        if (element == nullptr)
            break;
        destroy(element);
    }
    zu_Free(array->data);
    zu_Free(array);
    return 1;
}

uint64_t zu_Array_size(const Array* array)
{
    ZU_TRACE(array);
    return array == nullptr ? 0 : array->count;
}

void* zu_Array_getNth(Array* array, uint64_t index)
{
    ZU_TRACE(array);
    return array == nullptr || index >= array->count ? nullptr : zu_Array_getAddress(array, index);
}

int32_t zu_Array_setNth(Array* array, uint64_t index, const void* value, zu_ArrayDestroyCallback destroy)
{
    ZU_TRACE_AS(array, "zu_Array_modNth");
    void* const element = zu_Array_getAddress(array, index);
    // A short array of wide elements has addresses beyond its storage.
    if (element == nullptr || index >= array->count)
        return 0;
    if (destroy != nullptr)
        destroy(element);
    if (value != nullptr)
        std::memmove(element, value, array->elementSize);
    return 0;
}

int32_t zu_Array_swap(Array* array, uint64_t a, uint64_t b)
{
    ZU_TRACE(array);
    if (array == nullptr || a >= array->count || b >= array->count)
        return 0;
    void* const first = zu_Array_getAddress(array, a);
    void* const second = zu_Array_getAddress(array, b);
    if (first == nullptr || second == nullptr)
        return 0;
    void* const temporary = zu_Malloc(array->elementSize);
    if (temporary == nullptr)
        return 0;
    std::memcpy(temporary, first, array->elementSize);
    std::memmove(first, second, array->elementSize);
    std::memcpy(second, temporary, array->elementSize);
    zu_Free(temporary);
    return 1;
}

uint64_t zu_Array_search(Array* array, const void* key, zu_ArrayCompareCallback compare)
{
    ZU_TRACE(array);
    for (uint64_t index = 0; array != nullptr && compare != nullptr && index < array->count; ++index) {
        const void* const element = zu_Array_getAddress(array, index);
        if (element == nullptr)
            break;
        if (compare(element, key) == 0)
            return index;
    }
    return 0;
}

void* zu_Array_getAddress(Array* array, uint64_t index)
{
    ZU_TRACE_EXIT_AS(array, "zu_Array_getAddress", "Exiting", "zu_Array_search");
    // The element size is the bound, not the count: see the header.
    if (array == nullptr || index >= array->elementSize || array->data == nullptr)
        return nullptr;
    return static_cast<char*>(array->data) + index * array->elementSize;
}
