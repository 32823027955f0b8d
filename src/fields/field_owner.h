// An owner of a field list, for the time until it is handed out.
#pragma once

#include "zu_FldList.h"

#include <memory>

namespace zu {

struct FieldDestroyer
{
    void operator()(FldList* list) const { zu_FldList_destroy(list); }
};
using FieldOwner = std::unique_ptr<FldList, FieldDestroyer>;

} // namespace zu
