// What a port must supply of the file system. Paths are wide, in the form that callers of the library write them: drive
// letters and backslashes on every system (the port for systems without drives translates them here and nowhere else).
#pragma once

#include "platform/wide.h"

#include <cstdint>
#include <cstdio>
#include <optional>
#include <span>

namespace zu::platform {

// Access tests -------------------------------------------------------------------------------------------------------

enum class Access
{
    exists = 0,
    write = 2,
    read = 4,
    readWrite = 6
};

// The runtime's access test; directories count as existing.
bool hasAccess(WideView path, Access wanted);
// Whether a file, or a directory, is there.
bool isFile(WideView path);
bool isDirectory(WideView path);

// The absolute form of a path; none when it cannot be had.
std::optional<WideString> fullPath(WideView path);

// Streams and text ---------------------------------------------------------------------------------------------------

// A stream of the runtime, modes as for fopen. Null when it cannot be opened; a directory never can.
std::FILE* openFile(WideView path, const char* mode);

// Reads the next character of a text stream into units: one, two for a surrogate pair, up to four for bytes that are no
// character. Returns their number, 0 at the end. What bytes beyond ASCII mean is the matter of the system's text mode.
constexpr std::size_t longestCharacter = 4;
std::size_t readCharacter(std::FILE* stream, zu_wchar (&units)[longestCharacter]);
// Reads the rest of a line of a text stream into out, without its line feed but terminated. What exceeds out is
// skipped. False when the stream ended, or failed, before any unit. out must not be empty.
bool readLine(std::FILE* stream, std::span<zu_wchar> out);
// Steps over a byte order mark at the front of a freshly opened text stream, which says that its bytes are UTF-8.
void skipByteOrderMark(std::FILE* stream);

// The same text mode for bytes in memory. Encoding fails where the text mode cannot express a unit.
WideString decodeText(std::string_view bytes);
bool encodeText(ByteString& out, WideView text);
// What the text mode writes for a line feed.
std::string_view lineEnd();

// Whole files --------------------------------------------------------------------------------------------------------

// The content of a file; none when it cannot be read.
std::optional<ByteString> readContent(WideView path);

// Replaces the content of a file in one step: what a reader or a crash finds is the old file or the new one. The file
// is created when it is missing; permissions stay; a link stays a link. False, and the old file as it was, on any
// failure.
bool replaceContent(WideView path, std::string_view content);

// Renames a file over an existing one, across volumes too. False, and both as they were, on failure.
bool replaceFile(WideView from, WideView to);

// Gives a file the permissions, and where possible the owner, of another; nothing when either is missing.
void copyPermissions(WideView from, WideView to);

bool removeFile(WideView path);
bool makeDirectory(WideView path);

// Marks a file as read-only, or as writable by its owner.
bool setWritable(WideView path, bool writable);

// The time of the last change, in seconds since 1970; none when it cannot be had.
std::optional<std::int64_t> modificationTime(WideView path);
// Sets it, and the time of the last access as well.
bool setModificationTime(WideView path, std::int64_t seconds);

// When a file was changed and how long it is: enough to see that it is another one than before.
struct FileStamp
{
    std::int64_t modified = 0;
    std::int64_t size = 0;
    std::uint64_t identity = 0;
    // Whether the change lies so far back that a later one shows in the stamp: file systems count time in steps, and a
    // second change within the same step, to a content of the same length, leaves the stamp as it was.
    bool settled = false;
    bool operator==(const FileStamp& other) const
    {
        return modified == other.modified && size == other.size && identity == other.identity;
    }
};
std::optional<FileStamp> fileStamp(WideView path);

// Excludes other processes (and other holders in this one) that lock a file of the same directory. Waits for them.
class DirectoryLock
{
public:
    explicit DirectoryLock(WideView pathOfFile);
    ~DirectoryLock();
    DirectoryLock(const DirectoryLock&) = delete;
    DirectoryLock& operator=(const DirectoryLock&) = delete;
    bool held() const;

private:
    std::intptr_t handle;
};

} // namespace zu::platform
