#include "host/version_block.h"

#include "frame/text.h"

#include <algorithm>
#include <cstring>

namespace zu {
namespace {

// A node begins with three words (its length, the length of its value, 1 when the value is text) and the key.
constexpr std::size_t headerSize = 6;

std::size_t aligned(std::size_t position)
{
    return (position + 3) & ~std::size_t{3};
}

} // namespace

std::uint16_t VersionBlock::wordAt(std::size_t position) const
{
    return static_cast<std::uint16_t>(static_cast<unsigned char>(bytes[position]) |
                                      static_cast<unsigned char>(bytes[position + 1]) << 8);
}

std::optional<VersionBlock::Node> VersionBlock::nodeAt(std::size_t begin, std::size_t limit) const
{
    if (begin > limit || limit - begin < headerSize)
        return std::nullopt;
    const std::size_t length = wordAt(begin);
    if (length < headerSize || length > limit - begin)
        return std::nullopt;
    const std::size_t end = begin + length;
    std::size_t position = begin + headerSize;
    while (position + 2 <= end && wordAt(position) != 0)
        position += 2;
    Node node{begin, std::min(aligned(position + 2), end), end, end, 0};
    const bool isText = wordAt(begin + 4) == 1;
    // Texts are counted in units; some compilers count their bytes, which the end of the node puts right.
    node.valueSize = std::min<std::size_t>(wordAt(begin + 2) * (isText ? 2u : 1u), end - node.value);
    node.children = std::min(aligned(node.value + node.valueSize), end);
    return node;
}

bool VersionBlock::hasKey(const Node& node, WideView key) const
{
    std::size_t position = node.begin + headerSize;
    for (zu_wchar unit : key) {
        if (position + 2 > node.end || text::upper(static_cast<zu_wchar>(wordAt(position))) != text::upper(unit))
            return false;
        position += 2;
    }
    return position + 2 <= node.end && wordAt(position) == 0;
}

std::optional<VersionBlock::Node> VersionBlock::child(const Node& parent, WideView key) const
{
    for (auto node = nodeAt(parent.children, parent.end); node; node = nodeAt(aligned(node->end), parent.end)) {
        if (hasKey(*node, key))
            return node;
    }
    return std::nullopt;
}

std::optional<VersionBlock::Node> VersionBlock::find(std::initializer_list<WideView> path) const
{
    std::optional<Node> node = nodeAt(0, bytes.size());
    for (WideView key : path) {
        if (!node)
            break;
        node = child(*node, key);
    }
    return node;
}

std::optional<FixedVersionInfo> VersionBlock::fixedInfo() const
{
    const auto root = find({});
    FixedVersionInfo info;
    if (!root || root->valueSize != sizeof info)
        return std::nullopt;
    std::memcpy(&info, bytes.data() + root->value, sizeof info);
    return info;
}

HookVector<Translation> VersionBlock::translations() const
{
    HookVector<Translation> table;
    const auto node = find({ZU_W("VarFileInfo"), ZU_W("Translation")});
    for (std::size_t offset = 0; node && offset + 4 <= node->valueSize; offset += 4)
        table.push_back({wordAt(node->value + offset), wordAt(node->value + offset + 2)});
    return table;
}

std::optional<WideString> VersionBlock::text(std::initializer_list<WideView> path) const
{
    const auto node = find(path);
    if (!node)
        return std::nullopt;
    WideString result;
    for (std::size_t offset = 0; offset + 2 <= node->valueSize; offset += 2) {
        const std::uint16_t unit = wordAt(node->value + offset);
        if (unit == 0)
            break;
        result += static_cast<zu_wchar>(unit);
    }
    return result;
}

} // namespace zu
