// UTF-8 and UTF-16, the one place where bytes outside become wide text and back.
//
// Nothing is lost either way: a byte 80-FF that is not part of valid UTF-8 is read as the lone surrogate U+DC80-U+DCFF
// and such a surrogate is written back as that byte; any other lone surrogate is written as its three bytes. Valid
// sequences are read strictly (no overlong forms, no encoded surrogates), so those three bytes come back as three
// escaped bytes: the same bytes again when written.
#pragma once

#include "platform/wide.h"

namespace zu::utf8 {

void append(WideString& out, std::string_view bytes);
void append(ByteString& out, WideView text);

WideString decode(std::string_view bytes);
ByteString encode(WideView text);

// Decodes the character at the front of bytes into one or two units.
// Returns the number of bytes it takes: at least 1 unless bytes is empty.
std::size_t decodeOne(std::string_view bytes, zu_wchar (&units)[2], std::size_t& unitCount);

// Encodes the character at the front of text, which must not be empty, into one to four bytes.
// Returns the number of units it takes.
std::size_t encodeOne(WideView text, char (&bytes)[4], std::size_t& byteCount);

// The number of bytes of the sequence that this first byte announces: 1 to 4; 1 also for a byte that starts none.
std::size_t announcedLength(unsigned char first);

} // namespace zu::utf8
