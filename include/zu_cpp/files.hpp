/** @file zu_cpp/files.hpp
 *  @ingroup cpp
 *  Files, directories and file names. Part of zu.hpp.
 *
 *      if (!zu::files::copy("D:\\jobs\\a.dat", "D:\\backup\\a.dat"))
 *          report();
 *
 *  Every bool is true for success, whatever the flat call answers, and counts are counts. A failing call of the host's
 *  file service leaves an operation as a COM error (_com_error, zu_Com.h).
 */
#ifndef ZU_CPP_FILES_HPP
#define ZU_CPP_FILES_HPP

#include "../zu_Dir.h"
#include "../zu_File.h"
#include "../zu_Fname.h"
#include "lists.hpp"

#include <chrono>

namespace zu::detail {

/** A copy of a text with room behind it, edited in place. */
template <class Edit>
wide_string edited(const text& name, std::size_t room, Edit edit)
{
    wide_string buffer(name.view());
    buffer.resize(buffer.size() + room + 2);
    edit(buffer.data());
    buffer.resize(buffer.find(zu_wchar()));
    return buffer;
}

} // namespace zu::detail

/** Files. */
namespace zu::files {

/** What a file is asked for. */
enum class access : std::int32_t
{
    exists = 0,    /**< whether it is there at all */
    write = 2,     /**< whether it may be written */
    read = 4,      /**< whether it may be read */
    read_write = 6 /**< whether both are allowed */
};

/** Whether the host's file service says that a file exists. */
[[nodiscard]] inline bool exists(const text& path)
{
    return zu_File_exists(path.c_str()) == 1;
}
/** Whether the system grants access. */
[[nodiscard]] inline bool has_access(const text& path, access wanted)
{
    return zu_File_hasAccess(path.c_str(), static_cast<std::int32_t>(wanted)) == 1;
}
/** Makes an empty file where there is none, see zu_File_create. @return whether there is a file now. */
[[nodiscard]] inline bool create(const text& path)
{
    return zu_File_create(path.c_str()) == 1;
}
/** Copies a file with its time. @return false also when both are one file. */
[[nodiscard]] inline bool copy(const text& source, const text& destination)
{
    return zu_File_copy(source.c_str(), destination.c_str()) == 0;
}
/** Appends the text of a file to another. The source comes first, as for copy and unlike zu_File_append.
 *  @return whether it was appended. */
[[nodiscard]] inline bool append(const text& source, const text& destination)
{
    return zu_File_append(destination.c_str(), source.c_str()) == 0;
}
/** Moves a file over the destination. @return whether it was moved. */
[[nodiscard]] inline bool move(const text& source, const text& destination)
{
    return zu_File_move(source.c_str(), destination.c_str()) == 0;
}
/** Deletes one file. @return whether it was deleted. */
inline bool remove(const text& path)
{
    return zu_File_deleteSingle(path.c_str()) == 1;
}
/** Deletes the files that a pattern with "*" and "?" in its last component stands for. @return how many were. */
inline std::size_t remove_all(const text& pattern)
{
    const std::int32_t count = zu_File_delete(pattern.c_str(), 0);
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}
/** When a file was changed; none when that cannot be had. */
[[nodiscard]] inline std::optional<std::chrono::sys_seconds> modified(const text& path)
{
    std::int32_t seconds = 0;
    if (zu_File_getTime(path.c_str(), &seconds) != 0)
        return std::nullopt;
    return std::chrono::sys_seconds(std::chrono::seconds(seconds));
}
/** Sets the times of the last change and access. @return false also for a time that 32 bits do not hold. */
[[nodiscard]] inline bool set_modified(const text& path, std::chrono::sys_seconds time)
{
    const auto seconds = time.time_since_epoch().count();
    const auto narrow = static_cast<std::int32_t>(seconds);
    return narrow == seconds && zu_File_setTime(path.c_str(), narrow) == 0;
}
/** The lines of a text file that are not empty, cut at 512 units, see zu_File_readFile.
 *  @return a list that holds nothing when the file cannot be read or is empty. */
[[nodiscard]] inline string_list lines(const text& path)
{
    return string_list(adopt, zu_File_readFile(path.c_str()));
}
/** Splits a file into parts "name.1", "name.2" and so on. @return how many; none on failure. */
[[nodiscard]] inline std::optional<std::size_t> slice(const text& path, std::int32_t part_size)
{
    const std::int32_t parts = zu_File_slice(path.c_str(), part_size);
    return parts <= 0 ? std::nullopt : std::optional(static_cast<std::size_t>(parts));
}
/** Joins the parts of a file and deletes them. @return how many there were, 0 also counts as joined; none on failure.
 */
[[nodiscard]] inline std::optional<std::size_t> mend(const text& path)
{
    const std::int32_t next = zu_File_mend(path.c_str());
    return next <= 0 ? std::nullopt : std::optional(static_cast<std::size_t>(next - 1));
}
/** The target as seen from a base directory; none when there is no such path. */
[[nodiscard]] inline std::optional<wide_string> relative(const text& base, const text& target)
{
    return detail::optional_text(zu_File_getRelativeFilename(base.c_str(), target.c_str()));
}

} // namespace zu::files

