#include "fields/fldnode.h"
#include "frame/format.h"
#include "frame/guard.h"
#include "zu_FldNode.h"

#include <cstdlib>

using namespace zu;

namespace {

// The text of a value; what is no value of its own is empty.
WideString textOf(const FldNode& node)
{
    const FldValue& value = node.value;
    if (isText(node.type))
        return WideString(text::view(value.text));
    if (isInteger(node.type))
        return formatted(node.type == ZU_FLD_INT ? ZU_W("%d") : ZU_W("%ld"), value.integer);
    if (node.type == ZU_FLD_REAL)
        return formatted(ZU_W("%f"), value.real);
    if (isPointLike(node.type))
        return formatted(ZU_W("%c:%.3f %.3f %.3f"), static_cast<zu_wchar>(node.type), value.point[0], value.point[1],
                         value.point[2]);
    return WideString();
}

// Callers release it with the runtime's free.
zu_wchar* runtimeCopy(WideView text)
{
    auto* const copy = static_cast<zu_wchar*>(std::malloc((text.size() + 1) * sizeof(zu_wchar)));
    if (copy != nullptr)
        text::copyCut(copy, text.size(), text);
    return copy;
}

} // namespace

zu_wchar* zu_FldNode_getFldValue(const FldNode* node)
{
    static text::Buffer<4096> last;
    if (node == nullptr)
        return runtimeCopy(WideView());
    // A nested list leaves the text of the call before: meant.
    if (node->type == ZU_FLD_LIST)
        return runtimeCopy(last.view());
    return guarded<zu_wchar*>(nullptr, [&] {
        const WideString text = textOf(*node);
        last.set(text);
        return runtimeCopy(text);
    });
}

void zu_FldNode_updateFldValue(FldNode* node, const zu_wchar* text)
{
    if (node == nullptr || text == nullptr)
        return;
    const WideView value(text);
    if (isText(node->type)) {
        const WideView present = text::view(node->value.text);
        if (node->value.text != nullptr && value.size() <= present.size())
            text::copyCut(node->value.text, value.size(), value);
    } else if (isInteger(node->type)) {
        node->value.integer = text::toInt(value);
    } else if (node->type == ZU_FLD_REAL) {
        node->value.real = text::toDouble(value);
    }
}
