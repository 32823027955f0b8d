/** @file zu_Str.h
 *  @ingroup strings
 *  Operations on wide strings: editing in place, comparing and searching, words and tokens, keywords, line wrapping.
 *
 *      zu_wchar name[64] = ZU_W("  Elbow 90 ");
 *      zu_Str_delBlks(name);
 *      if (zu_Str_cmpi(name, ZU_W("ELBOW 90")) == 0)
 *          zu_Str_lj(name, 32);
 *
 *  Editing works in the caller's buffer, which must have room for the result and its terminator. Results in a static
 *  buffer are valid until the next call of the same operation; longer results are cut to the buffer. A null string
 *  gives what the operation says, or is ignored.
 *
 *  A space is the character 0x20 and nothing else; a blank is any white space (tabs, line ends, the spaces of Unicode).
 *  Case is that of the ASCII letters, whatever the locale.
 *
 *  @par Example
 *  @include str.c
 */
#ifndef ZU_STR_H
#define ZU_STR_H

#include "zu_Api.h"
#include "zu_StrList.h"

ZU_EXTERN_C_BEGIN

/* Blanks, justification */

/** Removes leading blanks in place. Null is ignored. */
ZU_API void zu_Str_rlb(zu_wchar* string);

/** Removes trailing blanks in place. Null is ignored. */
ZU_API void zu_Str_rtb(zu_wchar* string);

/** Removes leading and trailing blanks in place. Null is ignored. */
ZU_API void zu_Str_delBlks(zu_wchar* string);

/** Appends spaces until the string has width units; a longer string stays. Null is ignored. */
ZU_API void zu_Str_pad(zu_wchar* string, uint32_t width);

/** Makes the string exactly width units long: spaces are appended, or the end is cut.
 *  @param width  below 0 counts as 0.
 *  @return string. */
ZU_API zu_wchar* zu_Str_lj(zu_wchar* string, int32_t width);

/** Makes the string exactly width units long: spaces are put in front, or the end is cut.
 *  @param width  below 0 counts as 0.
 *  @return string. */
ZU_API zu_wchar* zu_Str_rj(zu_wchar* string, int32_t width);

/** Makes the string exactly width units long: spaces are put on both sides, the odd one behind, or the end is cut.
 *  @param width  below 0 counts as 0.
 *  @return string. */
ZU_API zu_wchar* zu_Str_cj(zu_wchar* string, int32_t width);

/* Copying */

/** Copies part of a string.
 *  @param destination  receives the part and a terminator; may be the source.
 *  @param source       null counts as empty.
 *  @param start        1-based; below 1 counts as 1. Past the end the part is empty.
 *  @param count        units at most; below 0 counts as 0. */
ZU_API void zu_Str_substr(zu_wchar* destination, const zu_wchar* source, int32_t start, int32_t count);

/** Copies a string and writes a second terminator behind the first: destination needs room for the length + 2 units.
 *  @return destination; null when either is null, and a null source leaves the destination empty. */
ZU_API zu_wchar* zu_Str_cpy(zu_wchar* destination, const zu_wchar* source);

/** Appends a string, with the second terminator of zu_Str_cpy.
 *  @return destination; null when either is null, which changes nothing. */
ZU_API zu_wchar* zu_Str_cat(zu_wchar* destination, const zu_wchar* source);

/** Copies at most count units and terminates: destination needs room for count + 1 units.
 *  @param source  need not be terminated when it has count units; null gives an empty destination.
 *  @param count   below 0 copies nothing.
 *  @return 1 when exactly count units were copied, else 0; 0 for null. */
ZU_API int32_t zu_Str_ncpy(zu_wchar* destination, const zu_wchar* source, int32_t count);

/** @return a copy, released with zu_Free; null for null and without memory. */
ZU_API zu_wchar* zu_Str_dup(const zu_wchar* string);
/** The same operation as zu_Str_dup. */
ZU_API zu_wchar* zu_Str_dupW(const zu_wchar* string);

