// Version-resource blocks of any content: nothing is read that is not in the block.
#include "host/file_version_info.h"

#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using namespace zu;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // A copy of exactly this size, so that reading past its end is seen.
    const std::unique_ptr<char[]> copy(new char[size]);
    if (size != 0)
        std::memcpy(copy.get(), data, size);
    const std::string_view bytes(copy.get(), size);
    const VersionBlock block(bytes);

    require(!block.fixedInfo() || size >= sizeof(FixedVersionInfo));
    const HookVector<Translation> table = block.translations();
    require(table.size() * sizeof(Translation) <= size);
    CFileVersionInfo info;
    for (std::uint16_t language : {std::uint16_t{0x0409}, std::uint16_t{0x0407}, std::uint16_t{0}}) {
        require(info.load(bytes, language) == !table.empty());
        for (std::size_t which = 0; which < static_cast<std::size_t>(CFileVersionInfo::Text::count); ++which) {
            const WideString& text = info.text(static_cast<CFileVersionInfo::Text>(which));
            require(text.size() * sizeof(zu_wchar) <= size && text.find(zu_wchar(0)) == WideString::npos);
        }
    }
    return 0;
}
