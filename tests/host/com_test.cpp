// The COM runtime. On Windows these cases run against the system's own, which tells whether ours behaves as it does.
#include "support/host.h"
#include "support/wide.h"

#include <cstddef>
#include <thread>

namespace {

using namespace zutest;
using namespace std::string_literals;

// The binary layout is the platform's.
static_assert(sizeof(GUID) == 16 && sizeof(VARIANT) == 24 && offsetof(VARIANT, lVal) == 8);
static_assert(sizeof(SAFEARRAY) == 32 && offsetof(SAFEARRAY, pvData) == 16 && offsetof(SAFEARRAY, rgsabound) == 24);
static_assert(sizeof(DISPPARAMS) == 24 && sizeof(EXCEPINFO) == 64);

// An object that only counts, with an interface of its own.
template <class Interface>
class Counting : public Interface
{
public:
    explicit Counting(const IID& own) : iid(own) {}
    HRESULT QueryInterface(REFIID wanted, void** object) override
    {
        *object = wanted == IID_IUnknown || wanted == iid ? this : nullptr;
        references += *object != nullptr;
        return *object != nullptr ? S_OK : E_NOINTERFACE;
    }
    ULONG AddRef() override { return ++references; }
    ULONG Release() override { return --references; }
    virtual ~Counting() = default;
    ULONG references = 1;

private:
    const IID& iid;
};

class Counted final : public Counting<IUnknown>
{
public:
    Counted() : Counting(IID_IUnknown) {}
};

// A class object that makes the object given.
class CountedFactory final : public Counting<IClassFactory>
{
public:
    explicit CountedFactory(Counted& made) : Counting(IID_IClassFactory), object(made) {}
    HRESULT CreateInstance(IUnknown*, REFIID wanted, void** out) override { return object.QueryInterface(wanted, out); }
    HRESULT LockServer(BOOL) override { return S_OK; }

private:
    Counted& object;
};

const CLSID testClass = {0x2C64BDD5, 0xB6A0, 0x4F36, {0x9B, 0x3C, 0x3A, 0x0E, 0x11, 0x5D, 0x24, 0x0A}};

HRESULT create(DWORD context, IUnknown** object, const IID& iid = IID_IUnknown)
{
    return CoCreateInstance(testClass, nullptr, context, iid, reinterpret_cast<void**>(object));
}

TEST(Com, threadsArePreparedOneByOne)
{
    IUnknown* object = reinterpret_cast<IUnknown*>(1);
    EXPECT_EQ(create(CLSCTX_ALL, &object), CO_E_NOTINITIALIZED);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(CoInitialize(nullptr), S_OK);
    EXPECT_EQ(CoInitialize(nullptr), S_FALSE);
    EXPECT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), RPC_E_CHANGED_MODE);
    CoUninitialize();
    EXPECT_EQ(create(CLSCTX_ALL, &object), REGDB_E_CLASSNOTREG);
    std::thread([&] { EXPECT_EQ(create(CLSCTX_ALL, &object), CO_E_NOTINITIALIZED); }).join();
    CoUninitialize();
    EXPECT_EQ(create(CLSCTX_ALL, &object), CO_E_NOTINITIALIZED);

    // A multithreaded apartment takes in the threads that have none.
    EXPECT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
    EXPECT_EQ(CoInitialize(nullptr), RPC_E_CHANGED_MODE);
    std::thread([&] { EXPECT_EQ(create(CLSCTX_ALL, &object), REGDB_E_CLASSNOTREG); }).join();
    CoUninitialize();
}

TEST(Com, classObjectsAreFoundByTheirKindOfServer)
{
    const ComThread com;
    Counted counted;
    CountedFactory factory(counted);
    const std::tuple<const char*, DWORD, DWORD, HRESULT> rows[] = {
        {"any", CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, CLSCTX_ALL, S_OK},
        {"in process as local", CLSCTX_INPROC_SERVER, CLSCTX_LOCAL_SERVER, REGDB_E_CLASSNOTREG},
        {"local as in process", CLSCTX_LOCAL_SERVER, CLSCTX_INPROC_SERVER, S_OK},
    };
    for (const auto& [what, registered, wanted, result] : rows) {
        DWORD cookie = 0;
        IUnknown* object = nullptr;
        ASSERT_EQ(CoRegisterClassObject(testClass, &factory, registered, REGCLS_MULTIPLEUSE, &cookie), S_OK);
        EXPECT_GT(factory.references, 1u) << what;
        EXPECT_EQ(create(wanted, &object), result) << what;
        EXPECT_EQ(object, result == S_OK ? &counted : nullptr) << what;
        if (object != nullptr)
            object->Release();
        EXPECT_EQ(CoRevokeClassObject(cookie), S_OK);
        EXPECT_EQ(factory.references, 1u) << what;
        EXPECT_EQ(create(wanted, &object), REGDB_E_CLASSNOTREG) << what;
        EXPECT_EQ(CoRevokeClassObject(cookie), E_INVALIDARG) << what;
    }
    EXPECT_EQ(counted.references, 1u);
}

