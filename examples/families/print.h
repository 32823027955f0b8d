/* The library's text is UTF-16; the examples print it as UTF-8. */
#ifndef PRINT_H
#define PRINT_H

#include <stdio.h>
#include <zu.h>

/* The UTF-8 of a text, cut at 255 bytes, for the "%s" of printf; valid until the fourth call from now. */
static inline const char* utf8(const zu_wchar* text)
{
    static char buffers[4][256];
    static unsigned turn = 0;
    char* const out = buffers[turn++ % 4];
    size_t length = 0;
    if (text == NULL)
        return "(none)";
    while (*text != 0 && length < 252) {
        uint32_t character = (uint16_t)*text++;
        if (character >= 0xD800 && character < 0xDC00 && *text >= 0xDC00 && *text < 0xE000)
            character = 0x10000 + ((character - 0xD800) << 10) + ((uint32_t)*text++ - 0xDC00);
        if (character < 0x80) {
            out[length++] = (char)character;
            continue;
        }
        /* The first byte has a one bit for each byte, itself included; those that follow take six bits each. */
        const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
        out[length++] = (char)((0xFFu << (7 - more)) | (character >> (6 * more)));
        for (int shift = 6 * (more - 1); shift >= 0; shift -= 6)
            out[length++] = (char)(0x80 | ((character >> shift) & 0x3F));
    }
    out[length] = 0;
    return out;
}

#endif