/** Directories. */
namespace zu::directories {

/** Whether the host's file service says that a directory exists. */
[[nodiscard]] inline bool exists(const text& path)
{
    return zu_Dir_exists(path.c_str()) == 1;
}
/** Creates what is missing of a path, in lower case. @return whether a directory was made: not one that exists. */
[[nodiscard]] inline bool create(const text& path)
{
    return zu_Dir_create(path.c_str()) == 0;
}
/** Removes an empty directory. @return whether it was removed. */
inline bool remove(const text& path)
{
    return zu_Dir_delete(path.c_str()) == 0;
}
/** Removes a directory with everything in it. @return false when something was left. */
[[nodiscard]] inline bool remove_tree(const text& path)
{
    return zu_Dir_deleteTree(path.c_str()) == 0;
}
/** Makes a directory the current one. @return whether it is now. */
[[nodiscard]] inline bool change(const text& path)
{
    return zu_Dir_change(path.c_str()) == 0;
}
/** The current directory; none when it cannot be had. */
[[nodiscard]] inline std::optional<wide_string> current()
{
    return detail::optional_text(zu_Dir_current());
}
/** The directory that a path lies in, with a backslash at its end; none for a root. */
[[nodiscard]] inline std::optional<wide_string> parent(const text& path)
{
    return detail::optional_text(zu_Dir_getParent(path.c_str()));
}
/** The entries that a pattern stands for, in lower case.
 *  @return a list that holds nothing, and is empty, when there are none. */
[[nodiscard]] inline string_list list(const text& pattern)
{
    return string_list(adopt, zu_Dir_list(pattern.c_str()));
}

} // namespace zu::directories

/** File names as texts; none of these asks the system anything. */
namespace zu::file_names {

/** The name with another extension, given without its dot; the empty one removes it. */
[[nodiscard]] inline wide_string with_extension(const text& name, const text& extension)
{
    return detail::edited(name, extension.view().size(),
                          [&](zu_wchar* buffer) { zu_Fname_modExt(buffer, extension.c_str(), 1); });
}
/** The name without its extension. */
[[nodiscard]] inline wide_string without_extension(const text& name)
{
    return detail::edited(name, 0, [](zu_wchar* buffer) { zu_Fname_rmvExt(buffer); });
}
/** The name without its directory. */
[[nodiscard]] inline wide_string without_directory(const text& name)
{
    return detail::edited(name, 0, [](zu_wchar* buffer) { zu_Fname_rmvPath(buffer); });
}
/** The directory part, with the backslash or colon that ends it. */
[[nodiscard]] inline wide_string directory(const text& name)
{
    return detail::edited(name, 0, [](zu_wchar* buffer) { zu_Fname_extractPath(buffer, buffer); });
}
/** The extension without its dot. */
[[nodiscard]] inline wide_string extension(const text& name)
{
    return detail::edited(name, 0, [](zu_wchar* buffer) { zu_Fname_extractExt(buffer, buffer); });
}

} // namespace zu::file_names

#endif
