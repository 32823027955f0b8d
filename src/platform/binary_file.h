// Files as bytes, read and written without a buffer between the library and the system, and what is made of them.
#pragma once

#include "platform/wide.h"

#include <cstdint>
#include <cstdio>
#include <span>

namespace zu::platform {

class BinaryFile
{
public:
    BinaryFile() = default;
    // Opens an ordinary file at its start. Anything else (a directory, a pipe) is no file here.
    static BinaryFile toRead(WideView path);
    // Creates a file, or empties one that is there. Refused, and nothing emptied, when it is the file behind source.
    static BinaryFile toWrite(WideView path, const BinaryFile& source);

    BinaryFile(BinaryFile&& other) noexcept;
    BinaryFile& operator=(BinaryFile&& other) noexcept;
    ~BinaryFile();

    explicit operator bool() const;
    bool isSameAs(const BinaryFile& other) const;
    // The length in bytes; -1 when it cannot be had.
    std::int64_t size() const;

    // Fills bytes as far as the file goes. Returns the number read, less than asked for at the end; -1 on failure.
    std::int64_t read(std::span<unsigned char> bytes);
    bool write(std::span<const unsigned char> bytes);
    // Copies up to count bytes from the position of source to the position of this file, by the system's own copy where
    // it has one, through spare otherwise. Returns the number copied, less than asked for at the end; -1 on failure.
    std::int64_t copyFrom(BinaryFile& source, std::int64_t count, std::span<unsigned char> spare);
    // False when the system reports, at last, that what was written did not arrive.
    bool close();

private:
    explicit BinaryFile(std::intptr_t value) : handle(value) {}
    std::intptr_t handle = -1;
};

// Copies content, and the modification time of from to both times of to (as far as the system lets it). Permissions are
// those of a new file, or of the one that was there. False for one and the same file, which stays as it is, and on any
// failure; to may then hold a part.
bool copyFile(WideView from, WideView to, std::span<unsigned char> spare);

// Copies what follows the position of one stream to the position of another, in the modes of the streams. Both stand
// behind what was copied. False for one and the same file and when something could not be written.
bool copyRest(std::FILE* to, std::FILE* from, std::span<unsigned char> spare);

// The length of the file behind a stream in bytes, without what waits in the stream's buffer; -1 for what has none.
std::int64_t streamLength(std::FILE* stream);

} // namespace zu::platform
