#include "platform/posix/reg_text.h"

#include "frame/text.h"
#include "platform/utf8.h"

#include <algorithm>

namespace zu::posix {
namespace {

constexpr WideView machineRoot = ZU_W("HKEY_LOCAL_MACHINE");
// Longer paths serve nobody; a file must not make the library build towers of keys.
constexpr std::size_t longestPath = 2048;
constexpr std::size_t longestName = 256;

WideString decodeUtf16(std::string_view bytes, bool isBigEndian)
{
    WideString text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at + 2 <= bytes.size(); at += 2) {
        const auto low = static_cast<unsigned char>(bytes[at + isBigEndian]);
        const auto high = static_cast<unsigned char>(bytes[at + !isBigEndian]);
        text += static_cast<zu_wchar>(low | high << 8);
    }
    return text;
}

WideString decode(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE"))
        return decodeUtf16(bytes.substr(2), false);
    if (bytes.starts_with("\xFE\xFF"))
        return decodeUtf16(bytes.substr(2), true);
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    return utf8::decode(bytes);
}

WideView takeLine(WideView& content)
{
    const std::size_t end = std::min(content.find(ZU_W('\n')), content.size());
    WideView line = content.substr(0, end);
    content.remove_prefix(std::min(end + 1, content.size()));
    return text::trimmed(line);
}

// Reads a text between double quotes, in which a backslash makes the next character plain. False when it does not end.
bool takeQuoted(WideView& line, WideString& out)
{
    if (!line.starts_with(ZU_W('"')))
        return false;
    for (std::size_t at = 1; at < line.size(); ++at) {
        if (line[at] == ZU_W('"')) {
            line.remove_prefix(at + 1);
            return true;
        }
        if (line[at] == ZU_W('\\') && ++at == line.size())
            break;
        out += line[at];
    }
    return false;
}

int hexDigit(zu_wchar unit)
{
    const std::size_t digit = WideView(ZU_W("0123456789ABCDEF")).find(text::upper(unit));
    return digit == WideView::npos ? -1 : static_cast<int>(digit);
}

// Reads bytes as two digits each with commas between. False when anything else is there.
bool readBytes(WideView list, ByteString& out)
{
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(ZU_W(',')), list.size());
        const WideView item = text::trimmed(list.substr(0, end));
        if (item.size() != 2 || hexDigit(item[0]) < 0 || hexDigit(item[1]) < 0)
            return false;
        out += static_cast<char>(hexDigit(item[0]) * 16 + hexDigit(item[1]));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return true;
}

// The value behind the equals sign; none when it is no text.
std::optional<RegistryText::Value> readValue(WideView source)
{
    WideString text;
    if (takeQuoted(source, text)) {
        const std::size_t size = (text.size() + 1) * 2;
        text.resize(std::min(text.find(zu_wchar(0)), text.size()));
        return RegistryText::Value{std::move(text), size};
    }
    // Plain and expandable texts, as bytes.
    for (WideView mark : {WideView(ZU_W("hex(1):")), WideView(ZU_W("hex(2):"))}) {
        ByteString bytes;
        if (text::equalIgnoringCase(source.substr(0, mark.size()), mark) &&
            readBytes(source.substr(mark.size()), bytes)) {
            text = decodeUtf16(bytes, false);
            text.resize(std::min(text.find(zu_wchar(0)), text.size()));
            return RegistryText::Value{std::move(text), bytes.size()};
        }
    }
    return std::nullopt;
}

} // namespace

bool RegistryText::FoldedLess::operator()(const WideString& a, const WideString& b) const
{
    return text::compareIgnoringCase(a, b) < 0;
}

RegistryText::RegistryText(std::string_view bytes)
{
    read(decode(bytes));
}

