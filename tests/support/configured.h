// A sandbox that is the library's configuration directory, served by the built-in host.
#pragma once

#include "support/sandbox.h"
#include "zu_Env.h"
#include "zu_Global.h"
#include "zu_Host.h"

namespace zutest {

class Configured : public Sandbox
{
public:
    explicit Configured(std::string_view zuIni = {})
    {
        setEnvironment("ZU_CFG_DIR", nativeUtf8());
        zu_Global_destroyData();
        zu_Host_setBuiltIn(1);
        zu_Env_resetSes();
        if (!zuIni.empty())
            write(W("zu.ini"), zuIni);
    }
    ~Configured()
    {
        zu_Env_resetSes();
        zu_Global_destroyData();
        zu_Host_setBuiltIn(previous);
    }
    Configured(const Configured&) = delete;
    Configured& operator=(const Configured&) = delete;

    Wide file() const { return path(W("zu.ini")); }

private:
    std::string nativeUtf8() const
    {
        const auto text = native().u8string();
        return std::string(text.begin(), text.end());
    }
    std::int32_t previous = zu_Host_getBuiltIn();
};

} // namespace zutest
