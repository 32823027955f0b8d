#include "frame/format.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "host/file_version_info.h"
#include "platform/module.h"
#include "platform/os.h"
#include "zu_Global.h"
#include "zu_Sys.h"

using namespace zu;

namespace {

// Longer file names are cut by the system's calls that these limits come from, so nothing is found under them.
constexpr std::size_t longestFileForNumber = 512;
constexpr std::size_t longestFileForTexts = 260;

WideString versionNumber(WideView module)
{
    const auto version = platform::moduleVersion(module);
    if (!version || version->file.size() > longestFileForNumber)
        return WideString();
    const auto info = VersionBlock(version->block).fixedInfo();
    if (!info || info->signature != FixedVersionInfo::expectedSignature)
        return WideString();
    const auto part = [](std::uint32_t half, int shift) {
        return static_cast<std::int16_t>(half >> shift & 0xFFFF);
    };
    return formatted(ZU_W("%02hd.%02hd.%02hd.%02hd"), part(info->productVersionHigh, 16),
                     part(info->productVersionHigh, 0), part(info->productVersionLow, 16),
                     part(info->productVersionLow, 0));
}

// A version text of a module as dotted numbers: "8, 11, 9, 245" is 8.11.9.245.
WideString versionText(WideView module, CFileVersionInfo::Text which)
{
    const auto version = platform::moduleVersion(module);
    CFileVersionInfo info;
    if (!version || version->file.size() > longestFileForTexts || !info.load(version->block, platform::userLanguage()))
        return WideString();
    WideString dotted;
    for (zu_wchar unit : info.text(which)) {
        if (unit != ZU_W(' '))
            dotted += unit == ZU_W(',') ? ZU_W('.') : unit;
    }
    return dotted;
}

// The body of both operations for texts, which differ in their buffer and their text.
zu_wchar* publish(text::Buffer<ZU_GLOBAL_VERSION_SIZE>& result, const zu_wchar* module, CFileVersionInfo::Text which)
{
    result.clear();
    return guarded(result.units,
                   [&] { return module == nullptr ? result.units : result.set(versionText(module, which)); });
}

} // namespace

zu_wchar* zu_Sys_getVersionNumber(const zu_wchar* module)
{
    static text::Buffer<64> result;
    result.clear();
    if (module == nullptr)
        return nullptr;
    guarded([&] { result.set(versionNumber(module)); });
    return result.view().empty() ? nullptr : result.units;
}

zu_wchar* zu_Global_getModuleFileVersion(const zu_wchar* module)
{
    static text::Buffer<ZU_GLOBAL_VERSION_SIZE> result;
    return publish(result, module, CFileVersionInfo::Text::fileVersion);
}

zu_wchar* zu_Global_getModuleProductVersion(const zu_wchar* module)
{
    static text::Buffer<ZU_GLOBAL_VERSION_SIZE> result;
    return publish(result, module, CFileVersionInfo::Text::productVersion);
}
