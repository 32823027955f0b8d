/** @file zu_Global.h
 *  @ingroup hostservices
 *  The library as a whole, the modules of the process, and the operating system.
 *
 *      report(zu_Global_getModuleFileVersion(ZU_W("zu")));      // 0.1.0.0
 *
 *  @par Example
 *  @include global.c
 */
#ifndef ZU_GLOBAL_H
#define ZU_GLOBAL_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** Lets go of the host's application object and its services, in case the library holds them. What asks for one of them
 *  next makes the application object anew. Harmless when nothing is held. */
ZU_API void zu_Global_destroyData(void);

/** Units of the longest version text; longer ones are cut. */
#define ZU_GLOBAL_VERSION_SIZE 260

/** The text "FileVersion" of a module's version resource, with dots for its commas and without its blanks.
 *
 *  Of the languages that the resource has, the user's is taken; else one of the same primary language, a neutral one,
 *  an English one, or the first.
 *  @param module  a module that is loaded, by its file name with or without directory and extension. Nothing is
 *                 loaded. On Windows a name without extension is that of a ".dll".
 *  @return a static buffer; empty when no such module is loaded, when it has no such text, and for null. */
ZU_API zu_wchar* zu_Global_getModuleFileVersion(const zu_wchar* module);

/** The text "ProductVersion", as zu_Global_getModuleFileVersion. @return a static buffer of its own. */
ZU_API zu_wchar* zu_Global_getModuleProductVersion(const zu_wchar* module);

/** @return 1 on exactly version 6.0 of Windows, which is narrow on purpose; 0 on any other version and system. */
ZU_API int32_t zu_Global_isVista(void);

/** @return 1 on Windows 6.0 and later, which can ask the user for rights; else 0. */
ZU_API int32_t zu_Global_isOSWithUACSupport(void);

/** Opens a file in the system's text editor, after the host's file service has agreed to it.
 *
 *  @return the shell's answer: more than 32 when an editor was started, else its error code. 0 when the service says
 *          no, without the service, and for a null or empty path. A failing call of the service is raised as a COM
 *          error. */
ZU_API intptr_t zu_Global_openFileinNotepad(const zu_wchar* path);

ZU_EXTERN_C_END

#endif
