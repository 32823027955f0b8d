// A host's list of variables, as short as it can be, filled by the library and made a field list of.
#include "print.h"

#include <string>
#include <utility>
#include <vector>

namespace {

// References, and the calls by name that the library never makes.
template <class Interface>
class Object : public Interface
{
public:
    HRESULT QueryInterface(REFIID, void** object) override
    {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG AddRef() override { return ++references; }
    ULONG Release() override
    {
        const ULONG left = --references;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }

protected:
    virtual ~Object() = default;

private:
    ULONG references = 1;
};

using Text = std::basic_string<zu_wchar>;

class Variable final : public Object<HostVariable>
{
public:
    Variable(Text itsName, Text itsValue) : name(std::move(itsName)), value(std::move(itsValue)) {}
    HRESULT get_Name(BSTR* out) override
    {
        *out = SysAllocString(name.c_str());
        return S_OK;
    }
    HRESULT get_Value(VARIANT* out) override
    {
        out->vt = VT_BSTR;
        out->bstrVal = SysAllocString(value.c_str());
        return S_OK;
    }

private:
    Text name, value;
};

class VariableList final : public Object<HostVariableList>
{
public:
    HRESULT Add(BSTR name, VARIANT value, VARIANT) override
    {
        variables.emplace_back(name, value.bstrVal);
        return S_OK;
    }
    HRESULT get_Item(VARIANT index, HostVariable** variable) override
    {
        const auto& [name, value] = variables.at(static_cast<std::size_t>(index.lVal - 1));
        *variable = new Variable(name, value);
        return S_OK;
    }
    HRESULT get_Count(LONG* count) override
    {
        *count = static_cast<LONG>(variables.size());
        return S_OK;
    }
    HRESULT Remove(VARIANT) override
    {
        variables.erase(variables.begin()); // the library removes the keys "1", "2" and so on, in this order
        return S_OK;
    }

private:
    std::vector<std::pair<Text, Text>> variables;
};

} // namespace

int main()
{
    auto* const variables = new VariableList;
    zu_VarsList_InsertAtEnd(variables, ZU_W("TAG"), ZU_W("P-101"));
    zu_VarsList_InsertAtEnd(variables, ZU_W("LINE"), ZU_W("12"));

    FldList* list = nullptr;
    zu_ConvertVarListToFldList(variables, &list);
    zu_FldList_printList(list);
    zu_FldList_destroy(list);

    zu_VarsList_Reset(variables);
    LONG count = 0;
    variables->get_Count(&count);
    std::printf("%d variables are left\n", static_cast<int>(count));
    variables->Release();
}
