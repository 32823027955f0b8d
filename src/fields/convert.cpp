#include "zu_Convert.h"

#include "fields/field_owner.h"
#include "frame/console.h"
#include "frame/guard.h"
#include "frame/host_services.h"
#include "frame/text.h"
#include "zu_VarsList.h"

using namespace zu;

namespace {

constexpr std::size_t longestName = 128;
constexpr std::size_t longestText = 299;

VARIANT integerVariant(VARTYPE type, LONG value)
{
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = type;
    variant.lVal = value;
    return variant;
}

// A text variant that borrows its text.
VARIANT textVariant(const Bstr& text)
{
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = VT_BSTR;
    variant.bstrVal = text.get();
    return variant;
}

// A variant that clears itself.
struct OwnedVariant : VARIANT
{
    OwnedVariant() { VariantInit(this); }
    ~OwnedVariant() { VariantClear(this); }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
};

template <class Collection>
LONG countOf(Collection* collection)
{
    LONG count = 0;
    checkComCall(collection->get_Count(&count), collection);
    return count;
}

// Appends a variable's value with the field type that its own type has.
void appendVariable(FldList* list, const zu_wchar* name, const VARIANT& value)
{
    switch (value.vt) {
    case VT_EMPTY:
    case VT_NULL: zu_FldList_appUnknown(list, name); break;
    case VT_I2: zu_FldList_appInt(list, name, value.iVal); break;
    case VT_I4: zu_FldList_appLong(list, name, value.lVal); break;
    case VT_R4: zu_FldList_appReal(list, name, static_cast<double>(value.fltVal)); break;
    case VT_R8: zu_FldList_appReal(list, name, value.dblVal); break;
    case VT_BOOL: zu_FldList_appInt(list, name, value.boolVal != VARIANT_FALSE); break;
    // Taken as signed: meant.
    case VT_UI1: zu_FldList_appInt(list, name, static_cast<std::int8_t>(value.bVal)); break;
    case VT_BSTR: {
        text::Buffer<longestText> text;
        if (value.bstrVal != nullptr)
            text.set(WideView(value.bstrVal, SysStringLen(value.bstrVal)));
        zu_FldList_appChar(list, name, text.units);
        break;
    }
    default: printConsole(ZU_W("\nUnhandled Variable Type in COM FldList: %i"), value.vt); break;
    }
}

// Appends the variable of an index, from 1; nothing when a call fails or it has no name.
void appendVariable(FldList* list, HostVariableList* variables, LONG index)
{
    ComPtr<HostVariable> variable;
    Bstr name;
    OwnedVariant value;
    if (FAILED(variables->get_Item(integerVariant(VT_I4, index), variable.out())) || !variable ||
        FAILED(variable->get_Name(name.out())) || name.view().empty() || FAILED(variable->get_Value(&value)))
        return;
    text::Buffer<longestName> cutName;
    cutName.set(name.view());
    appendVariable(list, cutName.units, value);
}

// A field object with what a descriptor holds. Its type letter is not passed on.
void fillField(HostField* field, const DbFldNode& descriptor)
{
    const Bstr value(text::view(descriptor.value));
    checkComCall(field->put_Width(static_cast<LONG>(descriptor.width)), field);
    checkComCall(field->put_Precision(static_cast<LONG>(descriptor.precision)), field);
    checkComCall(field->put_Value(value.get()), field);
    checkComCall(field->put_Name(Bstr(WideView(descriptor.name)).get()), field);
    if (descriptor.value != nullptr)
        checkComCall(field->put_SecondValue(value.get()), field);
    else
        checkComCall(field->put_IsNull(1), field);
}

struct DescriptorsDestroyer
{
    void operator()(DbFldList* list) const { zu_DbFldList_destroy(list); }
};
using DescriptorsOwner = std::unique_ptr<DbFldList, DescriptorsDestroyer>;

// Appends the descriptor of a field. False without memory.
bool appendDescriptor(DbFldList* list, HostField* field)
{
    LONG width = 0;
    LONG precision = 0;
    Bstr type;
    Bstr name;
    Bstr value;
    checkComCall(field->get_Width(&width), field);
    checkComCall(field->get_Precision(&precision), field);
    checkComCall(field->get_Type(type.out()), field);
    checkComCall(field->get_Name(name.out()), field);
    checkComCall(field->get_Value(value.out()), field);
    DbFldNode* const node = zu_DbFldNode_new(WideString(name.view()).c_str(), WideString(value.view()).c_str(),
                                             static_cast<uint32_t>(width), static_cast<uint32_t>(precision),
                                             type.view().empty() ? zu_wchar(0) : type.view().front());
    if (node != nullptr && zu_LnkList_insEnd(list, node) == 1)
        return true;
    zu_DbFldNode_destroy(node);
    return false;
}

} // namespace

