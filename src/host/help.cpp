#include "frame/guard.h"
#include "frame/text.h"
#include "platform/message_box.h"
#include "platform/module.h"
#include "zu_File.h"
#include "zu_Help.h"
#include "zu_Msg.h"
#include "zu_Sys.h"

using namespace zu;

namespace {

constexpr WideView helpLibrary = ZU_W("zu_HLP18AN");
constexpr WideView uiLibrary = ZU_W("ZU_MFC18AN");
constexpr std::uint32_t taskModalStop = 8208; // the style of an alert: task-modal, with the icon for errors

// A text of several messages, a line each.
WideString lines(std::initializer_list<const char*> messages)
{
    WideString text;
    for (const char* message : messages)
        text += zu_Msg(message, "TOOL", 5);
    return text;
}

// A library of the product: the one that is loaded already, else the one in the binary directory, else whatever the
// system's search finds.
void* loadHelpLibrary()
{
    if (void* const loaded = platform::loadedModule(helpLibrary))
        return loaded;
    zu_wchar path[ZU_SYS_PATH_SIZE + 1];
    zu_Sys_getBinName(path, platform::libraryFileName(helpLibrary).c_str());
    return platform::loadModule(zu_File_exists(path) ? WideView(path) : helpLibrary);
}

// No binary directory here: the product's own search for this library never found it there, and installations have it
// on the system's path.
void* loadUiLibrary()
{
    void* const loaded = platform::loadedModule(uiLibrary);
    return loaded != nullptr ? loaded : platform::loadModule(uiLibrary);
}

// Shows an alert of the UI library.
std::int32_t alert(void* owner, const WideString& message, std::uint32_t style)
{
    void* const library = loadUiLibrary();
    if (library == nullptr) {
        const WideString caption(zu_Msg("MFC Interface Error", "TOOL", 1));
        const WideString text =
            lines({"Unable to load the Morvek MFC Interface library",
                   "The most likely cause is that the correct MFC DLL does not exist in your system area",
                   "Please check the installation of this product from the Morvek distribution disk."});
        platform::showMessage(caption.c_str(), text.c_str(), platform::MessageIcon::stop, true);
        return 0;
    }
    using Alert = std::int32_t (*)(void* owner, const zu_wchar* message, std::uint32_t style);
    const auto show = reinterpret_cast<Alert>(platform::entryPoint(library, "zu_mfcDlgAlert"));
    return show == nullptr ? 0 : show(owner, message.c_str(), style);
}

// The help library, ready to be called; null, and the user has been told, when it or what it needs is missing.
void* helpLibraryOrAlert()
{
    void* const library = loadHelpLibrary();
    if (library != nullptr && platform::isOnSearchPath(ZU_W("mshtml"), ZU_W(".dll")))
        return library;
    const WideString message =
        lines({"Unable to load the Morvek help Interface library",
               "The most likely cause is that Microsoft Internet Explorer is not loaded.",
               "Please install Microsoft Internet Explorer 4.0x from the Morvek distribution disk."});
    // The caption goes through the translator like every text, though the dialog has one of its own.
    zu_Msg("Help Library Error", "TOOL", 1);
    alert(nullptr, message, taskModalStop);
    return nullptr;
}

// Calls an entry of the help library; 0 when there is no library or no such entry. Entries are looked up at each call,
// so that the host may replace the library in between.
template <class... Args>
intptr_t callHelp(const char* entry, Args... args)
{
    void* const library = guarded<void*>(nullptr, helpLibraryOrAlert);
    void* const routine = library == nullptr ? nullptr : platform::entryPoint(library, entry);
    return routine == nullptr ? 0 : reinterpret_cast<intptr_t (*)(Args...)>(routine)(args...);
}

} // namespace

intptr_t zu_Help_Initialize(void)
{
    return callHelp("zu_Help_Initialize");
}

intptr_t zu_Help_DisplayContext(void* a, void* b, void* c, uint32_t number)
{
    return callHelp("zu_Help_DisplayContext", a, b, c, number);
}

intptr_t zu_Help_DisplayTopic(void* a, void* b, void* c)
{
    return callHelp("zu_Help_DisplayTopic", a, b, c);
}
