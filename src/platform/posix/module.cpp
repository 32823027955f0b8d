// Modules are the shared objects of the process. A version-resource block is an ELF note of the module
// (version_note.h).
#include "platform/module.h"

#include "platform/posix/path.h"
#include "platform/posix/version_note.h"
#include "platform/utf8.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <exception>
#include <link.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zu::platform {
namespace {

std::string_view baseName(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

bool equalIgnoringCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && ::strncasecmp(a.data(), b.data(), a.size()) == 0;
}

ByteString programFile()
{
    char path[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
    return ByteString(path, length < 0 ? 0 : static_cast<std::size_t>(length));
}

// A name by which a caller asks for a module: "zu", "zu.dll", "libzu.so" or a path.
class ModuleName
{
public:
    explicit ModuleName(WideView name)
    {
        const bool hasDirectory = posix::hasDrive(name) || std::ranges::any_of(name, posix::isSeparator);
        if (hasDirectory) {
            path = posix::nativePath(name).value_or(ByteString());
            return;
        }
        file = utf8::encode(name);
        // The name that it has on Windows.
        for (std::string_view extension : {".dll", ".exe"}) {
            const std::size_t stem = file.size() - std::min(file.size(), extension.size());
            if (stem > 0 && equalIgnoringCase(std::string_view(file).substr(stem), extension))
                file.resize(stem);
        }
    }

    bool matches(const ByteString& module) const
    {
        if (!path.empty())
            return isSameFile(module);
        const std::string_view name = baseName(module);
        if (file.empty() || equalIgnoringCase(name, file))
            return !file.empty();
        // "lib" before the name and ".so", a version too, behind it.
        const std::size_t suffix = name.find(".so");
        if (suffix == std::string_view::npos || (name.size() > suffix + 3 && name[suffix + 3] != '.'))
            return false;
        const std::string_view stem = name.substr(0, suffix);
        return equalIgnoringCase(stem, file) || (stem.starts_with("lib") && equalIgnoringCase(stem.substr(3), file));
    }

private:
    bool isSameFile(const ByteString& module) const
    {
        struct stat wanted, status;
        return ::stat(path.c_str(), &wanted) == 0 && ::stat(module.c_str(), &status) == 0 &&
               wanted.st_dev == status.st_dev && wanted.st_ino == status.st_ino;
    }

    ByteString path;
    ByteString file;
};

// The content of the version note among the notes of a segment; empty when it has none. Notes of other makers are as
// they are, so nothing in them is believed.
std::string_view versionNote(std::string_view notes, std::size_t alignment)
{
    constexpr std::string_view wantedName(posix::versionNoteName, sizeof posix::versionNoteName);
    const auto aligned = [&](std::size_t position) {
        return (position + alignment - 1) & ~(alignment - 1);
    };
    ElfW(Nhdr) header;
    while (notes.size() >= sizeof header) {
        std::memcpy(&header, notes.data(), sizeof header);
        const std::size_t start = aligned(sizeof header + header.n_namesz);
        if (start > notes.size() || header.n_descsz > notes.size() - start)
            break;
        if (header.n_type == posix::versionNoteType && notes.substr(sizeof header, header.n_namesz) == wantedName)
            return notes.substr(start, header.n_descsz);
        notes.remove_prefix(std::min(aligned(start + header.n_descsz), notes.size()));
    }
    return {};
}

ByteString versionBlock(const dl_phdr_info& module)
{
    for (std::size_t index = 0; index < module.dlpi_phnum; ++index) {
        const ElfW(Phdr)& segment = module.dlpi_phdr[index];
        if (segment.p_type != PT_NOTE)
            continue;
        const auto* const start = reinterpret_cast<const char*>(module.dlpi_addr + segment.p_vaddr);
        const std::string_view block =
            versionNote(std::string_view(start, segment.p_memsz), segment.p_align == 8 ? 8 : 4);
        if (!block.empty())
            return ByteString(block);
    }
    return ByteString();
}

struct Search
{
    const ModuleName& name;
    ByteString file{}; // of the module found
    ByteString block{};
    std::exception_ptr error{};

    // The loader calls this for every module; nothing may be thrown through it.
    static int visit(dl_phdr_info* module, std::size_t, void* context) noexcept
    {
        auto& search = *static_cast<Search*>(context);
        try {
            // The program itself has no name here. It comes first, and a library of the same name goes before it.
            const bool isProgram = module->dlpi_name[0] == '\0';
            ByteString file = isProgram ? programFile() : ByteString(module->dlpi_name);
            if (!search.name.matches(file))
                return 0;
            search.block = versionBlock(*module);
            search.file = std::move(file);
            return isProgram ? 0 : 1;
        } catch (...) {
            search.error = std::current_exception();
            return 1;
        }
    }
};

Search findModule(const ModuleName& name)
{
    Search search{name};
    ::dl_iterate_phdr(Search::visit, &search);
    if (search.error)
        std::rethrow_exception(search.error);
    return search;
}

} // namespace

std::optional<ModuleVersion> moduleVersion(WideView name)
{
    const ModuleName wanted(name);
    Search found = findModule(wanted);
    if (found.file.empty())
        return std::nullopt;
    char resolved[PATH_MAX];
    const char* const file = ::realpath(found.file.c_str(), resolved);
    return ModuleVersion{posix::withDrive(file == nullptr ? std::string_view(found.file) : file),
                         std::move(found.block)};
}

void* loadedModule(WideView name)
{
    const ModuleName wanted(name);
    const Search found = findModule(wanted);
    if (found.file.empty())
        return nullptr;
    void* const module = ::dlopen(found.file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    // Only whoever loaded it keeps it loaded.
    if (module != nullptr)
        ::dlclose(module);
    return module;
}

void* loadModule(WideView name)
{
    if (posix::hasDrive(name) || std::ranges::any_of(name, posix::isSeparator)) {
        const auto native = posix::nativePath(name);
        return native ? ::dlopen(native->c_str(), RTLD_NOW | RTLD_LOCAL) : nullptr;
    }
    void* const library = ::dlopen(utf8::encode(libraryFileName(name)).c_str(), RTLD_NOW | RTLD_LOCAL);
    return library != nullptr ? library : ::dlopen(utf8::encode(name).c_str(), RTLD_NOW | RTLD_LOCAL);
}

void* entryPoint(void* module, const char* name)
{
    return ::dlsym(module, name);
}

WideString libraryFileName(WideView name)
{
    WideString file = ZU_W("lib");
    file += name;
    file += ZU_W(".so");
    return file;
}

bool isOnSearchPath(WideView name, WideView extension)
{
    const ByteString file = utf8::encode(WideString(name) + WideString(extension));
    const auto isIn = [&](std::string_view directory) {
        ByteString path(directory.empty() ? "." : directory);
        path += '/';
        path += file;
        return ::access(path.c_str(), F_OK) == 0;
    };
    const ByteString program = programFile();
    const char* const variable = std::getenv("PATH");
    std::string_view directories = variable == nullptr ? "" : variable;
    bool isFound = isIn(std::string_view(program).substr(0, program.rfind('/'))) || isIn(".");
    while (!isFound && !directories.empty()) {
        const std::size_t end = std::min(directories.find(':'), directories.size());
        isFound = isIn(directories.substr(0, end));
        directories.remove_prefix(std::min(end + 1, directories.size()));
    }
    return isFound;
}

} // namespace zu::platform
