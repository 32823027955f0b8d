#include "config/ini_document.h"

#include "platform/files.h"
#include "platform/utf8.h"

#include <algorithm>

namespace zu {
namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

WideView withoutBlanksInFront(WideView line)
{
    while (!line.empty() && text::isSpace(line.front()))
        line.remove_prefix(1);
    return line;
}

bool endsInLineFeed(std::string_view bytes)
{
    return !bytes.empty() && bytes.back() == '\n';
}

} // namespace

std::optional<WideView> iniHeaderName(WideView line)
{
    line = withoutBlanksInFront(line);
    if (line.empty() || line.front() != ZU_W('['))
        return std::nullopt;
    line.remove_prefix(1);
    return text::trimmed(line.substr(0, line.find(ZU_W(']'))));
}

bool isIniComment(WideView line)
{
    line = withoutBlanksInFront(line);
    return !line.empty() && line.front() == ZU_W(';');
}

IniEntry iniEntryOf(WideView line)
{
    const std::size_t separator = std::min(line.find(ZU_W('=')), line.size());
    WideView value = line.substr(separator);
    while (!value.empty() && (value.front() == ZU_W('=') || text::isSpace(value.front())))
        value.remove_prefix(1);
    return {text::trimmed(line.substr(0, separator)), text::trimmed(value)};
}

// Reading ------------------------------------------------------------------------------------------------------------

IniDocument::IniDocument(ByteString bytes) : content(std::move(bytes)), lineEnd(platform::lineEnd())
{
    const std::string_view all = content;
    isUtf8 = all.starts_with(utf8Mark);
    isWide = all.starts_with("\xFF\xFE") || all.starts_with("\xFE\xFF");
    const std::size_t firstFeed = all.find('\n');
    if (firstFeed != std::string_view::npos)
        lineEnd = firstFeed > 0 && all[firstFeed - 1] == '\r' ? "\r\n" : "\n";

    for (std::size_t start = isUtf8 ? utf8Mark.size() : 0; start < all.size();) {
        const std::size_t feed = all.find('\n', start);
        const std::size_t end = feed == std::string_view::npos ? all.size() : feed + 1;
        parseLine({start, end});
        start = end;
    }
    if (!sections.empty())
        sections.back().end = content.size();
    indexNames();
}

void IniDocument::parseLine(Range line)
{
    const WideString decodedLine = decoded(std::string_view(content).substr(line.start, line.end - line.start));
    if (const auto name = iniHeaderName(decodedLine)) {
        if (!sections.empty())
            sections.back().end = line.start;
        sections.push_back({.name = pooled(*name), .header = line, .firstEntry = entries.size()});
        return;
    }
    if (sections.empty() || isIniComment(decodedLine))
        return;
    const IniEntry parts = iniEntryOf(decodedLine);
    // A line with nothing in it, or with nothing but "=".
    if (parts.key.empty() && parts.value.empty())
        return;
    entries.push_back({pooled(parts.key), pooled(parts.value), line});
    ++sections.back().entryCount;
}

// Views into the pool are taken here, when it has stopped growing.
void IniDocument::indexNames()
{
    for (std::size_t index = 0; index < sections.size(); ++index) {
        Section& section = sections[index];
        const auto [place, isNew] = groupIndex.try_emplace({none, textOf(section.name)}, groups.size());
        section.group = place->second;
        if (!isNew)
            continue;
        groups.push_back(index);
        for (std::size_t entry = section.firstEntry; entry < section.firstEntry + section.entryCount; ++entry)
            entryIndex.try_emplace({section.group, textOf(entries[entry].key)}, entry);
    }
}

WideString IniDocument::decoded(std::string_view bytes) const
{
    return isUtf8 ? utf8::decode(bytes) : platform::decodeText(bytes);
}

bool IniDocument::encode(ByteString& out, WideView text) const
{
    if (isWide)
        return false;
    if (!isUtf8)
        return platform::encodeText(out, text);
    utf8::append(out, text);
    return true;
}

IniDocument::Text IniDocument::pooled(WideView text)
{
    const std::size_t start = pool.size();
    pool.insert(pool.end(), text.begin(), text.end());
    return {start, text.size()};
}

std::size_t IniDocument::findGroup(WideView name) const
{
    const auto place = groupIndex.find({none, name});
    return place == groupIndex.end() ? none : place->second;
}

std::size_t IniDocument::findEntry(std::size_t group, WideView key) const
{
    const auto place = entryIndex.find({group, key});
    return group == none || place == entryIndex.end() ? none : place->second;
}

IniEntry IniDocument::entry(std::size_t group, std::size_t index) const
{
    const Entry& found = entries[sectionOf(group).firstEntry + index];
    return {textOf(found.key), textOf(found.value)};
}

std::optional<WideView> IniDocument::value(WideView group, WideView key) const
{
    const std::size_t found = findEntry(findGroup(group), key);
    return found == none ? std::nullopt : std::optional(textOf(entries[found].value));
}

// Changing -----------------------------------------------------------------------------------------------------------

// The content with ranges of it replaced, from the front to the end.
class IniDocument::Change
{
public:
    explicit Change(const IniDocument& changed) : document(changed) { out.reserve(document.content.size() + 256); }

    void replace(Range range, std::string_view bytes)
    {
        copyUpTo(range.start);
        out += bytes;
        done = range.end;
    }
    void remove(Range range) { replace(range, {}); }
    // Starts a line at an offset, which must be the start of a line or the end of the content.
    void startLineAt(std::size_t offset)
    {
        copyUpTo(offset);
        if (offset == document.content.size() && !document.isEmpty() && !endsInLineFeed(document.content))
            out += document.lineEnd;
    }
    void add(std::string_view bytes) { out += bytes; }
    void endLine() { out += document.lineEnd; }

