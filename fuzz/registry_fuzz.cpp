// Registry texts of any content: every key that is listed is there, and nothing is read past the end.
#include "platform/posix/reg_text.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace zu;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void checkBelow(const posix::RegistryText& registry, const WideString& path, int levels)
{
    for (const WideString& name : registry.subKeyNames(path)) {
        WideString below = path;
        below += ZU_W('\\');
        below += name;
        require(!name.empty() && registry.hasKey(below));
        const auto* const value = registry.value(below, ZU_W("DisplayName"));
        require(value == nullptr || value->text.find(zu_wchar(0)) == WideString::npos);
        if (levels > 0)
            checkBelow(registry, below, levels - 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const HookVector<char> copy(data, data + size);
    const posix::RegistryText registry(std::string_view(copy.data(), copy.size()));
    for (const zu_wchar* root : {ZU_W("SOFTWARE"), ZU_W("a")})
        checkBelow(registry, root, 3);
    return 0;
}
