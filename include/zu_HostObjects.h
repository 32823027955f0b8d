/** @file zu_HostObjects.h
 *  @ingroup hostservices
 *  What the host supplies: one COM component, the host application object, and the services that it hands out.
 *
 *  The library makes the application object on first demand, with the class identifier ZU_CLSID_HostApplication and any
 *  kind of server, asks it once for its three services, and keeps all four until zu_Global_destroyData. A host
 *  registers a class object for that class (zu_Com.h shows how), or installs the component. Without one, everything
 *  that needs a service behaves as its header says; outside Windows the library then supplies objects of its own
 *  (zu_Host.h).
 *
 *  All interfaces are dual: they derive from IDispatch, and the methods below follow its own in this order. The library
 *  calls methods directly, never by name, so an object may refuse Invoke. Methods called Reserved keep the place of
 *  methods of the host that the library does not call; they answer E_NOTIMPL. Everything is called on the thread of the
 *  library's caller, which has prepared COM. The rules of every method:
 *
 *  - An argument of type BSTR belongs to the caller; null is the empty text.
 *  - A result is given through the last parameters. They may hold anything when the method is entered; a failing method
 *    leaves nothing in them that would have to be released. A BSTR given belongs to the caller, who releases it with
 *    SysFreeString; an interface pointer is a reference of its own, which the caller releases. Both may be null, for
 *    the empty text and for "none".
 *  - The library raises a failing HRESULT as a _com_error, through the operation that it was called by. An object that
 *    supports ISupportErrorInfo for the interface can say more with SetErrorInfo.
 *
 *  In C the identifiers are there, and the interfaces are opaque.
 *
 *  docs/hosts.md tells more. A complete host:
 *  @include minimal_host.cpp
 */
#ifndef ZU_HOST_OBJECTS_H
#define ZU_HOST_OBJECTS_H

#include "zu_Com.h"

/* Identifiers ------------------------------------------------------------------------------------------------------ */

/** The class of the application object, which is installed as "KVApplication2.dll". */
ZU_COM_CONSTANT CLSID ZU_CLSID_HostApplication = {
    0x564D790D, 0x4E67, 0x4211, {0x95, 0x7C, 0x30, 0x51, 0x6E, 0x28, 0x27, 0x9D}};
/** The application object's interface. */
ZU_COM_CONSTANT IID ZU_IID_HostApplication = {
    0x69ACB140, 0x6EA0, 0x4B2B, {0x98, 0x4C, 0x69, 0x08, 0xA0, 0xA9, 0x6A, 0x6B}};
/** The translator's interface. */
ZU_COM_CONSTANT IID ZU_IID_HostTranslator = {
    0x6EF72B1B, 0x0049, 0x4ACA, {0x91, 0x1F, 0x50, 0xF8, 0xD1, 0x3D, 0x1E, 0x95}};
/** The file service's interface. */
ZU_COM_CONSTANT IID ZU_IID_HostFileService = {
    0x79E175D5, 0x8B6E, 0x4191, {0xBB, 0xB6, 0xF4, 0x98, 0xC3, 0x01, 0x98, 0xB9}};

/** The INI cache's interface. */
ZU_COM_CONSTANT IID ZU_IID_IniCache = {0xC46B4C18, 0x7229, 0x43FD, {0x8B, 0xD4, 0x49, 0x89, 0x6D, 0x9A, 0x20, 0x0D}};
/** The interface of a group of an INI file. */
ZU_COM_CONSTANT IID ZU_IID_IniCacheGroup = {
    0xBB306D09, 0x5ACB, 0x4EE7, {0xBA, 0xB1, 0x9C, 0x3B, 0x2B, 0xF7, 0xF2, 0x6A}};
/** The interface of an entry of a group. */
ZU_COM_CONSTANT IID ZU_IID_IniCacheEntry = {
    0xBFA58E04, 0x5122, 0x4A31, {0xB2, 0x3E, 0xD7, 0x07, 0xA2, 0x49, 0x67, 0x72}};
