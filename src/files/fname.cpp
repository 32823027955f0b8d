#include "zu_Fname.h"

#include "frame/format.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/files.h"

#include <cstdlib>
#include <ctime>

namespace {

using namespace zu;

constexpr zu_wchar backslash = ZU_W('\\');
constexpr zu_wchar dot = ZU_W('.');
constexpr std::size_t resultSize = 512;

// Where the extension starts, at its dot; the length of the name when there is none. A colon does not end the search.
std::size_t extensionOf(WideView name)
{
    const std::size_t found = name.find_last_of(ZU_W("\\."));
    return found != WideView::npos && name[found] == dot ? found : name.size();
}

// The length of the directory part.
std::size_t directoryLength(WideView name)
{
    return name.find_last_of(ZU_W("\\:")) + 1; // none gives 0
}

int32_t copyOut(zu_wchar* out, WideView text)
{
    return out == nullptr ? 0 : static_cast<int32_t>(text::copyCut(out, text.size(), text));
}

// Puts text at the end of a name that is being built; returns the new end.
zu_wchar* put(zu_wchar* end, WideView text)
{
    return end + text::copyCut(end, text.size(), text);
}

void putExtension(zu_wchar* at, const zu_wchar* extension)
{
    *at = dot;
    put(at + 1, extension);
}

} // namespace

void zu_Fname_fixDir(zu_wchar* name)
{
    const WideView written = text::view(name);
    if (!written.empty() && written.back() != backslash)
        put(name + written.size(), ZU_W("\\"));
}

int32_t zu_Fname_addExt(zu_wchar* name, const zu_wchar* extension)
{
    if (name != nullptr && extension != nullptr)
        putExtension(name + extensionOf(name), extension);
    return 0;
}

int32_t zu_Fname_modExt(zu_wchar* name, const zu_wchar* extension, int32_t replace)
{
    if (name == nullptr)
        return 0;
    zu_wchar* const old = name + extensionOf(name);
    if (*old != 0 && replace == 0)
        return 1;
    if (extension != nullptr && *extension != 0)
        putExtension(old, extension);
    else
        *old = 0;
    return 1;
}

int32_t zu_Fname_extractPath(const zu_wchar* name, zu_wchar* out)
{
    const WideView written = text::view(name);
    return copyOut(out, written.substr(0, directoryLength(written)));
}

int32_t zu_Fname_extractExt(const zu_wchar* name, zu_wchar* out)
{
    WideView written = text::view(name);
    written.remove_prefix(extensionOf(written));
    return copyOut(out, written.empty() ? written : written.substr(1));
}

int32_t zu_Fname_rmvPath(zu_wchar* name)
{
    const WideView written = text::view(name);
    copyOut(name, written.substr(directoryLength(written)));
    return 0;
}

int32_t zu_Fname_rmvExt(zu_wchar* name)
{
    const WideView written = text::view(name);
    const std::size_t found = written.find_last_of(ZU_W("\\:."));
    // Also a dot in front of everything: a name like ".profile" becomes empty, which is required.
    if (found != WideView::npos && written[found] == dot)
        name[found] = 0;
    return 0;
}

void zu_Fname_build(zu_wchar* out, const zu_wchar* drive, const zu_wchar* directory, const zu_wchar* name,
                    const zu_wchar* extension)
{
    if (out == nullptr)
        return;
    zu_wchar* end = put(out, text::view(drive));
    if (end != out)
        end = put(end, ZU_W(":")); // even behind a drive that has its colon: callers pass it without
    const WideView directoryPart = text::view(directory);
    end = put(end, directoryPart);
    if (!directoryPart.empty() && directoryPart.back() != backslash)
        end = put(end, ZU_W("\\"));
    end = put(end, text::view(name));
    const WideView extensionPart = text::view(extension);
    if (!extensionPart.empty() && extensionPart.front() != dot)
        end = put(end, ZU_W("."));
    put(end, extensionPart);
}

zu_wchar* zu_Fname_fullPath(const zu_wchar* name)
{
    static text::Buffer<resultSize> result;
    const bool resolved = name != nullptr && guarded(false, [&] {
                              const auto full = platform::fullPath(name);
                              if (!full || full->size() > resultSize)
                                  return false;
                              result.set(*full);
                              return true;
                          });
    return resolved ? result.units : result.set(text::view(name));
}

zu_wchar* zu_Fname_createTemp()
{
    static text::Buffer<resultSize> result;
    static bool seeded = false;
    if (!seeded)
        std::srand(static_cast<unsigned>(std::time(nullptr)));
    seeded = true;
    constexpr int names = 32767;
    formatInto(result.units, ZU_W("zu_%05d"), std::rand() % names);
    return result.units;
}
