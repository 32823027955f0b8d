/** @file zu_DbFldList.h
 *  @ingroup tables
 *  The record of the table interface: a list of fields, each a name with a one-letter type, a width, a number of
 *  decimals and a text value. It describes the structure of a table and carries its rows both ways (zu_Db.h).
 *
 *      DbFldList* pipe = zu_DbFldList_create(ZU_W("tag"), ZU_W("P-101"), ZU_W("dn"), ZU_W("100"),
 *                                            (zu_wchar*)NULL);
 *      zu_DbFldList_modFldVal(pipe, ZU_W("DN"), ZU_W("150"));
 *      zu_DbFldList_destroy(pipe);
 *
 *  Setting a value stores a copy without its trailing white space, for the types N and F without the leading one
 *  either; a null value leaves the field without one. Widths are kept apart from the values: the readers whose names
 *  end in "Padded" put the blanks back.
 *
 *  A field list is a generic list (zu_LnkList.h) of DbFldNode: its cursor is the one there, and every operation of that
 *  header may be used on it. Finding a field by name leaves the cursor on it, or at the end of the list when there is
 *  none; that goes for every operation that takes a name. Texts are returned in static buffers of 512 units, one for
 *  each operation, valid until its next call.
 *
 *  @par Example
 *  @include dbfldlist.c
 */
#ifndef ZU_DBFLDLIST_H
#define ZU_DBFLDLIST_H

#include "zu_LnkList.h"

ZU_EXTERN_C_BEGIN

/** Units of a field name before its terminator; longer names are cut. */
#define ZU_DBFLD_NAME_SIZE 63

/* Field types. */
#define ZU_DBFLD_TEXT 'C'     /**< text; the only type whose values are quoted in statements */
#define ZU_DBFLD_NUMBER 'N'   /**< number with decimals */
#define ZU_DBFLD_FLOAT 'F'    /**< number with decimals */
#define ZU_DBFLD_LONG 'L'     /**< whole number */
#define ZU_DBFLD_INT 'I'      /**< small whole number */
#define ZU_DBFLD_MEMO 'M'     /**< long text */
#define ZU_DBFLD_DATETIME 'T' /**< date, or date and time */

/** A field. */
typedef struct DbFldNode
{
    zu_wchar name[ZU_DBFLD_NAME_SIZE + 1]; /**< terminated */
    zu_wchar* value;                       /**< owned; null without a value */
    uint32_t width;                        /**< in characters */
    uint32_t precision;                    /**< number of decimals */
    zu_wchar type;                         /**< a field type, in upper case */
} DbFldNode;

/** A generic list whose data are fields. */
typedef LnkList DbFldList;

/** A field of the data-file layer (zu_Cb.h). */
struct CbField;

/* Making and destroying -------------------------------------------------------------------------------------------- */

/** Makes a list of text fields: a name, its value, the next name, and so on up to a null name.
 *
 *  Names are made upper-case, widths and decimals are 0, a null value gives an empty one.
 *  @return a new list without a current field, released with zu_DbFldList_destroy; null without memory. */
ZU_API DbFldList* zu_DbFldList_create(const zu_wchar* name, ...);

/** Copies a list with all its fields, values exactly as they are.
 *  @return a new list without a current field, released with zu_DbFldList_destroy; null for null and without memory.
 *  Current of the source: unchanged. */
ZU_API DbFldList* zu_DbFldList_copy(DbFldList* list);

/** Destroys the list with its fields and their values; null does nothing. */
ZU_API void zu_DbFldList_destroy(DbFldList* list);

/** Frees the values and leaves the fields without one. Current: unchanged. */
ZU_API void zu_DbFldList_freeValues(DbFldList* list);

/** Makes a field with zu_DbFldNode_new and inserts it as the first one.
 *  @return 1, or 0 for a null list and without memory. Current: as zu_LnkList_insStart. */
ZU_API int32_t zu_DbFldList_insStart(DbFldList* list, const zu_wchar* name, const zu_wchar* value, uint32_t width,
                                     uint32_t precision, zu_wchar type);

