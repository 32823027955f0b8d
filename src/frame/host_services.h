// The services of the host, as every folder may ask for them.
//
// They are made and kept by the holder in src/host/, which stands at the end of the order of folders because the
// built-in host rests on all the others. Its users stand before it: so the declaration is here, where they may include
// it, and it alone reaches forward.
#pragma once

#include "platform/com.h"

namespace zu::host {

// Each result is a reference of the caller's own; null when the host does not have the service. The first call of any
// of them makes the host's application object, and what fails then is not tried again until zu_Global_destroyData.
// None of them raises an error.
ComPtr<HostApplication> application();
ComPtr<HostTranslator> translator();
ComPtr<IniCache> iniCache();
ComPtr<HostFileService> fileService();

// New objects of the host's classes, or of the built-in host's where those cannot be made and it is switched on; null
// when neither can.
ComPtr<HostField> newField();
ComPtr<HostFieldCollection> newFieldCollection();

} // namespace zu::host
