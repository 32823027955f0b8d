/** @file zu_Kelvane.h
 *  @ingroup hostservices
 *  The name of the host's base section of configuration.
 *
 *  @par Example
 *  @include kelvane.c
 */
#ifndef ZU_KELVANE_H
#define ZU_KELVANE_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** Units of the longest name; longer ones are cut. */
#define ZU_KELVANE_NAME_SIZE 512

/** The name of the host's base section. The host is asked until it has one, and no more from then on.
 *
 *  @return a static text; empty without a host. A failing call into the host is raised as a COM error. */
ZU_API zu_wchar* zu_Kelvane_getBaseSectionName(void);

ZU_EXTERN_C_END

#endif
