/** @file zu_StrList.h
 *  @ingroup containers
 *  A list of owned wide strings. Every insertion copies the caller's string, every deletion frees the copy, and reading
 *  an element gives a copy in a static buffer, valid until the next call of the same operation.
 *
 *      StrList* list = zu_StrList_fromDelimitedString(ZU_W("pipe; elbow; tee"), ZU_W(";"));
 *      for (zu_StrList_start(list); !zu_StrList_eol(list); zu_StrList_next(list))
 *          use(zu_StrList_getCurr(list));
 *      zu_StrList_destroy(list);
 *
 *  A string list is a generic list (zu_LnkList.h): cursor rules and results of the operations of the same name are the
 *  ones there. Reading an element through the static buffers cuts it at 512 units; all other operations, and
 *  StrListNode, see whole strings. Comparison for sorting is the ordinal one of the 16-bit units.
 *
 *  @par Example
 *  @include strlist.c
 */
#ifndef ZU_STRLIST_H
#define ZU_STRLIST_H

#include "zu_LnkList.h"

ZU_EXTERN_C_BEGIN

/** A generic list whose data are strings of its own. */
typedef LnkList StrList;

/** An element. Read it freely, change it only through the operations. */
typedef struct StrListNode
{
    zu_wchar* string; /**< the whole string, owned by the list; never null */
} StrListNode;

/** Makes a list of copies of the strings given, which end with a null pointer.
 *  @return a new list, released with zu_StrList_destroy; null without memory. Current: the first element. */
ZU_API StrList* zu_StrList_create(const zu_wchar* string, ...);

/** Destroys the list and its strings. @return 1, or 0 for null. */
ZU_API int32_t zu_StrList_destroy(StrList* list);

/** Empties the list. @return 1, or 0 for null. */
ZU_API int32_t zu_StrList_delAll(StrList* list);

/** Inserts a copy of string with the list operation of the same name.
 *  @return 1, or 0 for a null list, a null string or without memory; the list is then unchanged. */
ZU_API int32_t zu_StrList_insStart(StrList* list, const zu_wchar* string);
/** See zu_StrList_insStart. */
ZU_API int32_t zu_StrList_insEnd(StrList* list, const zu_wchar* string);
/** See zu_StrList_insStart. */
ZU_API int32_t zu_StrList_insBefore(StrList* list, const zu_wchar* string);
/** See zu_StrList_insStart. */
ZU_API int32_t zu_StrList_insAfter(StrList* list, const zu_wchar* string);
/** See zu_StrList_insStart; positions as for zu_LnkList_insNth. */
ZU_API int32_t zu_StrList_insNth(StrList* list, int32_t index, const zu_wchar* string);

/** Inserts a copy of string before the first element that is greater, so after those equal to it.
 *  @return as zu_StrList_insStart. Current: the element found, or none when the string was appended. */
ZU_API int32_t zu_StrList_insSorted(StrList* list, const zu_wchar* string);

/** Deletes the current element; result and current as for zu_LnkList_delCurr. */
ZU_API int32_t zu_StrList_delCurr(StrList* list);

/** Deletes element index; result and current as for zu_LnkList_delNth. */
ZU_API int32_t zu_StrList_delNth(StrList* list, int32_t index);

/** Replaces the current element by a copy of string.
 *  @return 1; 0 without a current element, for a null string and without memory (the element then stays). */
ZU_API int32_t zu_StrList_modCurr(StrList* list, const zu_wchar* string);

/** Moves to element index and replaces it. @return as zu_StrList_modCurr; 0 and no change when there is none. */
ZU_API int32_t zu_StrList_modNth(StrList* list, int32_t index, const zu_wchar* string);

/** Reads the current element.
 *  @return a copy in the static buffer. Without a current element the result of the call before is given again, null if
 *          there was none: test zu_StrList_eol, not the result. */
ZU_API zu_wchar* zu_StrList_getCurr(StrList* list);

