// The INI files that the built-in cache holds parsed, by path.
//
// A file is read again as soon as it is another one on disk, whoever changed it. A change is applied to the file as it
// stands on disk at that moment, under a lock that other processes respect, and replaces the file in one step: two
// writers lose nothing, and a crash leaves the old file or the new one.
#pragma once

#include "config/ini_document.h"
#include "platform/files.h"

#include <memory>

namespace zu::host {

class IniFiles
{
public:
    // A document stays as it is, and alive, for whoever holds it; a change makes another one.
    using Document = std::shared_ptr<const IniDocument>;

    // Files beyond this size are not read. What is held in sum stays below it too, the newest file apart; that many
    // files at most are held.
    static constexpr std::int64_t mostBytes = std::int64_t{64} << 20;
    static constexpr std::size_t mostFiles = 64;

    // The file as it is now; null when it cannot be read.
    Document read(WideView path);

    // Writes what change(const IniDocument&) makes of the file, which is created when it is missing. Returns the new
    // document; null when change gives none, or when the file cannot be read or written (it is then as it was).
    template <class Change>
    Document write(WideView path, Change change)
    {
        const Writing writing(*this, path);
        if (writing.document == nullptr)
            return nullptr;
        std::optional<ByteString> content = change(*writing.document);
        return content ? finish(writing, std::move(*content)) : nullptr;
    }

    void forget(WideView path);
    void forgetAll() { files.clear(); }

    // Calls show(path, document) for each file held.
    template <class Show>
    void forEach(Show show) const
    {
        for (const File& file : files)
            show(WideView(file.path), *file.document);
    }

private:
    struct File
    {
        WideString path;
        platform::FileStamp stamp;
        Document document;
    };

    // The time between reading a file in order to change it and having changed it.
    struct Writing
    {
        Writing(IniFiles& cache, WideView pathAsGiven);

        WideString path;
        platform::DirectoryLock lock;
        Document document; // null when the file cannot be written
    };

    using Files = HookVector<File>;

    Document finish(const Writing& writing, ByteString content);
    Document documentOf(WideView path, ByteString content);
    Files::iterator find(WideView path);
    void drop(WideView path);
    void hold(const WideString& path, const platform::FileStamp& stamp, const Document& document);

    Files files; // the one used last at the end
};

} // namespace zu::host