    ByteString finish()
    {
        copyUpTo(document.content.size());
        return std::move(out);
    }

private:
    void copyUpTo(std::size_t offset)
    {
        out += std::string_view(document.content).substr(done, offset - done);
        done = offset;
    }

    const IniDocument& document;
    ByteString out;
    std::size_t done = 0;
};

std::optional<ByteString> IniDocument::withValue(WideView group, WideView key, WideView value) const
{
    const std::size_t place = findGroup(group);
    const std::size_t found = findEntry(place, key);
    if (found != none && textOf(entries[found].value) == text::trimmed(value))
        return content;
    // An entry that is there keeps the spelling of its key.
    const auto line = entryLine(found == none ? key : textOf(entries[found].key), value);
    if (!line)
        return std::nullopt;
    Change change(*this);
    if (found != none) {
        change.replace(withoutLineEnd(entries[found].line), *line);
        return change.finish();
    }
    if (place == none) {
        if (!appendHeader(change, group))
            return std::nullopt;
    } else {
        change.startLineAt(placeOfNewEntry(sectionOf(place)));
    }
    change.add(*line);
    change.endLine();
    return change.finish();
}

std::optional<ByteString> IniDocument::withoutValue(WideView group, WideView key) const
{
    const std::size_t place = findGroup(group);
    if (findEntry(place, key) == none)
        return content;
    return withoutEntriesWhere(place,
                               [&](const Entry& entry) { return text::equalIgnoringCase(textOf(entry.key), key); });
}

std::optional<ByteString> IniDocument::withoutEntries(WideView group) const
{
    const std::size_t place = findGroup(group);
    if (place == none)
        return content;
    return withoutEntriesWhere(place, [](const Entry&) { return true; });
}

template <class Condition>
std::optional<ByteString> IniDocument::withoutEntriesWhere(std::size_t group, Condition condition) const
{
    if (isWide)
        return std::nullopt;
    const Section& section = sectionOf(group);
    Change change(*this);
    for (std::size_t index = section.firstEntry; index < section.firstEntry + section.entryCount; ++index) {
        if (condition(entries[index]))
            change.remove(entries[index].line);
    }
    return change.finish();
}

std::optional<ByteString> IniDocument::withGroup(WideView name) const
{
    if (findGroup(name) != none)
        return content;
    Change change(*this);
    if (!appendHeader(change, name))
        return std::nullopt;
    return change.finish();
}

std::optional<ByteString> IniDocument::withoutGroup(WideView name) const
{
    const std::size_t group = findGroup(name);
    if (group == none)
        return content;
    if (isWide)
        return std::nullopt;
    Change change(*this);
    for (const Section& section : sections) {
        if (section.group == group)
            change.remove({section.header.start, section.end});
    }
    return change.finish();
}

std::optional<ByteString> IniDocument::withGroupLines(WideView name, std::span<const WideString> lines) const
{
    const std::size_t group = findGroup(name);
    Change change(*this);
    ByteString block;
    if (group == none) {
        change.startLineAt(content.size());
        if (!encode(block, ZU_W("[")) || !encode(block, name) || !encode(block, ZU_W("]")))
            return std::nullopt;
        block += lineEnd;
    } else {
        const Section& section = sectionOf(group);
        change.startLineAt(section.header.end);
        change.remove({section.header.end, section.end});
    }
    for (const WideString& line : lines) {
        if (!encode(block, line))
            return std::nullopt;
        block += lineEnd;
    }
    block += lineEnd;
    change.add(block);
    return change.finish();
}

// Appends a header, set off by an empty line.
bool IniDocument::appendHeader(Change& change, WideView name) const
{
    ByteString line;
    if (name.empty() || !encode(line, ZU_W("[")) || !encode(line, name) || !encode(line, ZU_W("]")) ||
        line.find('\n') != ByteString::npos || iniHeaderName(decoded(line)) != name)
        return false;
    change.startLineAt(content.size());
    if (!isEmpty() && !endsInEmptyLine())
        change.endLine();
    change.add(line);
    change.endLine();
    return true;
}

// The line of an entry without its line end; none when it would not be read back.
std::optional<ByteString> IniDocument::entryLine(WideView key, WideView value) const
{
    ByteString line;
    if (key.empty() || !encode(line, key) || !encode(line, ZU_W("=")) || !encode(line, value) ||
        line.find('\n') != ByteString::npos)
        return std::nullopt;
    const WideString back = decoded(line);
    const IniEntry parts = iniEntryOf(back);
    if (iniHeaderName(back) || isIniComment(back) || parts.key != key || parts.value != text::trimmed(value))
        return std::nullopt;
    return line;
}

// Behind the last entry, so that empty lines and comments before the next header stay with that one.
std::size_t IniDocument::placeOfNewEntry(const Section& section) const
{
    return section.entryCount == 0 ? section.header.end : entries[section.firstEntry + section.entryCount - 1].line.end;
}

IniDocument::Range IniDocument::withoutLineEnd(Range line) const
{
    if (content[line.end - 1] != '\n')
        return line;
    --line.end;
    if (line.end > line.start && content[line.end - 1] == '\r')
        --line.end;
    return line;
}

bool IniDocument::isEmpty() const
{
    return content.size() == (isUtf8 ? utf8Mark.size() : 0);
}

bool IniDocument::endsInEmptyLine() const
{
    std::string_view rest = content;
    if (!endsInLineFeed(rest))
        return false;
    rest.remove_suffix(1);
    if (rest.ends_with('\r'))
        rest.remove_suffix(1);
    return endsInLineFeed(rest) || rest.size() == (isUtf8 ? utf8Mark.size() : 0);
}

} // namespace zu
