#include "frame/console.h"

#include "platform/utf8.h"

namespace zu {

void writeText(std::FILE* stream, WideView text)
{
    char block[1024];
    std::size_t used = 0;
    while (!text.empty()) {
        char bytes[4];
        std::size_t count = 0;
        text.remove_prefix(utf8::encodeOne(text, bytes, count));
        if (used + count > sizeof block) {
            std::fwrite(block, 1, used, stream);
            used = 0;
        }
        for (std::size_t index = 0; index < count; ++index)
            block[used++] = bytes[index];
    }
    std::fwrite(block, 1, used, stream);
}

} // namespace zu
