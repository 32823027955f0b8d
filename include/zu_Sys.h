/** @file zu_Sys.h
 *  @ingroup hostservices
 *  Where things live: the directories of the installation, and file names inside them. Also which version the product
 *  and its modules have, and the start of other programs.
 *
 *      zu_wchar path[ZU_SYS_PATH_SIZE + 1];
 *      open(zu_Sys_getSpecName(path, ZU_W("piping"), ZU_W("dn.ini")));
 *
 *  Directories come from session variables and from group "GENERAL" of "zu.ini" (zu_Env.h); two values come from the
 *  host. Every directory operation fills the caller's buffer, which must hold ZU_SYS_PATH_SIZE units and a terminator,
 *  ends what is not empty with a backslash, and converts it to lower case. A name operation appends the name to that
 *  and converts it too. All of them return the buffer. A null buffer gives null; a null name counts as empty.
 *
 *  @par Example
 *  @include sys.c
 */
#ifndef ZU_SYS_H
#define ZU_SYS_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** Units of the longest result; longer ones are cut. */
#define ZU_SYS_PATH_SIZE 512

/** The network directory: KV; the empty text when it is not set. */
ZU_API zu_wchar* zu_Sys_getNetDir(zu_wchar* buffer);
/** A name in the network directory. */
ZU_API zu_wchar* zu_Sys_getNetName(zu_wchar* buffer, const zu_wchar* name);

/** The local directory: KVWS; the network directory when it is not set. */
ZU_API zu_wchar* zu_Sys_getLocalDir(zu_wchar* buffer);
/** A name in the local directory. */
ZU_API zu_wchar* zu_Sys_getLocalName(zu_wchar* buffer, const zu_wchar* name);

/** The temporary directory: KVTMP, or "kvtmp" in the local directory; it is created when it does not exist.
 *
 *  A value of KVTMP that comes from "zu.ini" is remembered as session variable.
 *  @param perSession  when not 0, a numbered sub-directory that the session keeps: KVSES, or the first number from 1 to
 *                     1000 that is still free. */
ZU_API zu_wchar* zu_Sys_getTempDir(zu_wchar* buffer, int32_t perSession);
/** A name in the temporary directory. */
ZU_API zu_wchar* zu_Sys_getTempName(zu_wchar* buffer, const zu_wchar* name, int32_t perSession);

/** The directory of specifications, or a sub-directory of it: KVSPECS, or "specs" in the network directory. The value
 *  is remembered as session variable.
 *  @param subDirectory  may be null or empty. */
ZU_API zu_wchar* zu_Sys_getSpecDir(zu_wchar* buffer, const zu_wchar* subDirectory);
/** A name in zu_Sys_getSpecDir. */
ZU_API zu_wchar* zu_Sys_getSpecName(zu_wchar* buffer, const zu_wchar* subDirectory, const zu_wchar* name);

/** The binary directory: ZU_DEV_BIN_DIR, else ZU_BIN_DIR of "zu.ini", else "bin" in the network directory. */
ZU_API zu_wchar* zu_Sys_getBinDir(zu_wchar* buffer);
/** A name in the binary directory. */
ZU_API zu_wchar* zu_Sys_getBinName(zu_wchar* buffer, const zu_wchar* name);

/** A name in the binary directory or in its sub-directory for the version, which the session variable ACADVER names.
 *
 *  @param preferVersion  when not 0 and the name is not empty: the name in the version's directory if it exists there,
 *  else in the binary directory. When 0: the name in the version's directory, which is created when it does not exist.
 */
ZU_API zu_wchar* zu_Sys_getVersionBinName(zu_wchar* buffer, const zu_wchar* name, int32_t preferVersion);

/** The configuration directory, which the host names; the empty text without a host. A failing call into the host is
 *  raised as a COM error. */
ZU_API zu_wchar* zu_Sys_getCfgDir(zu_wchar* buffer);
/** A name in the configuration directory. */
ZU_API zu_wchar* zu_Sys_getCfgName(zu_wchar* buffer, const zu_wchar* name);