/** Copies with the ASCII letters in lower case.
 *  @param destination  may be the source.
 *  @param source       null gives an empty destination.
 *  @return destination. */
ZU_API zu_wchar* zu_Str_toLower(zu_wchar* destination, const zu_wchar* source);

/** Copies with the ASCII letters in upper case; arguments as for zu_Str_toLower. */
ZU_API void zu_Str_toUpper(zu_wchar* destination, const zu_wchar* source);

/* Removing and replacing */

/** Removes every occurrence of a unit in place. @return string. */
ZU_API zu_wchar* zu_Str_stripChar(zu_wchar* string, zu_wchar character);

/** Removes every space in place. @return string. */
ZU_API zu_wchar* zu_Str_strip(zu_wchar* string);

/** Removes the units of a set in place.
 *  @param set          null changes nothing.
 *  @param leadingOnly  not 0 removes only those before the first unit that is not in the set.
 *  @return string. */
ZU_API zu_wchar* zu_Str_stripChars(zu_wchar* string, const zu_wchar* set, int32_t leadingOnly);

/** Replaces every occurrence of a text, from the left and not overlapping.
 *  @param string       null counts as empty.
 *  @param find         empty or null copies the string.
 *  @param replacement  null counts as empty.
 *  @return a static buffer of 511 units. */
ZU_API zu_wchar* zu_Str_replaceChar(const zu_wchar* string, const zu_wchar* find, const zu_wchar* replacement);

/** The text between the first occurrence of a keyword and the second, which is looked for behind the first. Case
 *  counts.
 *  @return a static buffer of 256 units; null when either is null, the keyword is empty, or occurs fewer than twice. */
ZU_API zu_wchar* zu_Str_locateKeyword(const zu_wchar* text, const zu_wchar* keyword);

/** Replaces the first occurrence of delimiter + name + delimiter by a value, in place.
 *
 *      zu_wchar text[81] = ZU_W("size %DN%");
 *      zu_Str_replaceKeyword(text, ZU_W("DN"), ZU_W("%"), ZU_W("150"), 80);     // "size 150"
 *
 *  @param maximum  units that the result is cut to, also when nothing was replaced; text needs room for maximum + 1.
 *  @return text; null when an argument is null and without memory, which change nothing. */
ZU_API zu_wchar* zu_Str_replaceKeyword(zu_wchar* text, const zu_wchar* name, const zu_wchar* delimiter,
                                       const zu_wchar* value, int32_t maximum);

/** As zu_Str_replaceKeyword, into a string of its own and without a limit.
 *  @return a new string, released with zu_Free; null when an argument is null and without memory. */
ZU_API zu_wchar* zu_Str_replaceKeywordDynamic(const zu_wchar* text, const zu_wchar* name, const zu_wchar* delimiter,
                                              const zu_wchar* value);

/* Comparing and searching */

/** Compares ignoring case, by the upper-cased units.
 *  @return -1, 0 or 1. Null equals the empty string, and sorts after every other one: that is meant. */
ZU_API int32_t zu_Str_cmpi(const zu_wchar* a, const zu_wchar* b);

/** Compares at most count units of each as zu_Str_cmpi does. @return -1, 0 or 1. */
ZU_API int32_t zu_Str_ncmpi(const zu_wchar* a, const zu_wchar* b, uint32_t count);

/** @return the 0-based position of the first occurrence of part, ignoring case when ignoreCase is not 0; -1 when there
 *          is none and for null. An empty part is found at 0. */
ZU_API int32_t zu_Str_index(const zu_wchar* string, const zu_wchar* part, int32_t ignoreCase);

/** Compares a whole string with a pattern: "*" stands for any text, "?" for any unit.
 *
 *  There is no going back: "*" always ends at the first occurrence of the unit that follows it, which is taken
 *  literally, so "*a" does not match "aba". "?" matches past the end too: "ab??" matches "ab".
 *  @return 1 when the string matches, else 0; 0 for null. */
ZU_API int32_t zu_Str_matchWildcard(const zu_wchar* string, const zu_wchar* pattern);

