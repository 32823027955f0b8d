#include "host/modules.h"

#if defined(_WIN32)
#    include <windows.h>
#else
#    include <dlfcn.h>
#endif

namespace fs = std::filesystem;

namespace zutest {

#if defined(_WIN32)

fs::path programDirectory()
{
    wchar_t file[1024];
    ::GetModuleFileNameW(nullptr, file, 1024);
    return fs::path(file).parent_path();
}

LoadedModule::LoadedModule(const char* name) : LoadedModule(programDirectory() / (std::string(name) + ".dll")) {}

LoadedModule::LoadedModule(fs::path moduleFile) : file(std::move(moduleFile)), handle(::LoadLibraryW(file.c_str()))
{
    EXPECT_NE(handle, nullptr) << file;
}

LoadedModule::~LoadedModule()
{
    ::FreeLibrary(static_cast<HMODULE>(handle));
}

Wide LoadedModule::path() const
{
    return file.wstring();
}

#else

fs::path programDirectory()
{
    return fs::read_symlink("/proc/self/exe").parent_path();
}

LoadedModule::LoadedModule(const char* name) : LoadedModule(programDirectory() / ("lib" + std::string(name) + ".so")) {}

LoadedModule::LoadedModule(fs::path moduleFile) : file(std::move(moduleFile)), handle(::dlopen(file.c_str(), RTLD_NOW))
{
    EXPECT_NE(handle, nullptr) << file;
}

LoadedModule::~LoadedModule()
{
    if (handle != nullptr)
        ::dlclose(handle);
}

Wide LoadedModule::path() const
{
    return W("C:") + file.u16string();
}

#endif

} // namespace zutest
