#include "frame/trace.h"

#include "frame/text.h"

namespace zu::trace {

void writeLine(const TraceModule& module, const char* word, const char* name, std::uint32_t line)
{
    text::Buffer<160> message;
    std::size_t length = 0;
    const auto put = [&](const char* ascii) {
        for (; *ascii != '\0' && length < message.capacity; ++ascii)
            message.units[length++] = static_cast<zu_wchar>(*ascii);
    };
    put(word);
    put(" ");
    put(name);
    put(".");
    zu_Diag_putOutputMsg(message.units, module.source, line);
}

} // namespace zu::trace
