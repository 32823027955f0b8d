/** @file zu_Com.h
 *  @ingroup hostservices
 *  The COM types and functions that the library and its host share.
 *
 *  On Windows this header includes the platform's own. Elsewhere it declares the same binary interface under the same
 *  names, as far as the library and a host need it, and the library supplies the functions: a host that is written
 *  against this header compiles unchanged on both systems. It registers a class object, and the library finds it:
 *
 *      CoInitialize(NULL);
 *      DWORD cookie = 0;
 *      CoRegisterClassObject(ZU_CLSID_HostApplication, &factory, CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &cookie);
 *
 *  (zu_HostObjects.h has the interfaces that it implements.) Methods need no mark for their calling convention: all
 *  systems that the library supports have but one.
 *
 *  What is not there outside Windows: registered servers in files, processes or machines of their own, so that only
 *  class objects of the process itself are found; marshalling, so that an object is called on the thread of its caller;
 *  automation by name beyond the shape of IDispatch.
 *
 *  In C the interfaces are opaque outside Windows: their methods cannot be called, and objects cannot be implemented.
 *
 *  @par Example
 *  @include com.c
 */
#ifndef ZU_COM_H
#define ZU_COM_H

#include "zu_Api.h"

/** @def ZU_COM_CONSTANT
 *  A constant of a header: ZU_COM_CONSTANT IID name = {...}; */
#if defined(__cplusplus)
#    define ZU_COM_CONSTANT inline constexpr
#else
#    define ZU_COM_CONSTANT static const
#endif

#if defined(_WIN32)
#    include <ole2.h>
#    include <oleauto.h>
#    if defined(__cplusplus)
#        include <comdef.h>
#    endif
#else

#    if defined(__cplusplus)
#        include <cstdio>
#    endif

/* Numbers ---------------------------------------------------------------------------------------------------------- */

typedef uint8_t BYTE;        /**< 8 bits */
typedef uint16_t WORD;       /**< 16 bits */
typedef uint16_t USHORT;     /**< 16 bits */
typedef int32_t LONG;        /**< 32 bits, signed */
typedef unsigned long ULONG; /**< what the ODBC headers make of it, so that both can be included; no record has one */
typedef uint32_t DWORD;      /**< 32 bits */
typedef int64_t LONGLONG;    /**< 64 bits, signed */
typedef uint64_t ULONGLONG;  /**< 64 bits */
typedef unsigned int UINT;   /**< 32 bits */
#    if !defined(BOOL) /* the ODBC headers make it a macro */
typedef int BOOL;            /**< 0 or 1 */
#    endif
typedef int32_t HRESULT;     /**< a result: negative ones are failures */
typedef int32_t SCODE;       /**< a result in a record */
typedef uint32_t LCID;       /**< a locale; not used here */
typedef int32_t DISPID;      /**< the number of a member; not used here */

/** A boolean of automation: VARIANT_TRUE has all bits set. */
typedef int16_t VARIANT_BOOL;
ZU_COM_CONSTANT VARIANT_BOOL VARIANT_TRUE = -1; /**< true */
ZU_COM_CONSTANT VARIANT_BOOL VARIANT_FALSE = 0; /**< false */

