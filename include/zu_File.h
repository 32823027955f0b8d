/** @file zu_File.h
 *  @ingroup files
 *  Whole-file operations: tests, creation and deletion, copying and moving, text lines, times, enumeration, splitting
 *  and joining, scrambling, and network and relative paths.
 *
 *      if (zu_File_copy(ZU_W("D:\\jobs\\a.dat"), ZU_W("D:\\backup\\a.dat")) != 0)
 *          report();
 *
 *  The results follow two conventions, operation by operation: 1 for success, or 0 for success as the runtime has it.
 *
 *  Paths are written with drive letters and backslashes on every system. A null or empty path gives the failure value
 *  and touches nothing, and so does running out of memory before anything was touched. The operations that say so
 *  notify the host's file service of a path (nothing without the service); a failing call of the service leaves the
 *  operation as a COM error.
 *
 *  A text file is in the runtime's text mode on Windows. Elsewhere it is UTF-8: "\r\n" is read as "\n", and a byte that
 *  is no part of valid UTF-8 as one of the units U+DC80 to U+DCFF.
 *
 *  Times are whole seconds since the beginning of 1970.
 *
 *  @par Example
 *  @include file.c
 */
#ifndef ZU_FILE_H
#define ZU_FILE_H

#include "zu_StrList.h"

#include <stdio.h>

ZU_EXTERN_C_BEGIN

/* Existence and access --------------------------------------------------------------------------------------------- */

/** Asks the host's file service for a file.
 *  @return 1 when it says that the file exists; 0 otherwise, also without the service. */
ZU_API int32_t zu_File_exists(const zu_wchar* path);

/** The runtime's access test. Directories exist like files. Write access needs a write permission, for a superuser too.
 *
 *  @param mode  0 exists, 2 write, 4 read, 6 read and write.
 *  @return 1 when access is granted; 0 otherwise, and for any other mode. */
ZU_API int32_t zu_File_hasAccess(const zu_wchar* path, int32_t mode);

/** The same as zu_File_hasAccess with mode 2. */
ZU_API int32_t zu_File_isWriteEnabled(const zu_wchar* path);

/** Marks a file as read-only: for everybody, the superuser included, where permissions tell users apart.
 *  @return 1, or 0 on failure. */
ZU_API int32_t zu_File_setReadOnlyAccess(const zu_wchar* path);

/** Makes a file writable, for its owner where permissions tell users apart. @return 1, or 0 on failure. */
ZU_API int32_t zu_File_setReadWriteAccess(const zu_wchar* path);

/** Notifies the host's file service that a file may have changed. */
ZU_API void zu_File_revalidate(const zu_wchar* path);

/* Creating, deleting, moving --------------------------------------------------------------------------------------- */

/** Makes an empty file where zu_File_exists finds none. Without the host's file service it finds none anywhere, and a
 *  file that is there is emptied.
 *  @return 1 when the file existed or was made; 0 otherwise. */
ZU_API int32_t zu_File_create(const zu_wchar* path);

/** Notifies the host's file service of a file, then deletes it. Whether a read-only file can be deleted is the system's
 *  rule: on Windows it cannot, elsewhere its directory decides. Directories are not deleted.
 *  @return 1, or 0 when it could not be deleted. */
ZU_API int32_t zu_File_deleteSingle(const zu_wchar* path);

/** Deletes files as zu_File_deleteSingle does, one by one. Ends the enumeration of zu_File_findFirst.
 *
 *  @param path      a path whose last component may hold the wildcards of zu_File_findFirst; or a list file.
 *  @param fromList  when not 0, path names a text file of which each line is the path of a file to delete, the last one
 *                   also without a line feed. Lines of more than 512 units are passed over.
 *  @return the number of files that were deleted. */
ZU_API int32_t zu_File_delete(const zu_wchar* path, int32_t fromList);