TEST(Com, creationPassesOnWhatTheClassObjectAnswers)
{
    const ComThread com;
    Counted counted;
    CountedFactory factory(counted);
    DWORD cookie = 0;
    ASSERT_EQ(CoRegisterClassObject(testClass, &factory, CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &cookie), S_OK);
    IUnknown* object = nullptr;
    EXPECT_EQ(create(CLSCTX_ALL, &object, IID_IDispatch), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(create(CLSCTX_ALL, nullptr), E_POINTER);
    IClassFactory* found = nullptr;
    EXPECT_EQ(CoGetClassObject(testClass, CLSCTX_ALL, nullptr, IID_IClassFactory, reinterpret_cast<void**>(&found)),
              S_OK);
    ASSERT_EQ(found, &factory);
    found->Release();
    EXPECT_EQ(CoRevokeClassObject(cookie), S_OK);
    EXPECT_EQ(CoRegisterClassObject(testClass, nullptr, CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &cookie),
              E_INVALIDARG);
}

TEST(Com, theEndOfAnApartmentRevokesItsClassObjects)
{
    Counted counted;
    CountedFactory factory(counted);
    DWORD cookie = 0;
    {
        const ComThread com;
        const ComThread again;
        ASSERT_EQ(CoRegisterClassObject(testClass, &factory, CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &cookie), S_OK);
    }
    EXPECT_EQ(factory.references, 1u);
    const ComThread com;
    IUnknown* object = nullptr;
    EXPECT_EQ(create(CLSCTX_ALL, &object), REGDB_E_CLASSNOTREG);
}

TEST(Com, runningAnObjectThatCannotIsFine)
{
    Counted counted;
    EXPECT_EQ(OleRun(&counted), S_OK);
    EXPECT_EQ(counted.references, 1u);
#if !defined(_WIN32) // some implementations there do not look
    EXPECT_EQ(OleRun(nullptr), E_INVALIDARG);
#endif
}

TEST(Com, countedTexts)
{
    const Wide withZero = W("a\0b"s);
    const BSTR text = SysAllocStringLen(withZero.data(), 3);
    EXPECT_EQ(SysStringLen(text), 3u);
    EXPECT_EQ(Wide(text, 4), withZero + Wide(1, W('\0'))) << "with a terminator";
    BSTR variable = SysAllocString(W("abc"));
    EXPECT_EQ(SysReAllocString(&variable, W("longer text")), 1);
    EXPECT_EQ(Wide(variable), W("longer text"));
    SysFreeString(variable);
    SysFreeString(text);

    const BSTR bytes = SysAllocStringByteLen("xyz", 3);
    EXPECT_EQ(SysStringByteLen(bytes), 3u);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes), 5), "xyz\0\0"s);
    SysFreeString(bytes);
    EXPECT_EQ(SysAllocString(nullptr), nullptr);
    EXPECT_EQ(SysStringLen(nullptr), 0u);
    EXPECT_EQ(SysAllocStringLen(W(""), 0xFFFFFFFF), nullptr) << "beyond the range";
    SysFreeString(nullptr);
    void* const block = CoTaskMemAlloc(10);
    EXPECT_NE(block, nullptr);
    CoTaskMemFree(block);
}

VARIANT valueOf(int type, LONGLONG value = 0)
{
    VARIANT result;
    VariantInit(&result);
    EXPECT_EQ(result.vt, VT_EMPTY);
    result.vt = static_cast<VARTYPE>(type);
    result.llVal = value;
    return result;
}

// A reference to an object.
VARIANT valueOf(Counted& object)
{
    VARIANT result = valueOf(VT_UNKNOWN);
    result.punkVal = &object;
    return result;
}

