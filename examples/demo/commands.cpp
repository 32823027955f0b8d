#include "commands.h"

#include "text.h"

#include <cstdio>
#include <cstdlib>

namespace demo {
namespace {

int getValue(const Words& words)
{
    const zu_wchar* const value = zu_Ini_get(wide(words[1]).c_str(), wide(words[2]).c_str(), wide(words[3]).c_str());
    if (value == nullptr)
        return notFound("no such value");
    std::printf("%s\n", utf8(value).c_str());
    return 0;
}

int setValue(const Words& words)
{
    int32_t status = 0;
    const int32_t verified = zu_Ini_setAndVerify(wide(words[1]).c_str(), wide(words[2]).c_str(), wide(words[3]).c_str(),
                                                 wide(words[4]).c_str(), &status);
    std::printf("%s, %s\n", status == 0 ? "written" : "not written", verified == 1 ? "verified" : "not verified");
    return verified == 1 ? 0 : 1;
}

int listGroup(const Words& words)
{
    const Fields fields(zu_Ini_getGroup(wide(words[1]).c_str(), wide(words[2]).c_str()));
    if (fields == nullptr)
        return notFound("no such group, or it is empty");
    for (zu_FldList_start(fields.get()); zu_FldList_eol(fields.get()) == 0; zu_FldList_next(fields.get())) {
        const FldNode* const field = zu_FldList_curr(fields.get());
        std::printf("%-22s %s\n", utf8(field->name).c_str(), utf8(field->value.text).c_str());
    }
    return 0;
}

} // namespace

int notFound(const char* what)
{
    std::fprintf(stderr, "zu-demo: %s\n", what);
    return 1;
}

int runCommand(std::span<const Command> commands, const Words& words)
{
    for (const Command& command : commands) {
        if (words.empty() || words[0] != command.name)
            continue;
        const Words rest(words.begin() + 1, words.end());
        return rest.size() < command.fewest || rest.size() > command.most ? usage() : command.run(rest);
    }
    return usage();
}

int runExpand(const Words& words)
{
    for (const std::string& word : words)
        std::printf("%s\n", utf8(zu_Env_expandStr(wide(word).c_str())).c_str());
    return 0;
}

int runEnvironment(const Words& words)
{
    const Wide name = wide(words[0]);
    if (const zu_wchar* const value = zu_Env_getSes(name.c_str())) {
        std::printf("%s   (session)\n", utf8(value).c_str());
        return 0;
    }
    if (const zu_wchar* const value = zu_Env_getIni(ZU_W("GENERAL"), name.c_str())) {
        std::printf("%s   (zu.ini)\n", utf8(value).c_str());
        return 0;
    }
    const std::string reference = "%" + words[0] + "%";
    const std::string value = utf8(zu_Env_expandStr(wide(reference).c_str()));
    if (value.empty())
        return notFound("not set");
    std::printf("%s   (environment)\n", value.c_str());
    return 0;
}

int runIni(const Words& words)
{
    const std::string what = words.empty() ? "" : words[0];
    if (what == "get" && words.size() == 4)
        return getValue(words);
    if (what == "set" && words.size() == 5)
        return setValue(words);
    if (what == "list" && words.size() == 3)
        return listGroup(words);
    if (what == "groups" && (words.size() == 2 || words.size() == 3)) {
        const Wide prefix = wide(words.size() == 3 ? words[2] : "");
        return printStrings(Strings(zu_Ini_findPrefixGroups(wide(words[1]).c_str(), prefix.c_str())), "no such group");
    }
    if (what == "lines" && words.size() == 3)
        return printStrings(Strings(zu_Ini_getGroupLines(wide(words[1]).c_str(), wide(words[2]).c_str(), 1)),
                            "no such group");
    return usage();
}

int runDirectories(const Words&)
{
    zu_wchar buffer[ZU_SYS_PATH_SIZE + 1];
    print("configuration", zu_Sys_getCfgDir(buffer));
    print("network", zu_Sys_getNetDir(buffer));
    print("local", zu_Sys_getLocalDir(buffer));
    print("temporary", zu_Sys_getTempDir(buffer, 0));
    print("of this session", zu_Sys_getTempDir(buffer, 1));
    print("specifications", zu_Sys_getSpecDir(buffer, nullptr));
    print("programs", zu_Sys_getBinDir(buffer));
    return 0;
}

int runName(const Words& words)
{
    const Wide path = wide(words[0]);
    Wide part(path.size() + 1, 0);
    print("absolute", zu_Fname_fullPath(path.c_str()));
    zu_Fname_extractPath(path.c_str(), part.data());
    print("directory", part.data());
    zu_Fname_extractExt(path.c_str(), part.data());
    print("extension", part.data());
    part = path;
    zu_Fname_rmvPath(part.data());
    print("name", part.data());
    if (words.size() == 2)
        print("abbreviated", zu_Fname_abbreviate(path.c_str(), std::atoi(words[1].c_str())));
    return 0;
}

} // namespace demo
