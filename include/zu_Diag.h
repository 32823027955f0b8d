/** @file zu_Diag.h
 *  @ingroup frame
 *  The library's diagnostics channel: a trace level, a mask of modules, a destination, and one shared message buffer.
 *
 *  To see the calls into the list family, on the console:
 *
 *      zu_Diag_setLevel(3);
 *      zu_Diag_setCondition(ZU_DIAG_LNKLIST);
 *
 *  Each operation of a module that is switched on then writes a line when it is entered and one when it returns:
 *
 *      lnklist (251) Entering zu_LnkList_insEnd.
 *
 *  Level and mask are read again at the exit, so a change made in between shows there.
 *
 *  @par Example
 *  @include diag.c
 */
#ifndef ZU_DIAG_H
#define ZU_DIAG_H

#include "zu_Api.h"

#include <stdio.h>

ZU_EXTERN_C_BEGIN

/* Module bits of the condition mask. */
#define ZU_DIAG_STRLIST 0x2u       /**< string lists */
#define ZU_DIAG_LNKLIST 0x4u       /**< generic lists */
#define ZU_DIAG_POINT 0x8u         /**< points */
#define ZU_DIAG_MATRIX 0x10u       /**< general, rotation and transformation matrices */
#define ZU_DIAG_VECTOR 0x20u       /**< vectors */
#define ZU_DIAG_ARRAY 0x40u        /**< fixed-size arrays */
#define ZU_DIAG_NTUPLE 0x80u       /**< n-tuples */
#define ZU_DIAG_DBFLD 0x200u       /**< destruction of database field descriptors */
#define ZU_DIAG_MSG 0x400u         /**< keyword lists and locale switching of messages, from level 2 */
#define ZU_DIAG_TREELIST 0x200000u /**< named trees */

/* Destinations. */
#define ZU_DIAG_TO_NOTHING 0          /**< output is dropped */
#define ZU_DIAG_TO_CONSOLE 1          /**< standard output */
#define ZU_DIAG_TO_FILE 2             /**< the log file */
#define ZU_DIAG_TO_CONSOLE_AND_FILE 3 /**< both */

/** Units that the shared message buffer holds before its terminator. */
#define ZU_DIAG_MSG_SIZE 4096

/* The state itself, for hosts that read and set it directly. Direct writes bypass every check of the setters. */
ZU_API extern int16_t ZU_DiagCurrentLevel;                  /**< 0 to 3; entries and exits need 3 */
ZU_API extern uint32_t ZU_DiagCurrentCondition;             /**< module bits that are switched on */
ZU_API extern uint16_t ZU_DiagCurrentOutput;                /**< destination */
ZU_API extern zu_wchar* ZU_DiagCurrentFileName;             /**< log file name or null; owned by the library */
ZU_API extern FILE* ZU_DiagOutputStream;                    /**< stream of the last opening of the log file, closed */
ZU_API extern zu_wchar ZU_DiagMsgBuf[ZU_DIAG_MSG_SIZE + 1]; /**< the shared message buffer */

/** Sets the trace level.
 *  @param level  0 to 3; any other value changes nothing.
 *  @return the level before the call. */
ZU_API int16_t zu_Diag_setLevel(int16_t level);

/** @return the trace level. */
ZU_API int16_t zu_Diag_getLevel(void);

/** Sets the mask of modules; any value is accepted.
 *  @return the mask before the call. */
ZU_API uint32_t zu_Diag_setCondition(uint32_t mask);

/** @return the mask of modules. */
ZU_API uint32_t zu_Diag_getCondition(void);

/** Switches tracing off: level 0 and mask 0.
 *  @return the mask before the call. */
ZU_API uint32_t zu_Diag_disable(void);

/** Sets the destination and checks that the log file can be written, which creates it or empties it.
 *
 *  @param mode      a destination 0 to 3; any other value gives the console.
 *  @param fileName  copied; for the modes with a file. Null or empty chooses "ZU_DIAG.LOG" in the current directory and
 *                   says so on the console.
 *  @return 1, or 0 when the file cannot be written or the mode is unknown; the destination is then the console. */
ZU_API int32_t zu_Diag_setOutput(uint16_t mode, const zu_wchar* fileName);

/** Tells the destination.
 *  @param fileName  receives the log file's name when the destination has a file, else the empty text; it must have
 *  room for the name. Null is ignored.
 *  @return the destination. */
ZU_API uint16_t zu_Diag_getOutput(zu_wchar* fileName);

/** Sets the destination without any check and without opening anything.
 *  @return mode. */
ZU_API uint16_t zu_Diag_setDiagOutput(uint16_t mode);

/** @return the destination. */
ZU_API uint16_t zu_Diag_getDiagOutput(void);

/** Replaces the log file's name by a copy of fileName; null or empty leaves no name. */
ZU_API void zu_Diag_setFileName(const zu_wchar* fileName);

/** @return the log file's name itself, owned by the library and valid until it is replaced; null without one. */
ZU_API zu_wchar* zu_Diag_getFileName(void);

/** Stores stream as the stream of the last opening. It is never written to.
 *  @return stream. */
ZU_API FILE* zu_Diag_setOutputStream(FILE* stream);

/** @return the stream of the last opening of the log file, closed by then; null before. */
ZU_API FILE* zu_Diag_getOutputStream(void);

/** @return the shared message buffer, into which callers format before zu_Diag_putOutput. */
ZU_API zu_wchar* zu_Diag_getDiagMsgBuf(void);

/** Writes a fixed message as one line.
 *
 *  @param message  copied into the shared buffer, cut to its size; a longer one is reported by zu_Diag_putOutput. Null
 *                  and empty write nothing.
 *  @param source   source file named in the line, in lower case and without all up to its last "\", "/" or ":".
 *  @param line     line number named in the line. */
ZU_API void zu_Diag_putOutputMsg(const zu_wchar* message, const zu_wchar* source, uint32_t line);

/** Writes the shared buffer as one line, "source (line) text".
 *
 *  @param length   the length that formatting into the buffer returned. With tracing on, a length beyond the buffer is
 *                  reported instead of the text, and twice: once for the library and once for the caller.
 *  @param message  ignored: it is always the shared buffer that is written.
 *  @param source   as for zu_Diag_putOutputMsg.
 *  @param line     as for zu_Diag_putOutputMsg.
 *
 *  A log file that cannot be opened is reported on standard error, and the destination becomes the console. */
ZU_API void zu_Diag_putOutput(int32_t length, const zu_wchar* message, const zu_wchar* source, uint32_t line);

ZU_EXTERN_C_END

#endif
