// The library's lists as values that compare and print.
#pragma once

#include "support/wide.h"
#include "zu_FldList.h"
#include "zu_Memory.h"
#include "zu_StrList.h"

#include <memory>
#include <vector>

namespace zutest {

// The strings of a list, which is destroyed.
inline std::vector<Wide> takeStrings(StrList* list)
{
    std::vector<Wide> strings;
    if (list == nullptr)
        strings.push_back(W("<no list>"));
    for (zu_StrList_start(list); zu_StrList_eol(list) == 0; zu_StrList_next(list)) {
        zu_wchar* const string = zu_StrList_getCurrPtr(list);
        strings.push_back(str(string));
        zu_Free(string);
    }
    zu_StrList_destroy(list);
    return strings;
}

struct FieldsDeleter
{
    void operator()(FldList* list) const { zu_FldList_destroy(list); }
};
using Fields = std::unique_ptr<FldList, FieldsDeleter>;

} // namespace zutest
