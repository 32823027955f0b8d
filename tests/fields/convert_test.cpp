// Field lists and the other records: descriptors, points, single values as text, the host's collections.
#include "support/host.h"
#include "support/memory.h"
#include "zu_Convert.h"
#include "zu_DbFldList.h"
#include "zu_File.h"
#include "zu_FldNode.h"
#include "zu_Global.h"
#include "zu_Host.h"
#include "zu_RotMatrix.h"
#include "zu_VarsList.h"

#include <cstdlib>
#include <memory>

namespace {

using namespace zutest;

struct ListDeleter
{
    void operator()(FldList* list) const { zu_FldList_destroy(list); }
};
using Owner = std::unique_ptr<FldList, ListDeleter>;
const zu_wchar* const end = nullptr;

TEST(Convert, fieldsOfDescriptors)
{
    DbFldList* const descriptors = zu_DbFldList_create(end);
    zu_DbFldList_insEnd(descriptors, W("TEXT"), W("3,25"), 10, 2, W('C'));
    zu_DbFldList_insEnd(descriptors, W("REAL"), W("3,25"), 10, 2, W('N'));
    zu_DbFldList_insEnd(descriptors, W("INT"), W("7.9"), 10, 0, W('N'));
    zu_DbFldList_insEnd(descriptors, W("NONE"), nullptr, 10, 0, W('N'));
    const Owner list(zu_FldList_fromDbFldList(descriptors));
    double real = 0.0;
    int32_t integer = 7;
    EXPECT_EQ(str(zu_FldList_find(list.get(), W("text"))->value.text), W("3,25"));
    EXPECT_EQ(zu_FldList_getReal(list.get(), W("real"), &real), 1);
    EXPECT_EQ(real, 3.25);
    EXPECT_EQ(zu_FldList_find(list.get(), W("int"))->type, 'I');
    EXPECT_EQ(zu_FldList_getInt(list.get(), W("int"), &integer), 1);
    EXPECT_EQ(integer, 7);
    EXPECT_EQ(zu_FldList_count(list.get()), 4u);
    zu_DbFldList_destroy(descriptors);
    const Owner empty(zu_FldList_fromDbFldList(nullptr));
    EXPECT_EQ(zu_FldList_count(empty.get()), 0u);
}

TEST(Convert, pointsInAnotherSystem)
{
    RotMatrix* const quarter = zu_RotMatrix_create();
    Vector up;
    zu_Vector_set(&up, 0, 0, 1);
    zu_RotMatrix_fromRotAxisAndAngle(quarter, &up, 1.5707963267948966);
    Point step;
    zu_Point_set(&step, 10, 20, 30);
    const auto made = [] {
        return Owner(zu_FldList_create(W("P"), 'P', 1.0, 2.0, 3.0, W("D"), 'D', 1.0, 2.0, 3.0, W("N"), 'N', 1.0, end));
    };
    // The route by hand: through the geometry itself.
    Point turned;
    zu_Point_set(&turned, 1, 2, 3);
    zu_RotMatrix_rotatePoint(&turned, quarter);
    double xyz[3];

    Owner list = made();
    EXPECT_EQ(zu_FldList_applyTransform(list.get(), &step, quarter, W("PD")), 1);
    zu_FldList_getPoint(list.get(), W("P"), xyz);
    EXPECT_NEAR(xyz[0], turned.x + 10, 1e-12);
    EXPECT_NEAR(xyz[1], turned.y + 20, 1e-12);
    zu_FldList_getPoint(list.get(), W("D"), xyz);
    EXPECT_NEAR(xyz[0], turned.x, 1e-12) << "directions are not translated";
    EXPECT_NEAR(xyz[2], 3, 1e-12);

    list = made();
    EXPECT_EQ(zu_FldList_applyTransform(list.get(), &step, nullptr, W("P")), 1);
    zu_FldList_getPoint(list.get(), W("P"), xyz);
    EXPECT_EQ(xyz[2], 33.0);
    zu_FldList_getPoint(list.get(), W("D"), xyz);
    EXPECT_EQ(xyz[0], 1.0);
    EXPECT_EQ(zu_FldList_applyTransform(list.get(), &step, nullptr, W("D")), 1);
    zu_FldList_getPoint(list.get(), W("D"), xyz);
    EXPECT_EQ(xyz[0], 1.0) << "nothing to do";
    EXPECT_EQ(zu_FldList_applyTransform(list.get(), nullptr, nullptr, W("P")), 0);
    EXPECT_EQ(zu_FldList_applyTransform(list.get(), &step, quarter, nullptr), 0);
    EXPECT_EQ(zu_FldList_applyTransform(nullptr, &step, quarter, W("P")), 0);
    zu_RotMatrix_destroy(quarter);
}

TEST(Convert, aFieldAsText)
{
    const auto textOf = [](const FldNode* node) {
        zu_wchar* const text = zu_FldNode_getFldValue(node);
        const Wide result = str(text);
        std::free(text);
        return result;
    };
    const Owner list(zu_FldList_create(W("O"), 'O', 1.0, 2.0, 3.0, W("I"), 'I', -5, W("N"), 'N', 2.5, W("C"), 'C',
                                       W("text"), W("E"), 'C', end, W("U"), 'U', end, end));
    zu_FldList_appList(list.get(), W("V"), nullptr);
    const struct
    {
        WideLiteral name, text;
    } rows[] = {{W("O"), W("O:1.000 2.000 3.000")},
                {W("I"), W("-5")},
                {W("N"), W("2.500000")},
                {W("C"), W("text")},
                {W("V"), W("text")},
                {W("E"), W("")},
                {W("U"), W("")}};
    for (const auto& row : rows)
        EXPECT_EQ(textOf(zu_FldList_find(list.get(), row.name)), row.text) << testing::PrintToString(str(row.name));
    EXPECT_EQ(textOf(nullptr), W(""));

    const auto update = [&](const zu_wchar* name, const zu_wchar* text) {
        zu_FldNode_updateFldValue(zu_FldList_find(list.get(), name), text);
        return textOf(zu_FldList_find(list.get(), name));
    };
    EXPECT_EQ(update(W("I"), W(" 42x")), W("42"));
    EXPECT_EQ(update(W("N"), W("-1e2")), W("-100.000000"));
    EXPECT_EQ(update(W("C"), W("ab")), W("ab"));
    EXPECT_EQ(update(W("C"), W("longer")), W("ab")) << "refused, not overrun";
    EXPECT_EQ(update(W("O"), W("7")), W("O:1.000 2.000 3.000"));
    zu_FldNode_updateFldValue(nullptr, W("x"));
}

// Calls by name, which nobody makes.
template <class Interface>
struct Unnamed : Interface
{
    virtual ~Unnamed() = default;
    HRESULT GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }
};

