// Field lists from database field descriptors, and their points in another coordinate system.
#include "fields/field_owner.h"
#include "fields/fldnode.h"
#include "frame/guard.h"
#include "zu_DbFldList.h"

using namespace zu;

namespace {

bool appendDescriptor(FldList* list, const DbFldNode& descriptor)
{
    if (descriptor.name[0] == 0)
        return true;
    // Only "N" is a number here, whatever other types the database layer has.
    if (descriptor.type != ZU_W('N'))
        return zu_FldList_appChar(list, descriptor.name, descriptor.value == nullptr ? ZU_W("") : descriptor.value) ==
               ZU_FLD_OK;
    WideString number(text::view(descriptor.value));
    if (descriptor.precision == 0)
        return zu_FldList_appInt(list, descriptor.name, text::toInt(number)) == ZU_FLD_OK;
    const std::size_t comma = number.find(ZU_W(','));
    if (comma != WideString::npos)
        number[comma] = ZU_W('.');
    return zu_FldList_appReal(list, descriptor.name, text::toDouble(number)) == ZU_FLD_OK;
}

// The three doubles of a field as the geometry takes them.
template <class Triple>
int32_t rotate(FldValue& value, const RotMatrix* rotation, int32_t (*rotateTriple)(Triple*, const RotMatrix*))
{
    Triple triple{value.point[0], value.point[1], value.point[2]};
    const int32_t result = rotateTriple(&triple, rotation);
    value.point[0] = triple.x;
    value.point[1] = triple.y;
    value.point[2] = triple.z;
    return result;
}

int32_t translate(FldValue& value, const Point* translation)
{
    Point point{value.point[0], value.point[1], value.point[2]};
    const int32_t result = zu_Point_add(&point, &point, translation);
    value.point[0] = point.x;
    value.point[1] = point.y;
    value.point[2] = point.z;
    return result;
}

int32_t transform(FldNode& node, const Point* translation, const RotMatrix* rotation)
{
    const bool isPosition = node.type == ZU_FLD_POINT || node.type == ZU_FLD_MPOINT;
    int32_t result = 1;
    if (rotation != nullptr)
        result = isPosition ? rotate<Point>(node.value, rotation, zu_RotMatrix_rotatePoint)
                            : rotate<Vector>(node.value, rotation, zu_RotMatrix_rotateVector);
    if (isPosition && translation != nullptr && result == 1)
        result = translate(node.value, translation);
    return result;
}

} // namespace

FldList* zu_FldList_fromDbFldList(LnkList* descriptors)
{
    FieldOwner list(zu_FldList_create(nullptr));
    const bool complete =
        list != nullptr && guarded(false, [&] {
            for (const LnkNode* node = descriptors == nullptr ? nullptr : descriptors->first; node != nullptr;
                 node = node->next) {
                if (node->data != nullptr && !appendDescriptor(list.get(), *static_cast<const DbFldNode*>(node->data)))
                    return false;
            }
            return true;
        });
    if (descriptors != nullptr)
        descriptors->current = nullptr;
    return complete ? list.release() : nullptr;
}

int32_t zu_FldList_applyTransform(FldList* list, const Point* translation, const RotMatrix* rotation,
                                  const zu_wchar* codes)
{
    if (list == nullptr || codes == nullptr || (translation == nullptr && rotation == nullptr))
        return 0;
    int32_t overall = 1;
    for (zu_FldList_start(list); zu_FldList_eol(list) == 0; zu_FldList_next(list)) {
        FldNode* const node = zu_FldList_curr(list);
        if (node == nullptr || !isPointLike(node->type) ||
            WideView(codes).find(static_cast<zu_wchar>(node->type)) == WideView::npos)
            continue;
        const int32_t result = transform(*node, translation, rotation);
        if (result != 1)
            overall = result;
    }
    return overall;
}