/* Results: negative ones are failures. */
ZU_COM_CONSTANT HRESULT S_OK = 0;                                      /**< done */
ZU_COM_CONSTANT HRESULT S_FALSE = 1;                                   /**< done, with a reservation */
ZU_COM_CONSTANT HRESULT E_NOTIMPL = (HRESULT)0x80004001;               /**< there is no such operation */
ZU_COM_CONSTANT HRESULT E_NOINTERFACE = (HRESULT)0x80004002;           /**< the object lacks the interface */
ZU_COM_CONSTANT HRESULT E_POINTER = (HRESULT)0x80004003;               /**< a null pointer */
ZU_COM_CONSTANT HRESULT E_ABORT = (HRESULT)0x80004004;                 /**< broken off */
ZU_COM_CONSTANT HRESULT E_FAIL = (HRESULT)0x80004005;                  /**< failed */
ZU_COM_CONSTANT HRESULT E_UNEXPECTED = (HRESULT)0x8000FFFF;            /**< not in this state */
ZU_COM_CONSTANT HRESULT E_ACCESSDENIED = (HRESULT)0x80070005;          /**< not allowed */
ZU_COM_CONSTANT HRESULT E_OUTOFMEMORY = (HRESULT)0x8007000E;           /**< no memory */
ZU_COM_CONSTANT HRESULT E_INVALIDARG = (HRESULT)0x80070057;            /**< a bad argument */
ZU_COM_CONSTANT HRESULT DISP_E_UNKNOWNINTERFACE = (HRESULT)0x80020001; /**< no such interface */
ZU_COM_CONSTANT HRESULT DISP_E_MEMBERNOTFOUND = (HRESULT)0x80020003;   /**< no such member */
ZU_COM_CONSTANT HRESULT DISP_E_TYPEMISMATCH = (HRESULT)0x80020005;     /**< a value of another type */
ZU_COM_CONSTANT HRESULT DISP_E_UNKNOWNNAME = (HRESULT)0x80020006;      /**< no such name */
ZU_COM_CONSTANT HRESULT DISP_E_BADVARTYPE = (HRESULT)0x80020008;       /**< no such type of value */
ZU_COM_CONSTANT HRESULT DISP_E_BADINDEX = (HRESULT)0x8002000B;         /**< no such element */
ZU_COM_CONSTANT HRESULT DISP_E_ARRAYISLOCKED = (HRESULT)0x8002000D;    /**< the array is locked */
ZU_COM_CONSTANT HRESULT RPC_E_CHANGED_MODE = (HRESULT)0x80010106;      /**< the thread has another concurrency */
ZU_COM_CONSTANT HRESULT CLASS_E_NOAGGREGATION = (HRESULT)0x80040110;   /**< the class cannot be aggregated */
ZU_COM_CONSTANT HRESULT REGDB_E_CLASSNOTREG = (HRESULT)0x80040154;     /**< the class is not registered */
ZU_COM_CONSTANT HRESULT CO_E_NOTINITIALIZED = (HRESULT)0x800401F0;     /**< the thread is not prepared */

static inline BOOL SUCCEEDED(HRESULT result)
{
    return result >= 0;
}
static inline BOOL FAILED(HRESULT result)
{
    return result < 0;
}

/* Identifiers ------------------------------------------------------------------------------------------------------ */

/** An identifier. */
typedef struct GUID
{
    uint32_t Data1;   /**< bits 0 to 31 */
    uint16_t Data2;   /**< 16 more */
    uint16_t Data3;   /**< 16 more */
    uint8_t Data4[8]; /**< the last eight bytes */
} GUID;
typedef GUID IID;              /**< of an interface */
typedef GUID CLSID;            /**< of a class */

#    if defined(__cplusplus)
typedef const GUID& REFGUID;   /**< by reference; a pointer in C */
typedef const IID& REFIID;     /**< by reference; a pointer in C */
typedef const CLSID& REFCLSID; /**< by reference; a pointer in C */

/** Compares two identifiers. */
inline bool operator==(REFGUID a, REFGUID b)
{
    bool equal = a.Data1 == b.Data1 && a.Data2 == b.Data2 && a.Data3 == b.Data3;
    for (int index = 0; index < 8; ++index)
        equal = equal && a.Data4[index] == b.Data4[index];
    return equal;
}
/** Compares two identifiers. */
inline BOOL IsEqualGUID(REFGUID a, REFGUID b)
{
    return a == b;
}
/** Compares two identifiers. */
inline BOOL IsEqualIID(REFIID a, REFIID b)
{
    return a == b;
}
/** Compares two identifiers. */
inline BOOL IsEqualCLSID(REFCLSID a, REFCLSID b)
{
    return a == b;
}
#    else
typedef const GUID* REFGUID;
typedef const IID* REFIID;
typedef const CLSID* REFCLSID;

static inline BOOL IsEqualGUID(REFGUID a, REFGUID b)
{
    BOOL equal = a->Data1 == b->Data1 && a->Data2 == b->Data2 && a->Data3 == b->Data3;
    for (int index = 0; index < 8; ++index)
        equal = equal && a->Data4[index] == b->Data4[index];
    return equal;
}
static inline BOOL IsEqualIID(REFIID a, REFIID b)
{
    return IsEqualGUID(a, b);
}
static inline BOOL IsEqualCLSID(REFCLSID a, REFCLSID b)
{
    return IsEqualGUID(a, b);
}
#    endif