int liveObjects = 0;

// An object with references, of an interface.
template <class Interface, const IID& iid>
struct Counted : Unnamed<Interface>
{
    Counted() { ++liveObjects; }
    ~Counted() override { --liveObjects; }
    HRESULT QueryInterface(REFIID wanted, void** object) override
    {
        const bool known = wanted == iid || wanted == IID_IUnknown || wanted == IID_IDispatch;
        *object = known ? this : nullptr;
        return known ? (AddRef(), S_OK) : E_NOINTERFACE;
    }
    ULONG AddRef() override { return ++references; }
    ULONG Release() override
    {
        const ULONG left = --references;
        if (left == 0)
            delete this;
        return left;
    }
    ULONG references = 0;
};

struct OwnField final : Counted<HostField, ZU_IID_HostField>
{
    static HRESULT give(BSTR* out, const Wide& text)
    {
        *out = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
        return S_OK;
    }
    static HRESULT take(Wide& text, BSTR from)
    {
        text.assign(from, SysStringLen(from));
        return S_OK;
    }
    template <class T>
    static HRESULT set(T& to, T from)
    {
        to = from;
        return S_OK;
    }
    HRESULT get_Name(BSTR* out) override { return give(out, name); }
    HRESULT put_Name(BSTR from) override { return take(name, from); }
    HRESULT get_Value(BSTR* out) override { return give(out, value); }
    HRESULT put_Value(BSTR from) override { return take(value, from); }
    HRESULT get_Width(LONG* out) override { return set(*out, width); }
    HRESULT put_Width(LONG from) override { return set(width, from); }
    HRESULT get_Precision(LONG* out) override { return set(*out, precision); }
    HRESULT put_Precision(LONG from) override { return set(precision, from); }
    HRESULT get_Type(BSTR* out) override { return give(out, type); }
    HRESULT put_Type(BSTR from) override { return take(type, from); }
    HRESULT get_SecondValue(BSTR* out) override { return give(out, second); }
    HRESULT put_SecondValue(BSTR from) override { return take(second, from); }
    HRESULT get_IsNull(LONG* out) override { return set(*out, isNull); }
    HRESULT put_IsNull(LONG from) override { return set(isNull, from); }
    Wide name, value, type, second;
    LONG width = 0, precision = 0, isNull = 0;
};

