/** @file zu_cpp/settings.hpp
 *  @ingroup cpp
 *  INI files, the configuration file, session variables, aliases and the expansion of references. Part of zu.hpp.
 *
 *      zu::ini file("D:\\plant\\pipes.ini");
 *      if (auto size = file.get("PIPE.1", "SIZE"))
 *          std::cout << zu::to_utf8(*size) << '\n';
 *      if (!file.set("PIPE.1", "SIZE", "88.9"))
 *          report();
 *
 *  Every bool is true for success, whatever the flat call answers. A failing call of the host's services leaves an
 *  operation as a COM error (_com_error, zu_Com.h); nothing is leaked then.
 */
#ifndef ZU_CPP_SETTINGS_HPP
#define ZU_CPP_SETTINGS_HPP

#include "../zu_Alias.h"
#include "../zu_Env.h"
#include "../zu_Ini.h"
#include "fields.hpp"

namespace zu {

/** Whether %NAME% references to aliases in values are replaced. */
enum class references
{
    keep,  /**< they stay as they are */
    expand /**< they are */
};

/** An INI file, known by its path; nothing is open. Reads and writes go through the host's cache unless a comment says
 *  otherwise. */
class ini
{
public:
    /** Keeps a copy of the path. The file need not exist, and is not looked at yet. */
    explicit ini(const text& path) : file(path.view()) {}

    /** The path. */
    const wide_string& path() const noexcept { return file; }

    /** A value, without leading white space and cut at 1024 units (aliases are expanded to that many).
     *  @return none when there is no value, or an empty one. */
    [[nodiscard]] std::optional<wide_string> get(const text& group, const text& key,
                                                 references aliases = references::expand) const
    {
        return detail::optional_text(zu_Ini_getValue(file.c_str(), group.c_str(), key.c_str(),
                                                     aliases == references::expand ? 1 : 0, value_size));
    }
    /** Writes a value; missing groups and keys are made. @return whether it was written. */
    [[nodiscard]] bool set(const text& group, const text& key, const text& value) const
    {
        return zu_Ini_set(file.c_str(), group.c_str(), key.c_str(), value.c_str()) == 0;
    }
    /** Writes a value and reads it back. @return whether it reads the same, ignoring case; never so for an empty one.
     */
    [[nodiscard]] bool set_verified(const text& group, const text& key, const text& value) const
    {
        return zu_Ini_setAndVerify(file.c_str(), group.c_str(), key.c_str(), value.c_str(), nullptr) == 1;
    }

    /** A group as text fields in the order of the file, without those whose value is empty.
     *  @return a list that holds nothing when there is no such group, or it has no entries. */
    [[nodiscard]] fields group(const text& name, references aliases = references::expand) const
    {
        return fields(adopt, zu_Ini_getGroupValues(file.c_str(), name.c_str(), aliases == references::expand ? 1 : 0));
    }
    /** The same from the file itself, past the cache, without expansion.
     *  @return a list that holds nothing when the file cannot be read or has no such group. */
    [[nodiscard]] fields group_in_file(const text& name) const
    {
        return fields(adopt, zu_Ini_getGroupItems(file.c_str(), name.c_str()));
    }
    /** The names of the groups that begin with a prefix, ignoring case, in the order of the file.
     *  @return a list that holds nothing, and is empty, when there are none. */
    [[nodiscard]] string_list groups(const text& prefix = nullptr) const
    {
        return string_list(adopt, zu_Ini_findPrefixGroups(file.c_str(), prefix.c_str()));
    }