ZU_COM_CONSTANT GUID GUID_NULL = {0, 0, 0, {0, 0, 0, 0, 0, 0, 0, 0}};                         /**< no identifier */
ZU_COM_CONSTANT IID IID_NULL = {0, 0, 0, {0, 0, 0, 0, 0, 0, 0, 0}};                           /**< no interface */
ZU_COM_CONSTANT IID IID_IUnknown = {0x00000000, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};        /**< of IUnknown */
ZU_COM_CONSTANT IID IID_IClassFactory = {0x00000001, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};   /**< of IClassFactory */
ZU_COM_CONSTANT IID IID_IRunnableObject = {0x00000126, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}}; /**< of IRunnableObject */
ZU_COM_CONSTANT IID IID_IDispatch = {0x00020400, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};       /**< of IDispatch */
ZU_COM_CONSTANT IID IID_IErrorInfo = {
    0x1CF2B120, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}}; /**< of IErrorInfo */
ZU_COM_CONSTANT IID IID_ISupportErrorInfo = {
    0xDF0B3D60, 0x548F, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}}; /**< of ISupportErrorInfo */

/* Values ----------------------------------------------------------------------------------------------------------- */

typedef zu_wchar OLECHAR;         /**< one unit of UTF-16 */
typedef OLECHAR* LPOLESTR;        /**< a terminated text */
typedef const OLECHAR* LPCOLESTR; /**< a terminated text that is only read */
/** A counted text: its length stands in front of its first unit, and a terminator behind the last. Null is the empty
 *  text. Made by SysAllocString and its kin, released with SysFreeString. Its memory does not come from the hooks of
 *  zu_Memory.h, as it does not on Windows: a text is often made by one module and released by another, which may know
 *  other hooks or none. */
typedef OLECHAR* BSTR;

typedef struct IUnknown IUnknown;
typedef struct IClassFactory IClassFactory;
typedef struct IDispatch IDispatch;
typedef struct IErrorInfo IErrorInfo;
typedef struct ISupportErrorInfo ISupportErrorInfo;
typedef struct IRunnableObject IRunnableObject;
typedef struct ITypeInfo ITypeInfo; /**< nothing of it is there */
typedef struct IBindCtx IBindCtx;   /**< nothing of it is there */

/** The type of a value. */
typedef uint16_t VARTYPE;
/** The types of a value, by the member of VARIANT that holds it. */
enum VARENUM
{
    VT_EMPTY = 0,
    VT_NULL = 1,
    VT_I2 = 2,
    VT_I4 = 3,
    VT_R4 = 4,
    VT_R8 = 5,
    VT_CY = 6,
    VT_DATE = 7,
    VT_BSTR = 8,
    VT_DISPATCH = 9,
    VT_ERROR = 10,
    VT_BOOL = 11,
    VT_VARIANT = 12,
    VT_UNKNOWN = 13,
    VT_I1 = 16,
    VT_UI1 = 17,
    VT_UI2 = 18,
    VT_UI4 = 19,
    VT_I8 = 20,
    VT_UI8 = 21,
    VT_INT = 22,
    VT_UINT = 23,
    VT_ARRAY = 0x2000, /**< or-ed to the type of the elements */
    VT_BYREF = 0x4000, /**< or-ed to the type of what is pointed to */
    VT_TYPEMASK = 0xFFF
};

/** A dimension of an array. */
typedef struct SAFEARRAYBOUND
{
    uint32_t cElements; /**< number of elements */
    LONG lLbound;       /**< index of the first */
} SAFEARRAYBOUND;

/** An array of automation. Its bounds stand in reverse order: that of the last dimension first. */
typedef struct SAFEARRAY
{
    USHORT cDims;                /**< number of dimensions */
    USHORT fFeatures;            /**< what the elements are */
    uint32_t cbElements;         /**< bytes an element */
    uint32_t cLocks;             /**< number of locks */
    void* pvData;                /**< the elements */
    SAFEARRAYBOUND rgsabound[1]; /**< one for each dimension */
} SAFEARRAY;

/** An amount of money. */
typedef union CY
{
    LONGLONG int64; /**< in units of 1/10000 */
} CY;
typedef double DATE; /**< days since 30 December 1899 */

/** A value of the type in vt. Values are passed between functions and objects by VariantCopy, and end in VariantClear.
 */
