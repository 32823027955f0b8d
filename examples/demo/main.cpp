// zu-demo: the library from the command line.
#include "commands.h"
#include "text.h"

#include <cstdio>
#include <cstring>
#include <exception>

namespace demo {

int usage()
{
    std::fputs("usage: zu-demo [--trace] [--set NAME=VALUE]... [COMMAND]\n"
               "\n"
               "Without a command it runs the tour through the configuration of the sample installation.\n"
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
               "  db struct FILE                    the fields of a table and the number of its rows\n"
               "  db dump FILE [FIRST [COUNT]]      its rows\n"
               "  db seek FILE FIELD VALUE          the first row whose field has a value\n"
               "  db set FILE FIELD VALUE TARGET NEW    changes another field of that row\n"
               "  db add FILE FIELD=VALUE...        appends a row\n"
               "\n"
               "  --trace          writes the call trace of the list families to standard output\n"
               "  --set NAME=VALUE sets a session variable first\n",
               stderr);
    return 2;
}

namespace {

int run(const Words& words)
{
    if (words.empty())
        return runTour();
    const Words rest(words.begin() + 1, words.end());
    const struct
    {
        const char* name;
        int (*command)(const Words&);
    } commands[] = {
        {"expand", runExpand},    {"env", runEnvironment}, {"ini", runIni},
        {"dirs", runDirectories}, {"name", runName},       {"db", runDb},
    };
    for (const auto& entry : commands) {
        if (words[0] == entry.name)
            return entry.command(rest);
    }
    return usage();
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
