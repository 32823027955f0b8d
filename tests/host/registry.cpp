#include "host/registry.h"

#if defined(_WIN32)
#    include <windows.h>
#endif

namespace zutest {

#if defined(_WIN32)

namespace {

HKEY create(const Wide& path, bool& isNew)
{
    HKEY key = nullptr;
    DWORD disposition = 0;
    EXPECT_EQ(
        ::RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, &disposition),
        ERROR_SUCCESS);
    isNew = disposition == REG_CREATED_NEW_KEY;
    return key;
}

void setValue(const Wide& path, const Wide& name, DWORD type, const void* data, std::size_t size)
{
    HKEY key = nullptr;
    ::RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_ALL_ACCESS, &key);
    EXPECT_EQ(::RegSetValueExW(key, name.c_str(), 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size)),
              ERROR_SUCCESS);
    ::RegCloseKey(key);
}

} // namespace

Registry::Registry(Sandbox& sandbox) : world(sandbox) {}

Registry::~Registry()
{
    for (auto key = made.rbegin(); key != made.rend(); ++key)
        ::RegDeleteKeyW(HKEY_LOCAL_MACHINE, key->c_str());
}

void Registry::addKey(const Wide& path)
{
    for (std::size_t end = path.find(W('\\')); end != Wide::npos; end = path.find(W('\\'), end + 1)) {
        bool isNew = false;
        ::RegCloseKey(create(path.substr(0, end), isNew));
        if (isNew)
            made.push_back(path.substr(0, end));
    }
    bool isNew = false;
    ::RegCloseKey(create(path, isNew));
    if (isNew)
        made.push_back(path);
}

void Registry::addText(const Wide& path, const Wide& name, const Wide& value)
{
    addKey(path);
    setValue(path, name, REG_SZ, value.c_str(), (value.size() + 1) * sizeof(wchar_t));
}

#else

namespace {

Wide escaped(const Wide& text)
{
    Wide out;
    for (zu_wchar unit : text) {
        if (unit == W('\\') || unit == W('"'))
            out += W('\\');
        out += unit;
    }
    return out;
}

} // namespace

Registry::Registry(Sandbox& sandbox) : world(sandbox)
{
    publish();
}

Registry::~Registry() = default;

void Registry::addKey(const Wide& path)
{
    sections[path];
    publish();
}

void Registry::addText(const Wide& path, const Wide& name, const Wide& value)
{
    sections[path] += W("\"") + escaped(name) + W("\"=\"") + escaped(value) + W("\"\r\n");
    publish();
}

// As exports are: UTF-16 with its mark.
void Registry::publish()
{
    Wide text = W("\uFEFFWindows Registry Editor Version 5.00\r\n");
    for (const auto& [path, values] : sections)
        text += W("\r\n[HKEY_LOCAL_MACHINE\\") + path + W("]\r\n") + values;
    world.write(W("registry.reg"), std::string_view(reinterpret_cast<const char*>(text.data()), text.size() * 2));
    world.setEnvironment("ZU_REGISTRY", world.native(W("registry.reg")).string());
}

#endif

} // namespace zutest
