// The statements that the table interface composes.
#pragma once

#include "frame/text.h"
#include "zu_DbFldList.h"

namespace zu::db {

// The text from the last "." of a whole path on, "." included; empty without one.
WideView extensionOf(WideView path);

WideString selectText(WideView path);
WideString countText(WideView path);
WideString insertText(WideView path, const DbFldList* values);

// Empty when values changes nothing.
WideString updateText(WideView path, const DbFldList* oldRow, const DbFldList* values);

} // namespace zu::db
