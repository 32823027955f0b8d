// The classification of operating systems.
#pragma once

#include "platform/os.h"

namespace zu {

enum class OsCode
{
    unknown = 0,
    windows95 = 1,
    windows95ServicePack1 = 2,
    windows95Release2 = 3,
    windows98 = 4,
    windows98ServicePack1 = 5,
    windows98SecondEdition = 6,
    windowsMe = 7,
    windowsNt351 = 101,
    windowsNt4 = 102,
    windows2000 = 103,
    windowsXp = 104,
    windowsServer2003 = 105,
    windowsVista = 106,
    windowsCe = 201
};

constexpr OsCode classify9x(const platform::OsRecord& os)
{
    if (os.major != 4)
        return OsCode::unknown;
    if (os.minor == 90)
        return OsCode::windowsMe;
    if (os.minor < 10)
        return os.build > 1080   ? OsCode::windows95Release2
               : os.build >= 951 ? OsCode::windows95ServicePack1
               : os.build == 950 ? OsCode::windows95
                                 : OsCode::unknown;
    if (os.minor == 10)
        return os.build >= 2183   ? OsCode::windows98SecondEdition
               : os.build >= 1999 ? OsCode::windows98ServicePack1
               : os.build == 1998 ? OsCode::windows98
                                  : OsCode::unknown;
    return OsCode::unknown;
}

// Versions after 6.0 have no code of their own: this is meant, callers ask for exactly that version.
constexpr OsCode classifyNt(const platform::OsRecord& os)
{
    constexpr struct
    {
        std::uint32_t major, minor;
        OsCode code;
    } versions[] = {
        {3, 51, OsCode::windowsNt351}, {4, 0, OsCode::windowsNt4},        {5, 0, OsCode::windows2000},
        {5, 1, OsCode::windowsXp},     {5, 2, OsCode::windowsServer2003}, {6, 0, OsCode::windowsVista},
    };
    for (const auto& version : versions) {
        if (version.major == os.major && version.minor == os.minor)
            return version.code;
    }
    return OsCode::unknown;
}

constexpr OsCode classify(const platform::OsRecord& os)
{
    switch (os.family) {
    case platform::OsFamily::windows9x: return classify9x(os);
    case platform::OsFamily::windowsNt: return classifyNt(os);
    case platform::OsFamily::windowsCe: return OsCode::windowsCe;
    case platform::OsFamily::other: break;
    }
    return OsCode::unknown;
}

} // namespace zu