/** Makes a field with zu_DbFldNode_new and inserts it as the last one; result as for zu_DbFldList_insStart. */
ZU_API int32_t zu_DbFldList_insEnd(DbFldList* list, const zu_wchar* name, const zu_wchar* value, uint32_t width,
                                   uint32_t precision, zu_wchar type);

/** Deletes the current field. @return and current as for zu_LnkList_delCurr. */
ZU_API int32_t zu_DbFldList_delCurr(DbFldList* list);

/** Finds a field with zu_DbFldList_find and deletes it.
 *  @return 1, or 0 for a null list, a null name and when there is none. Current when 1: as zu_LnkList_delCurr. */
ZU_API int32_t zu_DbFldList_delFld(DbFldList* list, const zu_wchar* name);

/* Finding ---------------------------------------------------------------------------------------------------------- */

/** Finds the field whose name equals the name made upper-case, so that only names stored in upper case are found.
 *  @return 1, or 0 when there is none and for null. */
ZU_API int32_t zu_DbFldList_find(DbFldList* list, const zu_wchar* name);

/** Finds the first field whose name equals name, ignoring the case of the ASCII letters.
 *  @return the field, owned by the list; null when there is none and for a null list. A null name counts as empty. */
ZU_API DbFldNode* zu_DbFldList_findFld(DbFldList* list, const zu_wchar* name);

/* The current field ------------------------------------------------------------------------------------------------ */

/** @return the value, cut at 512 units; the empty text without a current field or value. Static. */
ZU_API zu_wchar* zu_DbFldList_getCurrStr(DbFldList* list);

/** @return the value, cut at 512 units, then filled with blanks to the field's width (at most 512). Static. */
ZU_API zu_wchar* zu_DbFldList_getCurrStrPadded(DbFldList* list);

/** @return the number at the front of the value; 0 when there is none. */
ZU_API double zu_DbFldList_getCurrDouble(DbFldList* list);

/** @return the whole number at the front of the value, the nearest 32-bit one when it is too large; 0 when there is
 *          none. */
ZU_API int32_t zu_DbFldList_getCurrInt(DbFldList* list);

/** @return the name; the empty text without a current field. Static. */
ZU_API zu_wchar* zu_DbFldList_getCurrName(DbFldList* list);

/** @return the type; ZU_DBFLD_TEXT without a current field. */
ZU_API zu_wchar zu_DbFldList_getCurrType(DbFldList* list);

/** @return the width in characters; 0 without a current field. */
ZU_API int32_t zu_DbFldList_getCurrWidth(DbFldList* list);

/** @return the number of decimals; 0 without a current field. */
ZU_API int32_t zu_DbFldList_getCurrPrec(DbFldList* list);

/** Sets the value.
 *  @return 1; 0 without a current field, for a null value (the field is then without one) and without memory (the field
 *          then keeps the old one). */
ZU_API int32_t zu_DbFldList_modCurrVal(DbFldList* list, const zu_wchar* value);

/** Sets the width; the value stays. @return the old width, 0 without a current field. */
ZU_API int32_t zu_DbFldList_modCurrWidth(DbFldList* list, int32_t width);

/** Sets the number of decimals; the value stays. @return the old number, 0 without a current field. */
ZU_API int32_t zu_DbFldList_modCurrPrec(DbFldList* list, int32_t precision);

/* Fields by position and by name ----------------------------------------------------------------------------------- */

/** Moves to field index. @return the value as zu_DbFldList_getCurrStr, in a static buffer of its own. */
ZU_API zu_wchar* zu_DbFldList_getNthStr(DbFldList* list, int32_t index);

/** Moves to field index. @return the value as zu_DbFldList_getCurrStrPadded, in a static buffer of its own; the empty
 *          text when there is no such field. */
ZU_API zu_wchar* zu_DbFldList_getNthStrPadded(DbFldList* list, int32_t index);

