// The version-resource block of a module: fixed information, the languages it speaks, and its tables of texts.
//
//     const VersionBlock block(bytes);
//     block.text({ZU_W("StringFileInfo"), ZU_W("040904B0"), ZU_W("FileVersion")});
//
// The block is a tree of nodes, each with its length, the length of its value, the kind of the value, a key, the value
// and the nodes below it. It comes from a file, so none of its lengths is believed: a node reaches no further than the
// one above it, and what does not fit is not there.
#pragma once

#include "platform/wide.h"

#include <cstdint>
#include <initializer_list>
#include <optional>

namespace zu {

// The fixed information, as it stands in the block.
struct FixedVersionInfo
{
    static constexpr std::uint32_t expectedSignature = 0xFEEF04BD;
    std::uint32_t signature = 0;
    std::uint32_t structureVersion = 0;
    std::uint32_t fileVersionHigh = 0;
    std::uint32_t fileVersionLow = 0;
    std::uint32_t productVersionHigh = 0;
    std::uint32_t productVersionLow = 0;
    std::uint32_t flagsMask = 0;
    std::uint32_t flags = 0;
    std::uint32_t system = 0;
    std::uint32_t type = 0;
    std::uint32_t subtype = 0;
    std::uint32_t dateHigh = 0;
    std::uint32_t dateLow = 0;
};
static_assert(sizeof(FixedVersionInfo) == 52);

struct Translation
{
    std::uint16_t language;
    std::uint16_t codePage;
};

class VersionBlock
{
public:
    // The bytes must live as long as the block.
    explicit VersionBlock(std::string_view blockBytes) : bytes(blockBytes) {}

    // None unless the value of the root has the size of the record. The signature is for the caller to check.
    std::optional<FixedVersionInfo> fixedInfo() const;

    // The table of languages, in its order.
    HookVector<Translation> translations() const;

    // The text under the keys that lead to it from the root, which are compared ignoring case.
    std::optional<WideString> text(std::initializer_list<WideView> path) const;

private:
    struct Node
    {
        std::size_t begin; // of the node, of its value and of what is below it, counted from the start of the block
        std::size_t value;
        std::size_t children;
        std::size_t end;
        std::size_t valueSize; // bytes
    };

    std::optional<Node> nodeAt(std::size_t begin, std::size_t limit) const;
    std::optional<Node> child(const Node& parent, WideView key) const;
    std::optional<Node> find(std::initializer_list<WideView> path) const;
    bool hasKey(const Node& node, WideView key) const;
    std::uint16_t wordAt(std::size_t position) const;

    std::string_view bytes;
};

} // namespace zu
