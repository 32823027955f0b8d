/** @file zu_FldList.h
 *  @ingroup fields
 *  The field list: an ordered list of named, typed values, and the library's common record.
 *
 *      FldList* pipe = zu_FldList_create(ZU_W("SIZE"), ZU_FLD_REAL, 114.3, (zu_wchar*)NULL);
 *      double size = 0.0;
 *      if (zu_FldList_getReal(pipe, ZU_W("size"), &size) == ZU_FLD_OK)
 *          use(size);
 *      zu_FldList_destroy(pipe);
 *
 *  Names are kept in upper case and compared ignoring case (of the ASCII letters); where a name occurs twice, lookups
 *  take the first. A field list is a generic list (zu_LnkList.h) of FldNode: its cursor is the one there. Finding a
 *  field by name leaves the cursor on it, or at the end of the list when there is none; that goes for every operation
 *  that takes a name, save the append operations, which never move it.
 *
 *  Lists may be nested. Destroying, copying and printing them go down level by level on the stack of the calling
 *  thread: a thousand levels are safe on every system's stack.
 *
 *  @par Example
 *  @include fldlist.c
 */
#ifndef ZU_FLDLIST_H
#define ZU_FLDLIST_H

#include "zu_LnkList.h"
#include "zu_RotMatrix.h"

ZU_EXTERN_C_BEGIN

/* Type codes. */
#define ZU_FLD_CHAR 'C'    /**< text, owned */
#define ZU_FLD_HANDLE 'H'  /**< handle text, owned */
#define ZU_FLD_INT 'I'     /**< 32-bit integer */
#define ZU_FLD_LONG 'L'    /**< 32-bit integer, a code of its own */
#define ZU_FLD_REAL 'N'    /**< double */
#define ZU_FLD_POINT 'P'   /**< three doubles; the four point-like codes differ in the code alone */
#define ZU_FLD_MPOINT 'M'  /**< three doubles */
#define ZU_FLD_DPOINT 'D'  /**< three doubles */
#define ZU_FLD_VECTOR 'O'  /**< three doubles */
#define ZU_FLD_LIST 'V'    /**< nested field list, owned */
#define ZU_FLD_STRLIST 'S' /**< string list, owned */
#define ZU_FLD_UNKNOWN 'U' /**< no value */

/* Statuses. */
#define ZU_FLD_OK 1            /**< done */
#define ZU_FLD_NOTHING 0       /**< nothing done: null argument, unsupported code */
#define ZU_FLD_NO_CURRENT (-1) /**< the list has no current field */
#define ZU_FLD_NOT_FOUND (-2)  /**< no field of that name */
#define ZU_FLD_WRONG_TYPE (-3) /**< the field does not fit the request; some readers give a value all the same */
#define ZU_FLD_NO_MEMORY (-4)  /**< a field could not be allocated */

/** A generic list whose data are fields. */
typedef LnkList FldList;

/** A value; which member counts is told by the code. */
typedef union FldValue
{
    zu_wchar* text;  /**< C, H; may be null */
    int32_t integer; /**< I, L; zero for U */
    double real;     /**< N */
    double point[3]; /**< P, M, D, O: x, y, z */
    LnkList* list;   /**< V, S; may be null */
} FldValue;

/** A field. */
typedef struct FldNode
{
    zu_wchar* name;     /**< owned, upper case */
    uint16_t type;      /**< type code */
    uint16_t isPresent; /**< 1 from the beginning; not used by the library */
    uint16_t mark;      /**< 0 from the beginning; not used by the library */
    FldValue value;     /**< the value */
} FldNode;

/* Making and destroying -------------------------------------------------------------------------------------------- */

/** Makes a list of the fields given: a name, a type code, the value; the next name; and so on up to a null name.
 *
 *  Values by code: C and H a text; P, M, D, O three doubles; I and L an int, N a double; any other code one pointer,
 *  which is ignored, and gives an unknown field. An int of -9999, and a double within 0.01 of it, mean "no value" and
 *  are stored as 0.
 *  @return a new list without a current field, released with zu_FldList_destroy; null without memory. */
