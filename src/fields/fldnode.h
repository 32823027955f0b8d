// What the sources of the field list share.
#pragma once

#include "frame/text.h"
#include "zu_FldList.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zu {

inline bool isText(std::uint16_t type)
{
    return type == ZU_FLD_CHAR || type == ZU_FLD_HANDLE;
}

inline bool isInteger(std::uint16_t type)
{
    return type == ZU_FLD_INT || type == ZU_FLD_LONG;
}

inline bool isPointLike(std::uint16_t type)
{
    return type == ZU_FLD_POINT || type == ZU_FLD_MPOINT || type == ZU_FLD_DPOINT || type == ZU_FLD_VECTOR;
}

// A string-list field; takes over value.
FldNode* newStrListNode(const zu_wchar* name, LnkList* value);

// The value of a field as given to an operation: what is to be stored, made before anything old is freed.
FldValue textValue(const zu_wchar* text, bool upperCase);
FldValue integerValue(std::int32_t value);
FldValue realValue(double value);
FldValue pointValue(const double* xyz);
FldValue listValue(LnkList* list);

// Truncates toward zero; what no 32-bit integer holds gives the nearest one, and what is no number 0.
inline std::int32_t truncated(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(value, lowest, highest));
}

inline void copyPoint(double* out, const FldNode& node)
{
    if (out != nullptr)
        std::copy_n(node.value.point, 3, out);
}

// The bounded copy into a caller's buffer of capacity units and a terminator.
inline void copyToBuffer(zu_wchar* buffer, std::int32_t capacity, const zu_wchar* text)
{
    if (buffer != nullptr && text != nullptr)
        text::copyCut(buffer, static_cast<std::size_t>(std::max(capacity, 0)), WideView(text));
}

// Formats a numeric field's value; the empty text for the other types.
void formatNumber(zu_wchar* buffer, const FldNode& node);

} // namespace zu
