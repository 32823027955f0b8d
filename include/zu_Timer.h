/** @file zu_Timer.h
 *  @ingroup containers
 *  Stopwatches known by name.
 *
 *      zu_Timer_create(ZU_W("import"));
 *      ...
 *      double seconds = zu_Timer_delete(ZU_W("import"));
 *
 *  They measure elapsed time in milliseconds and report it in seconds; an interval of more than 49 days starts again
 *  from 0. Names are case-sensitive and count up to 51 units. All timers are process-wide. Where two have the same
 *  name, the one that was created first is meant.
 *
 *  @par Example
 *  @include timer.c
 */
#ifndef ZU_TIMER_H
#define ZU_TIMER_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** Units of a timer's name before its terminator. */
#define ZU_TIMER_NAME_SIZE 51

/** A timer. */
typedef struct TimerNode
{
    zu_wchar name[ZU_TIMER_NAME_SIZE + 1]; /**< terminated */
    int32_t startTicks;                    /**< milliseconds of the running clock when it was started, which wraps */
} TimerNode;

/** Starts a new timer, also when there is one of that name.
 *  @return 1, or 0 for a null name and without memory. */
ZU_API int32_t zu_Timer_create(const zu_wchar* name);

/** @return the seconds since the timer was started; 0.0 when there is none of that name. */
ZU_API double zu_Timer_check(const zu_wchar* name);

/** Starts a timer again, or a new one when there is none of that name.
 *  @return the seconds that it had run; 0.0 for a new one. */
ZU_API double zu_Timer_reset(const zu_wchar* name);

/** Removes a timer.
 *  @return the seconds that it had run; 0.0 when there is none of that name. */
ZU_API double zu_Timer_delete(const zu_wchar* name);

/** Removes all timers. @return 1. */
ZU_API int32_t zu_Timer_clearAll(void);

/** Makes a timer that is started now and is not among the named ones.
 *  @return a new timer, released with zu_TimerNode_delete; null for a null name and without memory. */
ZU_API TimerNode* zu_TimerNode_create(const zu_wchar* name);

/** Compares a timer's name with a name, of which no more units count than a timer's name can hold.
 *  @return negative, 0 or positive, by the 16-bit units; -1 when either is null. */
ZU_API int32_t zu_TimerNode_compare(const TimerNode* node, const zu_wchar* name);

/** Releases a timer of zu_TimerNode_create. Null is ignored. */
ZU_API void zu_TimerNode_delete(TimerNode* node);

ZU_EXTERN_C_END

#endif
