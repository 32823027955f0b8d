// Windows types that release themselves, and terminated copies for the system's calls.
#pragma once

#include "platform/wide.h"

#include <utility>
#include <windows.h>

namespace zu::windows {

class Handle
{
public:
    explicit Handle(HANDLE value = INVALID_HANDLE_VALUE) : handle(value) {}
    ~Handle() { close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    explicit operator bool() const { return handle != INVALID_HANDLE_VALUE && handle != nullptr; }
    HANDLE get() const { return handle; }
    void close()
    {
        if (*this)
            ::CloseHandle(std::exchange(handle, INVALID_HANDLE_VALUE));
    }

private:
    HANDLE handle;
};

// The system's calls end a path at its first zero; a path that holds one names nothing.
inline bool isUsable(WideView path)
{
    return !path.empty() && path.find(zu_wchar(0)) == WideView::npos;
}

inline bool isReadOnly(WideView path)
{
    const DWORD attributes = ::GetFileAttributesW(WideString(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
           (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

} // namespace zu::windows
