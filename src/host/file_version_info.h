// The version information of a module in one language.
#pragma once

#include "host/version_block.h"

#include <array>
#include <span>

namespace zu {

class CFileVersionInfo
{
public:
    enum class Text : std::size_t
    {
        companyName,
        fileDescription,
        fileVersion,
        internalName,
        legalCopyright,
        originalFileName,
        productName,
        productVersion,
        comments,
        legalTrademarks,
        privateBuild,
        specialBuild,
        count
    };

    virtual ~CFileVersionInfo() = default;

    // Reads a block in the language that suits a user best. False, and everything empty, when the block has no table of
    // languages.
    bool load(std::string_view block, std::uint16_t userLanguage);

    // All zero when the block has none.
    const FixedVersionInfo& fixedInfo() const { return fixed; }
    // Empty when the block lacks it.
    const WideString& text(Text which) const { return texts[static_cast<std::size_t>(which)]; }

private:
    FixedVersionInfo fixed;
    std::array<WideString, static_cast<std::size_t>(Text::count)> texts;
};

// The entry of a table, which must not be empty, that suits a user best: the user's language, then its primary
// language, then a neutral one, then English, then whatever comes first.
Translation chooseTranslation(std::span<const Translation> table, std::uint16_t userLanguage);

} // namespace zu
