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

// How many columns of a terminal a text takes, for the letters that plants use.
int columnsOf(const std::string& text);
// The text in a column; a negative width puts it at the left end.
void printColumn(const std::string& text, int width);

// A label and a text behind it, on a line.
void print(const char* label, const zu_wchar* value);
// Each text on a line. Without a list it tells what is the matter. Returns the exit code.
int printStrings(const Strings& strings, const char* whenNone);

} // namespace demo
