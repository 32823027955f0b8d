// A host of the tests' own: an application object with a translator, an INI cache and a file service, registered as the
// library's host on every system. What it holds is in memory, what it is asked is recorded, and any method can be told
// to fail:
//
//     TestHost host;
//     host.iniValue(W("C:\\zu.ini"), W("GENERAL"), W("KV")) = W("D:\\net");
//     host.fail("IniCache.SetValue", E_ACCESSDENIED);
//     EXPECT_THROW(zu_Ini_set(...), _com_error);
//     EXPECT_EQ(host.calls(), (std::vector<std::string>{"IniCache.SetValue C:\\zu.ini GENERAL KV x"}));
//
// While it lives, the library's holder is this host's, and the built-in host is off; at the end both are as they were.
// Objects of the host that are still referenced then are reported as leaks.
#pragma once

#include "support/wide.h"
#include "zu_HostObjects.h"

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace zutest {

// COM on this thread, for as long as it lives.
class ComThread
{
public:
    ComThread();
    ~ComThread();
    ComThread(const ComThread&) = delete;
    ComThread& operator=(const ComThread&) = delete;
};

class TestHost
{
public:
    TestHost();
    ~TestHost();
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;

    // From now on the method answers result; S_OK lets it work again. Names are "Application.get_IniCache",
    // "Translator.Translate", "FileService.Revalidate", "IniCache.GetValue", "IniCacheGroup.Item",
    // "ClassFactory.CreateInstance" and so on, "Application.Run" for OleRun.
    void fail(const std::string& method, HRESULT result);
    // What failing methods tell about themselves through IErrorInfo; empty for nothing.
    Wide description;

    // The calls since the beginning or the last time: a method and its arguments, with blanks between.
    std::vector<std::string> calls();

    // Called after each call was recorded, with its line: a host that calls back.
    std::function<void(const std::string&)> whenCalled;
    // What was released for good, in order: "Application", "IniCache" and so on.
    std::vector<std::string> released;

    // Application objects that were made, and objects of all kinds that somebody has references to.
    int applicationsMade = 0;
    int liveObjects = 0;

    // The application object.
    bool hasTranslator = true;
    bool hasFileService = true;
    Wide configurationDirectory;
    Wide applicationGroup;
    Wide baseSectionName;

    // The translator: answers of "text|section|entry"; the empty text for anything else.
    std::map<Wide, Wide> translations;

    // The file service: paths, in lower case, as the tests for existence compare them.
    std::vector<Wide> files;
    std::vector<Wide> folders;

    // The INI cache: groups and entries in order, by path. Names are compared ignoring case.
    struct IniGroup
    {
        Wide name;
        std::vector<std::pair<Wide, Wide>> entries;
    };
    std::map<Wide, std::vector<IniGroup>> iniFiles; // by path in lower case
    bool refusesNewGroups = false;
    // The place of a value; made, with its group, when it is missing.
    Wide& iniValue(WideView file, WideView group, WideView key);
    IniGroup* findIniGroup(WideView file, WideView group);

    // For the host's objects: records a call and gives the result that the method was told, S_OK when it was not.
    HRESULT enter(const std::string& method, const std::vector<Wide>& arguments = {});

private:
    ComThread com;
    std::map<std::string, HRESULT> failures;
    std::vector<std::string> recorded;
    IClassFactory* factory;
    DWORD cookie = 0;
    int32_t builtInBefore;
};

// The error that a call raises; S_OK for none.
HRESULT raisedBy(const std::function<void()>& call);

// A text from COM, which is released.
Wide takeBstr(BSTR text);

} // namespace zutest
