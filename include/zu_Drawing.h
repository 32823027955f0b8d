/** @file zu_Drawing.h
 *  @ingroup hostservices
 *  A switch by which one part of the host tells another to ignore that a drawing is saved.
 *
 *      zu_Drawing_IgnoreSaveEvents(drawing, 1);
 *      saveQuietly(drawing);                        // its handler asks zu_Drawing_IsSaveIgnored
 *      zu_Drawing_IgnoreSaveEvents(drawing, 0);
 *
 *  @par Example
 *  @include drawing.c
 */
#ifndef ZU_DRAWING_H
#define ZU_DRAWING_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** Remembers a drawing and its flag; only those of the last call are kept.
 *
 *  @param drawing  copied.
 *  @return the copy, valid until the next call; null for null and without memory, and then nothing changes. */
ZU_API const zu_wchar* zu_Drawing_IgnoreSaveEvents(const zu_wchar* drawing, uint8_t ignore);

/** @return the flag of the drawing that is remembered, when its name is this one ignoring case; 0 for all others. */
ZU_API uint8_t zu_Drawing_IsSaveIgnored(const zu_wchar* drawing);

ZU_EXTERN_C_END

#endif