void RegistryText::read(WideView content)
{
    Key* key = nullptr;
    WideString joined;
    while (!content.empty()) {
        WideView line = takeLine(content);
        if (line.starts_with(ZU_W(';')))
            continue;
        // A list of bytes goes on behind a backslash.
        if (!line.starts_with(ZU_W('[')) && line.ends_with(ZU_W('\\'))) {
            joined.assign(line);
            while (joined.ends_with(ZU_W('\\'))) {
                joined.pop_back();
                joined += takeLine(content);
            }
            line = joined;
        }
        if (line.starts_with(ZU_W('[')))
            key = enterSection(line);
        else if (key != nullptr)
            readEntry(*key, line);
    }
}

// The key of a section, "[path]"; null when it is none of this part of the registry. "[-path]" removes one.
RegistryText::Key* RegistryText::enterSection(WideView section)
{
    const std::size_t end = section.rfind(ZU_W(']'));
    if (end == WideView::npos)
        return nullptr;
    WideView path = section.substr(1, end - 1);
    const bool isRemoved = path.starts_with(ZU_W('-'));
    path.remove_prefix(isRemoved);
    if (!text::equalIgnoringCase(path.substr(0, machineRoot.size()), machineRoot))
        return nullptr;
    path.remove_prefix(machineRoot.size());
    if (!path.starts_with(ZU_W('\\')))
        return nullptr;
    path.remove_prefix(1);
    if (!isRemoved)
        return makeKey(path);
    removeKey(path);
    return nullptr;
}

// Makes a key and those above it.
RegistryText::Key* RegistryText::makeKey(WideView path)
{
    if (path.size() > longestPath)
        return nullptr;
    for (WideView rest = path;;) {
        const std::size_t length = std::min(rest.find(ZU_W('\\')), rest.size());
        if (length == 0 || length > longestName)
            return nullptr;
        if (length == rest.size())
            break;
        rest.remove_prefix(length + 1);
    }
    for (std::size_t end = path.find(ZU_W('\\')); end != WideView::npos; end = path.find(ZU_W('\\'), end + 1))
        keys.try_emplace(WideString(path.substr(0, end)));
    return &keys.try_emplace(WideString(path)).first->second;
}

void RegistryText::removeKey(WideView path)
{
    WideString below(path);
    below += ZU_W('\\');
    auto first = keys.lower_bound(below);
    while (first != keys.end() && text::equalIgnoringCase(WideView(first->first).substr(0, below.size()), below))
        first = keys.erase(first);
    keys.erase(WideString(path));
}

// Reads "name"=value; "name"=- removes a value, and one that is no text takes the place of a text.
void RegistryText::readEntry(Key& key, WideView line)
{
    WideString name;
    if (line.starts_with(ZU_W('@')))
        line.remove_prefix(1);
    else if (!takeQuoted(line, name))
        return;
    line = text::trimmed(line);
    if (!line.starts_with(ZU_W('=')))
        return;
    if (auto value = readValue(text::trimmed(line.substr(1))))
        key.insert_or_assign(std::move(name), std::move(*value));
    else
        key.erase(name);
}

bool RegistryText::hasKey(WideView path) const
{
    return keys.contains(WideString(path));
}

HookVector<WideString> RegistryText::subKeyNames(WideView path) const
{
    WideString below(path);
    below += ZU_W('\\');
    HookVector<WideString> names;
    for (auto key = keys.lower_bound(below); key != keys.end(); ++key) {
        const WideView full = key->first;
        if (!text::equalIgnoringCase(full.substr(0, below.size()), below))
            break;
        const WideView name = full.substr(below.size());
        if (name.find(ZU_W('\\')) == WideView::npos)
            names.emplace_back(name);
    }
    return names;
}

const RegistryText::Value* RegistryText::value(WideView path, WideView name) const
{
    const auto key = keys.find(WideString(path));
    if (key == keys.end())
        return nullptr;
    const auto found = key->second.find(WideString(name));
    return found == key->second.end() ? nullptr : &found->second;
}

} // namespace zu::posix
