/** @file zu_Base36.h
 *  @ingroup strings
 *  Counters written in base 36, with the digits "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ".
 *
 *      zu_wchar counter[11] = ZU_W("Z");
 *      zu_Base36_increment(counter, 1);               // "10"
 *
 *  Values are doubles from 0 to ZU_BASE36_MAX, which is 36 to the power of 9.
 *
 *  @par Example
 *  @include base36.c
 */
#ifndef ZU_BASE36_H
#define ZU_BASE36_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** The largest value that has a text, "1000000000". */
#define ZU_BASE36_MAX 101559956668416.0

/** The value of a text.
 *  @return the value, 0 for null and the empty text. Anything but a digit, lower-case letters included, counts as the
 *          digit -1: "zz" is -37. */
ZU_API double zu_Base36_toBase10(const zu_wchar* digits);

/** The text of a value, whose fraction is dropped.
 *  @return a static buffer of at most 10 units, valid until the next call; empty for values beyond ZU_BASE36_MAX, below
 *          0, and for what is no number. */
ZU_API zu_wchar* zu_Base36_fromBase10(double value);

/** Compares two texts by their values. @return -1, 0 or 1. */
ZU_API int32_t zu_Base36_compare(const zu_wchar* a, const zu_wchar* b);

/** Replaces a text by the text of its value plus step.
 *  @param digits  in and out; needs room for 10 units and their terminator at most. Leading zeros are not kept: "009"
 *                 becomes "A". Empty afterwards when the new value has no text.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_Base36_increment(zu_wchar* digits, uint32_t step);

ZU_EXTERN_C_END

#endif
