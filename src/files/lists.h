// An owner of a string list, for the time until it is handed out.
#pragma once

#include "containers/strlist.h"

#include <memory>

namespace zu {

struct ListDestroyer
{
    void operator()(StrList* list) const { zu_StrList_destroy(list); }
};
using ListOwner = std::unique_ptr<StrList, ListDestroyer>;

} // namespace zu
