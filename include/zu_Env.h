/** @file zu_Env.h
 *  @ingroup configuration
 *  Named settings: session variables, which live as long as the process, the group "GENERAL" of the library's
 *  configuration file "zu.ini", and the process environment, in that order of precedence.
 *
 *      zu_Env_setSes(ZU_W("KVWS"), ZU_W("D:\\work"));
 *      open(zu_Env_expandStr(ZU_W("%KVWS%\\specs\\pipe.ini")));
 *
 *  Static results are valid until the next call of the same operation. Names ignore case.
 *
 *  @par Example
 *  @include env.c
 */
#ifndef ZU_ENV_H
#define ZU_ENV_H

#include "zu_FldList.h"
#include "zu_StrList.h"

ZU_EXTERN_C_BEGIN

/* Session variables ------------------------------------------------------------------------------------------------ */

/** @return the value of a session variable, a static text of at most 512 units; null when it is not set. */
ZU_API zu_wchar* zu_Env_getSesLocal(const zu_wchar* name);
/** The same operation as zu_Env_getSesLocal, with a buffer of its own no more than that one's. */
ZU_API zu_wchar* zu_Env_getSes(const zu_wchar* name);

/** Sets a session variable; null and the empty text remove it. A variable keeps its place in the list when it is set
 *  again.
 *  @return 0 when it existed (and was replaced or removed), 1 when it did not. */
ZU_API int32_t zu_Env_setSesLocal(const zu_wchar* name, const zu_wchar* value);
/** The same operation as zu_Env_setSesLocal. */
ZU_API int32_t zu_Env_setSes(const zu_wchar* name, const zu_wchar* value);

/** Removes all session variables. */
ZU_API void zu_Env_resetSesLocal(void);
/** The same operation as zu_Env_resetSesLocal. */
ZU_API void zu_Env_resetSes(void);

/** Marks the session as one of an application; the library itself makes no use of the mark. */
ZU_API void zu_Env_setSesApp(void);

/** @return a new list of the variables as "name = value", in the order of their first setting; null when none was ever
 *          set. Released with zu_StrList_destroy. */
ZU_API StrList* zu_Env_getSesList(void);

/* The configuration file ------------------------------------------------------------------------------------------- */

/** zu_Ini_get on "zu.ini": a value with its aliases expanded.
 *  @return a static text, shared with zu_Ini_get; null when there is none. */
ZU_API zu_wchar* zu_Env_getIni(const zu_wchar* group, const zu_wchar* key);

/** zu_Ini_set on "zu.ini". @return 0 when it was written, 1 when not. */
ZU_API int32_t zu_Env_setIni(const zu_wchar* group, const zu_wchar* key, const zu_wchar* value);

/** zu_Ini_getGroup on "zu.ini". @return a new list, released with zu_FldList_destroy, or null. */
ZU_API FldList* zu_Env_getIniGroup(const zu_wchar* group);

/** zu_Ini_displayError for "zu.ini". @return the number of units printed. */
ZU_API int32_t zu_Env_displayIniError(const zu_wchar* group, const zu_wchar* key);

/** Reads a value of any profile file with the system's own reader, where it has one, else by the rules of zu_Ini.h.
 *  @return a static text of at most 255 units; null when there is no value or it is empty. */
ZU_API zu_wchar* zu_Env_getWin(const zu_wchar* file, const zu_wchar* section, const zu_wchar* key);

/* Expansion -------------------------------------------------------------------------------------------------------- */

/** Resolves one reference.
 *
 *  @param position  in: the index of the opening percent sign. Out: behind the closing one, or at the end of a text
 *  that lacks it. Where no percent sign stands at the position it does not move.
 *  @return the value, a static text of at most 512 units; empty for "%%", for a name that nothing knows and for null
 *          arguments. */
ZU_API zu_wchar* zu_Env_expandVar(const zu_wchar* text, int32_t* position);

/** Replaces the references of a text. "%%" gives one percent sign; an unknown name disappears; a reference without its
 *  closing sign runs to the end. Values are not expanded again.
 *  @return a static text of at most 512 units; empty for null. */
ZU_API zu_wchar* zu_Env_expandStr(const zu_wchar* text);

/** Splits a text of at most 512 units at its semicolons; items are trimmed of white space, and empty ones left out.
 *  @return a new list, released with zu_StrList_destroy; null when there is no item. */
ZU_API StrList* zu_Env_split(const zu_wchar* text);

ZU_EXTERN_C_END

#endif
