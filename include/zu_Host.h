/** @file zu_Host.h
 *  @ingroup hostservices
 *  The library's own stand-in for the host.
 *
 *  The services of the host application object (zu_HostObjects.h) are asked of the host's component. Where that cannot
 *  be created, the library can use objects of its own instead: an INI cache, a file service that looks at the file
 *  system, and an application object with this configuration directory:
 *
 *  - the environment variable ZU_CFG_DIR,
 *  - else "zu" in the user's directory for configuration: on Windows the one that APPDATA names, elsewhere the one that
 *    XDG_CONFIG_HOME names, else ".config" in the one that HOME names.
 *
 *  Its base section is "GENERAL", its application group is empty until it is set, and it has no translator.
 *
 *  From the first use of a service until zu_Global_destroyData its class objects of fields, collections of fields and
 *  lists of variables are registered with COM on that thread, so that CoCreateInstance makes such objects too:
 *  ZU_CLSID_HostField, ZU_CLSID_HostFieldCollection, ZU_CLSID_HostVariableList.
 *
 *  @par Example
 *  @include host.c
 */
#ifndef ZU_HOST_H
#define ZU_HOST_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** Switches the built-in host on or off, for the time when the host's component cannot be created. A change takes
 *  effect when the library asks for its host the next time: for the first time, or after zu_Global_destroyData.
 *
 *  @param on  0 switches it off, so that every service is absent; any other value switches it on.
 *  @return the setting before the call. */
ZU_API int32_t zu_Host_setBuiltIn(int32_t on);

/** @return 1 when the built-in host is switched on, else 0. It is at first on systems without COM, and is not on
 *          Windows. */
ZU_API int32_t zu_Host_getBuiltIn(void);

ZU_EXTERN_C_END

#endif