ZU_API FldList* zu_FldList_create(const zu_wchar* name, ...);

/** Copies a list with its nested lists; string-list fields arrive as unknown ones.
 *  @return a new list without a current field, empty for null; null without memory. Current of the source: none. */
ZU_API FldList* zu_FldList_copy(FldList* list);

/** Destroys the list with its fields, nested lists and string lists. @return 1, or 0 for null. */
ZU_API int32_t zu_FldList_destroy(FldList* list);

/** Destroys one field that is in no list, with all that it owns. @return 1, or 0 for null. */
ZU_API int32_t zu_FldList_destroyNode(void* node);

/** Makes a field that is in no list yet. The text is copied; a handle's copy is upper-cased.
 *  @param name  copied in upper case; may be null.
 *  @return a new field, released with zu_FldList_destroyNode or owned by the list it is inserted into; null without
 *          memory. */
ZU_API FldNode* zu_FldList_newChar(const zu_wchar* name, const zu_wchar* text);
/** See zu_FldList_newChar. */
ZU_API FldNode* zu_FldList_newHandle(const zu_wchar* name, const zu_wchar* text);
/** See zu_FldList_newChar. */
ZU_API FldNode* zu_FldList_newInt(const zu_wchar* name, int32_t value);
/** See zu_FldList_newChar. */
ZU_API FldNode* zu_FldList_newLong(const zu_wchar* name, int32_t value);
/** See zu_FldList_newChar. */
ZU_API FldNode* zu_FldList_newReal(const zu_wchar* name, double value);
/** See zu_FldList_newChar; xyz points to three doubles, which are copied, and null counts as the origin. */
ZU_API FldNode* zu_FldList_newPoint(const zu_wchar* name, const double* xyz);
/** See zu_FldList_newPoint. */
ZU_API FldNode* zu_FldList_newMpoint(const zu_wchar* name, const double* xyz);
/** See zu_FldList_newPoint. */
ZU_API FldNode* zu_FldList_newDpoint(const zu_wchar* name, const double* xyz);
/** See zu_FldList_newPoint. */
ZU_API FldNode* zu_FldList_newVector(const zu_wchar* name, const double* xyz);
/** See zu_FldList_newChar; takes over value, which may be null. Without memory value stays the caller's. */
ZU_API FldNode* zu_FldList_newList(const zu_wchar* name, FldList* value);
/** See zu_FldList_newChar. */
ZU_API FldNode* zu_FldList_newUnknown(const zu_wchar* name);

/* Appending -------------------------------------------------------------------------------------------------------- */

/** Appends a field made as by the operation zu_FldList_new… of the same ending, whether or not the name is there
 *  already.
 *  @return 1; -4 without memory. A null list gives 1 as well; the field is then destroyed, with what it took over.
 *  Current: unchanged. */
