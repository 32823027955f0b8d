// zu-demo: the library from the command line.
#include "commands.h"
#include "text.h"

#include <cstdio>
#include <cstring>
#include <exception>

namespace demo {

int usage()
{
    std::fputs("usage: zu-demo [--trace | --log FILE] [--set NAME=VALUE]... [COMMAND]\n"
               "\n"
               "Without a command it reports on the plant of the installation.\n"
               "\n"
               "  report [UNIT]                     bill of material and drawing of a unit\n"
               "  tour                              a walk through the configuration of the installation\n"
               "\n"
               "  expand TEXT...                    replaces %NAME% references (session, zu.ini, environment)\n"
               "  env NAME                          tells a setting and where it comes from\n"
               "  ini get FILE GROUP KEY            a value, with aliases expanded\n"
               "  ini set FILE GROUP KEY VALUE      writes a value and reads it back\n"
               "  ini list FILE GROUP               a group as a field list\n"
               "  ini groups FILE [PREFIX]          the names of the groups\n"
               "  ini lines FILE GROUP              the lines of a group as they stand\n"
               "  dirs                              the directories of the installation\n"
               "  name PATH [WIDTH]                 takes a file name apart\n"
               "\n"
               "  db struct FILE                    the fields of a table and the number of its rows\n"
               "  db dump FILE [FIRST [COUNT]]      its rows\n"
               "  db seek FILE FIELD VALUE          the first row whose field has a value\n"
               "  db set FILE FIELD VALUE TARGET NEW    changes another field of that row\n"
               "  db add FILE FIELD=VALUE...        appends a row\n"
               "\n"
               "  file info PATH                    existence, access, time, network name\n"
               "  file lines PATH                   the lines of a text file that are not empty\n"
               "  file find PATTERN                 the names that * and ? stand for\n"
               "  file copy|append|move FROM TO     append adds the text of FROM to TO\n"
               "  file delete PATTERN               one file or many; --list FILE: those that FILE lists\n"
               "  file protect|unprotect PATH       makes it read-only, or writable\n"
               "  file slice PATH SIZE              cuts it into parts of SIZE bytes; file mend PATH joins them\n"
               "  file scramble FROM TO             doing it again gives the file back\n"
               "  file relative BASE TARGET         the target as seen from the base\n"
               "  dir list PATTERN                  paths of the entries\n"
               "  dir create|delete|deltree PATH    with all directories on the way; an empty one; with its content\n"
               "  dir parent PATH                   where it lies in\n"
               "  dir current                       the current directory\n"
               "\n"
               "  msg text TEXT [SECTION [N]]       a message as an application gets it\n"
               "  msg format TEXT LAYOUT            with the line breaks of a layout, 1 to 7\n"
               "  msg keywords LIST SECTION         keywords and their translations\n"
               "  sys info                          versions, system, settings\n"
               "  sys module NAME                   the versions of a loaded module\n"
               "  sys product NAME                  the version of an installed product\n"
               "  sys run PROGRAM [ARGUMENT...]     starts a program and waits for its end; sys start does not wait\n"
               "\n"
               "  --trace          writes the call trace of the list families to standard output\n"
               "  --log FILE       writes the call trace of all families to a file\n"
               "  --set NAME=VALUE sets a session variable first\n",
               stderr);
    return 2;
}

namespace {

int run(Words words)
{
    if (words.empty())
        words.push_back("report");
    static constexpr Command commands[] = {
        {"report", 0, 1, runReport},   {"tour", 0, 0, runTour}, {"expand", 1, any, runExpand},
        {"env", 1, 1, runEnvironment}, {"ini", 1, any, runIni}, {"dirs", 0, 0, runDirectories},
        {"name", 1, 2, runName},       {"db", 1, any, runDb},   {"file", 1, any, runFile},
        {"dir", 1, any, runDir},       {"msg", 1, any, runMsg}, {"sys", 1, any, runSys},
    };
    return runCommand(commands, words);
}

} // namespace
} // namespace demo

int main(int argc, char** argv)
{
    demo::Words words;
    for (int index = 1; index < argc; ++index) {
        const std::string word = argv[index];
        if (word == "--trace") {
            zu_Diag_setLevel(3);
            zu_Diag_setCondition(ZU_DIAG_LNKLIST | ZU_DIAG_STRLIST);
        } else if (word == "--log" && index + 1 < argc) {
            zu_Diag_setLevel(3);
            zu_Diag_setCondition(0xFFFFFFFF);
            if (zu_Diag_setOutput(ZU_DIAG_TO_FILE, demo::wide(argv[++index]).c_str()) == 0)
                return demo::notFound("the log cannot be written");
        } else if (word == "--set" && index + 1 < argc) {
            const std::string setting = argv[++index];
            const std::size_t sign = setting.find('=');
            if (sign == std::string::npos)
                return demo::usage();
            zu_Env_setSes(demo::wide(setting.substr(0, sign)).c_str(), demo::wide(setting.substr(sign + 1)).c_str());
        } else {
            words.push_back(word);
        }
    }
    // Where the system has no host application, the library brings its own; elsewhere it has to be asked to.
    zu_Host_setBuiltIn(1);
    CoInitialize(nullptr);
    int result = 1;
    try {
        result = demo::run(words);
    } catch (const _com_error& error) {
        std::fprintf(stderr, "zu-demo: the host's service failed: %08lx\n", static_cast<unsigned long>(error.Error()));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zu-demo: %s\n", error.what());
    }
    zu_Global_destroyData();
    CoUninitialize();
    return result;
}