/** Moves to field index and sets its value. @return as zu_DbFldList_modCurrVal; 0 when there is no such field. */
ZU_API int32_t zu_DbFldList_modNthVal(DbFldList* list, int32_t index, const zu_wchar* value);

/** Finds a field with zu_DbFldList_findFld. @return its value, cut at 512 units; the empty text without one. Static. */
ZU_API zu_wchar* zu_DbFldList_getFldVal(DbFldList* list, const zu_wchar* name);

/** Finds a field with zu_DbFldList_findFld and sets its value. @return as zu_DbFldList_modCurrVal; 0 when there is
 *          none. */
ZU_API int32_t zu_DbFldList_modFldVal(DbFldList* list, const zu_wchar* name, const zu_wchar* value);

/* Operations of the generic list ----------------------------------------------------------------------------------- */

/** See zu_LnkList_start. */
ZU_API int32_t zu_DbFldList_start(DbFldList* list);
/** See zu_LnkList_next. */
ZU_API int32_t zu_DbFldList_next(DbFldList* list);
/** See zu_LnkList_eol. */
ZU_API int32_t zu_DbFldList_eol(DbFldList* list);
/** See zu_LnkList_length. */
ZU_API uint32_t zu_DbFldList_length(DbFldList* list);
/** See zu_LnkList_getNth. */
ZU_API DbFldNode* zu_DbFldList_getNth(DbFldList* list, int32_t index);

/* Descriptions ----------------------------------------------------------------------------------------------------- */

/** Reads a field descriptor: a name, blanks, and seven characters TWWWPPP with the type letter, the width and the
 *  number of decimals, three digits each. "DIAMETER N010003" is a number of width 10 with 3 decimals.
 *
 *  Name and type are made upper-case. Characters behind the seventh are ignored, fewer than seven make the line no
 *  descriptor; where digits should stand and do not, the number is 0.
 *  @param name       receives the name in any case; must have room for the line's first word and a terminator.
 *  @param type, width, precision  written only when the result is 1. Each output may be null.
 *  @return 1, or 0 for a line that is no descriptor and for null. */
ZU_API int32_t zu_DbFldList_parseFldDesc(const zu_wchar* line, zu_wchar* name, zu_wchar* type, uint32_t* width,
                                         uint32_t* precision);

/** Reads a template, a text file with one field descriptor a line; lines that are no descriptors, and what a line holds
 *  beyond 256 characters, are passed over.
 *  @return a new list of fields without values and without a current field, released with zu_DbFldList_destroy; null
 *          when the file cannot be read or holds no descriptor, and without memory. */
ZU_API DbFldList* zu_DbFldList_fromTemplate(const zu_wchar* path);

/** Prints each field to standard output: its name in 16 columns and a blank, then its type, a colon, its value and a
 *  line end. A field without a value gets no line end: that is how it is meant. Current: unchanged. */
ZU_API void zu_DbFldList_printList(DbFldList* list);

/* Fields ----------------------------------------------------------------------------------------------------------- */

/** Makes a field that is in no list yet.
 *  @param name   copied, cut at 63 units; null gives an empty name.
 *  @param value  copied by the rule for values; may be null.
 *  @param type   a field type in either case.
 *  @return a new field, released with zu_DbFldNode_destroy; null without memory. */
ZU_API DbFldNode* zu_DbFldNode_new(const zu_wchar* name, const zu_wchar* value, uint32_t width, uint32_t precision,
                                   zu_wchar type);

/** Destroys a field that is in no list, with its value.
 *  Traces under ZU_DIAG_DBFLD; its exit line says "Entering zu_StrListNode_destroy.", as it always has.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_DbFldNode_destroy(void* node);

/** Makes a field from one of a data file, its 8-bit texts widened byte by byte.
 *  @return a new field, released with zu_DbFldNode_destroy; null without memory, and always while the library has no
 *          data-file layer. */
ZU_API DbFldNode* zu_DbFldNode_fromFld(const struct CbField* field);

ZU_EXTERN_C_END

#endif
