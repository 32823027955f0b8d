// An INI cache as tests drive it: texts in, texts out.
#pragma once

#include "host/builtin/builtin.h"
#include "support/host.h"

namespace zutest {

class CacheDriver
{
public:
    explicit CacheDriver(zu::ComPtr<IniCache> driven = zu::host::makeBuiltInIniCache()) : cache(std::move(driven)) {}

    // The value; "<none>" when it was not found.
    Wide get(WideView file, WideView group, WideView key)
    {
        zu::Bstr value;
        VARIANT_BOOL found = 1;
        EXPECT_EQ(cache->GetValue(bstr(file), bstr(group), bstr(key), value.out(), &found), S_OK);
        EXPECT_EQ(found == VARIANT_FALSE, value.get() == nullptr);
        return found == VARIANT_TRUE ? Wide(value.view()) : Wide(W("<none>"));
    }
    bool set(WideView file, WideView group, WideView key, WideView value)
    {
        VARIANT_BOOL done = 1;
        EXPECT_EQ(cache->SetValue(bstr(file), bstr(group), bstr(key), bstr(value), &done), S_OK);
        return done == VARIANT_TRUE;
    }
    bool add(WideView file, WideView group)
    {
        VARIANT_BOOL done = 1;
        EXPECT_EQ(cache->AddGroup(bstr(file), bstr(group), &done), S_OK);
        return done == VARIANT_TRUE;
    }
    bool remove(WideView file, WideView group)
    {
        VARIANT_BOOL done = 1;
        EXPECT_EQ(cache->RemoveGroup(bstr(file), bstr(group), &done), S_OK);
        return done == VARIANT_TRUE;
    }
    zu::ComPtr<IniCacheGroup> group(WideView file, WideView name)
    {
        zu::ComPtr<IniCacheGroup> result;
        EXPECT_EQ(cache->GetGroup(bstr(file), bstr(name), result.out()), S_OK);
        return result;
    }
    IniCache* operator->() { return cache.get(); }

    // A text for one call.
    BSTR bstr(WideView text)
    {
        texts.push_back(zu::Bstr(zu::WideView(text)));
        return texts.back().get();
    }

private:
    zu::ComPtr<IniCache> cache;
    std::vector<zu::Bstr> texts;
};

} // namespace zutest
