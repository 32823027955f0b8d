#include "frame/guard.h"
#include "frame/text.h"
#include "platform/registry.h"
#include "zu_Sys.h"

using namespace zu;

namespace {

constexpr WideView uninstallKey = ZU_W("Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
constexpr std::size_t longestValue = 256; // bytes

// Separates the build number: "8.11.09245" is 8.11.09.245, and the leading zero of 8.11.09045 gives way to the dot.
WideString withBuildSeparated(WideString version)
{
    constexpr std::size_t buildDigits = 3;
    if (version.size() < buildDigits)
        return version;
    const std::size_t build = version.size() - buildDigits;
    if (version[build] == ZU_W('0'))
        version[build] = ZU_W('.');
    else
        version.insert(build, 1, ZU_W('.'));
    return version;
}

// Looks through what is installed for a product.
class ProductSearch
{
public:
    explicit ProductSearch(WideView displayName) : name(displayName), name64(displayName) { name64 += ZU_W(" - X64"); }

    bool isOver() const { return hasExactMatch; }
    const WideString& version() const { return found; }

    void visit(const platform::RegistryKey& key)
    {
        const auto displayName = key.text(ZU_W("DisplayName"), longestValue);
        if (!displayName || !qualifies(*displayName))
            return;
        hasExactMatch = text::equalIgnoringCase(*displayName, name);
        has64BitMatch = has64BitMatch || text::equalIgnoringCase(*displayName, name64);
        // A later one that qualifies replaces an earlier one, but not when it has no version.
        if (auto displayVersion = key.text(ZU_W("DisplayVersion"), longestValue))
            found = withBuildSeparated(std::move(*displayVersion));
    }

private:
    bool qualifies(WideView displayName) const
    {
        const WideView wanted = has64BitMatch ? displayName : displayName.substr(0, name.size());
        return text::equalIgnoringCase(wanted, name);
    }

    WideString name;
    WideString name64;
    WideString found;
    bool hasExactMatch = false;
    bool has64BitMatch = false;
};

std::optional<WideString> productVersion(WideView displayName)
{
    const auto products = platform::RegistryKey::open(uninstallKey);
    if (!products)
        return std::nullopt;
    ProductSearch search(displayName);
    for (const WideString& name : products->subKeyNames()) {
        if (const auto product = products->subKey(name))
            search.visit(*product);
        if (search.isOver())
            break;
    }
    return search.version();
}

} // namespace

zu_wchar* zu_Sys_getProductVersion(const zu_wchar* displayName)
{
    static text::Buffer<longestValue> result;
    result.clear();
    if (displayName == nullptr)
        return nullptr;
    return guarded<zu_wchar*>(nullptr, [&]() -> zu_wchar* {
        const auto version = productVersion(displayName);
        return version ? result.set(*version) : nullptr;
    });
}
