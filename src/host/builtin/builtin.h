// The built-in host: the application object and the services of the host, for where no component supplies them. All
// objects follow zu_HostObjects.h. Where memory is short they answer what they would answer for something absent, or
// E_OUTOFMEMORY where there is no such answer.
#pragma once

#include "platform/com.h"

namespace zu::host {

// Null without memory.
ComPtr<HostApplication> makeBuiltInApplication();
ComPtr<IniCache> makeBuiltInIniCache();
ComPtr<HostFileService> makeBuiltInFileService();
ComPtr<HostField> makeBuiltInField();
ComPtr<HostFieldCollection> makeBuiltInFieldCollection();
ComPtr<HostVariableList> makeBuiltInVariableList();

// The directory of the configuration files, absolute and without a separator at its end; the empty text when the
// environment names none.
WideString configurationDirectory();

// Makes the configuration directory when a file in it is about to be written and it does not exist yet. Other
// directories are not made.
void makeConfigurationDirectoryFor(WideView path);

} // namespace zu::host