/** As zu_Str_matchWildcard, ignoring case. */
ZU_API int32_t zu_Str_matchWildcardi(const zu_wchar* string, const zu_wchar* pattern);

/** @return 1 for "1", "TRUE", "YES" and "ON" in any case, else 0. */
ZU_API int32_t zu_Str_isAffirmative(const zu_wchar* string);

/** @return 1 for "0", "FALSE", "NO" and "OFF" in any case, else 0. */
ZU_API int32_t zu_Str_isNegative(const zu_wchar* string);

/** Compares versions component by component, as numbers: "1.10" is greater than "1.9", "08.1" equals "8.1".
 *  @return -1, 0 or 1. The components of a decide: those that b has beyond them are not looked at, those that b lacks
 *          count as 0. Null comes before everything, even the empty text. */
ZU_API int32_t zu_Str_compareVersion(const zu_wchar* a, const zu_wchar* b);

/* Words and tokens */

/** Reads the next word of a list whose words are separated by spaces.
 *
 *  Every call looks at the list from its beginning, so walking one of n units takes time in n squared. For long lists
 *  there is zu_StrList_fromDelimitedString.
 *
 *      int32_t position = 0;
 *      while (zu_Str_nextSDLWord(word, list, &position), word[0] != 0)
 *          use(word);
 *
 *  @param word      receives the word; empty at the end of the list.
 *  @param position  in: where to go on; out: the position behind the word. A position outside the list gives an empty
 *                   word and stays. Null gives an empty word. */
ZU_API void zu_Str_nextSDLWord(zu_wchar* word, const zu_wchar* list, int32_t* position);

/** Reads the next item of a list whose items are separated by ";". Spaces belong to the items.
 *
 *  At the delimiter on which the call before stopped, one delimiter is stepped over: ";;" holds an empty item. An empty
 *  item at the very front is therefore lost. At the end every call gives an empty item, so the end of the list shows in
 *  the position only: it has reached the list's length.
 *
 *  Every call looks at the list from its beginning, so walking one of n units takes time in n squared. For long lists
 *  there is zu_StrList_fromDelimitedString, which drops empty items and the white space around the others.
 *  @param word      receives the item.
 *  @param position  as for zu_Str_nextSDLWord; out: the position of the delimiter or of the end.
 *  @return word. */
ZU_API zu_wchar* zu_Str_nextCDLWord(zu_wchar* word, const zu_wchar* list, int32_t* position);

/** A token of a string that any of the delimiters separate; runs of delimiters count as one.
 *  @param index     0-based.
 *  @param position  may be null; receives the token's position in the string, -1 when there is no such token.
 *  @return a static buffer; null when there is no such token, the string or the delimiters are null, or the string is
 *          longer than 512 units. */
ZU_API zu_wchar* zu_Str_getNthToken(const zu_wchar* string, const zu_wchar* delimiters, int32_t index,
                                    int32_t* position);

/** As zu_Str_getNthToken with the tokens counted from the right, 0 for the last. Null delimiters separate nothing. */
ZU_API zu_wchar* zu_Str_getRightNthToken(const zu_wchar* string, const zu_wchar* delimiters, int32_t index,
                                         int32_t* position);

/* Line wrapping */

/** Breaks a text into lines of at most width units, at spaces where there are any.
 *
 *  The spaces at a break are dropped as long as what follows is longer than a line: the last line may begin with some.
 *  @param width  0 breaks nothing.
 *  @return a new list, released with zu_StrList_destroy, without a current element; null for null and without memory.
 *          The empty text gives one empty line. */
ZU_API StrList* zu_Str_wrapText(const zu_wchar* text, uint32_t width);

/** How far before width the last space lies: the units behind the last space among the first width units, plus 1.
 *  @return 0 when there is no space among them, and for null. */
ZU_API int32_t zu_Str_findClosestWordBoundary(const zu_wchar* string, uint32_t width);

ZU_EXTERN_C_END

#endif
