/** @file zu_Dir.h
 *  @ingroup files
 *  Directories and drives.
 *
 *      if (zu_Dir_exists(ZU_W("D:\\jobs\\new")) == 0 && zu_Dir_create(ZU_W("D:\\jobs\\new")) != 0)
 *          report();
 *
 *  Paths are written with drive letters and backslashes on every system. A null or empty path, and one of more than 512
 *  units, gives the failure value and touches nothing, save that the empty path is the current directory for
 *  zu_Dir_getParent.
 *
 *  Names are lower-cased on purpose: directories that are made get lower-case names, and listed names come back in
 *  lower case. Where the file system tells case apart, an entry is found by its name as given, and otherwise ignoring
 *  case.
 *
 *  The host's file service is that of zu_File.h.
 *
 *  @par Example
 *  @include dir.c
 */
#ifndef ZU_DIR_H
#define ZU_DIR_H

#include "zu_StrList.h"

ZU_EXTERN_C_BEGIN

/** Asks the host's file service for a directory.
 *  @return 1 when it says that the directory exists; 0 otherwise, also without the service. */
ZU_API int32_t zu_Dir_exists(const zu_wchar* path);

/** Creates every missing directory along the path, under lower-case names. The host's file service is notified first.
 *  @return the result of the last creation: 0, or -1 when it failed. -1 also when nothing had to be created, so for a
 *          directory that exists. */
ZU_API int32_t zu_Dir_create(const zu_wchar* path);

/** Removes an empty directory. The host's file service is notified of the lower-cased path first.
 *  @return 0, or -1 when it could not be removed. */
ZU_API int32_t zu_Dir_delete(const zu_wchar* path);

/** Removes a directory with everything in it, as far as possible: files as zu_File_delete does, directories depth first
 *  as zu_Dir_delete does. Links are removed, not followed. Ends the enumeration of zu_File_findFirst.
 *
 *  @return 0; -1 when something was left, and for a drive without a directory ("D:"). Entries with paths of more than
 *          512 units are left. */
ZU_API int32_t zu_Dir_deleteTree(const zu_wchar* path);

/** Makes a directory the current one, and its drive when the path names one; a drive alone ("d:") is only switched to.
 *  @return 0, or -1 on failure. The drive stays switched even when its directory cannot be had. */
ZU_API int32_t zu_Dir_change(const zu_wchar* path);

/** @return the current directory, a static text valid until the next call; null when it cannot be had or has more than
 *          512 units. */
ZU_API zu_wchar* zu_Dir_current(void);

/** The directory that a path lies in.
 *  @param path  need not exist; a relative one is taken from the current directory.
 *  @return a static text that ends with a backslash, valid until the next call: "d:\a\" for "d:\a\b". Null for a root,
 *          and when the full path has more than 512 units. */
ZU_API zu_wchar* zu_Dir_getParent(const zu_wchar* path);

/** Lists the entries that a pattern of zu_File_findFirst stands for, as the directory part of the pattern followed by
 *  the name, all in lower case. Ends the enumeration of zu_File_findFirst.
 *
 *  @return a new list without a current element, released with zu_StrList_destroy; null when nothing matches, and
 *          without memory. */
ZU_API StrList* zu_Dir_list(const zu_wchar* pattern);

/** The number of a drive: 1 for 'A' and 'a'. @return the upper-cased letter less 64, for any character. */
ZU_API int32_t zu_Drive_num(zu_wchar letter);

/** Makes a drive the current one.
 *  @param drive  1 for A to 26 for Z.
 *  @return -1 for a number below 1; 0 otherwise, whether there is such a drive or not. */
ZU_API int32_t zu_Drive_set(int32_t drive);

/** @return always -1: the current drive is not told. */
ZU_API int32_t zu_Drive_get(void);

ZU_EXTERN_C_END

#endif
