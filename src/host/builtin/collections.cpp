// Fields and variables, and the collections of them.
#include "frame/text.h"
#include "host/builtin/builtin.h"
#include "host/builtin/com_items.h"

namespace zu::host {
namespace {

HRESULT take(WideString& text, BSTR from)
{
    return guarded(E_OUTOFMEMORY, [&] {
        text = viewOf(from);
        return S_OK;
    });
}

HRESULT giveNumber(LONG* out, LONG value)
{
    if (out == nullptr)
        return E_POINTER;
    *out = value;
    return S_OK;
}

class Field final : public ComObject<HostField>
{
public:
    HRESULT get_Name(BSTR* out) override { return give(out, name); }
    HRESULT put_Name(BSTR from) override { return take(name, from); }
    HRESULT get_Value(BSTR* out) override { return give(out, value); }
    HRESULT put_Value(BSTR from) override { return take(value, from); }
    HRESULT get_Width(LONG* out) override { return giveNumber(out, width); }
    HRESULT put_Width(LONG from) override { return put(width, from); }
    HRESULT get_Precision(LONG* out) override { return giveNumber(out, precision); }
    HRESULT put_Precision(LONG from) override { return put(precision, from); }
    HRESULT get_Type(BSTR* out) override { return give(out, type); }
    HRESULT put_Type(BSTR from) override { return take(type, from); }
    HRESULT get_SecondValue(BSTR* out) override { return give(out, secondValue); }
    HRESULT put_SecondValue(BSTR from) override { return take(secondValue, from); }
    HRESULT get_IsNull(LONG* out) override { return giveNumber(out, isNull); }
    HRESULT put_IsNull(LONG from) override { return put(isNull, from); }

private:
    static HRESULT put(LONG& number, LONG from)
    {
        number = from;
        return S_OK;
    }

    WideString name;
    WideString value;
    WideString type;
    WideString secondValue;
    LONG width = 0;
    LONG precision = 0;
    LONG isNull = 0;
};

class FieldCollection final : public ComObject<HostFieldCollection>
{
public:
    HRESULT Add(HostField* field) override
    {
        if (field == nullptr)
            return E_POINTER;
        return guarded(E_OUTOFMEMORY, [&] {
            fields.push_back(ComPtr<HostField>::sharing(field));
            return S_OK;
        });
    }
    HRESULT get_Item(VARIANT index, HostField** field) override
    {
        return giveItem(
            field, index, fields.size(), [&](std::size_t place) { return fields[place]; }, 1);
    }
    HRESULT get_Count(LONG* count) override { return giveCount(count, fields.size()); }
    HRESULT Remove(VARIANT index) override
    {
        const auto place = indexIn(index);
        if (!place)
            return DISP_E_TYPEMISMATCH;
        if (*place < 1 || static_cast<std::uint64_t>(*place) > fields.size())
            return DISP_E_BADINDEX;
        fields.erase(fields.begin() + (*place - 1));
        return S_OK;
    }

private:
    HookVector<ComPtr<HostField>> fields;
};

class Variable final : public ComObject<HostVariable>
{
public:
    explicit Variable(WideView variableName) : name(variableName) { VariantInit(&value); }
    ~Variable() override { VariantClear(&value); }

    HRESULT set(VARIANT& from) { return VariantCopy(&value, &from); }
    HRESULT get_Name(BSTR* out) override { return give(out, name); }
    HRESULT get_Value(VARIANT* out) override
    {
        if (out == nullptr)
            return E_POINTER;
        VariantInit(out);
        return VariantCopy(out, &value);
    }

private:
    WideString name;
    VARIANT value;
};

class VariableList final : public ComObject<HostVariableList>
{
public:
    HRESULT Add(BSTR name, VARIANT value, VARIANT key) override
    {
        if (key.vt != VT_BSTR && key.vt != VT_EMPTY && key.vt != VT_ERROR) // the last stands for "not given"
            return DISP_E_TYPEMISMATCH;
        const WideView wanted = key.vt == VT_BSTR ? viewOf(key.bstrVal) : WideView();
        if (!wanted.empty() && find(wanted) != items.size())
            return E_INVALIDARG;
        return guarded(E_OUTOFMEMORY, [&] {
            ComPtr<Variable> variable(new Variable(viewOf(name)));
            const HRESULT result = variable->set(value);
            if (SUCCEEDED(result))
                items.push_back({std::move(variable), WideString(wanted)});
            return result;
        });
    }
    HRESULT get_Item(VARIANT index, HostVariable** variable) override
    {
        if (variable == nullptr)
            return E_POINTER;
        *variable = nullptr;
        std::size_t place = 0;
        const HRESULT result = placeOf(index, place);
        if (SUCCEEDED(result))
            *variable = ComPtr<Variable>(items[place].variable).release();
        return result;
    }
    HRESULT get_Count(LONG* count) override { return giveCount(count, items.size()); }
    HRESULT Remove(VARIANT key) override
    {
        std::size_t place = 0;
        const HRESULT result = placeOf(key, place);
        if (SUCCEEDED(result))
            items.erase(items.begin() + static_cast<std::ptrdiff_t>(place));
        return result;
    }

private:
    struct Item
    {
        ComPtr<Variable> variable;
        WideString key;
    };

    std::size_t find(WideView key) const
    {
        std::size_t place = 0;
        while (place < items.size() && !text::equalIgnoringCase(items[place].key, key))
            ++place;
        return place;
    }

    // By number from 1, or by key.
    HRESULT placeOf(const VARIANT& which, std::size_t& place) const
    {
        if (which.vt == VT_BSTR) {
            place = viewOf(which.bstrVal).empty() ? items.size() : find(viewOf(which.bstrVal));
            return place < items.size() ? S_OK : DISP_E_BADINDEX;
        }
        const auto number = indexIn(which);
        if (!number)
            return DISP_E_TYPEMISMATCH;
        if (*number < 1 || static_cast<std::uint64_t>(*number) > items.size())
            return DISP_E_BADINDEX;
        place = static_cast<std::size_t>(*number - 1);
        return S_OK;
    }

    HookVector<Item> items;
};

} // namespace

ComPtr<HostField> makeBuiltInField()
{
    return makeObject<Field, HostField>();
}

ComPtr<HostFieldCollection> makeBuiltInFieldCollection()
{
    return makeObject<FieldCollection, HostFieldCollection>();
}

ComPtr<HostVariableList> makeBuiltInVariableList()
{
    return makeObject<VariableList, HostVariableList>();
}

} // namespace zu::host
