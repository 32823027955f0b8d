// Geometry, a text list and COM, from C++.
#include "version.h"

#include <cmath>
#include <cstdio>
#include <string>
#include <zu.h>

namespace {

bool projectsPoints()
{
    Point a;
    Point b;
    Point p;
    Point foot;
    zu_Point_set(&a, 0, 0, 0);
    zu_Point_set(&b, 10, 0, 0);
    zu_Point_set(&p, 4, 3, 0);
    double distance = 0;
    return zu_Point_projectOntoLine(&foot, &p, &a, &b) == 1 && zu_Point_between(&foot, &a, &b, 1) == 1 &&
           zu_Point_distance(&distance, &p, &foot) == 1 && std::abs(distance - 3) < ZU_GEOMETRY_TOLERANCE;
}

bool keepsTexts()
{
    StrList* const list = zu_StrList_create(ZU_W("pipe"), nullptr);
    zu_StrList_insEnd(list, ZU_W("\u00E9lbow"));
    const zu_wchar* const last = zu_StrList_getNth(list, 1);
    const bool ok = last != nullptr && last == std::basic_string<zu_wchar>(ZU_W("\u00E9lbow"));
    zu_StrList_destroy(list);
    return ok;
}

// Elsewhere than on Windows the functions are the library's own.
bool preparesCom()
{
    const HRESULT result = CoInitialize(nullptr);
    BSTR const text = SysAllocString(ZU_W("tag"));
    const bool ok = SUCCEEDED(result) && SysStringLen(text) == 3;
    SysFreeString(text);
    CoUninitialize();
    return ok;
}

} // namespace

int main()
{
    const struct
    {
        const char* what;
        bool holds;
    } rows[] = {
        {"version", isVersionOfHeaders() == 1},
        {"points", projectsPoints()},
        {"texts", keepsTexts()},
        {"COM", preparesCom()},
    };
    int failures = 0;
    for (const auto& row : rows) {
        std::printf("%s: %s\n", row.what, row.holds ? "ok" : "FAILED");
        failures += row.holds ? 0 : 1;
    }
    return failures;
}
