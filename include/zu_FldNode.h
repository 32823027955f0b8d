/** @file zu_FldNode.h
 *  @ingroup fields
 *  A single field as text, and back.
 *
 *  @par Example
 *  @include fldnode.c
 */
#ifndef ZU_FLDNODE_H
#define ZU_FLDNODE_H

#include "zu_FldList.h"

ZU_EXTERN_C_BEGIN

/** The value of a field as text: a text as it is, a number as "%d" or "%f", a point-like value as its type code and
 *  three coordinates, "O:1.000 2.000 3.000".
 *
 *  @return a new text from the runtime's malloc, released with the runtime's free, not with zu_Free; null without
 *  memory. Empty for a null field, a null text, an unknown field and a string list. For a nested list it is the text of
 *  the call before, at most 4096 units of it: this is meant. */
ZU_API zu_wchar* zu_FldNode_getFldValue(const FldNode* node);

/** Sets the value of a field from text, without changing its type. Numbers are read as by the runtime.
 *
 *  A text is copied over the present one in place; one that is longer than that is refused, and the field stays as it
 *  is. Point-like values, nested lists, string lists and unknown fields are left alone, and so is everything for null
 *  arguments. */
ZU_API void zu_FldNode_updateFldValue(FldNode* node, const zu_wchar* text);

ZU_EXTERN_C_END

#endif