struct OwnCollection final : Counted<HostFieldCollection, ZU_IID_HostFieldCollection>
{
    ~OwnCollection() override
    {
        for (HostField* field : fields)
            field->Release();
    }
    HRESULT Add(HostField* field) override
    {
        field->AddRef();
        fields.push_back(field);
        return S_OK;
    }
    HRESULT get_Item(VARIANT index, HostField** field) override
    {
        *field = fields[static_cast<std::size_t>(index.lVal - 1)];
        (*field)->AddRef();
        return S_OK;
    }
    HRESULT get_Count(LONG* count) override
    {
        *count = static_cast<LONG>(fields.size());
        return S_OK;
    }
    HRESULT Remove(VARIANT) override { return E_NOTIMPL; }
    std::vector<HostField*> fields;
};

// A class of the tests' own, registered in the process.
template <class Object>
class Registered final : public IClassFactory
{
public:
    explicit Registered(const CLSID& clsid)
    {
        EXPECT_EQ(CoRegisterClassObject(clsid, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie), S_OK);
    }
    virtual ~Registered() { EXPECT_EQ(CoRevokeClassObject(cookie), S_OK); }
    HRESULT QueryInterface(REFIID, void** object) override
    {
        *object = this;
        return S_OK;
    }
    ULONG AddRef() override { return 1; }
    ULONG Release() override { return 1; }
    HRESULT CreateInstance(IUnknown*, REFIID iid, void** object) override
    {
        return (new Object)->QueryInterface(iid, object);
    }
    HRESULT LockServer(BOOL) override { return S_OK; }

private:
    DWORD cookie = 0;
};

// The built-in host on or off, with the state before at the end.
class BuiltIn
{
public:
    explicit BuiltIn(int32_t on) : before(zu_Host_setBuiltIn(on)) { zu_Global_destroyData(); }
    ~BuiltIn()
    {
        zu_Host_setBuiltIn(before);
        zu_Global_destroyData();
    }
    BuiltIn(const BuiltIn&) = delete;
    BuiltIn& operator=(const BuiltIn&) = delete;

private:
    int32_t before;
};

void convertThereAndBack()
{
    DbFldList* const descriptors = zu_DbFldList_create(end);
    zu_DbFldList_insEnd(descriptors, W("A"), W("\u00e4 value"), 12, 3, W('N'));
    zu_DbFldList_insEnd(descriptors, W("B"), nullptr, 5, 0, W('C'));
    VARIANT variant;
    VariantInit(&variant);
    zu_ConvertDBFldListToKVFldList(descriptors, &variant);
    zu_DbFldList_destroy(descriptors);
    ASSERT_EQ(variant.vt, VT_DISPATCH);
    HostFieldCollection* collection = nullptr;
    ASSERT_EQ(variant.pdispVal->QueryInterface(ZU_IID_HostFieldCollection, reinterpret_cast<void**>(&collection)),
              S_OK);
    DbFldList* back = nullptr;
    zu_ConvertKVFldListToDBFldList(collection, &back);
    collection->Release();
    VariantClear(&variant);
    ASSERT_EQ(zu_DbFldList_length(back), 2u);
    const DbFldNode* const field = zu_DbFldList_getNth(back, 0);
    EXPECT_EQ(str(field->name), W("A"));
    EXPECT_EQ(str(field->value), W("\u00e4 value"));
    EXPECT_EQ(field->width, 12u);
    EXPECT_EQ(field->precision, 3u);
    zu_DbFldList_destroy(back);
}

TEST(Convert, descriptorsToAFieldCollectionAndBack)
{
    const ComThread com;
    {
        const BuiltIn on(1);
        convertThereAndBack();
    }
    const BuiltIn off(0);
    VARIANT variant;
    variant.vt = VT_I4;
    zu_ConvertDBFldListToKVFldList(nullptr, &variant);
    EXPECT_EQ(variant.vt, VT_I4) << "no class, no collection";
    {
        const Registered<OwnField> field(ZU_CLSID_HostField);
        const Registered<OwnCollection> collection(ZU_CLSID_HostFieldCollection);
        convertThereAndBack();
    }
    EXPECT_EQ(liveObjects, 0) << "references that nobody released";
    DbFldList* back = nullptr;
    zu_ConvertKVFldListToDBFldList(nullptr, &back);
    EXPECT_EQ(back, nullptr);
}

