/** @file zu_RM.h
 *  @ingroup hostservices
 *  One slot for a callback by which the host tracks calls: what one part of the host sets, all others can call.
 *
 *  @par Example
 *  @include rm.c
 */
#ifndef ZU_RM_H
#define ZU_RM_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** What the arguments mean is the host's matter. */
typedef int32_t (*zu_FuncTrackCallback)(void* a, void* b, void* c, void* d);

/** Sets the callback; null clears it. @return the callback given. */
ZU_API zu_FuncTrackCallback zu_RM_setFuncTrackObject(zu_FuncTrackCallback callback);

/** Calls the callback. @return its result; 0 when none is set. */
ZU_API int32_t zu_RM_callFuncTrackObject(void* a, void* b, void* c, void* d);

ZU_EXTERN_C_END

#endif