typedef struct VARIANT
{
    VARTYPE vt;      /**< which member counts */
    WORD wReserved1; /**< 0 */
    WORD wReserved2; /**< 0 */
    WORD wReserved3; /**< 0 */
    union
    {
        LONGLONG llVal;
        LONG lVal;
        BYTE bVal;
        int16_t iVal;
        float fltVal;
        double dblVal;
        VARIANT_BOOL boolVal;
        SCODE scode;
        CY cyVal;
        DATE date;
        BSTR bstrVal;
        IUnknown* punkVal;
        IDispatch* pdispVal;
        SAFEARRAY* parray;
        int8_t cVal;
        USHORT uiVal;
        uint32_t ulVal;
        ULONGLONG ullVal;
        int intVal;
        UINT uintVal;
        struct VARIANT* pvarVal;
        BSTR* pbstrVal;
        LONG* plVal;
        void* byref;
        void* record[2]; /* keeps the size of the platform's own */
    };
} VARIANT;
typedef VARIANT VARIANTARG; /**< a value as an argument */

/** The arguments of a call by name. */
typedef struct DISPPARAMS
{
    VARIANTARG* rgvarg;        /**< the last argument first */
    DISPID* rgdispidNamedArgs; /**< their numbers */
    UINT cArgs;                /**< number of arguments */
    UINT cNamedArgs;           /**< number of those with a number */
} DISPPARAMS;

/** What a call by name tells about its failure. */
typedef struct EXCEPINFO
{
    WORD wCode;                                      /**< not used here */
    WORD wReserved;                                  /**< not used here */
    BSTR bstrSource;                                 /**< not used here */
    BSTR bstrDescription;                            /**< not used here */
    BSTR bstrHelpFile;                               /**< not used here */
    DWORD dwHelpContext;                             /**< not used here */
    void* pvReserved;                                /**< not used here */
    HRESULT (*pfnDeferredFillIn)(struct EXCEPINFO*); /**< not used here */
    SCODE scode;                                     /**< not used here */
} EXCEPINFO;

/* Interfaces ------------------------------------------------------------------------------------------------------- */

#    if defined(__cplusplus)
/** Objects release themselves when their last reference goes; nobody deletes one through an interface. */
struct IUnknown
{
    /** Gives a new reference to another interface of the object, or null and E_NOINTERFACE. */
    virtual HRESULT QueryInterface(REFIID iid, void** object) = 0;
    /** Adds a reference. @return their number. */
    virtual ULONG AddRef() = 0;
    /** Gives a reference up. @return the number left. */
    virtual ULONG Release() = 0;

protected:
    ~IUnknown() = default;
};

/** Makes objects of a class. */
struct IClassFactory : public IUnknown
{
    /** Makes an object. @param outer  for aggregation; null in general. */
    virtual HRESULT CreateInstance(IUnknown* outer, REFIID iid, void** object) = 0;
    /** Keeps the server running, or lets it go. */
    virtual HRESULT LockServer(BOOL lock) = 0;

protected:
    ~IClassFactory() = default;
};

/** Calls by name. The library makes none: it is what the host's interfaces derive from. */
struct IDispatch : public IUnknown
{
    /** Whether there are type descriptions: 0 or 1. */
    virtual HRESULT GetTypeInfoCount(UINT* count) = 0;
    /** A type description. */
    virtual HRESULT GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) = 0;
    /** The numbers of members. */
    virtual HRESULT GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) = 0;
    /** Calls a member by its number. */
    virtual HRESULT Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                           EXCEPINFO* exception, UINT* wrongArgument) = 0;

protected:
    ~IDispatch() = default;
};

/** What an object tells about its last failure. */
struct IErrorInfo : public IUnknown
{
    /** The interface whose method failed. */
    virtual HRESULT GetGUID(GUID* iid) = 0;
    /** The program it belongs to. */
    virtual HRESULT GetSource(BSTR* source) = 0;
    /** What went wrong. */
    virtual HRESULT GetDescription(BSTR* description) = 0;
    /** A help file about it. */
    virtual HRESULT GetHelpFile(BSTR* file) = 0;
    /** The page in it. */
    virtual HRESULT GetHelpContext(DWORD* context) = 0;

protected:
    ~IErrorInfo() = default;
};

/** Tells whether an object leaves an IErrorInfo behind when a method fails. */
struct ISupportErrorInfo : public IUnknown
{
    /** S_OK when it does for this interface, S_FALSE when not. */
    virtual HRESULT InterfaceSupportsErrorInfo(REFIID iid) = 0;

protected:
    ~ISupportErrorInfo() = default;
};

