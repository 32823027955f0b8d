// The text form of a registry, as exports have it:
//
//     Windows Registry Editor Version 5.00
//
//     [HKEY_LOCAL_MACHINE\SOFTWARE\Maker\Product]
//     "Path"="C:\\Product\\"
//     "Also Path"=hex(2):43,00,3a,00,00,00
//
// A list of bytes goes on in the next line behind a backslash. Lines that say nothing of the kind, and values that are
// no text, are passed over.
#pragma once

#include "platform/wide.h"

#include <map>
#include <optional>

namespace zu::posix {

class RegistryText
{
public:
    // UTF-8, or UTF-16 when it begins with the mark of either byte order.
    explicit RegistryText(std::string_view bytes);

    // Paths start at the root of the machine-wide keys; they are compared ignoring case, and so are names.
    bool hasKey(WideView path) const;
    HookVector<WideString> subKeyNames(WideView path) const;

    struct Value
    {
        WideString text;  // up to the first zero
        std::size_t size; // the bytes that the registry has it in, a terminator included
    };
    const Value* value(WideView path, WideView name) const;

private:
    struct FoldedLess
    {
        bool operator()(const WideString& a, const WideString& b) const;
    };
    template <class T>
    using Named = std::map<WideString, T, FoldedLess, HookAllocator<std::pair<const WideString, T>>>;
    using Key = Named<Value>;

    void read(WideView content);
    Key* enterSection(WideView section);
    Key* makeKey(WideView path);
    void removeKey(WideView path);
    static void readEntry(Key& key, WideView line);

    Named<Key> keys;
};

} // namespace zu::posix
