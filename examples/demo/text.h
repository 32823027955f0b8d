// Between the library's wide text and the UTF-8 of a terminal.
#pragma once

#include "zu.h"

#include <memory>
#include <string>
#include <string_view>

namespace demo {

using Wide = std::basic_string<zu_wchar>;

Wide wide(std::string_view utf8);
std::string utf8(const zu_wchar* text); // null gives "(none)"

// Owners of what the library hands out.
struct Release
{
    void operator()(zu_wchar* text) const { zu_Free(text); }
};
struct ReleaseStrings
{
    void operator()(StrList* list) const { zu_StrList_destroy(list); }
};
struct ReleaseFields
{
    void operator()(FldList* list) const { zu_FldList_destroy(list); }
};
using Strings = std::unique_ptr<StrList, ReleaseStrings>;
using Fields = std::unique_ptr<FldList, ReleaseFields>;

} // namespace demo
