/** @file zu_Cb.h
 *  @ingroup tables
 *  Indexes of data files, and the number formats of their fields.
 *
 *  These operations stand on a layer that reads and writes data files itself, which this library does not contain: it
 *  answers "none" to everything. So the operations check and prepare as they always have, and then report failure. A
 *  layer that is put in later makes them work without a change for their callers.
 *
 *  @par Example
 *  @include cb.c
 */
#ifndef ZU_CB_H
#define ZU_CB_H

#include "zu_StrList.h"

ZU_EXTERN_C_BEGIN

/* What the data-file layer hands out. */

typedef struct CbDataFile CbDataFile; /**< an open file */
typedef struct CbField CbField;       /**< a field of it */
typedef struct CbTag CbTag;           /**< a tag of it */
typedef struct CbIndex CbIndex;       /**< an index of it */

/** The settings of the data-file layer; all zero asks for its defaults. */
typedef struct CbSettings
{
    uint64_t words[64]; /**< the layer's own */
} CbSettings;

/** The description of a tag; an entry that is all zero ends an array of them. */
typedef struct CbTagInfo
{
    char* name;         /**< owned */
    char* expression;   /**< owned */
    char* filter;       /**< owned; null for none */
    int32_t unique;     /**< the unique flag */
    int32_t descending; /**< not 0 for the reverse order */
} CbTagInfo;

/** Resets a block of settings to zero; null is ignored. */
ZU_API void zu_Cb_init(CbSettings* settings);

/** Creates an index for a table file.
 *
 *  @param path    of the file; its extension is replaced by "dbf". The index is named like it, without an extension.
 *  @param tags    the expressions of its tags, as for zu_Cb_parseTagInfo.
 *  @param unique  the unique flag of every tag.
 *  @return 1; 0 when the file cannot be opened or the index cannot be made, which is always so while the library has no
 *          data-file layer. */
ZU_API int32_t zu_Cb_createNdx(const zu_wchar* path, const zu_wchar* tags, int32_t unique);

/** Creates an index of an open data file with one tag for each item: tag i is named "TAG" and i in three digits, from
 *  0.
 *
 *  @param name      of the index; name and expressions reach the data file as the low bytes of their units.
 *  @param tags      as for zu_Cb_parseTagInfo.
 *  @param reserved  0.
 *  @param unique    the unique flag of every tag.
 *  @return 1 when an index was made, else 0. */
ZU_API int32_t zu_Cb_i4create(CbDataFile* file, const zu_wchar* name, const zu_wchar* tags, int32_t reserved,
                              int32_t unique);

/** Splits a tag list at commas and blanks: "NAME, SIZE  TYPE" holds three items.
 *  @return a new list without a current element, released with zu_StrList_destroy; null for null, a text without items
 *          and without memory. */
ZU_API StrList* zu_Cb_parseTagInfo(const zu_wchar* tags);

/** Frees an array of tag descriptions from zu_Malloc: the texts of its first count entries, then the array. Null is
 *  ignored. */
ZU_API void zu_Cb_freeTags(CbTagInfo* tags, int32_t count);

/** @return the first tag of a data file whose name equals name ignoring case, owned by the file; null when there is
 *  none and for null. */
ZU_API CbTag* zu_Cb_findTag(CbDataFile* file, const zu_wchar* name);

/** The real number in a fixed-length 8-bit text, in the format of the data-file layer.
 *  @return 0.0 while the library has no data-file layer. */
ZU_API double zu_c4atod(const char* text, int32_t length);

/** The whole number in a fixed-length 8-bit text, in the format of the data-file layer.
 *  @return 0 while the library has no data-file layer. */
ZU_API int32_t zu_c4atoi(const char* text, int32_t length);

ZU_EXTERN_C_END

#endif