void zu_ConvertVarListToFldList(HostVariableList* variables, FldList** list)
{
    if (variables == nullptr || list == nullptr)
        return;
    guarded([&] {
        const LONG count = countOf(variables);
        if (count <= 0)
            return;
        FieldOwner fields(zu_FldList_create(nullptr));
        for (LONG index = 1; index <= count && fields != nullptr; ++index)
            appendVariable(fields.get(), variables, index);
        *list = fields.release();
    });
}

void zu_ConvertDBFldListToKVFldList(DbFldList* descriptors, VARIANT* collection)
{
    if (collection == nullptr)
        return;
    guarded([&] {
        // Not undone: the collection that is handed out lives on this thread.
        CoInitialize(nullptr);
        ComPtr<HostFieldCollection> fields = host::newFieldCollection();
        if (!fields)
            return;
        for (const LnkNode* node = descriptors == nullptr ? nullptr : descriptors->first; node != nullptr;
             node = node->next) {
            const ComPtr<HostField> field = host::newField();
            if (!field || node->data == nullptr)
                continue;
            fillField(field.get(), *static_cast<const DbFldNode*>(node->data));
            checkComCall(fields->Add(field.get()), fields.get());
        }
        if (descriptors != nullptr)
            descriptors->current = nullptr;
        VariantInit(collection);
        collection->vt = VT_DISPATCH;
        collection->pdispVal = fields.release();
    });
}

void zu_ConvertKVFldListToDBFldList(HostFieldCollection* collection, DbFldList** descriptors)
{
    if (descriptors == nullptr)
        return;
    *descriptors = nullptr;
    if (collection == nullptr)
        return;
    guarded([&] {
        DescriptorsOwner list(zu_DbFldList_create(nullptr));
        const LONG count = countOf(collection);
        for (LONG index = 1; index <= count && list != nullptr; ++index) {
            ComPtr<HostField> field;
            if (SUCCEEDED(collection->get_Item(integerVariant(VT_INT, index), field.out())) && field &&
                !appendDescriptor(list.get(), field.get()))
                return;
        }
        *descriptors = list.release();
    });
}

int32_t zu_VarsList_InsertAtEnd(HostVariableList* variables, const zu_wchar* name, const zu_wchar* value)
{
    LONG count = 0;
    if (variables == nullptr || name == nullptr || value == nullptr || FAILED(variables->get_Count(&count)))
        return 0;
    return guarded(0, [&] {
        const Bstr text{WideView(value)};
        const Bstr key(formatted(ZU_W("%d"), count + 1));
        checkComCall(variables->Add(Bstr(WideView(name)).get(), textVariant(text), textVariant(key)), variables);
        return 1;
    });
}

int32_t zu_VarsList_Reset(HostVariableList* variables)
{
    if (variables == nullptr)
        return 1;
    return guarded(1, [&] {
        const LONG count = countOf(variables);
        // What has another key stays.
        for (LONG index = 1; index <= count; ++index)
            variables->Remove(textVariant(Bstr(formatted(ZU_W("%d"), index))));
        return 1;
    });
}
