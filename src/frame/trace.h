// The trace frame of exported operations.
//
//     int32_t zu_LnkList_eol(LnkList* list)
//     {
//         ZU_TRACE(lnkList);                       // writes the entry line now, the exit line at the closing brace
//         return list == nullptr || list->current == nullptr;
//     }
//
// Off, a frame costs two loads and a branch at either end.
#pragma once

#include "platform/wide.h"
#include "zu_Diag.h"

namespace zu {

// A source module that traces: its bit of the condition mask, its name in the lines, and the word at its exits.
struct TraceModule
{
    std::uint32_t bit;
    const zu_wchar* source;
    const char* exitWord;

    bool isOn(int level = 3) const { return ZU_DiagCurrentLevel >= level && (ZU_DiagCurrentCondition & bit) != 0; }
};

namespace trace {

inline constexpr TraceModule strList{ZU_DIAG_STRLIST, ZU_W("STRLIST"), "Exiting"};
inline constexpr TraceModule lnkList{ZU_DIAG_LNKLIST, ZU_W("LNKLIST"), "Exiting"};
inline constexpr TraceModule point{ZU_DIAG_POINT, ZU_W("POINT"), "Leaving"};
inline constexpr TraceModule matrix{ZU_DIAG_MATRIX, ZU_W("MATRIX"), "Leaving"};
inline constexpr TraceModule vector{ZU_DIAG_VECTOR, ZU_W("VECTOR"), "Leaving"};
inline constexpr TraceModule array{ZU_DIAG_ARRAY, ZU_W("ARRAY"), "Exiting"};
inline constexpr TraceModule ntuple{ZU_DIAG_NTUPLE, ZU_W("NTUPLE"), "Leaving"};
inline constexpr TraceModule dbFld{ZU_DIAG_DBFLD, ZU_W("DBFLD"), "Exiting"};
inline constexpr TraceModule msg{ZU_DIAG_MSG, ZU_W("MSG"), "Leaving"};
inline constexpr TraceModule treeList{ZU_DIAG_TREELIST, ZU_W("treelist"), "Exiting"};

// Writes the line "word name."
void writeLine(const TraceModule& module, const char* word, const char* name, std::uint32_t line);

} // namespace trace

class TraceFrame
{
public:
    TraceFrame(const TraceModule& tracedModule, const char* operation, std::uint32_t sourceLine)
        : TraceFrame(tracedModule, operation, tracedModule.exitWord, operation, sourceLine)
    {
    }
    // For the operations whose lines carry another name, or another word at the exit.
    TraceFrame(const TraceModule& tracedModule, const char* entryName, const char* wordAtExit, const char* nameAtExit,
               std::uint32_t sourceLine)
        : module(tracedModule), exitWord(wordAtExit), exitName(nameAtExit), line(sourceLine)
    {
        if (module.isOn()) [[unlikely]]
            trace::writeLine(module, "Entering", entryName, line);
    }
    ~TraceFrame()
    {
        if (module.isOn()) [[unlikely]]
            trace::writeLine(module, exitWord, exitName, line);
    }
    TraceFrame(const TraceFrame&) = delete;
    TraceFrame& operator=(const TraceFrame&) = delete;

private:
    const TraceModule& module;
    const char* exitWord;
    const char* exitName;
    std::uint32_t line;
};

} // namespace zu

#define ZU_TRACE(module) const ::zu::TraceFrame zuTraceFrame(::zu::trace::module, __func__, __LINE__)
// The lines carry the name given instead of the operation's own.
#define ZU_TRACE_AS(module, name) const ::zu::TraceFrame zuTraceFrame(::zu::trace::module, name, __LINE__)
// The entry line carries one name, the exit line another word and name.
#define ZU_TRACE_EXIT_AS(module, entryName, exitWord, exitName)                                                        \
    const ::zu::TraceFrame zuTraceFrame(::zu::trace::module, entryName, exitWord, exitName, __LINE__)
