// What a port must supply of directories and drives. Paths as in files.h.
#pragma once

#include "platform/wide.h"

#include <optional>

namespace zu::platform {

// The entries that a pattern stands for: "*" and "?" in its last component, as on Windows and ignoring case.
struct Matches
{
    // What of the pattern goes in front of a name to give the path of the entry.
    WideString directory;
    // In the order of the system; for every directory "." and ".." are among its entries.
    HookVector<WideString> names;
};
Matches matchingEntries(WideView pattern);

// Whether the path names a link (or a junction) itself, whatever it leads to.
bool isLink(WideView path);

// Removes an empty directory.
bool removeDirectory(WideView path);

bool changeDirectory(WideView path);
// Makes the drive of a letter (A is 1) the current one, at the directory that is current on it; nothing when there is
// no such drive.
void changeDrive(std::int32_t number);

// The name under which the network knows a drive ("D:"): "\\server\share". None for a drive that is no such thing.
std::optional<WideString> remoteName(WideView drive);

} // namespace zu::platform