TEST(Com, valuesOwnWhatTheyHold)
{
    Counted counted;
    VARIANT from = valueOf(counted);
    counted.AddRef();
    VARIANT to = valueOf(VT_I4, 7);
    EXPECT_EQ(VariantCopy(&to, &from), S_OK);
    EXPECT_EQ(counted.references, 3u);
    EXPECT_EQ(VariantCopy(&to, &to), S_OK);
    EXPECT_EQ(counted.references, 3u);

    VARIANT text = valueOf(VT_BSTR);
    text.bstrVal = SysAllocStringLen(W("a\0b"), 3);
    EXPECT_EQ(VariantCopy(&to, &text), S_OK);
    EXPECT_EQ(counted.references, 2u) << "what was there is released";
    EXPECT_NE(to.bstrVal, text.bstrVal);
    EXPECT_EQ(takeBstr(to.bstrVal), Wide(W("a\0b"), 3));

    // A reference to somebody else's value owns nothing.
    VARIANT reference = valueOf(VT_BYREF | VT_BSTR);
    reference.pbstrVal = &text.bstrVal;
    EXPECT_EQ(VariantClear(&reference), S_OK);
    EXPECT_EQ(Wide(text.bstrVal), W("a"));
    EXPECT_EQ(VariantClear(&text), S_OK);
    EXPECT_EQ(VariantClear(&from), S_OK);
    EXPECT_EQ(counted.references, 1u);

    for (int type : {15, 0x0FFF, VT_I4 | 0x8000, int(VT_ARRAY)}) {
        VARIANT bad = valueOf(type);
        EXPECT_EQ(VariantClear(&bad), DISP_E_BADVARTYPE) << type;
    }
}

TEST(Com, arraysHoldTheFirstDimensionTogether)
{
    SAFEARRAYBOUND bounds[] = {{3, 1}, {2, -1}};
    SAFEARRAY* const array = SafeArrayCreate(VT_I4, 2, bounds);
    ASSERT_NE(array, nullptr);
    EXPECT_EQ(SafeArrayGetDim(array), 2u);
    EXPECT_EQ(SafeArrayGetElemsize(array), 4u);
    VARTYPE type = 0;
    EXPECT_EQ(SafeArrayGetVartype(array, &type), S_OK);
    EXPECT_EQ(type, VT_I4);
    LONG bound = 0;
    EXPECT_EQ(SafeArrayGetLBound(array, 2, &bound), S_OK);
    EXPECT_EQ(bound, -1);
    EXPECT_EQ(SafeArrayGetUBound(array, 1, &bound), S_OK);
    EXPECT_EQ(bound, 3);
    EXPECT_EQ(SafeArrayGetLBound(array, 0, &bound), DISP_E_BADINDEX);
    for (LONG first = 1; first <= 3; ++first) {
        for (LONG second = -1; second <= 0; ++second) {
            LONG indices[] = {first, second};
            LONG value = first * 10 + second;
            EXPECT_EQ(SafeArrayPutElement(array, indices, &value), S_OK);
        }
    }
    void* data = nullptr;
    ASSERT_EQ(SafeArrayAccessData(array, &data), S_OK);
    const auto* const values = static_cast<const LONG*>(data);
    EXPECT_EQ(std::vector<LONG>(values, values + 6), (std::vector<LONG>{9, 19, 29, 10, 20, 30}));
    EXPECT_EQ(SafeArrayDestroy(array), DISP_E_ARRAYISLOCKED);
    EXPECT_EQ(SafeArrayUnaccessData(array), S_OK);
    EXPECT_EQ(SafeArrayUnaccessData(array), E_UNEXPECTED);
    for (auto outside : {std::pair<LONG, LONG>{0, 0}, {4, 0}, {1, 1}}) {
        LONG indices[] = {outside.first, outside.second};
        EXPECT_EQ(SafeArrayGetElement(array, indices, &bound), DISP_E_BADINDEX);
        EXPECT_EQ(SafeArrayPutElement(array, indices, &bound), DISP_E_BADINDEX);
    }
    EXPECT_EQ(SafeArrayDestroy(array), S_OK);
}