/** The interface of the groups of a file. */
ZU_COM_CONSTANT IID ZU_IID_IniCacheGroups = {
    0xDCCEA3C9, 0x7092, 0x4233, {0x80, 0xF5, 0xB6, 0x6D, 0xC8, 0x23, 0xCA, 0xFD}};

/** The class of field collections. */
ZU_COM_CONSTANT CLSID ZU_CLSID_HostFieldCollection = {
    0x96BE407C, 0x1D4F, 0x4A5D, {0xBE, 0x0B, 0x9C, 0xAA, 0x8F, 0x28, 0xDD, 0x59}};
/** The class of fields. */
ZU_COM_CONSTANT CLSID ZU_CLSID_HostField = {
    0x917E5911, 0x5FAC, 0x4A6B, {0xAB, 0xF5, 0x3C, 0x23, 0x13, 0x6D, 0x74, 0x72}};
/** The interface of a field collection. */
ZU_COM_CONSTANT IID ZU_IID_HostFieldCollection = {
    0x990B50BC, 0xE7F9, 0x4A2C, {0x98, 0xDC, 0x67, 0x1F, 0x96, 0xE5, 0x1A, 0xE6}};
/** The interface of a list of variables. */
ZU_COM_CONSTANT IID ZU_IID_HostVariableList = {
    0xEA17C4CB, 0x7824, 0x4FA9, {0xA8, 0xD9, 0xE0, 0x91, 0x2B, 0x8B, 0x42, 0x49}};
/** The class of lists of variables: an identifier of this library's own. */
ZU_COM_CONSTANT CLSID ZU_CLSID_HostVariableList = {
    0x3B7E52D0, 0x94C1, 0x4F6A, {0xA8, 0x1D, 0x6E, 0x05, 0xC2, 0x97, 0x4B, 0xE3}};
/** The interface of a field: an identifier of this library's own. */
ZU_COM_CONSTANT IID ZU_IID_HostField = {0xD4097C15, 0xA33E, 0x47A2, {0x91, 0x02, 0x2A, 0xAC, 0x63, 0xD7, 0x1C, 0x23}};
/** The interface of a variable: an identifier of this library's own. */
ZU_COM_CONSTANT IID ZU_IID_HostVariable = {
    0x6277A8D1, 0x2A31, 0x4E0B, {0x82, 0x2E, 0xED, 0xC3, 0xCF, 0xED, 0x22, 0x68}};

/* The application object and its services -------------------------------------------------------------------------- */

typedef struct HostApplication HostApplication;
typedef struct HostTranslator HostTranslator;
typedef struct HostFileService HostFileService;
typedef struct IniCache IniCache;
typedef struct IniCacheGroup IniCacheGroup;
typedef struct IniCacheEntry IniCacheEntry;
typedef struct IniCacheGroups IniCacheGroups;
typedef struct HostField HostField;
typedef struct HostFieldCollection HostFieldCollection;
typedef struct HostVariable HostVariable;
typedef struct HostVariableList HostVariableList;

#if defined(__cplusplus)

/** The application object. */
struct HostApplication : public IDispatch
{
    /** The translator. All three services may be null, for one that the host does not have. The library asks in this
     * order, once, and stops at the first failure, which it does not raise. */
    virtual HRESULT get_Translator(HostTranslator** service) = 0;
    /** The INI cache; see get_Translator. */
    virtual HRESULT get_IniCache(IniCache** service) = 0;
    /** The file service; see get_Translator. */
    virtual HRESULT get_FileService(HostFileService** service) = 0;

    /** The directory of the configuration files; the empty text when there is none. */
    virtual HRESULT get_ConfigurationDirectory(BSTR* directory) = 0;

    /** The group of the application in the host's own sense; the empty text while none is set. */
    virtual HRESULT get_ApplicationGroup(BSTR* group) = 0;
    /** Sets the group of the application. */
    virtual HRESULT put_ApplicationGroup(BSTR group) = 0;

