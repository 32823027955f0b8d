/** @file zu_Convert.h
 *  @ingroup fields
 *  Between the library's lists and the host's collections (zu_HostObjects.h).
 *
 *  A property of the host's objects that cannot be read or set is raised as a COM error; nothing is leaked then. An
 *  item that cannot be fetched, and an object that cannot be made, is passed over.
 *
 *  @par Example
 *  @include convert.c
 */
#ifndef ZU_CONVERT_H
#define ZU_CONVERT_H

#include "zu_DbFldList.h"
#include "zu_FldList.h"
#include "zu_HostObjects.h"

ZU_EXTERN_C_BEGIN

/** Makes a field list of a list of variables.
 *
 *  Empty and null values become unknown fields; 16-bit integers I, 32-bit integers L, floating-point numbers N;
 *  booleans I, 1 or 0; unsigned bytes I, taken as signed, so that 128 to 255 are negative; texts C, cut at 299 units.
 *  For any other type a line is printed to standard output. Names are cut at 128 units; variables without a name are
 *  left out.
 *  @param variables  not owned; null does nothing.
 *  @param list       receives a new list, released with zu_FldList_destroy, when there is any variable; else it is not
 *                    touched. */
ZU_API void zu_ConvertVarListToFldList(HostVariableList* variables, FldList** list);

/** Makes a field collection of a list of field descriptors: name, value, width and precision of each; the second value,
 *  or for a descriptor without a value the null flag.
 *
 *  Prepares COM on the calling thread.
 *  @param collection  receives the collection (VT_DISPATCH), a reference of the caller's own; not touched when it
 *  cannot be made. What it held before is not released. Current of the descriptors: none. */
ZU_API void zu_ConvertDBFldListToKVFldList(DbFldList* descriptors, VARIANT* collection);

/** Makes a list of field descriptors of a field collection.
 *  @param collection   not owned; null gives null.
 *  @param descriptors  receives a new list, released with zu_DbFldList_destroy. */
ZU_API void zu_ConvertKVFldListToDBFldList(HostFieldCollection* collection, DbFldList** descriptors);

ZU_EXTERN_C_END

#endif
