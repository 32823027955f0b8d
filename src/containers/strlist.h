// What other families need of string lists beyond the exported operations: whole elements without a copy.
#pragma once

#include "frame/text.h"
#include "zu_StrList.h"

namespace zu {

inline WideView stringOf(const LnkNode* node)
{
    return node == nullptr || node->data == nullptr ? WideView()
                                                    : text::view(static_cast<const StrListNode*>(node->data)->string);
}

// Appends a copy of text, as zu_StrList_insEnd; text need not be terminated.
bool appendString(StrList* list, WideView text);

} // namespace zu
