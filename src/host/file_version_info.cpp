#include "host/file_version_info.h"

#include "frame/format.h"

#include <algorithm>

namespace zu {
namespace {

constexpr std::uint16_t neutral = 0;
constexpr std::uint16_t english = 9;

// In the order of the enumeration.
constexpr WideView keys[] = {ZU_W("CompanyName"),     ZU_W("FileDescription"), ZU_W("FileVersion"),
                             ZU_W("InternalName"),    ZU_W("LegalCopyright"),  ZU_W("OriginalFileName"),
                             ZU_W("ProductName"),     ZU_W("ProductVersion"),  ZU_W("Comments"),
                             ZU_W("LegalTrademarks"), ZU_W("PrivateBuild"),    ZU_W("SpecialBuild")};
static_assert(std::size(keys) == static_cast<std::size_t>(CFileVersionInfo::Text::count));

const Translation* exactly(std::span<const Translation> table, std::uint16_t language)
{
    const auto found = std::ranges::find(table, language, &Translation::language);
    return found == table.end() ? nullptr : &*found;
}

// The language, or the first entry of the same primary language.
const Translation* roughly(std::span<const Translation> table, std::uint16_t language)
{
    if (const Translation* const exact = exactly(table, language))
        return exact;
    const auto found = std::ranges::find_if(
        table, [&](const Translation& entry) { return (entry.language & 0xFF) == (language & 0xFF); });
    return found == table.end() ? nullptr : &*found;
}

} // namespace

Translation chooseTranslation(std::span<const Translation> table, std::uint16_t userLanguage)
{
    for (std::uint16_t language : {userLanguage, neutral, english}) {
        if (const Translation* const entry = roughly(table, language))
            return *entry;
    }
    return table.front();
}

bool CFileVersionInfo::load(std::string_view bytes, std::uint16_t userLanguage)
{
    *this = CFileVersionInfo();
    const VersionBlock block(bytes);
    fixed = block.fixedInfo().value_or(FixedVersionInfo());
    const HookVector<Translation> table = block.translations();
    if (table.empty())
        return false;
    const Translation chosen = chooseTranslation(table, userLanguage);
    const WideString tableName = formatted(ZU_W("%04X%04X"), chosen.language, chosen.codePage);
    for (std::size_t index = 0; index < std::size(keys); ++index)
        texts[index] = block.text({ZU_W("StringFileInfo"), tableName, keys[index]}).value_or(WideString());
    return true;
}

} // namespace zu
