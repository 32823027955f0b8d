// msg, sys: messages, and what the library knows about the installation, the system and its processes.
#include "commands.h"
#include "text.h"

#include <cstdio>
#include <cstdlib>

namespace demo {
namespace {

// Line breaks as the layout put them, made visible.
std::string visible(const zu_wchar* text)
{
    std::string result;
    for (const char letter : utf8(text))
        result += letter == '\n' ? std::string("\\n") : std::string(1, letter);
    return result;
}

int showText(const Words& words)
{
    const std::string section = words.size() > 1 ? words[1] : "";
    const int number = words.size() > 2 ? std::atoi(words[2].c_str()) : 0;
    std::printf("[%s]\n", visible(zu_Msg(words[0].c_str(), section.c_str(), number)).c_str());
    return 0;
}

int showLayout(const Words& words)
{
    const int32_t mode = zu_Msg_setFormat(std::atoi(words[1].c_str()));
    std::printf("[%s]\n", visible(zu_Msg_format(wide(words[0]).c_str(), mode)).c_str());
    return 0;
}

int showKeywords(const Words& words)
{
    struct Destroy
    {
        void operator()(MsgKeyWordList* list) const { zu_MsgKeyWordList_destroy(list); }
    };
    const std::unique_ptr<MsgKeyWordList, Destroy> list(
        zu_Msg_getKeyWordList(wide(words[0]).c_str(), wide(words[1]).c_str(), 0));
    for (const LnkNode* node = list == nullptr ? nullptr : list->first; node != nullptr; node = node->next) {
        const auto* const pair = static_cast<const MsgKeyWordListNode*>(node->data);
        std::printf("%-20s %s\n", utf8(pair->source).c_str(), utf8(pair->translation).c_str());
    }
    return 0;
}

int showSystem(const Words&)
{
    zu_wchar group[ZU_SYS_PATH_SIZE + 1] = {};
    zu_Sys_getApplicationGroup(group, ZU_SYS_PATH_SIZE);
    print("library", wide(zu_version()).c_str());
    print("of its resource", zu_Sys_getVersionNumber(ZU_W("zu")));
    print("application group", group);
    std::printf("%-22s %d bit\n", "system", zu_Sys_is64bitSystem() == 1 ? 64 : 32);
    std::printf("%-22s %s\n", "asks for rights", zu_Global_isOSWithUACSupport() == 1 ? "yes" : "no");
    std::printf("%-22s %s\n", "mode selection", zu_Sys_getShowModeSelectGUI() == 1 ? "shown" : "not shown");
    return 0;
}

int showModule(const Words& words)
{
    const zu_wchar* const version = zu_Sys_getVersionNumber(wide(words[0]).c_str());
    print("fixed version", version);
    print("file version", zu_Global_getModuleFileVersion(wide(words[0]).c_str()));
    print("product version", zu_Global_getModuleProductVersion(wide(words[0]).c_str()));
    return version == nullptr ? 1 : 0;
}

int showProduct(const Words& words)
{
    const zu_wchar* const version = zu_Sys_getProductVersion(wide(words[0]).c_str());
    if (version == nullptr)
        return notFound("there is no list of installed products; ZU_REGISTRY can name one");
    if (*version == 0)
        return notFound("not installed");
    std::printf("%s\n", utf8(version).c_str());
    return 0;
}

// Arguments become one text again; the library takes them apart by the rules of command lines.
std::string joined(const Words& words)
{
    std::string text;
    for (const std::string& word : words) {
        const bool quoted = word.empty() || word.find(' ') != std::string::npos;
        text += (text.empty() ? "" : " ") + (quoted ? "\"" + word + "\"" : word);
    }
    return text;
}

int startProgram(const Words& words, int32_t wait)
{
    zu_wchar error[513] = {};
    const Words arguments(words.begin() + 1, words.end());
    std::fflush(stdout);
    if (zu_Sys_createProcess(wide(words[0]).c_str(), wide(joined(arguments)).c_str(), wait, error, 513) == 1)
        return 0;
    return notFound(utf8(error).c_str());
}

int runProgram(const Words& words)
{
    return startProgram(words, 1);
}

int launchProgram(const Words& words)
{
    return startProgram(words, 0);
}

} // namespace

int runMsg(const Words& words)
{
    static constexpr Command commands[] = {
        {"text", 1, 3, showText},
        {"format", 2, 2, showLayout},
        {"keywords", 2, 2, showKeywords},
    };
    return runCommand(commands, words);
}

int runSys(const Words& words)
{
    static constexpr Command commands[] = {
        {"info", 0, 0, showSystem},  {"module", 1, 1, showModule},     {"product", 1, 1, showProduct},
        {"run", 1, any, runProgram}, {"start", 1, any, launchProgram},
    };
    return runCommand(commands, words);
}

} // namespace demo