/** Moves a file over the destination, in one step on a volume: a failure or a crash leaves one of the two files. Where
 *  the source is missing the destination is deleted all the same. Notifies the host's file service of both names
 *  afterwards, whatever happened.
 *  @return 0, or -1 when nothing was moved. */
ZU_API int32_t zu_File_move(const zu_wchar* source, const zu_wchar* destination);

/* Copying ---------------------------------------------------------------------------------------------------------- */

/** Copies the content of a file. Both times of the destination become the modification time of the source, as far as
 *  the system lets them; its permissions are its own. The host's file service is notified of a finished copy.
 *
 *  @return 0. 1 when the source cannot be read, when the destination cannot be opened, and when something could not be
 *          written: the destination then holds a part or nothing. 1 also when both are one file, or their full paths
 *          differ in nothing but case; nothing is touched then. */
ZU_API int32_t zu_File_copy(const zu_wchar* source, const zu_wchar* destination);

/** Copies everything from the position of one open stream to the position of another. Both stay open, and stand behind
 *  what was copied. What the destination's buffer held is written first.
 *
 *  @return 0; 1 for a null stream, when both stand for one file, and when something could not be read or written. */
ZU_API int32_t zu_File_copyRest(FILE* destination, FILE* source);

/** Appends the content of the source, as text, to the destination, which is created when it is missing.
 *
 *  @return 0. 1 when either cannot be opened (the destination is then unchanged), when both are one file, and when
 *          something could not be written: the destination may then have grown by a part. */
ZU_API int32_t zu_File_append(const zu_wchar* destination, const zu_wchar* source);

/* Length and times ------------------------------------------------------------------------------------------------- */

/** The length in bytes of the file behind a stream. What waits in the stream's buffer does not count: flush it first.
 *  @return the length; -1 for null, for a stream that is no file, and beyond 2147483647 bytes. */
ZU_API int32_t zu_File_length(FILE* stream);

/** Reads when a file was changed.
 *  @param time  receives the modification time; 0 on failure.
 *  @return 0; 1 when it cannot be had, does not fit 32 bits, or time is null. */
ZU_API int32_t zu_File_getTime(const zu_wchar* path, int32_t* time);

/** Sets the time of the last change and of the last access. @return 0, or -1 on failure. */
ZU_API int32_t zu_File_setTime(const zu_wchar* path, int32_t time);

/** Compares when two files were changed.
 *  @return -1, 0 or 1 as a is older than b, as old, or newer; -1 when the time of a cannot be had, else 1 when the time
 *          of b cannot. */
ZU_API int32_t zu_File_cmpTime(const zu_wchar* a, const zu_wchar* b);

/* Text lines ------------------------------------------------------------------------------------------------------- */

/** Reads the next line of a text stream, without its line feed.
 *
 *  @param stream   not owned; a stream of the runtime that the library uses.
 *  @param buffer   receives the line; needs room for maximum + 1 units.
 *  @param maximum  the most units to store. The rest of a longer line is skipped.
 *  @return 1; 0 when the end of the file came before any unit, and for a null argument or a negative maximum. The
 *  buffer is then empty (untouched for a negative maximum). The stream stands behind the line feed afterwards; feof
 *  tells whether the line ended at the end of the file. */
ZU_API int32_t zu_File_readLine(FILE* stream, zu_wchar* buffer, int32_t maximum);

/** Reads the lines of a text file that are not empty, cut at 512 units, with a blank for each tab. A last line without
 *  a line feed is left out.
 *
 *  @return a new list without a current element, released with zu_StrList_destroy; it may be empty. Null when the file
 *          cannot be read or is empty, and without memory. */
ZU_API StrList* zu_File_readFile(const zu_wchar* path);

/** Reads all lines of a text file, cut at 512 units, each with a line feed at its end. A last line without a line feed
 *  is left out.
 *
 *  @return a new list without a current element, released with zu_StrList_destroy. Null when the file cannot be read
 *          or has no whole line, and without memory. */
