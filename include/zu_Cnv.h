/** @file zu_Cnv.h
 *  @ingroup geometry
 *  Angles between degrees and radians.
 *
 *  @par Example
 *  @include cnv.c
 */
#ifndef ZU_CNV_H
#define ZU_CNV_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** @return an angle given in degrees, in radians. */
ZU_API double zu_Cnv_dtor(double degrees);

/** @return an angle given in radians, in degrees. */
ZU_API double zu_Cnv_rtod(double radians);

ZU_EXTERN_C_END

#endif
