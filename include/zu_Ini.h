/** @file zu_Ini.h
 *  @ingroup configuration
 *  INI files: groups of "key=value" lines under headers "[group]".
 *
 *      const zu_wchar* size = zu_Ini_get(file, ZU_W("PIPE.1"), ZU_W("SIZE"));
 *
 *  There are two ways to a file, and every operation uses one of them:
 *  - the cache: the host's INI cache service, which keeps parsed files and writes changes back. Where the host has
 *  none, reads give null, zu_Ini_set 1, and the group writers 0. A failing call of the service is raised as a COM
 *  error.
 *  - the file itself, read or rewritten line by line: zu_Ini_getGroupLines, getGroupItems, setGroupItems, findGroup.
 *
 *  Group and key names ignore case. A line whose first character other than white space is "[" is a header; its name
 *  reaches to the first "]" or to the end of the line. One that begins with ";" is a comment. The key of a member line
 *  ends at the first "=", its value begins behind the run of white space and "=" that follows. All names, and values,
 *  are trimmed.
 *
 *  Single values are read into one static buffer, valid until the next zu_Ini_get, getAbsolute or getValue. Groups are
 *  handed out as new lists, without a current element. Beware of the results: zu_Ini_set answers 0 for success, the
 *  other writers 1.
 *
 *  @par Example
 *  @include ini.c
 */
#ifndef ZU_INI_H
#define ZU_INI_H

#include "zu_FldList.h"
#include "zu_StrList.h"

#include <stdio.h>

ZU_EXTERN_C_BEGIN

/* Single values, through the cache --------------------------------------------------------------------------------- */

/** Reads a value with its aliases expanded (zu_Alias.h), cut at 512 units, without leading white space.
 *  @return the static text; null when there is no value or nothing is left of it. */
ZU_API zu_wchar* zu_Ini_get(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key);

/** The same without expansion. */
ZU_API zu_wchar* zu_Ini_getAbsolute(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key);

/** The same with a choice.
 *  @param expand     not 0: aliases are expanded.
 *  @param maxLength  units at which the value is cut, at most 1024. */
ZU_API zu_wchar* zu_Ini_getValue(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key, int32_t expand,
                                 int32_t maxLength);

/** Writes a value; missing groups and keys are made.
 *  @return 0 when it was written, 1 when not. */
ZU_API int32_t zu_Ini_set(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key, const zu_wchar* value);

/** Writes a value and reads it back.
 *  @param status  receives the result of zu_Ini_set; may be null.
 *  @return 1 when what was read equals the value, ignoring case; 0 otherwise, as for an empty value, which reads as
 *          none. */
ZU_API int32_t zu_Ini_setAndVerify(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key,
                                   const zu_wchar* value, int32_t* status);

/* Groups, through the cache ---------------------------------------------------------------------------------------- */

/** Reads a group as character fields in the order of the file, values expanded and cut at 1024 units, without the
 *  entries whose value is empty.
 *  @return a new list, released with zu_FldList_destroy: empty when all entries were left out; null for a missing group
 *  and for one without entries. */
ZU_API FldList* zu_Ini_getGroup(const zu_wchar* file, const zu_wchar* group);
/** As zu_Ini_getGroup, with the entries whose value is empty. */
ZU_API FldList* zu_Ini_getGroupWithNulls(const zu_wchar* file, const zu_wchar* group);
/** As zu_Ini_getGroup, without expansion. */
ZU_API FldList* zu_Ini_getGroupAbsolute(const zu_wchar* file, const zu_wchar* group);
/** As zu_Ini_getGroup; expand not 0 expands aliases. */
ZU_API FldList* zu_Ini_getGroupValues(const zu_wchar* file, const zu_wchar* group, int32_t expand);

/** Writes the fields of a list one by one, their values read as text of at most 512 units.
 *
 *  @param onlyExisting  not 0: fields whose key has no value in the file are passed over.
 *  @return 0 when the file cannot be written. Otherwise what became of the last field processed: the status of
 *          zu_FldList_currChar under which its text was taken, 1 or -3 (a number), or 0 when it was not written or has
 *  no name; 1 for an empty list. An earlier failure does not show: this is meant. Current of the list: none. */
ZU_API int32_t zu_Ini_setGroup(const zu_wchar* file, const zu_wchar* group, FldList* list, int32_t onlyExisting);

/** Replaces a group by the fields of a list (at most 1024 units each): removes it, adds it, sets them.
 *  @return 1 when the group is there in the end, else 0. Current of the list: none. */