    /** The name of the host's base section of the configuration. */
    virtual HRESULT get_BaseSectionName(BSTR* name) = 0;

protected:
    ~HostApplication() = default;
};

/** Translates messages. */
struct HostTranslator : public IDispatch
{
    /** @param text         the message in English.
     *  @param section      the section of the catalogue.
     *  @param entry        the number of the entry, from 0.
     *  @param translation  the empty text when there is none. */
    virtual HRESULT Translate(BSTR text, BSTR section, LONG entry, BSTR* translation) = 0;

protected:
    ~HostTranslator() = default;
};

/** Knows the files, and is told of their changes. */
struct HostFileService : public IDispatch
{
    /** Whether a file is there. */
    virtual HRESULT FileExists(BSTR path, VARIANT_BOOL* exists) = 0;
    /** Whether a directory is there. */
    virtual HRESULT FolderExists(BSTR path, VARIANT_BOOL* exists) = 0;
    /** The file has been, or is about to be, changed, made or deleted. */
    virtual HRESULT Revalidate(BSTR path) = 0;

protected:
    ~HostFileService() = default;
};

/* INI files -------------------------------------------------------------------------------------------------------- */

/** Holds INI files parsed, by path, and writes changes back to them. Names of groups and keys are compared ignoring
 *  case. Flags that tell of a change are VARIANT_FALSE when it could not be made. */
struct IniCache : public IDispatch
{
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved1() = 0;
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved2() = 0;
    /** @param group  null when there is no such group. */
    virtual HRESULT GetGroup(BSTR file, BSTR name, IniCacheGroup** group) = 0;
    /** @param value  the empty text when there is none. */
    virtual HRESULT GetValue(BSTR file, BSTR group, BSTR key, BSTR* value, VARIANT_BOOL* found) = 0;
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved3() = 0;
    /** @param groups  all groups in order; null or empty when there are none. */
    virtual HRESULT GetGroups(BSTR file, IniCacheGroups** groups) = 0;
    /** Adds an empty group. */
    virtual HRESULT AddGroup(BSTR file, BSTR group, VARIANT_BOOL* added) = 0;
    /** Sets a value; a file, group or key that is missing is made. */
    virtual HRESULT SetValue(BSTR file, BSTR group, BSTR key, BSTR value, VARIANT_BOOL* set) = 0;
    /** Removes a group with its lines. */
    virtual HRESULT RemoveGroup(BSTR file, BSTR group, VARIANT_BOOL* removed) = 0;
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved4() = 0;
    /** Forgets all files. */
    virtual HRESULT ResetCache() = 0;
    /** Forgets one file, so that it is read again. */
    virtual HRESULT Reload(BSTR file) = 0;
    /** Shows what is held. */
    virtual HRESULT ViewCache() = 0;

protected:
    ~IniCache() = default;
};

/** A group of a file. */
struct IniCacheGroup : public IDispatch
{
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved1() = 0;
    /** The name. */
    virtual HRESULT get_Name(BSTR* name) = 0;
    /** The number of members. */
    virtual HRESULT get_Count(LONG* count) = 0;
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved2() = 0;
    /** @param index  of the entry in the order of the file, from 0: a value of an integer type. */
    virtual HRESULT get_Item(VARIANT index, IniCacheEntry** entry) = 0;
    /** Sets a value in the file; as IniCache::SetValue, but a value that cannot be set is a failure. */
    virtual HRESULT SetValue(BSTR key, BSTR value) = 0;
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved3() = 0;
    /** Removes all entries from the file. */
    virtual HRESULT RemoveAll(VARIANT_BOOL* removed) = 0;

protected:
    ~IniCacheGroup() = default;
};

