#include "platform/module.h"

#include "platform/windows/handle.h"

#include <windows.h>

namespace zu::platform {
namespace {

using windows::isUsable;

WideString fileOf(HMODULE module)
{
    // No path of the system is longer.
    constexpr DWORD longest = 32768;
    WideString file;
    for (DWORD size = MAX_PATH; size <= longest; size *= 2) {
        file.resize(size);
        const DWORD length = ::GetModuleFileNameW(module, file.data(), size);
        if (length < size) {
            file.resize(length);
            return file;
        }
    }
    return WideString();
}

ByteString versionBlock(const WideString& file)
{
    DWORD ignored = 0;
    const DWORD size = ::GetFileVersionInfoSizeW(file.c_str(), &ignored);
    ByteString block(size, '\0');
    if (size == 0 || !::GetFileVersionInfoW(file.c_str(), 0, size, block.data()))
        block.clear();
    return block;
}

// While it lives, a library that is no library is reported by its result, not by a box of the system's own.
class QuietErrors
{
public:
    QuietErrors() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &previous); }
    ~QuietErrors() { ::SetThreadErrorMode(previous, nullptr); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    DWORD previous = 0;
};

} // namespace

void* loadedModule(WideView name)
{
    return isUsable(name) ? ::GetModuleHandleW(WideString(name).c_str()) : nullptr;
}

std::optional<ModuleVersion> moduleVersion(WideView name)
{
    void* const module = loadedModule(name);
    if (module == nullptr)
        return std::nullopt;
    WideString file = fileOf(static_cast<HMODULE>(module));
    ByteString block = versionBlock(file);
    return ModuleVersion{std::move(file), std::move(block)};
}

void* loadModule(WideView name)
{
    if (!isUsable(name))
        return nullptr;
    const WideString terminated(name);
    const QuietErrors quiet;
    return ::LoadLibraryW(terminated.c_str());
}

void* entryPoint(void* module, const char* name)
{
    return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(module), name));
}

WideString libraryFileName(WideView name)
{
    WideString file(name);
    file += L".dll";
    return file;
}

bool isOnSearchPath(WideView name, WideView extension)
{
    wchar_t found[513];
    return ::SearchPathW(nullptr, WideString(name).c_str(), WideString(extension).c_str(),
                         static_cast<DWORD>(std::size(found)), found, nullptr) != 0;
}

} // namespace zu::platform
