// The host's file service: who answers whether files exist, and who is told that they changed. Without the service
// nothing exists and nobody is told. A failing call of the service is raised as a COM error.
#pragma once

#include "platform/wide.h"

namespace zu::file_service {

bool fileExists(WideView path);
bool folderExists(WideView path);
void revalidate(WideView path);

} // namespace zu::file_service