/** An entry of a group. */
struct IniCacheEntry : public IDispatch
{
    /** The value as text. */
    virtual HRESULT get_Value(BSTR* value) = 0;
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved1() = 0;
    /** The name. */
    virtual HRESULT get_Name(BSTR* name) = 0;

protected:
    ~IniCacheEntry() = default;
};

/** The groups of a file. */
struct IniCacheGroups : public IDispatch
{
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved1() = 0;
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved2() = 0;
    /** Keeps the place of a method of the host. */
    virtual HRESULT Reserved3() = 0;
    /** @param index  from 0: a value of an integer type. */
    virtual HRESULT get_Item(VARIANT index, IniCacheGroup** group) = 0;
    /** The number of members. */
    virtual HRESULT get_Count(LONG* count) = 0;

protected:
    ~IniCacheGroups() = default;
};

/* Collections of named values -------------------------------------------------------------------------------------- */

/** A field of a database record. */
struct HostField : public IDispatch
{
    /** The name. */
    virtual HRESULT get_Name(BSTR* name) = 0;
    /** Sets the name. */
    virtual HRESULT put_Name(BSTR name) = 0;
    /** The value as text. */
    virtual HRESULT get_Value(BSTR* value) = 0;
    /** Sets the value. */
    virtual HRESULT put_Value(BSTR value) = 0;
    /** The width in characters. */
    virtual HRESULT get_Width(LONG* width) = 0;
    /** Sets the width. */
    virtual HRESULT put_Width(LONG width) = 0;
    /** The number of decimals. */
    virtual HRESULT get_Precision(LONG* precision) = 0;
    /** Sets the number of decimals. */
    virtual HRESULT put_Precision(LONG precision) = 0;
    /** The first character is the letter of the database type. */
    virtual HRESULT get_Type(BSTR* type) = 0;
    /** Sets the type. */
    virtual HRESULT put_Type(BSTR type) = 0;
    /** The value that the field had when the record was read. */
    virtual HRESULT get_SecondValue(BSTR* value) = 0;
    /** Sets that value. */
    virtual HRESULT put_SecondValue(BSTR value) = 0;
    /** 1 when the field has no value. */
    virtual HRESULT get_IsNull(LONG* isNull) = 0;
    /** Sets that flag. */
    virtual HRESULT put_IsNull(LONG isNull) = 0;

protected:
    ~HostField() = default;
};

/** The fields of a record. */
struct HostFieldCollection : public IDispatch
{
    /** Appends the field, keeping a reference to it. */
    virtual HRESULT Add(HostField* field) = 0;
    /** @param index  from 1: a value of an integer type. */
    virtual HRESULT get_Item(VARIANT index, HostField** field) = 0;
    /** The number of members. */
    virtual HRESULT get_Count(LONG* count) = 0;
    /** @param index  as for get_Item. */
    virtual HRESULT Remove(VARIANT index) = 0;

protected:
    ~HostFieldCollection() = default;
};

/** A variable: a named value of any type. */
struct HostVariable : public IDispatch
{
    /** The name. */
    virtual HRESULT get_Name(BSTR* name) = 0;
    /** @param value  belongs to the caller, who clears it. */
    virtual HRESULT get_Value(VARIANT* value) = 0;

protected:
    ~HostVariable() = default;
};

/** A list of variables. */
struct HostVariableList : public IDispatch
{
    /** Appends a variable.
     *  @param value  copied.
     *  @param key    by which it can be removed: a text. */
    virtual HRESULT Add(BSTR name, VARIANT value, VARIANT key) = 0;
    /** @param index  from 1, a value of an integer type; or the key. */
    virtual HRESULT get_Item(VARIANT index, HostVariable** variable) = 0;
    /** The number of members. */
    virtual HRESULT get_Count(LONG* count) = 0;
    /** @param key  of the variable, or its index as for get_Item. */
    virtual HRESULT Remove(VARIANT key) = 0;

protected:
    ~HostVariableList() = default;
};

#endif

#endif
