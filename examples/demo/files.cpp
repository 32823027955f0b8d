// file, dir: files and directories.
#include "commands.h"
#include "text.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace demo {
namespace {

// A path as the library takes it; the slash, which shells prefer, is an ordinary character in some of its operations.
Wide pathOf(const std::string& word)
{
    Wide path = wide(word);
    std::replace(path.begin(), path.end(), zu_wchar('/'), zu_wchar('\\'));
    return path;
}

// What a family answers as done or not done, told to the user and turned into an exit code.
int tell(bool done, const char* what)
{
    std::printf("%s%s\n", done ? "" : "not ", what);
    return done ? 0 : 1;
}

std::string timeText(int32_t seconds)
{
    const std::time_t time = seconds;
    char text[32] = "";
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S UTC", std::gmtime(&time));
    return text;
}

int showFile(const Words& words)
{
    const Wide path = pathOf(words[0]);
    const auto row = [](const char* label, const std::string& value) {
        std::printf("%-12s %s\n", label, value.c_str());
    };
    row("full path", utf8(zu_Fname_fullPath(path.c_str())));
    row("network", utf8(zu_File_getUNCPathName(path.c_str())));
    row("exists", zu_File_exists(path.c_str()) == 1  ? "as a file"
                  : zu_Dir_exists(path.c_str()) == 1 ? "as a directory"
                                                     : "no");
    row("access", std::string(zu_File_hasAccess(path.c_str(), 4) == 1 ? "read " : "") +
                      (zu_File_isWriteEnabled(path.c_str()) == 1 ? "write" : ""));
    int32_t time = 0;
    if (zu_File_getTime(path.c_str(), &time) == 0)
        row("changed", timeText(time));
    return 0;
}

int showLines(const Words& words)
{
    const Strings lines(zu_File_readFile(pathOf(words[0]).c_str()));
    return printStrings(lines, "the file cannot be read");
}

int findFiles(const Words& words)
{
    zu_wchar name[260 + 1];
    int32_t result = zu_File_findFirst(pathOf(words[0]).c_str(), name);
    if (result != 0)
        return tell(false, "found");
    for (; result == 0; result = zu_File_findNext(name))
        std::printf("%s\n", utf8(name).c_str());
    return 0;
}

int copyFile(const Words& words)
{
    return tell(zu_File_copy(pathOf(words[0]).c_str(), pathOf(words[1]).c_str()) == 0, "copied");
}

int appendFile(const Words& words)
{
    // The library takes the destination first.
    return tell(zu_File_append(pathOf(words[1]).c_str(), pathOf(words[0]).c_str()) == 0, "appended");
}

int moveFile(const Words& words)
{
    return tell(zu_File_move(pathOf(words[0]).c_str(), pathOf(words[1]).c_str()) == 0, "moved");
}

int deleteFiles(const Words& words)
{
    const bool fromList = words.size() == 2;
    if (fromList && words[0] != "--list")
        return usage();
    const int32_t count = zu_File_delete(pathOf(words.back()).c_str(), fromList ? 1 : 0);
    std::printf("%d deleted\n", count);
    return count > 0 ? 0 : 1;
}

int protectFile(const Words& words)
{
    return tell(zu_File_setReadOnlyAccess(pathOf(words[0]).c_str()) == 1, "read-only");
}

int unprotectFile(const Words& words)
{
    return tell(zu_File_setReadWriteAccess(pathOf(words[0]).c_str()) == 1, "writable");
}

int sliceFile(const Words& words)
{
    const int32_t parts = zu_File_slice(pathOf(words[0]).c_str(), std::atoi(words[1].c_str()));
    std::printf("%d parts\n", parts);
    return parts > 0 ? 0 : 1;
}

int mendFile(const Words& words)
{
    const int32_t next = zu_File_mend(pathOf(words[0]).c_str()); // the number of the part that was not there any more
    std::printf("joined from %d parts\n", std::max(0, next - 1));
    return next > 1 ? 0 : 1;
}

int scrambleFile(const Words& words)
{
    // The library takes the destination first; a second time gives the file back.
    return tell(zu_File_encrypt(pathOf(words[1]).c_str(), pathOf(words[0]).c_str()) == 1, "scrambled");
}

int relativeName(const Words& words)
{
    const zu_wchar* const name = zu_File_getRelativeFilename(pathOf(words[0]).c_str(), pathOf(words[1]).c_str());
    std::printf("%s\n", utf8(name).c_str());
    return name == nullptr ? 1 : 0;
}

int listDirectory(const Words& words)
{
    return printStrings(Strings(zu_Dir_list(pathOf(words[0]).c_str())), "nothing there");
}

int makeDirectories(const Words& words)
{
    return tell(zu_Dir_create(pathOf(words[0]).c_str()) == 0, "created");
}

int deleteDirectory(const Words& words)
{
    return tell(zu_Dir_delete(pathOf(words[0]).c_str()) == 0, "deleted");
}

int deleteTree(const Words& words)
{
    return tell(zu_Dir_deleteTree(pathOf(words[0]).c_str()) == 0, "deleted");
}

int showParent(const Words& words)
{
    const zu_wchar* const parent = zu_Dir_getParent(pathOf(words[0]).c_str());
    std::printf("%s\n", utf8(parent).c_str());
    return parent == nullptr ? 1 : 0;
}

int showCurrent(const Words&)
{
    std::printf("%s\n", utf8(zu_Dir_current()).c_str());
    return 0;
}

} // namespace

int runFile(const Words& words)
{
    static constexpr Command commands[] = {
        {"info", 1, 1, showFile},         {"lines", 1, 1, showLines},     {"find", 1, 1, findFiles},
        {"copy", 2, 2, copyFile},         {"append", 2, 2, appendFile},   {"move", 2, 2, moveFile},
        {"delete", 1, 2, deleteFiles},    {"protect", 1, 1, protectFile}, {"unprotect", 1, 1, unprotectFile},
        {"slice", 2, 2, sliceFile},       {"mend", 1, 1, mendFile},       {"scramble", 2, 2, scrambleFile},
        {"relative", 2, 2, relativeName},
    };
    return runCommand(commands, words);
}

int runDir(const Words& words)
{
    static constexpr Command commands[] = {
        {"list", 1, 1, listDirectory}, {"create", 1, 1, makeDirectories}, {"delete", 1, 1, deleteDirectory},
        {"deltree", 1, 1, deleteTree}, {"parent", 1, 1, showParent},      {"current", 0, 0, showCurrent},
    };
    return runCommand(commands, words);
}

} // namespace demo