ZU_API int32_t zu_FldList_appChar(FldList* list, const zu_wchar* name, const zu_wchar* text);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appHandle(FldList* list, const zu_wchar* name, const zu_wchar* text);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appInt(FldList* list, const zu_wchar* name, int32_t value);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appLong(FldList* list, const zu_wchar* name, int32_t value);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appReal(FldList* list, const zu_wchar* name, double value);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appPoint(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appMpoint(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appDpoint(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appVector(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_appChar; takes over value unless the result is -4. */
ZU_API int32_t zu_FldList_appList(FldList* list, const zu_wchar* name, FldList* value);
/** See zu_FldList_appChar; takes over the string list value, which may be null, unless the result is -4. */
ZU_API int32_t zu_FldList_appStrList(FldList* list, const zu_wchar* name, LnkList* value);
/** See zu_FldList_appChar. */
ZU_API int32_t zu_FldList_appUnknown(FldList* list, const zu_wchar* name);

/* Reading by name -------------------------------------------------------------------------------------------------- */

/** Looks for the first field of a name.
 *  @return the field, owned by the list; null when there is none or for a null list. */
ZU_API FldNode* zu_FldList_find(FldList* list, const zu_wchar* name);

/** Reads a field as text.
 *
 *  @param buffer    emptied first; may be null. A text is cut to capacity units; numbers are formatted without a limit
 *                   ("%d", or "%f" for a real).
 *  @param capacity  in units; the buffer holds one more for the terminator.
 *  @return 1 for a text; -2; -3 for every other type: a number's text stands in the buffer all the same, which is
 *  meant. */
ZU_API int32_t zu_FldList_getChar(FldList* list, const zu_wchar* name, zu_wchar* buffer, int32_t capacity);

/** Reads a text or handle; parameters as for zu_FldList_getChar.
 *  @return 1; -2; -3 for other types, with an empty buffer. */
ZU_API int32_t zu_FldList_getHandle(FldList* list, const zu_wchar* name, zu_wchar* buffer, int32_t capacity);

/** Reads an integer; reals lose their fraction.
 *  @param value  untouched unless there is one.
 *  @return 1; -2; -3 for other types: a text's number is stored all the same, which is meant. */
ZU_API int32_t zu_FldList_getInt(FldList* list, const zu_wchar* name, int32_t* value);
/** The same operation as zu_FldList_getInt. */
ZU_API int32_t zu_FldList_getLong(FldList* list, const zu_wchar* name, int32_t* value);

/** Reads a real.
 *  @param value  set to 0.0 first.
 *  @return 1; -2; -3 for other types: a text's number is stored all the same, which is meant. */
ZU_API int32_t zu_FldList_getReal(FldList* list, const zu_wchar* name, double* value);

/** Reads any of the point-like types into three doubles.
 *  @return 1; -2; -3 for other types, with xyz untouched. */
ZU_API int32_t zu_FldList_getPoint(FldList* list, const zu_wchar* name, double* xyz);
/** The same operation as zu_FldList_getPoint. */
ZU_API int32_t zu_FldList_getVector(FldList* list, const zu_wchar* name, double* xyz);

/* Changing by name ------------------------------------------------------------------------------------------------- */

/** Sets a field: one that is there takes the new type and value, else the field is appended.
 *
 *  An old text is freed. An old nested list or string list is not destroyed: who replaces it stays responsible for it.
 *  Texts are never upper-cased here; the text given may be the field's own.
 *  @return 1, or the result of the append operation. */
ZU_API int32_t zu_FldList_modChar(FldList* list, const zu_wchar* name, const zu_wchar* text);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modHandle(FldList* list, const zu_wchar* name, const zu_wchar* text);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modInt(FldList* list, const zu_wchar* name, int32_t value);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modLong(FldList* list, const zu_wchar* name, int32_t value);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modReal(FldList* list, const zu_wchar* name, double value);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modPoint(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modMpoint(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modDpoint(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modVector(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_modChar; takes over value. */
ZU_API int32_t zu_FldList_modList(FldList* list, const zu_wchar* name, FldList* value);
/** See zu_FldList_modChar. */
ZU_API int32_t zu_FldList_modUnknown(FldList* list, const zu_wchar* name);

/* Fields of several values ----------------------------------------------------------------------------------------- */

/** Makes a field of one value one of several: puts the field itself into a new nested list, and a nested-list field of
 *  the same name in its place. A missing field is appended with a null nested list.
 *  @return the new field; null when there was nothing to convert, and without memory. Current: on the field. */
ZU_API FldNode* zu_FldList_convertNodeToList(FldList* list, const zu_wchar* name);

/** Adds one more value under a name. The first stays a plain field; from the second on they stand in a nested list, as
 *  fields of the same name in the order added.
 *  @return 1, or the result of the append operation for the first value. A value for a nested-list field without a list
 *  is lost, and the result is 1. */
ZU_API int32_t zu_FldList_addCharVal(FldList* list, const zu_wchar* name, const zu_wchar* text);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addHandleVal(FldList* list, const zu_wchar* name, const zu_wchar* text);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addIntVal(FldList* list, const zu_wchar* name, int32_t value);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addLongVal(FldList* list, const zu_wchar* name, int32_t value);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addRealVal(FldList* list, const zu_wchar* name, double value);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addPointVal(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addMpointVal(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addDpointVal(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addVectorVal(FldList* list, const zu_wchar* name, const double* xyz);
/** See zu_FldList_addCharVal. */
ZU_API int32_t zu_FldList_addUnknownVal(FldList* list, const zu_wchar* name);

/** Adds a value by code: value is the text for C and H, and points to three doubles, an int32_t or a double for the
 *  other codes; it is ignored for U.
 *  @return 1 for these codes whatever became of the value; 0 for any other code, and for the null value of a
 *          number. */
ZU_API int32_t zu_FldList_addVal(FldList* list, const zu_wchar* name, uint16_t type, const void* value);

/* The current field ------------------------------------------------------------------------------------------------ */

/** @return the current field itself, owned by the list; null without one. */
ZU_API FldNode* zu_FldList_curr(FldList* list);

/** Copies the current field's name without a limit. @return 1; -1 without a current field, a name or a buffer. */
ZU_API int32_t zu_FldList_currFldname(FldList* list, zu_wchar* buffer);

/** Tells the current field's type code. @return 1 or -1. */
ZU_API int32_t zu_FldList_currFldtype(FldList* list, uint16_t* type);

/** Reads the current field as text. A text is cut to capacity units (the buffer holds one more), a null text leaves the
 *  buffer alone; numbers are formatted without a limit.
 *  @return 1 for a text; -1; -3 for other types, with a number's text, or the empty text, in the buffer. */
ZU_API int32_t zu_FldList_currChar(FldList* list, zu_wchar* buffer, int32_t capacity);

/** Reads a text or handle. @return 1; -1; -3 for other types, with an empty buffer. */
ZU_API int32_t zu_FldList_currHandle(FldList* list, zu_wchar* buffer, int32_t capacity);

/** Reads an integer, or a real without its fraction; unlike zu_FldList_getInt not the number in a text.
 *  @return 1; -1; -3 for other types, with value untouched. */
ZU_API int32_t zu_FldList_currInt(FldList* list, int32_t* value);
/** The same operation as zu_FldList_currInt. */
ZU_API int32_t zu_FldList_currLong(FldList* list, int32_t* value);

/** Reads a real, an integer, or the number in a text (for which, unlike zu_FldList_getReal, the result is 1).
 *  @return 1; -1; -3 for other types, with value untouched. */
ZU_API int32_t zu_FldList_currReal(FldList* list, double* value);

/** Reads any of the point-like types into three doubles. @return 1; -1; -3 for other types, with xyz untouched. */
ZU_API int32_t zu_FldList_currPoint(FldList* list, double* xyz);
/** The same operation as zu_FldList_currPoint. */
ZU_API int32_t zu_FldList_currVector(FldList* list, double* xyz);

/** Hands out the nested list or string list itself, which stays the field's.
 *  @return 1; -3 for other types and without a current field. */
ZU_API int32_t zu_FldList_currList(FldList* list, LnkList** value);

/* Deleting, positioning, copying ----------------------------------------------------------------------------------- */

/** Deletes the current field; result and current as for zu_LnkList_delCurr. */
ZU_API int32_t zu_FldList_delCurr(FldList* list);

/** Deletes the first field of a name. @return 1; 0 when there is none and for null arguments. */
ZU_API int32_t zu_FldList_delFld(FldList* list, const zu_wchar* name);

/** The cursor operations of the generic list. */
ZU_API int32_t zu_FldList_start(FldList* list);
/** See zu_LnkList_next. */
ZU_API int32_t zu_FldList_next(FldList* list);
/** See zu_LnkList_prev. */
ZU_API int32_t zu_FldList_prev(FldList* list);
/** See zu_LnkList_eol. */
ZU_API int32_t zu_FldList_eol(FldList* list);
/** See zu_LnkList_length. */
ZU_API uint32_t zu_FldList_count(FldList* list);

/** Sets a field of target from a field of source. Texts are cut at 512 units, and a handle becomes a text.
 *  @return 1; 0 for null arguments and when source has no such field. Nested lists, string lists and unknown fields are
 *  not copied, and the result is 1. */
ZU_API int32_t zu_FldList_copyFld(FldList* source, const zu_wchar* sourceName, FldList* target,
                                  const zu_wchar* targetName);

/** Appends copies of all fields of source to target; nested lists are copied whole, string-list fields arrive as
 *  unknown ones.
 *  @return 1; 0 for null arguments, and without memory (target may then have received some of them).
 *  Current of source: none. */
ZU_API int32_t zu_FldList_concatenate(FldList* target, FldList* source);

/** Sets every field of source in target by name, as the operations zu_FldList_mod… do; nested lists are copied whole,
 *  and string-list fields arrive as unknown ones. A list combined with itself gives the first field of a name the value
 *  of the last; everything else stays.
 *  @return 1; 0 for null arguments, and without memory (target may then have received some of them).
 *  Current of source: none. */
ZU_API int32_t zu_FldList_combine(FldList* target, FldList* source);

/* Comparing -------------------------------------------------------------------------------------------------------- */

/** Compares two fields.
 *
 *  @return -2 when either is null. For different types -1 or 1 as a's code is smaller or larger. For texts the ordinal
 *          comparison: negative, 0 or positive. For numbers -1 when a is smaller by 0.001 or more, else 0: that a
 *  number is larger is never told. For points, lists, string lists and unknown fields always 0. All this is meant. */
ZU_API int32_t zu_FldList_compareNode(const FldNode* a, const FldNode* b);

/** The fields of a that differ (zu_FldList_compareNode) from b's field of the same name.
 *  @param includeMissing  not 0: also those that b does not have.
 *  @return a new list of copies in a's order, released with zu_FldList_destroy; null when there are none, and without
 *  memory. Current of a: none; of b: where the last lookup left it. */
ZU_API FldList* zu_FldList_diff(FldList* a, FldList* b, int32_t includeMissing);

/* Printing and reading --------------------------------------------------------------------------------------------- */

/** Prints a line a field to standard output: the name, the type code and the value. Fields without a name are left out.
 *  Current: none. */
ZU_API void zu_FldList_printList(FldList* list);

/** The same for a list at a nesting level: from level 1 on the lines are indented and have no names. */
ZU_API void zu_FldList_printLevelList(FldList* list, int32_t level);

/** Writes the same lines to the diagnostics channel, as source FLD, when diagLevel is at most the current level and
 *  mask shares a bit with the current condition (zu_Diag.h). Current: none. */
ZU_API void zu_FldList_printListDiag(FldList* list, int32_t diagLevel, uint32_t mask);

/** The same for a list at a nesting level. */
ZU_API void zu_FldList_printLevelListDiag(FldList* list, int32_t level, int32_t diagLevel, uint32_t mask);

/** Makes text fields of lines "name=value"; lines without a name or a value are left out.
 *  @return a new list on its first field, released with zu_FldList_destroy; null when there is none, for null and
 *  without memory. Current of lines: none. */
ZU_API FldList* zu_FldList_fromEnvList(LnkList* lines);

/** Makes a field list of database field descriptors: numbers (type "N") without decimals become integers, those with
 *  decimals reals, where a comma counts as the decimal separator too; all else becomes text. Descriptors without a name
 *  are left out.
 *  @param descriptors  a DbFldList; null gives an empty list.
 *  @return a new list without a current field, released with zu_FldList_destroy; null without memory.
 *  Current of the descriptors: none. */
ZU_API FldList* zu_FldList_fromDbFldList(LnkList* descriptors);

/* Transforming ----------------------------------------------------------------------------------------------------- */

/** Transforms the point-like fields whose code occurs in codes: positions (P, M) are rotated, then translated;
 *  directions (D, O) are rotated only.
 *  @param translation  may be null: positions are not translated.
 *  @param rotation     may be null: nothing is rotated.
 *  @param codes        type codes, as "PM".
 *  @return 1; 0 when list or codes is null, or translation and rotation both are; otherwise the last result of a step
 *  that was not 1: the other fields are transformed all the same. Current: none. */
ZU_API int32_t zu_FldList_applyTransform(FldList* list, const Point* translation, const RotMatrix* rotation,
                                         const zu_wchar* codes);

ZU_EXTERN_C_END

#endif
