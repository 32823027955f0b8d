#include "zu_Diag.h"

#include "frame/console.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/files.h"
#include "zu_Msg.h"

#include <utility>

int16_t ZU_DiagCurrentLevel = 0;
uint32_t ZU_DiagCurrentCondition = 0;
uint16_t ZU_DiagCurrentOutput = ZU_DIAG_TO_CONSOLE;
zu_wchar* ZU_DiagCurrentFileName = nullptr;
FILE* ZU_DiagOutputStream = nullptr;
zu_wchar ZU_DiagMsgBuf[ZU_DIAG_MSG_SIZE + 1] = {};

namespace {

using namespace zu;

constexpr const zu_wchar* defaultFileName = ZU_W("ZU_DIAG.LOG");
// The runtime's error report appends the system's text behind this one, which keeps its line end on purpose.
constexpr const char* openFailure = "Failed to open the diagnostics output file\n";

bool hasConsole(uint16_t mode)
{
    return mode == ZU_DIAG_TO_CONSOLE || mode == ZU_DIAG_TO_CONSOLE_AND_FILE;
}

bool hasFile(uint16_t mode)
{
    return mode == ZU_DIAG_TO_FILE || mode == ZU_DIAG_TO_CONSOLE_AND_FILE;
}

bool openLogFile(const char* mode)
{
    ZU_DiagOutputStream =
        guarded<FILE*>(nullptr, [mode] { return platform::openFile(text::view(ZU_DiagCurrentFileName), mode); });
    if (ZU_DiagOutputStream != nullptr)
        return true;
    std::perror(openFailure);
    ZU_DiagCurrentOutput = ZU_DIAG_TO_CONSOLE;
    return false;
}

// The file's own name in lower case, in a buffer of its own: a line must come out even when there is no memory.
text::Buffer<512> lineSource(const zu_wchar* source)
{
    WideView name = text::view(source);
    const std::size_t separator = name.find_last_of(ZU_W("\\:/"));
    if (separator != WideView::npos)
        name.remove_prefix(separator + 1);
    text::Buffer<512> lowered;
    lowered.set(name);
    text::makeLower(lowered.units);
    return lowered;
}

void writeLine(std::FILE* stream, const zu_wchar* source, uint32_t line)
{
    text::Buffer<560> prefix;
    formatInto(prefix.units, ZU_W("%s (%d) "), source, line);
    writeText(stream, prefix.view());
    writeText(stream, WideView(ZU_DiagMsgBuf));
    writeText(stream, ZU_W("\n"));
}

} // namespace

int16_t zu_Diag_setLevel(int16_t level)
{
    const int16_t previous = ZU_DiagCurrentLevel;
    if (level >= 0 && level <= 3)
        ZU_DiagCurrentLevel = level;
    return previous;
}

int16_t zu_Diag_getLevel(void)
{
    return ZU_DiagCurrentLevel;
}

uint32_t zu_Diag_setCondition(uint32_t mask)
{
    return std::exchange(ZU_DiagCurrentCondition, mask);
}

uint32_t zu_Diag_getCondition(void)
{
    return ZU_DiagCurrentCondition;
}

uint32_t zu_Diag_disable(void)
{
    ZU_DiagCurrentLevel = 0;
    return std::exchange(ZU_DiagCurrentCondition, 0u);
}

int32_t zu_Diag_setOutput(uint16_t mode, const zu_wchar* fileName)
{
    if (!hasFile(mode)) {
        const bool known = mode == ZU_DIAG_TO_NOTHING || mode == ZU_DIAG_TO_CONSOLE;
        ZU_DiagCurrentOutput = known ? mode : uint16_t{ZU_DIAG_TO_CONSOLE};
        return known;
    }
    const bool isNamed = !text::view(fileName).empty();
    zu_Diag_setFileName(fileName); // may be the old name, which is gone afterwards
    if (!isNamed) {
        zu_Diag_setFileName(defaultFileName);
        writeConsole(zu_Msg("zu_Diag_setOutput: Diagnostics log file name specified is invalid.", "TOOL", 0));
        writeConsole(ZU_W("\n"));
        writeConsole(zu_Msg("Defaulting to log file:", "TOOL", 0));
        writeConsole(ZU_W(" "));
        writeConsole(defaultFileName);
        writeConsole(ZU_W("\n"));
    }
    if (!openLogFile("w"))
        return 0;
    std::fclose(ZU_DiagOutputStream);
    ZU_DiagCurrentOutput = mode;
    return 1;
}

uint16_t zu_Diag_getOutput(zu_wchar* fileName)
{
    if (fileName != nullptr) {
        const WideView name = hasFile(ZU_DiagCurrentOutput) ? text::view(ZU_DiagCurrentFileName) : WideView();
        text::copyCut(fileName, name.size(), name);
    }
    return ZU_DiagCurrentOutput;
}

uint16_t zu_Diag_setDiagOutput(uint16_t mode)
{
    return ZU_DiagCurrentOutput = mode;
}

uint16_t zu_Diag_getDiagOutput(void)
{
    return ZU_DiagCurrentOutput;
}

void zu_Diag_setFileName(const zu_wchar* fileName)
{
    // The name given may be the one held.
    zu_wchar* const copy = text::view(fileName).empty() ? nullptr : text::duplicate(fileName);
    zu_Free(std::exchange(ZU_DiagCurrentFileName, copy));
}

zu_wchar* zu_Diag_getFileName(void)
{
    return ZU_DiagCurrentFileName;
}

FILE* zu_Diag_setOutputStream(FILE* stream)
{
    return ZU_DiagOutputStream = stream;
}

FILE* zu_Diag_getOutputStream(void)
{
    return ZU_DiagOutputStream;
}

zu_wchar* zu_Diag_getDiagMsgBuf(void)
{
    return ZU_DiagMsgBuf;
}

void zu_Diag_putOutputMsg(const zu_wchar* message, const zu_wchar* source, uint32_t line)
{
    const WideView content = text::view(message);
    if (content.empty())
        return;
    text::copyCut(ZU_DiagMsgBuf, ZU_DIAG_MSG_SIZE, content);
    zu_Diag_putOutput(static_cast<int32_t>(content.size()), ZU_DiagMsgBuf, source, line);
}

void zu_Diag_putOutput(int32_t length, const zu_wchar*, const zu_wchar* source, uint32_t line)
{
    const text::Buffer<512> name = lineSource(source);
    // A host may have written the buffer to its very end.
    ZU_DiagMsgBuf[ZU_DIAG_MSG_SIZE] = 0;
    if (length > ZU_DIAG_MSG_SIZE && ZU_DiagCurrentLevel >= 3 && ZU_DiagCurrentCondition != 0) {
        // Written twice on purpose: here as the library's own line, and below as the caller's.
        const std::size_t warning = formatInto(
            ZU_DiagMsgBuf, ZU_W("Buffer size %d too big for diagnostics in %s at %d\n"), length, name.units, line);
        zu_Diag_putOutput(static_cast<int32_t>(warning), ZU_DiagMsgBuf, ZU_W("DIAG"), 571);
    }
    if (hasConsole(ZU_DiagCurrentOutput))
        writeLine(stdout, name.units, line);
    if (hasFile(ZU_DiagCurrentOutput) && openLogFile("a")) {
        // Opened and closed around every line, so that the log survives a crash of the host.
        writeLine(ZU_DiagOutputStream, name.units, line);
        std::fclose(ZU_DiagOutputStream);
    }
}
