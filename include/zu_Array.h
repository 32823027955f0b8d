/** @file zu_Array.h
 *  @ingroup containers
 *  A fixed-length array of equal-sized opaque elements, copied in and out as bytes.
 *
 *      int32_t zero = 0;
 *      Array* array = zu_Array_create(4, sizeof zero, &zero);
 *
 *  An element can be addressed only while its index is below the element size: see zu_Array_getAddress. Arrays longer
 *  than their elements are wide are therefore of use only at their front.
 *
 *  @par Example
 *  @include array.c
 */
#ifndef ZU_ARRAY_H
#define ZU_ARRAY_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** The header; read it freely, change it only through the operations. */
typedef struct Array
{
    uint64_t count;       /**< number of elements; 0 when their storage could not be had */
    uint64_t elementSize; /**< bytes an element */
    void* data;           /**< count times elementSize bytes */
} Array;

/** Frees what an element refers to; receives the element's address. The result is ignored. */
typedef int32_t (*zu_ArrayDestroyCallback)(void* element);
/** Returns 0 when the element matches the key. */
typedef int32_t (*zu_ArrayCompareCallback)(const void* element, const void* key);

/** Makes an array whose elements are all copies of one value.
 *
 *  @param count        number of elements; 0 gives null.
 *  @param elementSize  bytes an element.
 *  @param initial      elementSize bytes to copy; null leaves the elements zero.
 *  @return a new array, released with zu_Array_destroy; null without memory for the header. Without memory for the
 *          elements the header comes with count 0. Elements that cannot be addressed stay zero. */
ZU_API Array* zu_Array_create(uint64_t count, uint64_t elementSize, const void* initial);

/** Destroys the array.
 *  @param destroy  called with the address of each element that can be addressed, in index order; may be null.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_Array_destroy(Array* array, zu_ArrayDestroyCallback destroy);

/** @return the number of elements, 0 for null. */
ZU_API uint64_t zu_Array_size(const Array* array);

/** @return the address of an element, valid until the array is destroyed; null when the index is at or past the count
 *          or the element cannot be addressed. */
ZU_API void* zu_Array_getNth(Array* array, uint64_t index);

/** Stores a copy of value in an element, after calling destroy (may be null) on its address. An element that cannot be
 *  addressed is left alone, and destroy is not called. Traces as "zu_Array_modNth".
 *  @return 0 always. */
ZU_API int32_t zu_Array_setNth(Array* array, uint64_t index, const void* value, zu_ArrayDestroyCallback destroy);

/** Exchanges the bytes of two elements.
 *  @return 1; 0 when an index is at or past the count, an element cannot be addressed, or there is no memory for the
 *          exchange. */
ZU_API int32_t zu_Array_swap(Array* array, uint64_t a, uint64_t b);

/** Looks for the first element that matches.
 *  @return its index; 0 also when none matches, so that a match at index 0 cannot be told from none. */
ZU_API uint64_t zu_Array_search(Array* array, const void* key, zu_ArrayCompareCallback compare);

/** The address of an element by index. The index is compared with the element size, not with the count: that is the
 *  contract, and callers rely on it. Its exit line is that of zu_Array_search.
 *  @return the address, or null for a null array and for an index at or past the element size. */
ZU_API void* zu_Array_getAddress(Array* array, uint64_t index);

ZU_EXTERN_C_END

#endif
