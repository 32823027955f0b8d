#include "host/builtin/ini_files.h"

#include "host/builtin/builtin.h"

#include <algorithm>

namespace zu::host {
namespace {

IniFiles::Document makeDocument(ByteString content)
{
    return std::allocate_shared<const IniDocument>(HookAllocator<IniDocument>(), std::move(content));
}

// The absolute path of a file about to be written, in a directory that exists if it is the library's own.
WideString pathForWriting(WideView path)
{
    const WideString full = platform::fullPath(path).value_or(WideString());
    makeConfigurationDirectoryFor(full);
    return full;
}

} // namespace

IniFiles::Document IniFiles::read(WideView path)
{
    const auto full = platform::fullPath(path);
    if (!full)
        return nullptr;
    const auto stamp = platform::fileStamp(*full);
    const auto known = find(*full);
    if (known != files.end() && stamp && known->stamp == *stamp && known->stamp.settled) {
        std::rotate(known, known + 1, files.end());
        return files.back().document;
    }
    auto content = stamp && stamp->size <= mostBytes ? platform::readContent(*full) : std::nullopt;
    if (!content) {
        drop(*full);
        return nullptr;
    }
    const Document document = documentOf(*full, std::move(*content));
    hold(*full, *stamp, document);
    return document;
}

IniFiles::Writing::Writing(IniFiles& cache, WideView pathAsGiven) : path(pathForWriting(pathAsGiven)), lock(path)
{
    if (!lock.held())
        return;
    const auto stamp = platform::fileStamp(path);
    if (!stamp) {
        document = makeDocument(ByteString());
        return;
    }
    auto content = stamp->size <= mostBytes && platform::hasAccess(path, platform::Access::write)
                       ? platform::readContent(path)
                       : std::nullopt;
    if (content)
        document = cache.documentOf(path, std::move(*content));
}

IniFiles::Document IniFiles::finish(const Writing& writing, ByteString content)
{
    if (content == writing.document->bytes())
        return writing.document;
    const Document changed = makeDocument(std::move(content));
    if (!platform::replaceContent(writing.path, changed->bytes()))
        return nullptr;
    try {
        if (const auto stamp = platform::fileStamp(writing.path))
            hold(writing.path, *stamp, changed);
    } catch (const std::bad_alloc&) {
        // It is written all the same, and will be read again.
        drop(writing.path);
    }
    return changed;
}

// Parses only what is not known already.
IniFiles::Document IniFiles::documentOf(WideView path, ByteString content)
{
    const auto known = find(path);
    return known != files.end() && known->document->bytes() == content ? known->document
                                                                       : makeDocument(std::move(content));
}

void IniFiles::forget(WideView path)
{
    if (const auto full = platform::fullPath(path))
        drop(*full);
}

IniFiles::Files::iterator IniFiles::find(WideView path)
{
    return std::find_if(files.begin(), files.end(), [&](const File& file) { return file.path == path; });
}

void IniFiles::drop(WideView path)
{
    const auto known = find(path);
    if (known != files.end())
        files.erase(known);
}

void IniFiles::hold(const WideString& path, const platform::FileStamp& stamp, const Document& document)
{
    drop(path);
    files.push_back({path, stamp, document});
    std::size_t bytes = 0;
    std::size_t kept = 0;
    while (kept < files.size() && kept < mostFiles) {
        bytes += files[files.size() - 1 - kept].document->bytes().size();
        if (kept > 0 && bytes > static_cast<std::size_t>(mostBytes))
            break;
        ++kept;
    }
    files.erase(files.begin(), files.end() - static_cast<std::ptrdiff_t>(kept));
}

} // namespace zu::host
