/** @file zu_Help.h
 *  @ingroup hostservices
 *  Help pages, shown by the product's help library, which is loaded when it is first needed.
 *
 *  The library "zu_HLP18AN" is taken as it is loaded already, else from the binary directory (zu_Sys_getBinDir), else
 *  from wherever the system finds libraries; it also needs the system's page viewer, the library "mshtml". Where one of
 *  them is missing the user is told, through the product's UI library "ZU_MFC18AN" or, without that one, in a box.
 *
 *  @par Example
 *  @include help.c
 */
#ifndef ZU_HELP_H
#define ZU_HELP_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** Calls the help library's operation of the same name.
 *  @return what that one returns; 0 when the library cannot be loaded, or has no such operation. */
ZU_API intptr_t zu_Help_Initialize(void);

/** Calls the help library's operation of the same name with the arguments as they are; result as zu_Help_Initialize. */
ZU_API intptr_t zu_Help_DisplayContext(void* a, void* b, void* c, uint32_t number);

/** Calls the help library's operation of the same name with the arguments as they are; result as zu_Help_Initialize. */
ZU_API intptr_t zu_Help_DisplayTopic(void* a, void* b, void* c);

ZU_EXTERN_C_END

#endif
