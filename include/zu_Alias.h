/** @file zu_Alias.h
 *  @ingroup configuration
 *  Aliases: texts that the process defines at run time and that %NAME% references in INI values are replaced by.
 *
 *      zu_Alias_put(ZU_W("ROOT"), ZU_W("C:\\plant"));
 *      zu_Ini_get(file, group, key);                    // "%ROOT%\specs" in the file gives "C:\plant\specs"
 *
 *  Aliases live as long as the process. They are not session variables (zu_Env.h) and never looked up there.
 *
 *  @par Example
 *  @include alias.c
 */
#ifndef ZU_ALIAS_H
#define ZU_ALIAS_H

#include "zu_FldList.h"

ZU_EXTERN_C_BEGIN

/** Sets an alias, or deletes it when value is null. Names ignore case.
 *  @return the result of zu_FldList_modChar or zu_FldList_delFld: 1, or 0 when there was nothing to delete; 0 for a
 *  null name and without memory for the store. */
ZU_API int32_t zu_Alias_put(const zu_wchar* name, const zu_wchar* value);

/** Deletes an alias. @return 1, or 0 when there is none. */
ZU_API int32_t zu_Alias_del(const zu_wchar* name);

/** Reads an alias.
 *  @param buffer    emptied first; holds capacity units and a terminator.
 *  @param capacity  longer values are cut.
 *  @return 1; 0 for null arguments and before the first zu_Alias_put; otherwise a field-list status
 *  (zu_FldList_getChar). */
ZU_API int32_t zu_Alias_get(zu_wchar* buffer, const zu_wchar* name, int32_t capacity);

/** Puts every field of a list as an alias, its value read as text of at most 512 units.
 *  @return 1, or 0 for null. Current of the list: none. */
ZU_API int32_t zu_Alias_putFromFldList(FldList* list);

/** Replaces the references of a text. Values are not expanded again and are cut at 256 units; an unknown name stays
 *  with its percent signs; "%%" disappears; a reference without its closing sign is dropped.
 *  @param out   must hold the result, whatever its length.
 *  @param size  ignored.
 *  @return 0 always. Null arguments do nothing. */
ZU_API int32_t zu_Alias_expandStr(zu_wchar* out, const zu_wchar* text, int32_t size);

ZU_EXTERN_C_END

#endif
