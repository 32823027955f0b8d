/** @file zu_Fname.h
 *  @ingroup files
 *  File names as texts: extensions, directory parts, joining, shortening for display, temporary names.
 *
 *      zu_wchar name[260] = ZU_W("D:\\specs\\pipe.txt");
 *      zu_Fname_addExt(name, ZU_W("dat"));                    // D:\specs\pipe.dat
 *
 *  Names are written with backslashes and drive letters on every system; a forward slash is an ordinary character.
 *  The extension starts at the last dot behind the last backslash. Names are edited in the caller's buffer, which must
 *  have room for what is added. Only zu_Fname_fullPath asks the system anything.
 *
 *  Results in a static buffer are valid until the next call of the same operation and are cut to 512 units. A null name
 *  changes nothing.
 *
 *  @par Example
 *  @include fname.c
 */
#ifndef ZU_FNAME_H
#define ZU_FNAME_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** Appends a backslash unless the name is empty or ends in one. */
ZU_API void zu_Fname_fixDir(zu_wchar* name);

/** Replaces the extension, or appends one.
 *  @param extension  without its dot; null changes nothing.
 *  @return 0 always. */
ZU_API int32_t zu_Fname_addExt(zu_wchar* name, const zu_wchar* extension);

/** Replaces, appends or removes the extension.
 *  @param extension  without its dot; null and empty remove the extension.
 *  @param replace    0 leaves a name alone that has an extension.
 *  @return 1, or 0 for a null name. */
ZU_API int32_t zu_Fname_modExt(zu_wchar* name, const zu_wchar* extension, int32_t replace);

/** Copies the directory part: all up to the last backslash or colon, which is included.
 *  @param out  receives the part, empty when there is none; may be name.
 *  @return the length of out. */
ZU_API int32_t zu_Fname_extractPath(const zu_wchar* name, zu_wchar* out);

/** Copies the extension without its dot.
 *  @param out  receives the extension, empty when there is none; may be name.
 *  @return the length of out. */
ZU_API int32_t zu_Fname_extractExt(const zu_wchar* name, zu_wchar* out);

/** Removes the directory part. @return 0 always. */
ZU_API int32_t zu_Fname_rmvPath(zu_wchar* name);

/** Removes the extension with its dot. Here a colon ends the search as a backslash does. A name that begins with its
 *  only dot becomes empty.
 *  @return 0 always. */
ZU_API int32_t zu_Fname_rmvExt(zu_wchar* name);

/** Builds a name of its parts, each of which may be null or empty and is then left out.
 *  @param out        receives the name; must be none of the parts.
 *  @param drive      without its colon, which is always appended.
 *  @param directory  a backslash is appended unless it ends in one.
 *  @param name       taken as it is.
 *  @param extension  with or without its dot. */
ZU_API void zu_Fname_build(zu_wchar* out, const zu_wchar* drive, const zu_wchar* directory, const zu_wchar* name,
                           const zu_wchar* extension);

/** The absolute form of a name.
 *  @return a static buffer; the name as it was given when the system cannot resolve it or the result is longer than 512
 *          units, the empty text for null. */
ZU_API zu_wchar* zu_Fname_fullPath(const zu_wchar* name);

/** Shortens a path for display: "..." stands for directories left out in the middle.
 *
 *  The drive or server and the file name stay as long as they fit, with as many whole directory names around "..." as
 *  fit, added from the end and from the beginning in turn. Where even the last name is longer than width, or nothing
 *  could be left out, the name alone is given, cut. The last name between backslashes may exceed width when it is all
 *  that is left.
 *  @param width  up to 512; beyond it the result is empty.
 *  @return a static buffer; empty for null. Leading and trailing blanks of the path are not shown. */
ZU_API zu_wchar* zu_Fname_abbreviate(const zu_wchar* path, int32_t width);

/** A name for a temporary file: "zu_" and five digits, chosen by the runtime's random numbers, which the first call
 *  seeds with the time. Has no directory and no extension, and whether such a file exists is not tested.
 *  @return a static buffer. */
ZU_API zu_wchar* zu_Fname_createTemp(void);

ZU_EXTERN_C_END

#endif