    /** Makes a group hold the fields of a list alone: removed, added, filled (zu_Ini_setGroupEx). Current of the list:
     *  none, as for the next two. @return whether the group is there in the end. */
    [[nodiscard]] bool replace_group(const text& name, const fields& list) const
    {
        return zu_Ini_setGroupEx(file.c_str(), name.c_str(), list.get()) == 1;
    }
    /** Empties a group, or adds it, and sets the fields of a list (zu_Ini_updateGroup). @return whether it was done. */
    [[nodiscard]] bool update_group(const text& name, const fields& list) const
    {
        return zu_Ini_updateGroup(file.c_str(), name.c_str(), list.get()) == 1;
    }
    /** Replaces the lines of a group in the file itself, past the cache (zu_Ini_setGroupItems).
     *  @return whether it was done; the file is as it was if not. */
    [[nodiscard]] bool write_group_in_file(const text& name, const fields& list) const
    {
        return zu_Ini_setGroupItems(file.c_str(), name.c_str(), list.get()) == 1;
    }
    /** Adds an empty group. @return false when it exists already or cannot be added. */
    [[nodiscard]] bool add_group(const text& name) const { return zu_Ini_addGroup(file.c_str(), name.c_str()) == 1; }
    /** Removes a group. @return whether it was removed. */
    [[nodiscard]] bool remove_group(const text& name) const
    {
        return zu_Ini_removeGroup(file.c_str(), name.c_str()) == 1;
    }
    /** The number after the highest of the groups "prefix.number", as text. */
    [[nodiscard]] wide_string next_suffix(const text& prefix) const
    {
        return detail::text_or_empty(zu_Ini_getNextIncrSuffix(file.c_str(), prefix.c_str()));
    }

private:
    static constexpr std::int32_t value_size = 1024;
    wide_string file;
};

/** Session variables: they live as long as the process, and names ignore case. */
namespace session {

/** @return the value, cut at 512 units; none when the variable is not set. */
[[nodiscard]] inline std::optional<wide_string> get(const text& name)
{
    return detail::optional_text(zu_Env_getSes(name.c_str()));
}
/** Sets a variable; an empty value removes it. (The flat result tells whether it existed, not whether it worked.) */
inline void set(const text& name, const text& value)
{
    zu_Env_setSes(name.c_str(), value.c_str());
}
/** Removes a variable. @return whether it existed. */
inline bool remove(const text& name)
{
    return zu_Env_setSes(name.c_str(), nullptr) == 0;
}
/** Removes all variables. */
inline void clear()
{
    zu_Env_resetSes();
}
/** The variables as "name = value", in the order of their first setting. */
[[nodiscard]] inline string_list all()
{
    return string_list(adopt, zu_Env_getSesList());
}

} // namespace session

/** The library's configuration file "zu.ini". */
namespace config {

/** @return a value with its aliases expanded, cut at 512 units; none when there is no value, or an empty one. */
[[nodiscard]] inline std::optional<wide_string> get(const text& group, const text& key)
{
    return detail::optional_text(zu_Env_getIni(group.c_str(), key.c_str()));
}
/** Writes a value. @return whether it was written. */
[[nodiscard]] inline bool set(const text& group, const text& key, const text& value)
{
    return zu_Env_setIni(group.c_str(), key.c_str(), value.c_str()) == 0;
}
/** A group as ini::group reads it. */
[[nodiscard]] inline fields group(const text& name)
{
    return fields(adopt, zu_Env_getIniGroup(name.c_str()));
}

} // namespace config

/** Aliases: what references in INI values are replaced by. They live as long as the process. */
namespace alias {

/** Sets an alias. @return whether it was stored: false without memory and for a null argument. */
inline bool set(const text& name, const text& value)
{
    return value.c_str() != nullptr && zu_Alias_put(name.c_str(), value.c_str()) == 1;
}
/** Deletes an alias. @return whether there was one. */
inline bool remove(const text& name)
{
    return zu_Alias_del(name.c_str()) == 1;
}
/** @return the value, cut at 1024 units; none when there is no such alias. */
[[nodiscard]] inline std::optional<wide_string> get(const text& name)
{
    constexpr std::int32_t capacity = 1024;
    zu_wchar buffer[capacity + 1] = {};
    if (zu_Alias_get(buffer, name.c_str(), capacity) != ZU_FLD_OK)
        return std::nullopt;
    return wide_string(buffer);
}

} // namespace alias

/** Replaces the references %NAME% of a text by session variables, entries of the configuration file and variables of
 *  the process environment, in this order; an unknown one disappears. The result is cut at 512 units. */
[[nodiscard]] inline wide_string expand(const text& string)
{
    return detail::text_or_empty(zu_Env_expandStr(string.c_str()));
}

} // namespace zu

#endif
