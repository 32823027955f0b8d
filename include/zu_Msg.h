/** @file zu_Msg.h
 *  @ingroup messages
 *  Texts for the user. The English text is its own key; a section groups texts, and a number chooses the line breaks
 *  and blanks around them.
 *
 *      show(zu_Msg("Unable to open the table", "TOOL", 5));     // with a line break behind it
 *
 *  On the first request the library reads LANGUAGE and LANGUAGE_DEBUG of group "GENERAL" in "zu.ini". Where the
 *  language is English (or none is set) and the debug setting is absent or "0", no translator is ever asked, and texts
 *  are laid out as they are. Otherwise the host's translator is asked for each text; its answer is used as it comes,
 *  and an empty one lays out the text given. The decision is made once a process. A failing call of the translator is
 *  raised as a COM error.
 *
 *  For the translator the number is the entry, plus one; for the local layout it is a mode of zu_Msg_format.
 *
 *  Static results have at most ZU_MSG_SIZE units and are valid until the next call of the same operation.
 *
 *  @par Example
 *  @include msg.c
 */
#ifndef ZU_MSG_H
#define ZU_MSG_H

#include "zu_LnkList.h"

ZU_EXTERN_C_BEGIN

/** Units of the longest message. */
#define ZU_MSG_SIZE 255
/** Units of the longest key and section of a message node. */
#define ZU_MSG_KEY_SIZE 16

/** A message of a list. */
typedef struct MsgNode
{
    zu_wchar key[ZU_MSG_KEY_SIZE + 1];     /**< by which it is found */
    zu_wchar* text;                        /**< owned; the message, or its translation */
    zu_wchar section[ZU_MSG_KEY_SIZE + 1]; /**< the group that the text belongs to */
    uint32_t number;                       /**< layout mode, or entry plus one */
    int32_t padWidth;                      /**< 0 or less: no padding */
} MsgNode;

/** A generic list whose data are messages. */
typedef LnkList MsgList;

/** A message of an array; a null or empty key ends the array. */
typedef struct MsgRecord
{
    const zu_wchar* key;     /**< by which it is found */
    const zu_wchar* text;    /**< the message */
    const zu_wchar* section; /**< the group that the text belongs to */
    uint32_t number;         /**< layout mode, or entry plus one */
} MsgRecord;

/** A keyword and its translation. */
typedef struct MsgKeyWordListNode
{
    zu_wchar* source;      /**< owned */
    zu_wchar* translation; /**< owned */
} MsgKeyWordListNode;

/** A generic list whose data are pairs. */
typedef LnkList MsgKeyWordList;

/* Single texts ----------------------------------------------------------------------------------------------------- */

/** The text to show for an English text.
 *
 *  @param text     the English text, which may hold the escapes of zu_Msg_scanEsc; null counts as empty.
 *  @param section  the group that the text belongs to; null counts as empty.
 *  @param n        layout mode, or entry plus one.
 *  @return a static text. */
ZU_API zu_wchar* zu_Msg(const char* text, const char* section, int32_t n);

/** zu_Msg for the caption of a database column: section "DBCols". @return the static text of zu_Msg. */
ZU_API zu_wchar* zu_MsgDBCols(const zu_wchar* text, int32_t n);

/** zu_Msg for wide texts, padded with blanks to a width of 1 or more. @return a static text. */
ZU_API zu_wchar* zu_Msg_pad(const zu_wchar* text, const zu_wchar* section, int32_t n, int32_t width);

/** Expands the escapes of a text and lays it out.
 *
 *  @param mode  2 "text ", 3 break and text, 4 break, text and blank, 5 text and break, 6 text, blank and break, 7 text
 *               between breaks, 8 break, text, blank and break; any other number leaves the text alone.
 *  @return a static text of at most 512 units. */
ZU_API zu_wchar* zu_Msg_format(const zu_wchar* text, int32_t mode);

/** The mode of zu_Msg_format for a layout number.
 *  @return number + 1 for 1 to 7; 1, which leaves texts alone, for any other. */
ZU_API int32_t zu_Msg_setFormat(int32_t number);

/** Expands escapes in place: \" \' \\ \a \f \n \r \t, and a number of up to three digits.
 *
 *  "\b" is dropped, and so is a backslash before any other character, with that character; a backslash at the end is
 *  dropped. The digits of a number are collected three bits each in a register that starts at 0 once a call and is not
 *  cleared between numbers, so the second number of a text carries the bits of the first: this is meant.
 *  @return the text; null for null. Texts are cut at 512 units. */
ZU_API zu_wchar* zu_Msg_scanEsc(zu_wchar* text);