/** An object that has to be started before it is used; see OleRun. */
struct IRunnableObject : public IUnknown
{
    /** The class of the object. */
    virtual HRESULT GetRunningClass(CLSID* clsid) = 0;
    /** Starts the object. */
    virtual HRESULT Run(IBindCtx* context) = 0;
    /** Whether it is started. */
    virtual BOOL IsRunning() = 0;
    /** Keeps it running, or lets it go. */
    virtual HRESULT LockRunning(BOOL lock, BOOL lastUnlockCloses) = 0;
    /** Tells it that it is part of a document. */
    virtual HRESULT SetContainedObject(BOOL contained) = 0;

protected:
    ~IRunnableObject() = default;
};
#    endif

/** Which kinds of server may supply an object. */
enum CLSCTX
{
    CLSCTX_INPROC_SERVER = 0x1,
    CLSCTX_INPROC_HANDLER = 0x2,
    CLSCTX_LOCAL_SERVER = 0x4,
    CLSCTX_REMOTE_SERVER = 0x10,
    CLSCTX_ALL = 0x17
};

/** How often other processes may find a class object; within the process it is always found. */
enum REGCLS
{
    REGCLS_SINGLEUSE = 0,
    REGCLS_MULTIPLEUSE = 1,
    REGCLS_MULTI_SEPARATE = 2
};

/** The concurrency of a thread. */
enum COINIT
{
    COINIT_MULTITHREADED = 0x0,
    COINIT_APARTMENTTHREADED = 0x2,
    COINIT_DISABLE_OLE1DDE = 0x4,
    COINIT_SPEED_OVER_MEMORY = 0x8
};

/* Functions: each is met under its usual name too, without "zu_Com_". ---------------------------------------------- */

ZU_EXTERN_C_BEGIN

/** Prepares the thread for COM, in an apartment of its own. Every success is ended by CoUninitialize.
 *  @param reserved  null.
 *  @return S_OK; S_FALSE when the thread was prepared before; RPC_E_CHANGED_MODE when it was, for multithreading. */
ZU_API HRESULT zu_Com_CoInitialize(void* reserved);

/** The same with a concurrency: COINIT_APARTMENTTHREADED or COINIT_MULTITHREADED.
 *  @return as for CoInitialize; E_INVALIDARG for other flags or a reserved argument. */
ZU_API HRESULT zu_Com_CoInitializeEx(void* reserved, DWORD flags);

/** Ends one CoInitialize. The last one of an apartment revokes the class objects registered in it. */
ZU_API void zu_Com_CoUninitialize(void);

/** Makes an object of a class.
 *
 *  @param outer    for aggregation; null in general.
 *  @param context  kinds of server that will do, of CLSCTX.
 *  @param object   receives a new reference; null on failure.
 *  @return S_OK; E_POINTER for a null object; CO_E_NOTINITIALIZED when the thread is not prepared; REGDB_E_CLASSNOTREG
 *          when no class object is registered for any of the kinds; else what the class object answers. */
ZU_API HRESULT zu_Com_CoCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object);

/** Finds the class object of a class.
 *  @param reserved  null.
 *  @return as for CoCreateInstance; E_NOINTERFACE when the class object lacks the interface. */
ZU_API HRESULT zu_Com_CoGetClassObject(REFCLSID clsid, DWORD context, void* reserved, REFIID iid, void** object);

/** Registers a class object for this process.
 *
 *  @param factory  a reference to it is kept until it is revoked.
 *  @param context  kinds of server that it counts as. With REGCLS_MULTIPLEUSE a local server counts as a server in the
 *                  process too.
 *  @param flags    of REGCLS.
 *  @param cookie   receives what CoRevokeClassObject wants.
 *  @return S_OK; CO_E_NOTINITIALIZED; E_INVALIDARG for a null factory or cookie, or unknown flags; E_OUTOFMEMORY. */
ZU_API HRESULT zu_Com_CoRegisterClassObject(REFCLSID clsid, IUnknown* factory, DWORD context, DWORD flags,
                                            DWORD* cookie);

/** Ends a registration.
 *  @return S_OK; CO_E_NOTINITIALIZED; E_INVALIDARG when there is no registration of that cookie. */
ZU_API HRESULT zu_Com_CoRevokeClassObject(DWORD cookie);

/** Puts an object into the running state, if it knows one.
 *  @return S_OK, or what the object answers; E_INVALIDARG for null. */
ZU_API HRESULT zu_Com_OleRun(IUnknown* object);

/** Leaves what is known about a failure for the caller of this thread.
 *  @param reserved  0.
 *  @param info      a reference to it is kept until the next call or GetErrorInfo; null forgets the last one.
 *  @return S_OK; E_INVALIDARG for a reserved argument. */
ZU_API HRESULT zu_Com_SetErrorInfo(ULONG reserved, IErrorInfo* info);