/** The application group, which the host names.
 *  @param buffer    emptied first; holds capacity units and a terminator.
 *  @return 1 when there is one; 0 without a host, for an empty group and for a null buffer. */
ZU_API int32_t zu_Sys_getApplicationGroup(zu_wchar* buffer, int32_t capacity);

/** Gives the host another application group. @return 1; 0 without a host and for null. */
ZU_API int32_t zu_Sys_setApplicationGroup(const zu_wchar* group);

/** Whether the dialog for choosing a mode is to be shown: ShowModeSelectionGUI of "zu.ini" is "1". @return 1 or 0. */
ZU_API int32_t zu_Sys_getShowModeSelectGUI(void);

/** Writes "1" for a flag that is not 0, else "0". @return 0 when it was written, 1 when not, as zu_Env_setIni. */
ZU_API int32_t zu_Sys_setShowModeSelectGUI(int32_t flag);

/** @return 1 always: the library is built for 64-bit hosts only. */
ZU_API int32_t zu_Sys_is64bitSystem(void);

/** The product version of a module that is loaded, from the fixed information of its version resource: "08.11.09.245".
 *  Where modules have no resources, a note of the module with the same content stands for it.
 *
 *  @param module  its file name, with or without directory and extension. Nothing is
 *                 loaded. On Windows a name without extension is that of a ".dll".
 *  @return a static buffer; null for null, when no such module is loaded, and when it has no version resource. */
ZU_API zu_wchar* zu_Sys_getVersionNumber(const zu_wchar* module);

/** The version of a product that is installed on the machine, as the list of installed software has it.
 *
 *  The product is the one of exactly this display name, ignoring case; else the last one whose name begins with it,
 *  where one with the name and " - X64" counts as the last. The last three characters of a version are the build
 *  number, which a dot separates: 8.11.09245 gives 8.11.09.245. Where it begins with 0, the dot takes that place.
 *  On systems without a registry, the environment variable ZU_REGISTRY names a text file that stands for it: an export
 *  in the usual form, in UTF-8 or marked as UTF-16.
 *  @return a static buffer, empty when no product has the name; null for null and when there is no list. */
ZU_API zu_wchar* zu_Sys_getProductVersion(const zu_wchar* displayName);

/** Starts a program.
 *
 *  Program and arguments form one command line, with a blank between them. Arguments are separated by blanks; one that
 *  holds blanks is put between double quotes, and so is a program that does. The program is found through PATH. It has
 *  the environment and the current directory of the process, and none of its open files.
 *  @param program    null gives 0.
 *  @param arguments  may be null.
 *  @param wait       when not 0, waits until the program ends.
 *  @param errorText  receives what went wrong: a message, the program, and what the system says, cut to its size; empty
 *                    when nothing did. May be null.
 *  @param errorSize  units that errorText has room for, its terminator included.
 *  @return 1 when the program was started, whatever became of it; else 0. */
ZU_API int32_t zu_Sys_createProcess(const zu_wchar* program, const zu_wchar* arguments, int32_t wait,
                                    zu_wchar* errorText, int32_t errorSize);

/** Starts a program as zu_Sys_createProcess does, with the programs of the document-management product before all
 *  others in the PATH that it is found through and receives. PATH of this process is the old one afterwards. */
ZU_API int32_t zu_Sys_createProcess_addQRPath(const zu_wchar* program, const zu_wchar* arguments, int32_t wait,
                                              zu_wchar* errorText, int32_t errorSize);

/** Writes the shortcut "Skyloft.lnk" into the session's temporary directory and opens it with the shell.
 *
 *  @param target     the program, with or without double quotes; its directory becomes the working directory. Null
 *                    gives 0.
 *  @param arguments  may be null.
 *  @return 1; 0 where the system has no shortcuts, and when COM is not initialised on the thread. Whether the program
 *          was started is not known. */
ZU_API int32_t zu_Sys_launchProcessViaShortcut(const zu_wchar* target, const zu_wchar* arguments);

ZU_EXTERN_C_END

#endif
