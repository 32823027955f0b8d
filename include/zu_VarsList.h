/** @file zu_VarsList.h
 *  @ingroup hostservices
 *  Filling and emptying a host's list of variables (zu_HostObjects.h).
 *
 *  @par Example
 *  @include varslist.cpp
 */
#ifndef ZU_VARSLIST_H
#define ZU_VARSLIST_H

#include "zu_HostObjects.h"

ZU_EXTERN_C_BEGIN

/** Appends a text variable under the key that follows from the count: with 4 variables there it is "5".
 *  @return 1; 0 for null arguments and when the count cannot be read. A failing addition is raised as a COM error. */
ZU_API int32_t zu_VarsList_InsertAtEnd(HostVariableList* variables, const zu_wchar* name, const zu_wchar* value);

/** Removes the variables with the keys "1" to their count, which are those that zu_VarsList_InsertAtEnd hands out. A
 *  list with other keys is not emptied.
 *  @return 1 always. A count that cannot be read is raised as a COM error. */
ZU_API int32_t zu_VarsList_Reset(HostVariableList* variables);

ZU_EXTERN_C_END

#endif