/** Takes what the last failure of this thread left.
 *  @param reserved  0.
 *  @param info      receives the reference; null when there is nothing.
 *  @return S_OK; S_FALSE when there is nothing; E_INVALIDARG for a reserved argument or null. */
ZU_API HRESULT zu_Com_GetErrorInfo(ULONG reserved, IErrorInfo** info);

/** Obtains memory that another module releases with CoTaskMemFree; not from the hooks of zu_Memory.h.
 *  @return the block; null without memory. */
ZU_API void* zu_Com_CoTaskMemAlloc(size_t size);

/** Releases a block of CoTaskMemAlloc; null is ignored. */
ZU_API void zu_Com_CoTaskMemFree(void* block);

/** Makes a copy of a terminated text.
 *  @return a new text, released with SysFreeString; null for null or without memory. */
ZU_API BSTR zu_Com_SysAllocString(LPCOLESTR text);

/** Makes a text of length units.
 *  @param text  the units, zeros among them included; null leaves them undefined.
 *  @return a new text, released with SysFreeString; null without memory. */
ZU_API BSTR zu_Com_SysAllocStringLen(LPCOLESTR text, UINT length);

/** Makes a text of length bytes, which need not be a whole number of units; see SysAllocStringLen. */
ZU_API BSTR zu_Com_SysAllocStringByteLen(const char* bytes, UINT length);

/** Replaces the text in a variable by a copy of a terminated one.
 *  @param variable  the old text in it is released; it may be null.
 *  @return 1; 0 without memory or for a null variable (nothing is changed then). */
ZU_API int zu_Com_SysReAllocString(BSTR* variable, LPCOLESTR text);

/** Releases a text; null is ignored. */
ZU_API void zu_Com_SysFreeString(BSTR text);

/** @return the units of a text, 0 for null. */
ZU_API UINT zu_Com_SysStringLen(BSTR text);

/** @return the bytes of a text, 0 for null. */
ZU_API UINT zu_Com_SysStringByteLen(BSTR text);

/** Makes a value VT_EMPTY, whatever was in it. */
ZU_API void zu_Com_VariantInit(VARIANT* value);

/** Releases what a value owns and makes it VT_EMPTY.
 *  @return S_OK; E_INVALIDARG for null; DISP_E_BADVARTYPE for a type that is not known; DISP_E_ARRAYISLOCKED (the value
 *          is unchanged then). */
ZU_API HRESULT zu_Com_VariantClear(VARIANT* value);

/** Makes a value a copy of another: texts and arrays are copied, references added.
 *  @param to    cleared first.
 *  @param from  not changed, though some of the platform's own headers want it changeable.
 *  @return S_OK; else as for VariantClear, or E_OUTOFMEMORY. */
ZU_API HRESULT zu_Com_VariantCopy(VARIANT* to, VARIANT* from);

/** Makes an array.
 *
 *  @param type        of the elements: those of a VARIANT without VT_ARRAY and VT_BYREF, and VT_VARIANT.
 *  @param dimensions  1 to 65535.
 *  @param bounds      of each dimension, the first one first.
 *  @return a new array of zeros, released with SafeArrayDestroy; null for a bad argument or without memory. The
 *  elements of the first dimension lie next to each other. */
ZU_API SAFEARRAY* zu_Com_SafeArrayCreate(VARTYPE type, UINT dimensions, SAFEARRAYBOUND* bounds);

/** Makes an array of one dimension; see SafeArrayCreate. */
ZU_API SAFEARRAY* zu_Com_SafeArrayCreateVector(VARTYPE type, LONG lowerBound, uint32_t count);

/** Releases an array and what its elements own.
 *  @return S_OK, for null too; DISP_E_ARRAYISLOCKED. */
ZU_API HRESULT zu_Com_SafeArrayDestroy(SAFEARRAY* array);

/** Makes a copy of an array and of what its elements own.
 *  @param copy  receives the new array; null for a null array.
 *  @return S_OK; E_INVALIDARG for a null variable; E_OUTOFMEMORY. */
ZU_API HRESULT zu_Com_SafeArrayCopy(SAFEARRAY* array, SAFEARRAY** copy);

/** @return the number of dimensions, 0 for null. */
ZU_API UINT zu_Com_SafeArrayGetDim(SAFEARRAY* array);

/** @return the bytes of an element, 0 for null. */
ZU_API UINT zu_Com_SafeArrayGetElemsize(SAFEARRAY* array);

