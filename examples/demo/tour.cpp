// The tour: what an application does with the library's configuration, on the sample installation.
#include "commands.h"
#include "text.h"

#include <cstdio>
#include <cstdlib>

namespace demo {
namespace {

void heading(const char* text)
{
    std::printf("\n%s\n", text);
}

void row(const std::string& left, const std::string& right)
{
    std::printf("  %-34s %s\n", left.c_str(), right.c_str());
}

Wide configurationFile()
{
    zu_wchar path[ZU_SYS_PATH_SIZE + 1];
    return zu_Sys_getCfgName(path, ZU_W("zu.ini"));
}

// The installation is the directory above the one that holds zu.ini; its values name it by the alias %PLANT%.
bool putPlantAlias()
{
    zu_wchar directory[ZU_SYS_PATH_SIZE + 1];
    zu_Sys_getCfgDir(directory);
    Wide plant(directory);
    while (!plant.empty() && plant.back() == ZU_W('\\'))
        plant.pop_back();
    plant.resize(plant.find_last_of(ZU_W('\\')) == Wide::npos ? 0 : plant.find_last_of(ZU_W('\\')));
    row("%PLANT%", utf8(plant.c_str()));
    return !plant.empty() && zu_Alias_put(ZU_W("PLANT"), plant.c_str()) == 1;
}

void showExpansion(const char* text)
{
    row(text, utf8(zu_Env_expandStr(wide(text).c_str())));
}

// Each pipe of the configuration, with the material of its class from the class's own file.
void listPipes(const Wide& file)
{
    const Strings pipes(zu_Ini_findPrefixGroups(file.c_str(), ZU_W("PIPE.")));
    for (zu_StrList_start(pipes.get()); zu_StrList_eol(pipes.get()) == 0; zu_StrList_next(pipes.get())) {
        const Wide name = zu_StrList_getCurr(pipes.get());
        const Fields pipe(zu_Ini_getGroup(file.c_str(), name.c_str()));
        zu_wchar tag[33];
        zu_wchar spec[33];
        zu_wchar fluid[65];
        double size = 0.0;
        zu_FldList_getChar(pipe.get(), ZU_W("tag"), tag, 32);
        zu_FldList_getChar(pipe.get(), ZU_W("spec"), spec, 32);
        zu_FldList_getChar(pipe.get(), ZU_W("fluid"), fluid, 64);
        zu_FldList_getReal(pipe.get(), ZU_W("size"), &size); // the number in a text, too

        const zu_wchar* const specFile = zu_Env_getIni(ZU_W("SPECS"), spec);
        zu_wchar path[ZU_SYS_PATH_SIZE + 1];
        zu_Sys_getSpecName(path, nullptr, specFile == nullptr ? spec : Wide(specFile).c_str());
        const zu_wchar* const material = zu_Ini_get(path, ZU_W("CLASS"), ZU_W("Material"));
        std::printf("  %-8s %-10s %7.1f mm  %-8s %-14s %s\n", utf8(name.c_str()).c_str(), utf8(tag).c_str(), size,
                    utf8(spec).c_str(), utf8(material).c_str(), utf8(fluid).c_str());
    }
    row("next free pipe number", utf8(zu_Ini_getNextIncrSuffix(file.c_str(), ZU_W("PIPE."))));
}

void listGroup(const zu_wchar* group)
{
    const Fields fields(zu_Env_getIniGroup(group));
    for (zu_FldList_start(fields.get()); zu_FldList_eol(fields.get()) == 0; zu_FldList_next(fields.get())) {
        const FldNode* const field = zu_FldList_curr(fields.get());
        row(utf8(field->name), utf8(field->value.text));
    }
}

// Counts this run in the configuration file. True when the file holds the new number.
bool countRun(const Wide& file)
{
    const zu_wchar* const runs = zu_Ini_get(file.c_str(), ZU_W("SITE"), ZU_W("Runs"));
    const int next = (runs == nullptr ? 0 : std::atoi(utf8(runs).c_str())) + 1;
    int32_t status = 1;
    const int32_t verified =
        zu_Ini_setAndVerify(file.c_str(), ZU_W("SITE"), ZU_W("Runs"), wide(std::to_string(next)).c_str(), &status);
    row("[SITE] Runs", std::to_string(next) + (verified == 1 ? "   written and verified" : "   NOT verified"));
    return verified == 1;
}

} // namespace

int runTour(const Words&)
{
    const Wide file = configurationFile();
    std::printf("Sample plant, configured by %s\n", utf8(file.c_str()).c_str());

    heading("Alias of the installation");
    if (!putPlantAlias() || zu_Env_getIni(ZU_W("GENERAL"), ZU_W("KV")) == nullptr) {
        std::fputs("zu-demo: no zu.ini with a group GENERAL there; scripts/demo prepares one\n", stderr);
        return 1;
    }

    heading("Group GENERAL of zu.ini, aliases expanded");
    listGroup(ZU_W("GENERAL"));

    heading("References: session, then zu.ini, then the environment");
    showExpansion("%KVWS%\\specs\\local.ini");
    showExpansion("%KV%\\specs\\piping\\cs150.ini");
    zu_Env_setSes(ZU_W("KVWS"), ZU_W("D:\\override"));
    row("session variable KVWS set to", "D:\\override");
    showExpansion("%KVWS%\\specs\\local.ini");
    zu_Env_setSes(ZU_W("KVWS"), nullptr);
    showExpansion("%HOME%");
    showExpansion("100%% of %NOBODY%it");

    heading("Directories derived from them");
    zu_wchar buffer[ZU_SYS_PATH_SIZE + 1];
    row("network", utf8(zu_Sys_getNetDir(buffer)));
    row("local", utf8(zu_Sys_getLocalDir(buffer)));
    row("temporary, of this session", utf8(zu_Sys_getTempDir(buffer, 1)));
    row("specifications", utf8(zu_Sys_getSpecDir(buffer, ZU_W("piping"))));
    row("programs", utf8(zu_Sys_getBinDir(buffer)));

    heading("Pipes, each a group of zu.ini read as a field list");
    listPipes(file);

    heading("A value written back");
    return countRun(file) ? 0 : 1;
}

} // namespace demo
