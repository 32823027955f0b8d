// What a port must supply of the modules of the process: those that are loaded, their versions, and loading more.
#pragma once

#include "platform/wide.h"

#include <optional>

namespace zu::platform {

// The version of a loaded module.
struct ModuleVersion
{
    WideString file;  // the module's full file name
    ByteString block; // its version-resource block; empty when it has none
};

// None when no module of that name is loaded. The name is the file's, with or without its directory and extension.
std::optional<ModuleVersion> moduleVersion(WideView name);

// A module of the process, for as long as somebody keeps it loaded; null when there is none of that name.
void* loadedModule(WideView name);

// Loads a library by its path, or by its bare name through the system's search. It stays loaded. Null when that fails.
void* loadModule(WideView name);

// The routine that a module exports under a name, or null.
void* entryPoint(void* module, const char* name);

// The name of the file that holds a library.
WideString libraryFileName(WideView name);

// Whether the system's search finds a file: beside the program, in the current directory, or along PATH.
bool isOnSearchPath(WideView name, WideView extension);

} // namespace zu::platform