// A host's list of variables.
class Variables final : public Unnamed<HostVariableList>
{
public:
    struct Item
    {
        Wide name;
        VARIANT value;
        Wide key;
    };
    std::vector<Item> items;

    ~Variables()
    {
        for (Item& item : items)
            VariantClear(&item.value);
    }
    void add(const Wide& name, VARIANT value, const Wide& key = {}) { items.push_back({name, value, key}); }

    HRESULT QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG AddRef() override { return 1; }
    ULONG Release() override { return 1; }

    HRESULT Add(BSTR name, VARIANT value, VARIANT key) override
    {
        VARIANT copy;
        VariantInit(&copy);
        VariantCopy(&copy, &value);
        items.push_back({Wide(name, SysStringLen(name)), copy, Wide(key.bstrVal, SysStringLen(key.bstrVal))});
        return S_OK;
    }
    HRESULT get_Item(VARIANT index, HostVariable** variable) override
    {
        if (index.lVal == failingItem)
            return E_FAIL;
        current.item = &items[static_cast<std::size_t>(index.lVal - 1)];
        *variable = &current;
        return S_OK;
    }
    HRESULT get_Count(LONG* count) override
    {
        *count = static_cast<LONG>(items.size());
        return countResult;
    }
    HRESULT Remove(VARIANT key) override
    {
        const Wide wanted(key.bstrVal, SysStringLen(key.bstrVal));
        for (auto item = items.begin(); item != items.end(); ++item) {
            if (item->key == wanted) {
                VariantClear(&item->value);
                items.erase(item);
                return S_OK;
            }
        }
        return E_INVALIDARG;
    }
    HRESULT countResult = S_OK;
    LONG failingItem = 0;

private:
    struct Variable final : Unnamed<HostVariable>
    {
        Item* item = nullptr;
        HRESULT QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
        ULONG AddRef() override { return 1; }
        ULONG Release() override { return 1; }
        HRESULT get_Name(BSTR* name) override
        {
            *name = SysAllocStringLen(item->name.data(), static_cast<UINT>(item->name.size()));
            return S_OK;
        }
        HRESULT get_Value(VARIANT* value) override
        {
            VariantInit(value);
            return VariantCopy(value, &item->value);
        }
    };
    Variable current;
};

VARIANT variantOf(VARTYPE type)
{
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = type;
    return variant;
}

TEST(Convert, variablesToFields)
{
    Variables variables;
    const auto add = [&](const zu_wchar* name, VARTYPE type, auto member, auto value) {
        VARIANT variant = variantOf(type);
        variant.*member = value;
        variables.add(name, variant);
    };
    variables.add(W("empty"), variantOf(VT_EMPTY));
    variables.add(W("null"), variantOf(VT_NULL));
    add(W("short"), VT_I2, &VARIANT::iVal, int16_t{-2});
    add(W("long"), VT_I4, &VARIANT::lVal, LONG{70000});
    add(W("float"), VT_R4, &VARIANT::fltVal, 0.5f);
    add(W("double"), VT_R8, &VARIANT::dblVal, 0.1);
    add(W("true"), VT_BOOL, &VARIANT::boolVal, VARIANT_BOOL{VARIANT_TRUE});
    add(W("byte"), VT_UI1, &VARIANT::bVal, BYTE{200});
    VARIANT text = variantOf(VT_BSTR);
    text.bstrVal = SysAllocString(Wide(400, W('x')).c_str());
    variables.add(Wide(200, W('n')), text);
    variables.add(W(""), variantOf(VT_NULL));
    add(W("date"), VT_DATE, &VARIANT::date, 1.0);

    FldList* list = nullptr;
    testing::internal::CaptureStdout();
    zu_ConvertVarListToFldList(&variables, &list);
    std::fflush(stdout);
    std::string said = testing::internal::GetCapturedStdout();
    said.erase(std::remove(said.begin(), said.end(), '\r'), said.end());
    EXPECT_EQ(said, "\nUnhandled Variable Type in COM FldList: 7");
    const Owner owner(list);
    std::string types;
    for (const LnkNode* node = list->first; node != nullptr; node = node->next)
        types += static_cast<char>(static_cast<const FldNode*>(node->data)->type);
    EXPECT_EQ(types, "UUILNNIIC");
    int32_t integer = 0;
    zu_FldList_getInt(list, W("byte"), &integer);
    EXPECT_EQ(integer, -56) << "taken as signed";
    zu_FldList_getInt(list, W("true"), &integer);
    EXPECT_EQ(integer, 1);
    const FldNode* const last = static_cast<const FldNode*>(list->last->data);
    EXPECT_EQ(str(last->name), Wide(128, W('N')));
    EXPECT_EQ(str(last->value.text), Wide(299, W('x')));

    variables.failingItem = 1;
    list = nullptr;
    testing::internal::CaptureStdout();
    zu_ConvertVarListToFldList(&variables, &list);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(zu_FldList_count(list), 8u) << "an item that cannot be fetched is passed over";
    zu_FldList_destroy(list);
    variables.countResult = E_FAIL;
    EXPECT_THROW(zu_ConvertVarListToFldList(&variables, &list), _com_error);
    list = nullptr;
    zu_ConvertVarListToFldList(nullptr, &list);
    EXPECT_EQ(list, nullptr);
}

