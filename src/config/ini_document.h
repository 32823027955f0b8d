// An INI file in memory, byte for byte: its groups and entries, indexed, and the bytes it has after a change.
//
//     IniDocument document(platform::readContent(path).value_or(ByteString()));
//     if (auto value = document.value(ZU_W("GENERAL"), ZU_W("KV"))) ...
//     if (auto changed = document.withValue(ZU_W("GENERAL"), ZU_W("KV"), ZU_W("D:\\net")))
//         platform::replaceContent(path, *changed);
//
// The rules of a line: when its first character other than blanks is "[", it is a header, and the group's name is what
// stands up to the first "]" or the end of the line; when it is ";", the line is a comment; other lines are entries of
// the group before them, key=value. Lines before the first header belong to no group. Names are compared ignoring the
// case of ASCII letters. Of several groups of one name the first counts; an entry may occur several times, and the
// first one gives the value.
//
// Any content is a document. Only what a change is about is different in the new bytes: other lines keep their bytes,
// valid text or not, and their line ends, mixed or not; so does a byte order mark. New lines end as the first line of
// the file does, or as the system's text files do when there is none.
#pragma once

#include "frame/text.h"

#include <optional>
#include <span>
#include <unordered_map>

namespace zu {

struct IniEntry
{
    WideView key;
    WideView value;
};

// The name in a header line; none for any other line.
std::optional<WideView> iniHeaderName(WideView line);
bool isIniComment(WideView line);
// The parts of any other line: the key before the first "=" (all of a line without one), and the value behind the run
// of blanks and "=" that follows it; blanks around both are cut.
IniEntry iniEntryOf(WideView line);

class IniDocument
{
public:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    explicit IniDocument(ByteString content);
    IniDocument(IniDocument&&) = default;
    IniDocument& operator=(IniDocument&&) = default;

    const ByteString& bytes() const { return content; }

    // Groups and entries are numbered from 0 in the order of the file. Views live as long as the document.
    std::size_t groupCount() const { return groups.size(); }
    WideView groupName(std::size_t group) const { return textOf(sectionOf(group).name); }
    std::size_t findGroup(WideView name) const; // none when there is no such group
    std::size_t entryCount(std::size_t group) const { return sectionOf(group).entryCount; }
    IniEntry entry(std::size_t group, std::size_t index) const;
    std::optional<WideView> value(WideView group, WideView key) const;

    // The bytes after a change; the bytes as they are when there is nothing to change. None when the change cannot be
    // expressed: the file's encoding lacks a character, the file is in 16-bit units, or what was written would not be
    // read back as it was given (a line feed in a value, "=" in a key; blanks around a value may go).

    // Sets the first entry of that key. A new entry goes behind the last one of its group, a new group to the end.
    std::optional<ByteString> withValue(WideView group, WideView key, WideView value) const;
    // Removes the entries of that key.
    std::optional<ByteString> withoutValue(WideView group, WideView key) const;
    // Appends the group unless it is there.
    std::optional<ByteString> withGroup(WideView name) const;
    // Removes all groups of that name, with the comments in them.
    std::optional<ByteString> withoutGroup(WideView name) const;
    // Removes the entries of the group; its header, comments and empty lines stay.
    std::optional<ByteString> withoutEntries(WideView group) const;
    // Replaces everything between the header of the group and the next one by these lines and an empty one; a group
    // that is missing is appended. The lines, and the name of a group appended, are written unchecked.
    std::optional<ByteString> withGroupLines(WideView name, std::span<const WideString> lines) const;

private:
    // A text in the pool.
    struct Text
    {
        std::size_t start = 0;
        std::size_t length = 0;
    };
    // Bytes of the content: a line with its line end, or several.
    struct Range
    {
        std::size_t start = 0;
        std::size_t end = 0;
    };
    struct Entry
    {
        Text key;
        Text value;
        Range line;
    };
    // A header and what follows it up to the next one.
    struct Section
    {
        Text name;
        Range header;
        std::size_t end = 0;
        std::size_t firstEntry = 0;
        std::size_t entryCount = 0;
        std::size_t group = 0;
    };
    struct Key
    {
        std::size_t group;
        WideView name;
    };
    struct KeyHash
    {
        std::size_t operator()(const Key& key) const { return text::hash(key.name, true) * 31 + key.group; }
    };
    struct KeyEqual
    {
        bool operator()(const Key& a, const Key& b) const
        {
            return a.group == b.group && text::equalIgnoringCase(a.name, b.name);
        }
    };
    using Index =
        std::unordered_map<Key, std::size_t, KeyHash, KeyEqual, HookAllocator<std::pair<const Key, std::size_t>>>;
    class Change;

    void parseLine(Range line);
    void indexNames();
    WideString decoded(std::string_view bytes) const;
    bool encode(ByteString& out, WideView text) const;
    Text pooled(WideView text);
    WideView textOf(Text text) const { return WideView(pool.data() + text.start, text.length); }

    const Section& sectionOf(std::size_t group) const { return sections[groups[group]]; }
    std::size_t findEntry(std::size_t group, WideView key) const;
    std::size_t placeOfNewEntry(const Section& section) const;
    bool isEmpty() const;
    bool endsInEmptyLine() const;

    std::optional<ByteString> entryLine(WideView key, WideView value) const;
    bool appendHeader(Change& change, WideView name) const;
    template <class Condition>
    std::optional<ByteString> withoutEntriesWhere(std::size_t group, Condition condition) const;
    Range withoutLineEnd(Range line) const;

    ByteString content;
    std::string_view lineEnd;
    bool isUtf8 = false;
    bool isWide = false;
    HookVector<zu_wchar> pool; // a vector: views must survive a move
    HookVector<Section> sections;
    HookVector<Entry> entries;
    HookVector<std::size_t> groups; // the first section of each name
    Index groupIndex;               // under group none
    Index entryIndex;               // the first entry of each key
};

} // namespace zu
