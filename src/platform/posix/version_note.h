// A version-resource block as a note of a shared object, made when the module is compiled:
//
//     constexpr VersionData data{.file = {8, 11, 9, 245}, .product = {8, 11, 0, 0}, .tables = tables};
//     ZU_VERSION_NOTE(data);
//
// The block has the layout of the resource of the same purpose on Windows, so one reader serves both.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace zu::posix {

inline constexpr char versionNoteName[] = "zu.version";
inline constexpr std::uint32_t versionNoteType = 1;

struct VersionText
{
    std::u16string_view key;
    std::u16string_view value;
};

// The texts in one language.
struct VersionTable
{
    std::uint16_t language;
    std::uint16_t codePage;
    std::span<const VersionText> texts;
};

struct VersionData
{
    std::array<std::uint16_t, 4> file;
    std::array<std::uint16_t, 4> product;
    std::span<const VersionTable> tables;
};

// Writes a block into an array, or only measures it when the array is empty.
class VersionBlockWriter
{
public:
    constexpr explicit VersionBlockWriter(std::span<unsigned char> bytes) : out(bytes) {}

    // Returns the size of the block.
    constexpr std::size_t write(const VersionData& data)
    {
        const std::size_t root = open(u"VS_VERSION_INFO", 52, false);
        writeFixed(data);
        const std::size_t strings = open(u"StringFileInfo", 0, true);
        for (const VersionTable& table : data.tables)
            writeTable(table);
        close(strings);
        const std::size_t variables = open(u"VarFileInfo", 0, true);
        const std::size_t translation = open(u"Translation", data.tables.size() * 4, false);
        for (const VersionTable& table : data.tables) {
            put16(table.language);
            put16(table.codePage);
        }
        close(translation);
        close(variables);
        close(root);
        return position;
    }

private:
    constexpr void writeFixed(const VersionData& data)
    {
        put32(0xFEEF04BD);
        put32(0x00010000);
        for (const auto& version : {data.file, data.product}) {
            for (std::size_t half = 0; half < 4; half += 2)
                put32(static_cast<std::uint32_t>(version[half]) << 16 | version[half + 1]);
        }
        put32(0x3F);
        put32(0);
        put32(0); // no system that the resource has a number for
        put32(2); // a library
        for (int rest = 0; rest < 3; ++rest)
            put32(0);
    }

    constexpr void writeTable(const VersionTable& table)
    {
        char16_t name[8] = {};
        for (std::size_t digit = 0; digit < 8; ++digit) {
            const std::uint16_t half = digit < 4 ? table.language : table.codePage;
            name[digit] = u"0123456789ABCDEF"[half >> (12 - digit % 4 * 4) & 0xF];
        }
        const std::size_t node = open(std::u16string_view(name, 8), 0, true);
        for (const VersionText& text : table.texts) {
            const std::size_t leaf = open(text.key, text.value.size() + 1, true);
            putText(text.value);
            close(leaf);
        }
        close(node);
    }

    // Begins a node; its length is filled in when it is closed.
    constexpr std::size_t open(std::u16string_view key, std::size_t valueLength, bool isText)
    {
        align();
        const std::size_t node = position;
        put16(0);
        put16(static_cast<std::uint16_t>(valueLength));
        put16(isText);
        putText(key);
        align();
        return node;
    }

    constexpr void close(std::size_t node)
    {
        const std::size_t end = position;
        position = node;
        put16(static_cast<std::uint16_t>(end - node));
        position = end;
    }

    constexpr void align()
    {
        while (position % 4 != 0)
            put(0);
    }

    constexpr void putText(std::u16string_view text)
    {
        for (char16_t unit : text)
            put16(unit);
        put16(0);
    }

    constexpr void put32(std::uint32_t value)
    {
        put16(static_cast<std::uint16_t>(value & 0xFFFF));
        put16(static_cast<std::uint16_t>(value >> 16));
    }

    constexpr void put16(std::uint16_t value)
    {
        put(static_cast<unsigned char>(value & 0xFF));
        put(static_cast<unsigned char>(value >> 8));
    }

    constexpr void put(unsigned char byte)
    {
        if (position < out.size())
            out[position] = byte;
        ++position;
    }

    std::span<unsigned char> out;
    std::size_t position = 0;
};

template <std::size_t Size>
struct VersionNote
{
    std::uint32_t nameSize = sizeof versionNoteName;
    std::uint32_t contentSize = Size;
    std::uint32_t type = versionNoteType;
    char name[(sizeof versionNoteName + 3) / 4 * 4] = {};
    unsigned char content[(Size + 3) / 4 * 4] = {};
};

template <const VersionData& Data>
consteval auto makeVersionNote()
{
    VersionNote<VersionBlockWriter({}).write(Data)> note;
    for (std::size_t index = 0; index < sizeof versionNoteName; ++index)
        note.name[index] = versionNoteName[index];
    VersionBlockWriter(note.content).write(Data);
    return note;
}

} // namespace zu::posix

// The note itself. The alignment belongs to the variable: a note is found only at its section's alignment of 4.
#define ZU_VERSION_NOTE(data)                                                                                          \
    alignas(4) [[gnu::section(".note.zu.version"), gnu::used]] constinit const auto zuVersionNote =                    \
        ::zu::posix::makeVersionNote<data>()
