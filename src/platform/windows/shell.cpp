#include "platform/shell.h"

#include "platform/windows/handle.h"

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

namespace zu::platform {

std::intptr_t openInEditor(WideView file)
{
    const WideString terminated(file);
    return reinterpret_cast<std::intptr_t>(
        ::ShellExecuteW(nullptr, L"open", L"notepad.exe", terminated.c_str(), L"", SW_SHOWNORMAL));
}

std::intptr_t openFile(WideView file)
{
    const WideString terminated(file);
    return reinterpret_cast<std::intptr_t>(
        ::ShellExecuteW(nullptr, L"open", terminated.c_str(), nullptr, nullptr, SW_SHOWDEFAULT));
}

ShortcutMaker::ShortcutMaker() : link(nullptr)
{
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &link)))
        link = nullptr;
}

ShortcutMaker::~ShortcutMaker()
{
    if (link != nullptr)
        static_cast<IShellLinkW*>(link)->Release();
}

bool ShortcutMaker::save(const Shortcut& shortcut, WideView file) const
{
    const WideString target(shortcut.target), description(shortcut.description), arguments(shortcut.arguments),
        directory(shortcut.directory), path(file);
    auto* const shellLink = static_cast<IShellLinkW*>(link);
    shellLink->SetPath(target.c_str());
    shellLink->SetDescription(description.c_str());
    shellLink->SetArguments(arguments.c_str());
    shellLink->SetWorkingDirectory(directory.c_str());
    IPersistFile* persistent = nullptr;
    if (FAILED(shellLink->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&persistent))))
        return false;
    const HRESULT result = persistent->Save(path.c_str(), TRUE);
    persistent->Release();
    return SUCCEEDED(result);
}

} // namespace zu::platform