/** Tells the type of the elements.
 *  @return S_OK; E_INVALIDARG for a null argument. */
ZU_API HRESULT zu_Com_SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* type);

/** Tells the lower bound of a dimension, which is counted from 1.
 *  @return S_OK; E_INVALIDARG for a null argument; DISP_E_BADINDEX without such a dimension. */
ZU_API HRESULT zu_Com_SafeArrayGetLBound(SAFEARRAY* array, UINT dimension, LONG* bound);

/** Tells the upper bound of a dimension; see SafeArrayGetLBound. */
ZU_API HRESULT zu_Com_SafeArrayGetUBound(SAFEARRAY* array, UINT dimension, LONG* bound);

/** Locks an array, so that it is not destroyed, and gives its elements.
 *  @return S_OK; E_INVALIDARG for a null argument; E_UNEXPECTED after 65535 locks. */
ZU_API HRESULT zu_Com_SafeArrayAccessData(SAFEARRAY* array, void** data);

/** Ends one SafeArrayAccessData.
 *  @return S_OK; E_INVALIDARG for null; E_UNEXPECTED when the array is not locked. */
ZU_API HRESULT zu_Com_SafeArrayUnaccessData(SAFEARRAY* array);

/** Copies an element out; a text is copied, a reference added.
 *  @param indices  one for each dimension, the first one first.
 *  @param element  receives it: a BSTR, a pointer, a VARIANT or a number.
 *  @return S_OK; E_INVALIDARG for a null argument; DISP_E_BADINDEX; E_OUTOFMEMORY. */
ZU_API HRESULT zu_Com_SafeArrayGetElement(SAFEARRAY* array, LONG* indices, void* element);

/** Copies an element in and releases what was there.
 *  @param element  the BSTR or the interface pointer itself; else a pointer to the VARIANT or the number.
 *  @return as for SafeArrayGetElement. */
ZU_API HRESULT zu_Com_SafeArrayPutElement(SAFEARRAY* array, LONG* indices, void* element);

ZU_EXTERN_C_END