ZU_API int32_t zu_Ini_setGroupEx(const zu_wchar* file, const zu_wchar* group, FldList* list);

/** Empties a group, or adds it, and sets the fields of a list (at most 1024 units each).
 *  @return 1; 0 when the group cannot be emptied or found again, and without a cache. Where it cannot be added, a field
 *  to be set raises the COM error for a null pointer. Current of the list: none. */
ZU_API int32_t zu_Ini_updateGroup(const zu_wchar* file, const zu_wchar* group, FldList* list);

/** Adds an empty group. @return 1; 0 when it exists already or cannot be added. */
ZU_API int32_t zu_Ini_addGroup(const zu_wchar* file, const zu_wchar* group);

/** Removes a group with its lines. @return 1, or 0 when the cache could not. */
ZU_API int32_t zu_Ini_removeGroup(const zu_wchar* file, const zu_wchar* group);

/** @return a new list of the group names in the order of the file, released with zu_StrList_destroy; null when there
 *  are none. */
ZU_API StrList* zu_Ini_findAllGroups(const zu_wchar* file);

/** The same for the names that begin with prefix, ignoring case; null and the empty text take all. */
ZU_API StrList* zu_Ini_findPrefixGroups(const zu_wchar* file, const zu_wchar* prefix);

/** The text behind the first full stop of a group name.
 *  @return a place in name; name itself when it has none. */
ZU_API const zu_wchar* zu_Ini_getGroupNameSuffix(const zu_wchar* name);

/** The number after the highest suffix of the groups that begin with prefix: with PIPE.1, PIPE.7 and PIPE.x it is "8".
 *  @return a static text of at most 7 units; "0" when there is no such group. */
ZU_API zu_wchar* zu_Ini_getNextIncrSuffix(const zu_wchar* file, const zu_wchar* prefix);

/** Makes the cache drop all that it holds. */
ZU_API void zu_Ini_resetCache(void);

/** Tells the host's file service that the file changed, and makes the cache read it again. */
ZU_API void zu_Ini_reload(const zu_wchar* file);

/** Makes the cache show what it holds. */
ZU_API void zu_Ini_viewCache(void);

/* The file itself -------------------------------------------------------------------------------------------------- */

/** Reads the lines of a group, without leading white space and without empty lines; lines are cut at 1024 units.
 *  @param keepComments  0: lines that begin with ";" are left out.
 *  @return a new list, empty for a group without lines, released with zu_StrList_destroy; null when the file cannot be
 *  read or has no such group. */
ZU_API StrList* zu_Ini_getGroupLines(const zu_wchar* file, const zu_wchar* group, int32_t keepComments);

/** Reads the lines of a group as character fields; lines without a key or without a value are left out.
 *  @return a new list, empty for a group without such lines, released with zu_FldList_destroy; null as for
 *          zu_Ini_getGroupLines. */
ZU_API FldList* zu_Ini_getGroupItems(const zu_wchar* file, const zu_wchar* group);

/** Replaces the lines of a group, its comments included, by the fields of a list (at most 1024 units each) and an empty
 *  line.
 *
 *  The group is appended when the file lacks it; a file that cannot be read becomes one that holds the group alone. All
 *  other lines stay as they are, to the byte. The new file is written as "zu_tmp.ini" beside the old one and then takes
 *  its place in one step.
 *  @return 1; 0 on any failure, and the old file is then as it was. Current of the list: none. */
ZU_API int32_t zu_Ini_setGroupItems(const zu_wchar* file, const zu_wchar* group, FldList* list);

/** Reads lines from a stream until the header of a group.
 *  @return 1, with the stream just behind that line; 0 at the end of the file. */
ZU_API int32_t zu_Ini_findGroup(FILE* stream, const zu_wchar* group);

/** Takes the group name out of a header line.
 *  @param line  loses its leading white space.
 *  @param name  must have room for the line; emptied when it is no header. May be null.
 *  @return 1 for a header, else 0. */
ZU_API int32_t zu_Ini_getGroupName(zu_wchar* line, zu_wchar* name);

/** Takes a member line apart. A line without "=" is a key with an empty value; null gives two empty texts.
 *  @param key, value  must have room for the line; either may be null. */
ZU_API void zu_Ini_parse(const zu_wchar* line, zu_wchar* key, zu_wchar* value);

/** Writes "Error reading Ini File" with the three names to standard output.
 *  @return the number of units printed. */
ZU_API int32_t zu_Ini_displayError(const zu_wchar* file, const zu_wchar* group, const zu_wchar* key);

ZU_EXTERN_C_END

#endif