/** Takes the first two words of a text, which blanks and underscores separate; other white space around them
 *  is removed.
 *  @param first, second  must have room for the text; each is written only when there is such a word, the second only
 *                        when the first has something left. May be null.
 *  @return 1 when there are two words and the second has something left, else 0. */
ZU_API int32_t zu_Msg_breakStr(const zu_wchar* text, zu_wchar* first, zu_wchar* second);

/* Many texts ------------------------------------------------------------------------------------------------------- */

/** @return a new node with copies of the texts, key and section cut at 16 units; null without memory. A list releases
 *  it with zu_MsgList_destroy. */
ZU_API MsgNode* zu_MsgNode_create(const zu_wchar* key, const zu_wchar* text, const zu_wchar* section, uint32_t number,
                                  int32_t padWidth);

/** Replaces the text of every node that has a text and a section by its translation, padded to the node's width. An
 *  answer that begins with "^" leaves the node as it is.
 *  @return 1 always. Current: none. */
ZU_API int32_t zu_Msg_multiple(MsgList* list);

/** Makes a list of the messages given and translates it.
 *
 *  The arguments are key, text, section, number; next key; and so on. A null key or text ends them. A null section is
 *  not followed by a number: the one before counts, 0 at first. After a message whose number is 0 no key follows: the
 *  next one has the same.
 *  @return a new list, released with zu_MsgList_destroy; null without memory. Current: none. */
ZU_API MsgList* zu_Msg_mlt(const zu_wchar* key, ...);

/** The same for an array of records.
 *  @return as zu_Msg_mlt; an empty list for null. */
ZU_API MsgList* zu_Msg_mltReadArray(const MsgRecord* records);

/** The text of the first node of a key, which must match exactly and have a text.
 *  @return a static text: the key itself when there is none. Current: the node found, or none. */
ZU_API zu_wchar* zu_Msg_find(MsgList* list, const zu_wchar* key);

/** Destroys a list with its nodes. @return 1, or 0 for null. */
ZU_API int32_t zu_MsgList_destroy(MsgList* list);

/* Keywords --------------------------------------------------------------------------------------------------------- */

/** Translates keywords that commas separate.
 *
 *  The translation is separated by commas too, or, where LANGUAGE is set and the file "SEP_<language>.dbf" exists in
 *  the directory "Language" of the network directory, by the translation of "," in section "SEP". Where LANG_LOCALE is
 *  set the process locale is switched to it, and stays so.
 *  @return a new list of pairs, released with zu_MsgKeyWordList_destroy. An empty one when the translation of several
 *          keywords holds no separator; null when there is no pair otherwise, for null arguments and without memory. */
ZU_API MsgKeyWordList* zu_Msg_getKeyWordList(const zu_wchar* keywords, const zu_wchar* section, int32_t ignored);

/** @return a new empty list; null without memory. */
ZU_API MsgKeyWordList* zu_MsgKeyWordList_create(void);

/** Appends a pair of copies; null arguments do nothing. @return 0 always, done or not. */
ZU_API int32_t zu_MsgKeyWordList_append(MsgKeyWordList* list, const zu_wchar* source, const zu_wchar* translation);

/** The translation of a keyword, which is looked up ignoring case.
 *  @return a static text: the keyword itself when there is none; empty for a null keyword. */
ZU_API zu_wchar* zu_MsgKeyWordList_find(MsgKeyWordList* list, const zu_wchar* keyword);

/** Destroys a list with its pairs. @return 1, or 0 for null. */
ZU_API int32_t zu_MsgKeyWordList_destroy(MsgKeyWordList* list);

/** @return a new pair of copies, released with zu_MsgKeyWordListNode_destroy; null without memory. */
ZU_API MsgKeyWordListNode* zu_MsgKeyWordListNode_create(const zu_wchar* source, const zu_wchar* translation);

/** Destroys a pair. @return 1, or 0 for null. */
ZU_API int32_t zu_MsgKeyWordListNode_destroy(void* node);

/* The message database --------------------------------------------------------------------------------------------- */

/** Not available: the message database is read by the translator alone. Raises a std::runtime_error with the text
 *  "TODO64". */
ZU_API int32_t zu_Msg_openDb(int32_t* handle, const zu_wchar* name);
/** Not available; see zu_Msg_openDb. */
ZU_API int32_t zu_Msg_closeDb(int32_t handle);
/** Not available; see zu_Msg_openDb. */
ZU_API int32_t zu_Msg_getVal(int32_t handle, const zu_wchar* name, zu_wchar* value);

ZU_EXTERN_C_END

#endif
