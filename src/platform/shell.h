// What a port must supply of the user's shell.
#pragma once

#include "platform/wide.h"

#include <cstdint>

namespace zu::platform {

// Opens a file in the system's text editor, or by the shell's choice of program. More than 32 when that was set going,
// else an error code of the shell.
std::intptr_t openInEditor(WideView file);
std::intptr_t openFile(WideView file);

struct Shortcut
{
    WideView target;
    WideView description;
    WideView arguments;
    WideView directory; // the working directory
};

// The shell's maker of shortcut files. It tells whether there is one: some systems have no such thing, and the others
// need COM on the calling thread.
class ShortcutMaker
{
public:
    ShortcutMaker();
    ~ShortcutMaker();
    ShortcutMaker(const ShortcutMaker&) = delete;
    ShortcutMaker& operator=(const ShortcutMaker&) = delete;

    explicit operator bool() const { return link != nullptr; }
    bool save(const Shortcut& shortcut, WideView file) const;

private:
    void* link;
};

} // namespace zu::platform
