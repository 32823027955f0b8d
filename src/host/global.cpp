#include "zu_Global.h"

#include "host/holder.h"
#include "platform/com.h"
#include "zu_Host.h"

namespace {

// Decided at the first use.
int32_t& builtInSetting()
{
    static int32_t setting = zu::platform::hasSystemComponents() ? 0 : 1;
    return setting;
}

} // namespace

void zu_Global_destroyData(void)
{
    zu::host::destroyHolder();
}

int32_t zu_Host_setBuiltIn(int32_t on)
{
    return std::exchange(builtInSetting(), on != 0 ? 1 : 0);
}

int32_t zu_Host_getBuiltIn(void)
{
    return builtInSetting();
}