TEST(Convert, fillingAndEmptyingVariables)
{
    Variables variables;
    for (int item = 0; item < 4; ++item)
        EXPECT_EQ(zu_VarsList_InsertAtEnd(&variables, W("name"), W("value")), 1);
    EXPECT_EQ(variables.items.back().key, W("4"));
    EXPECT_EQ(zu_VarsList_InsertAtEnd(&variables, W("fifth"), W("\u00e4")), 1);
    EXPECT_EQ(variables.items.back().key, W("5"));
    EXPECT_EQ(str(variables.items.back().value.bstrVal), W("\u00e4"));
    variables.add(W("other"), variantOf(VT_NULL), W("of its own"));
    EXPECT_EQ(zu_VarsList_Reset(&variables), 1);
    EXPECT_EQ(variables.items.size(), 1u) << "another key is not removed";
    EXPECT_EQ(zu_VarsList_Reset(nullptr), 1);
    EXPECT_EQ(zu_VarsList_InsertAtEnd(nullptr, W("n"), W("v")), 0);
    EXPECT_EQ(zu_VarsList_InsertAtEnd(&variables, nullptr, W("v")), 0);
    variables.countResult = E_FAIL;
    EXPECT_EQ(zu_VarsList_InsertAtEnd(&variables, W("n"), W("v")), 0);
    EXPECT_THROW(zu_VarsList_Reset(&variables), _com_error);
    variables.countResult = S_OK;
}

TEST(Convert, aListOfVariablesFromTheBuiltInHost)
{
    const ComThread com;
    const BuiltIn on(1);
    HostVariableList* variables = nullptr;
    const auto create = [&](REFIID iid) {
        return CoCreateInstance(ZU_CLSID_HostVariableList, nullptr, CLSCTX_INPROC_SERVER, iid,
                                reinterpret_cast<void**>(&variables));
    };
    EXPECT_EQ(create(ZU_IID_HostVariableList), REGDB_E_CLASSNOTREG) << "nobody has asked the host for anything yet";
    zu_File_exists(W("C:\\"));
    EXPECT_EQ(create(ZU_IID_HostField), E_NOINTERFACE);
    ASSERT_EQ(create(ZU_IID_HostVariableList), S_OK);

    EXPECT_EQ(zu_VarsList_InsertAtEnd(variables, W("Tag"), W("P-101")), 1);
    EXPECT_EQ(zu_VarsList_InsertAtEnd(variables, W("Fluid"), W("K\u00fchlwasser")), 1);
    VARIANT number = variantOf(VT_I4);
    number.lVal = 80;
    const Wide name = W("Size");
    BSTR size = SysAllocString(name.c_str());
    EXPECT_EQ(variables->Add(size, number, variantOf(VT_EMPTY)), S_OK);
    SysFreeString(size);
    FldList* list = nullptr;
    zu_ConvertVarListToFldList(variables, &list);
    const Owner fields(list);
    EXPECT_EQ(zu_FldList_count(list), 3u);
    EXPECT_EQ(str(zu_FldList_find(list, W("FLUID"))->value.text), W("K\u00fchlwasser"));
    int32_t integer = 0;
    EXPECT_EQ(zu_FldList_getInt(list, W("SIZE"), &integer), 1);
    EXPECT_EQ(integer, 80);

    EXPECT_EQ(zu_VarsList_Reset(variables), 1);
    LONG count = 0;
    EXPECT_EQ(variables->get_Count(&count), S_OK);
    EXPECT_EQ(count, 1) << "the one without a key of the library's stays";
    EXPECT_EQ(variables->Release(), 0u);
    zu_Global_destroyData();
    EXPECT_EQ(create(ZU_IID_HostVariableList), REGDB_E_CLASSNOTREG);
}

} // namespace