ZU_API StrList* zu_File_readFileExactly(const zu_wchar* path);

/* Enumeration ------------------------------------------------------------------------------------------------------ */

/** Starts the enumeration of directory entries, of which the process has one at a time.
 *
 *  @param pattern  a path whose last component may hold "*" (any number of units) and "?" (one unit, or none in front
 *                  of a full stop and at the end). Case is ignored; "*.*" stands for everything. "." and ".." are
 *                  entries of every directory. The entries are those of this moment.
 *  @param name     receives the first name, without its directory: up to 260 units. Empty on failure.
 *  @return 0; -1 when nothing matches, for null, and without memory. An enumeration that was open is closed. */
ZU_API int32_t zu_File_findFirst(const zu_wchar* pattern, zu_wchar* name);

/** Gives the next name: in the order of the file system on Windows, sorted without case elsewhere, "." and ".." first.
 *  @param name  receives the name; empty when there is none.
 *  @return 0; -1 when there are no more, which closes the enumeration, when none is open, and for null. */
ZU_API int32_t zu_File_findNext(zu_wchar* name);

/* Parts and scrambling --------------------------------------------------------------------------------------------- */

/** Splits a file into parts, named with their number as the extension: "data.bin" into "data.1", "data.2", and so on.
 *
 *  @param partSize  bytes a part; 0 and below gives 0.
 *  @return the number of parts. A length that is a multiple of partSize has an empty part at its end, which counts.
 *          0 when the file cannot be read, when a part cannot be written or would be the file itself, and without
 *          memory; parts that were written before stay. */
ZU_API int32_t zu_File_slice(const zu_wchar* path, int32_t partSize);

/** Joins the parts that zu_File_slice made of a file, from part 1 on up to the first that cannot be opened, and deletes
 *  them once the file is complete.
 *
 *  @param path  the file to make; one that is there is replaced.
 *  @return one more than the number of parts: 1 when there were none. 0 when the file or something of it cannot be
 *          written, when a part cannot be read, and without memory: all parts are there then, and the file holds what
 *          had been joined. 0 also, and nothing is touched, when the file is itself one of the parts. */
ZU_API int32_t zu_File_mend(const zu_wchar* path);

/** Scrambles a file: combines its bytes with a table of 512 bytes, over and over, by exclusive or. Doing it again
 *  restores the file. This hides text from a casual look and protects nothing.
 *
 *  @param destination  the file to make; created, or emptied, even when the source is missing.
 *  @return 1; 0 when either cannot be opened, when both are one file (which stays as it is), and when something could
 *          not be read or written: the destination then holds a part. */
ZU_API int32_t zu_File_encrypt(const zu_wchar* destination, const zu_wchar* source);

/** The same as zu_File_encrypt. */
ZU_API int32_t zu_File_decrypt(const zu_wchar* destination, const zu_wchar* source);

/* Paths ------------------------------------------------------------------------------------------------------------ */

/** The name under which the network knows a path on a mapped drive: "\\server\share\rest".
 *  @return a static text of at most 511 units, valid until the next call: the path as it is when it has no colon or
 *          its drive is not mapped, empty for null. */
ZU_API zu_wchar* zu_File_getUNCPathName(const zu_wchar* path);

/** The target as seen from a base directory. Case counts, save that of the drive letter.
 *
 *      base "D:\a\b", target "D:\a\b\c\x.txt": "c\x.txt"         target "D:\a\c\x.txt": "..\c\x.txt"
 *
 *  @param base    a full path of 4 to 512 units.
 *  @param target  a full path of 4 to 512 units; on another drive it is the result.
 *  @return a static text of at most 512 units, valid until the next call; null when a path has another length, and
 *          when the result would be longer. */
ZU_API zu_wchar* zu_File_getRelativeFilename(const zu_wchar* base, const zu_wchar* target);

ZU_EXTERN_C_END

#endif