/** Reads the current element whole.
 *  @return a new string, released with zu_Free; null without memory. Without a current element the pointer returned
 *          before is given again (which may have been freed by then), null if there was none. */
ZU_API zu_wchar* zu_StrList_getCurrPtr(StrList* list);

/** Moves to element index and reads it. @return as zu_StrList_getCurr; null when there is no such element. */
ZU_API zu_wchar* zu_StrList_getNth(StrList* list, int32_t index);

/** @return the number of elements, 0 for null. */
ZU_API uint32_t zu_StrList_count(StrList* list);
/** The same operation as zu_StrList_count. */
ZU_API uint32_t zu_StrList_length(StrList* list);

/** The cursor operations of the generic list. */
ZU_API int32_t zu_StrList_start(StrList* list);
/** See zu_LnkList_end. */
ZU_API int32_t zu_StrList_end(StrList* list);
/** See zu_LnkList_next. */
ZU_API int32_t zu_StrList_next(StrList* list);
/** See zu_LnkList_prev. */
ZU_API int32_t zu_StrList_prev(StrList* list);
/** See zu_LnkList_skip. */
ZU_API int32_t zu_StrList_skip(StrList* list, int32_t steps);
/** See zu_LnkList_eol. */
ZU_API int32_t zu_StrList_eol(StrList* list);

/** Sorts with zu_LnkList_qSort; current as there. */
ZU_API void zu_StrList_sort(StrList* list);

/** Looks for the first element equal to string; case is ignored (by zu_Str_cmpi) when ignoreCase is not 0.
 *  @return its index, or -1. Current: the element found, or none. */
ZU_API int32_t zu_StrList_search(StrList* list, const zu_wchar* string, int32_t ignoreCase);

/** Looks for the first element that contains part; case is ignored when ignoreCase is not 0.
 *  @return a copy of the element in a static buffer of its own, or null. Current: the element found, or none. */
ZU_API zu_wchar* zu_StrList_searchForString(StrList* list, const zu_wchar* part, int32_t ignoreCase);

/** Copies the list.
 *  @return a new list without a current element; empty for a null list; null without memory.
 *  Current of the source: none. */
ZU_API StrList* zu_StrList_copy(StrList* list);

/** Appends copies of b's elements to a.
 *  @return 1; 0 when either is null or memory is short (a may then have received some of them).
 *  Current of b: none; of a: unchanged. */
ZU_API int32_t zu_StrList_concatenate(StrList* a, StrList* b);

/** Keeps the first occurrence of each string.
 *  @return the list to use from now on, because the old one is gone: a new one without a current element. Null for
 *  null. A list of one element or none, and any list without memory, is returned as it is. */
ZU_API StrList* zu_StrList_removeDuplicates(StrList* list, uint8_t ignoreCase);

/** Splits a text at any of the delimiter characters. Runs of delimiters count as one; leading and trailing white space
 *  of each item is removed.
 *  @return a new list without a current element; null for a null text, a null set, a text without items, and
 *          without memory. */
ZU_API StrList* zu_StrList_fromDelimitedString(const zu_wchar* string, const zu_wchar* delimiters);

/** Joins the elements with the delimiter between them.
 *  @return a new string, released with zu_Free; null for a null or empty list and without memory. Current: none. */
ZU_API zu_wchar* zu_StrList_toDelimitedString(StrList* list, const zu_wchar* delimiter);

/** Joins the elements in groups.
 *  @param groupSize  elements a group; 0 and below gives one group.
 *  @param quote      when not 0 each element is put between single quotes; quotes inside it are not escaped.
 *  @return a new list of joined strings without a current element; null for a null or empty list and without memory.
 *  Current: none. */
ZU_API StrList* zu_StrList_toDelimitedStringList(StrList* list, const zu_wchar* delimiter, int32_t groupSize,
                                                 int32_t quote);

ZU_EXTERN_C_END

#endif