TEST(Com, arraysOwnTheirElements)
{
    Counted counted;
    SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, 3);
    ASSERT_NE(array, nullptr);
    LONG index = 0;
    VARIANT value = valueOf(counted);
    EXPECT_EQ(SafeArrayPutElement(array, &index, &value), S_OK);
    index = 2;
    EXPECT_EQ(SafeArrayPutElement(array, &index, &value), S_OK);
    EXPECT_EQ(counted.references, 3u);
    VARIANT four = valueOf(VT_I4, 4);
    EXPECT_EQ(SafeArrayPutElement(array, &index, &four), S_OK);
    EXPECT_EQ(counted.references, 2u) << "what was there is released";

    // A value that holds the array copies all of it.
    VARIANT holder = valueOf(VT_ARRAY | VT_VARIANT);
    VARIANT copy = valueOf(VT_EMPTY);
    holder.parray = array;
    EXPECT_EQ(VariantCopy(&copy, &holder), S_OK);
    EXPECT_NE(copy.parray, array);
    EXPECT_EQ(counted.references, 3u);
    EXPECT_EQ(VariantClear(&holder), S_OK);
    EXPECT_EQ(counted.references, 2u);
    VARIANT element = valueOf(VT_EMPTY);
    EXPECT_EQ(SafeArrayGetElement(copy.parray, &index, &element), S_OK);
    EXPECT_EQ(element.vt, VT_I4);
    EXPECT_EQ(element.lVal, 4);
    EXPECT_EQ(VariantClear(&copy), S_OK);
    EXPECT_EQ(counted.references, 1u);

    SAFEARRAY* const texts = SafeArrayCreateVector(VT_BSTR, 5, 1);
    index = 5;
    const BSTR text = SysAllocString(W("text"));
    EXPECT_EQ(SafeArrayPutElement(texts, &index, text), S_OK);
    SysFreeString(text);
    SAFEARRAY* textsCopy = nullptr;
    EXPECT_EQ(SafeArrayCopy(texts, &textsCopy), S_OK);
    EXPECT_EQ(SafeArrayDestroy(texts), S_OK);
    BSTR out = nullptr;
    EXPECT_EQ(SafeArrayGetElement(textsCopy, &index, &out), S_OK);
    EXPECT_EQ(takeBstr(out), W("text"));
    EXPECT_EQ(SafeArrayDestroy(textsCopy), S_OK);
}

// Tells nothing but that it is there.
class Info final : public Counting<IErrorInfo>
{
public:
    Info() : Counting(IID_IErrorInfo) {}
    HRESULT GetGUID(GUID*) override { return E_NOTIMPL; }
    HRESULT GetSource(BSTR*) override { return E_NOTIMPL; }
    HRESULT GetDescription(BSTR*) override { return E_NOTIMPL; }
    HRESULT GetHelpFile(BSTR*) override { return E_NOTIMPL; }
    HRESULT GetHelpContext(DWORD*) override { return E_NOTIMPL; }
};

TEST(Com, errorObjectsAreTakenOnce)
{
    const ComThread com;
    Info info;
    IErrorInfo* taken = nullptr;
    EXPECT_EQ(SetErrorInfo(0, &info), S_OK);
    EXPECT_EQ(GetErrorInfo(0, &taken), S_OK);
    ASSERT_EQ(taken, &info);
    taken->Release();
    EXPECT_EQ(GetErrorInfo(0, &taken), S_FALSE);
    EXPECT_EQ(taken, nullptr);
}

TEST(Com, errorsShareWhatTheyTell)
{
    Info info;
    {
        const _com_error error(E_FAIL, &info, true);
        _com_error copy(error);
        const _com_error other(E_ABORT);
        EXPECT_EQ(info.references, 3u);
        copy = other;
        EXPECT_EQ(copy.ErrorInfo(), nullptr);
        copy = error;
        EXPECT_EQ(copy.Error(), E_FAIL);
        IErrorInfo* const taken = copy.ErrorInfo();
        EXPECT_EQ(taken, &info);
        EXPECT_EQ(info.references, 4u);
        taken->Release();
    }
    EXPECT_EQ(info.references, 1u);
    EXPECT_TRUE(IsEqualIID(IID_IUnknown, IID_IUnknown));
    EXPECT_FALSE(IsEqualGUID(IID_IUnknown, IID_IDispatch));
    EXPECT_FALSE(IsEqualCLSID(ZU_CLSID_HostField, ZU_CLSID_HostFieldCollection));
}

} // namespace
