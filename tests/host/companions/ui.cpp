// Stands for the product's UI library: an alert is a line in a file.
#include "export.h"

#include <cstdint>
#include <cstdio>

COMPANION_EXPORT std::int32_t zu_mfcDlgAlert(void* owner, const std::uint16_t* message, std::uint32_t style)
{
    std::FILE* const file = std::fopen("alert.txt", "ab");
    std::fprintf(file, "%s %u ", owner == nullptr ? "nobody" : "somebody", static_cast<unsigned>(style));
    for (; *message != 0; ++message)
        std::fputc(*message == '\n' ? '/' : *message, file); // the texts are ASCII
    std::fputc('\n', file);
    std::fclose(file);
    return 6;
}