/** @cond  the usual names of the functions above */
static inline HRESULT CoInitialize(void* reserved)
{
    return zu_Com_CoInitialize(reserved);
}
static inline HRESULT CoInitializeEx(void* reserved, DWORD flags)
{
    return zu_Com_CoInitializeEx(reserved, flags);
}
static inline void CoUninitialize(void)
{
    zu_Com_CoUninitialize();
}
static inline HRESULT CoCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object)
{
    return zu_Com_CoCreateInstance(clsid, outer, context, iid, object);
}
static inline HRESULT CoGetClassObject(REFCLSID clsid, DWORD context, void* reserved, REFIID iid, void** object)
{
    return zu_Com_CoGetClassObject(clsid, context, reserved, iid, object);
}
static inline HRESULT CoRegisterClassObject(REFCLSID clsid, IUnknown* factory, DWORD context, DWORD flags,
                                            DWORD* cookie)
{
    return zu_Com_CoRegisterClassObject(clsid, factory, context, flags, cookie);
}
static inline HRESULT CoRevokeClassObject(DWORD cookie)
{
    return zu_Com_CoRevokeClassObject(cookie);
}
static inline HRESULT OleRun(IUnknown* object)
{
    return zu_Com_OleRun(object);
}
static inline HRESULT SetErrorInfo(ULONG reserved, IErrorInfo* info)
{
    return zu_Com_SetErrorInfo(reserved, info);
}
static inline HRESULT GetErrorInfo(ULONG reserved, IErrorInfo** info)
{
    return zu_Com_GetErrorInfo(reserved, info);
}
static inline void* CoTaskMemAlloc(size_t size)
{
    return zu_Com_CoTaskMemAlloc(size);
}
static inline void CoTaskMemFree(void* block)
{
    zu_Com_CoTaskMemFree(block);
}
static inline BSTR SysAllocString(LPCOLESTR text)
{
    return zu_Com_SysAllocString(text);
}
static inline BSTR SysAllocStringLen(LPCOLESTR text, UINT length)
{
    return zu_Com_SysAllocStringLen(text, length);
}
static inline BSTR SysAllocStringByteLen(const char* bytes, UINT length)
{
    return zu_Com_SysAllocStringByteLen(bytes, length);
}
static inline int SysReAllocString(BSTR* variable, LPCOLESTR text)
{
    return zu_Com_SysReAllocString(variable, text);
}
static inline void SysFreeString(BSTR text)
{
    zu_Com_SysFreeString(text);
}
static inline UINT SysStringLen(BSTR text)
{
    return zu_Com_SysStringLen(text);
}
static inline UINT SysStringByteLen(BSTR text)
{
    return zu_Com_SysStringByteLen(text);
}
static inline void VariantInit(VARIANT* value)
{
    zu_Com_VariantInit(value);
}
static inline HRESULT VariantClear(VARIANT* value)
{
    return zu_Com_VariantClear(value);
}
static inline HRESULT VariantCopy(VARIANT* to, VARIANT* from)
{
    return zu_Com_VariantCopy(to, from);
}
static inline SAFEARRAY* SafeArrayCreate(VARTYPE type, UINT dimensions, SAFEARRAYBOUND* bounds)
{
    return zu_Com_SafeArrayCreate(type, dimensions, bounds);
}
static inline SAFEARRAY* SafeArrayCreateVector(VARTYPE type, LONG lowerBound, uint32_t count)
{
    return zu_Com_SafeArrayCreateVector(type, lowerBound, count);
}
static inline HRESULT SafeArrayDestroy(SAFEARRAY* array)
{
    return zu_Com_SafeArrayDestroy(array);
}
static inline HRESULT SafeArrayCopy(SAFEARRAY* array, SAFEARRAY** copy)
{
    return zu_Com_SafeArrayCopy(array, copy);
}
static inline UINT SafeArrayGetDim(SAFEARRAY* array)
{
    return zu_Com_SafeArrayGetDim(array);
}
static inline UINT SafeArrayGetElemsize(SAFEARRAY* array)
{
    return zu_Com_SafeArrayGetElemsize(array);
}
static inline HRESULT SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* type)
{
    return zu_Com_SafeArrayGetVartype(array, type);
}
static inline HRESULT SafeArrayGetLBound(SAFEARRAY* array, UINT dimension, LONG* bound)
{
    return zu_Com_SafeArrayGetLBound(array, dimension, bound);
}
static inline HRESULT SafeArrayGetUBound(SAFEARRAY* array, UINT dimension, LONG* bound)
{
    return zu_Com_SafeArrayGetUBound(array, dimension, bound);
}
static inline HRESULT SafeArrayAccessData(SAFEARRAY* array, void** data)
{
    return zu_Com_SafeArrayAccessData(array, data);
}
static inline HRESULT SafeArrayUnaccessData(SAFEARRAY* array)
{
    return zu_Com_SafeArrayUnaccessData(array);
}
static inline HRESULT SafeArrayGetElement(SAFEARRAY* array, LONG* indices, void* element)
{
    return zu_Com_SafeArrayGetElement(array, indices, element);
}
static inline HRESULT SafeArrayPutElement(SAFEARRAY* array, LONG* indices, void* element)
{
    return zu_Com_SafeArrayPutElement(array, indices, element);
}

/** @endcond */

/* Errors ----------------------------------------------------------------------------------------------------------- */

#    if defined(__cplusplus)
/** What is thrown when a call into an object fails. */
class _com_error
{
public:
    /** @param info  what the object told about it, or null; the reference is taken over unless addReference is set. */
    explicit _com_error(HRESULT result, IErrorInfo* info = nullptr, bool addReference = false) noexcept
        : code(result), details(info)
    {
        if (details != nullptr && addReference)
            details->AddRef();
    }
    /** Shares what the object told. */
    _com_error(const _com_error& other) noexcept : _com_error(other.code, other.details, true) {}
    /** Shares what the object told. */
    _com_error& operator=(const _com_error& other) noexcept
    {
        if (other.details != nullptr)
            other.details->AddRef();
        if (details != nullptr)
            details->Release();
        code = other.code;
        details = other.details;
        return *this;
    }
    virtual ~_com_error() noexcept
    {
        if (details != nullptr)
            details->Release();
    }

    /** The failing result. */
    HRESULT Error() const noexcept { return code; }
    /** @return a new reference to what the object told about it, or null. */
    IErrorInfo* ErrorInfo() const noexcept
    {
        if (details != nullptr)
            details->AddRef();
        return details;
    }
    /** @return a text for the result, valid as long as this object. */
    const char* ErrorMessage() const noexcept
    {
        std::snprintf(message, sizeof message, "Error 0x%08X", static_cast<unsigned int>(code));
        return message;
    }

private:
    HRESULT code;
    IErrorInfo* details;
    mutable char message[24] = {};
};
#    endif

#endif /* not Windows */
#endif
