/** @file zu_Api.h
 *  @ingroup frame
 *  What every header of the library starts from: export marking, wide characters, and the version.
 *
 *  All text of the library is UTF-16 in units of zu_wchar, terminated by a zero unit. zu_wchar is 16 bits wide on every
 *  system: wchar_t on Windows, char16_t elsewhere. ZU_W("text") makes a literal of it:
 *
 *      zu_StrList_insEnd(list, ZU_W("pipe"));
 *
 *  The library is meant for one thread at a time: hooks, registries, diagnostic settings and the static result buffers
 *  are process-wide and unguarded.
 *
 *  @par Example
 *  @include api.c
 */
#ifndef ZU_API_H
#define ZU_API_H

#include <stddef.h>
#include <stdint.h>

#define ZU_VERSION_MAJOR 0 /**< the version of the headers: its first number */
#define ZU_VERSION_MINOR 1 /**< its second number */
#define ZU_VERSION_PATCH 0 /**< its third number */

/** @def ZU_API
 *  Marks what the library exports. */
#if defined(_WIN32)
#    if defined(ZU_BUILDING_LIBRARY)
#        define ZU_API __declspec(dllexport)
#    else
#        define ZU_API __declspec(dllimport)
#    endif
#elif defined(__GNUC__)
#    define ZU_API __attribute__((visibility("default")))
#else
#    define ZU_API
#endif

#if defined(_WIN32)
typedef wchar_t zu_wchar;
#    define ZU_W_JOIN(text) L##text
#else
#    if !defined(__cplusplus)
#        include <uchar.h>
#    endif
/** One unit of UTF-16. */
typedef char16_t zu_wchar;
/** Joins the prefix of a wide literal to it; for ZU_W alone. */
#    define ZU_W_JOIN(text) u##text
#endif

/** A wide literal: ZU_W("text"), or ZU_W('c') for one unit. */
#define ZU_W(text) ZU_W_JOIN(text)

/** @def ZU_EXTERN_C_BEGIN
 *  Opens declarations with C linkage, in C++.
 *  @def ZU_EXTERN_C_END
 *  Closes them. */
#if defined(__cplusplus)
#    define ZU_EXTERN_C_BEGIN extern "C" {
#    define ZU_EXTERN_C_END }
#else
#    define ZU_EXTERN_C_BEGIN
#    define ZU_EXTERN_C_END
#endif

ZU_EXTERN_C_BEGIN

/** The version of the library that is loaded, as "major.minor.patch" in ASCII.
 *
 *  @return a text that lives as long as the library; never null. Compare it with ZU_VERSION_MAJOR and its companions,
 *          which give the version of the headers. */
ZU_API const char* zu_version(void);

ZU_EXTERN_C_END

#endif
