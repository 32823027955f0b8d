#include "support/sandbox.h"

#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>

namespace fs = std::filesystem;

namespace zutest {
namespace {

fs::path toNative(WideView name)
{
    Wide copy(name);
    if (fs::path::preferred_separator != '\\')
        std::replace(copy.begin(), copy.end(), W('\\'), W('/'));
    return fs::path(copy);
}

// Values are UTF-8 on every system.
void putEnvironment(const std::string& name, const std::optional<std::string>& value)
{
#if defined(_WIN32)
    const std::string text = value.value_or("");
    ::_wputenv((fs::path(name + "=").wstring() + fs::path(std::u8string(text.begin(), text.end())).wstring()).c_str());
#else
    if (value)
        ::setenv(name.c_str(), value->c_str(), 1);
    else
        ::unsetenv(name.c_str());
#endif
}

std::optional<std::string> getEnvironment(const std::string& name)
{
#if defined(_WIN32)
    const wchar_t* const value = ::_wgetenv(fs::path(name).c_str());
    if (value == nullptr)
        return std::nullopt;
    const std::u8string text = fs::path(value).u8string();
    return std::string(text.begin(), text.end());
#else
    const char* const value = std::getenv(name.c_str());
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
#endif
}

} // namespace

Sandbox::Sandbox() : previousDirectory(fs::current_path())
{
    std::random_device random;
    do {
        root = fs::canonical(fs::temp_directory_path()) /
               toNative(Wide(W("zu Test \u00e4")) + widen(std::to_string(random())));
    } while (!fs::create_directory(root));
}

Sandbox::~Sandbox()
{
    for (const auto& [name, value] : savedEnvironment)
        putEnvironment(name, value);
    std::error_code ignored;
    fs::current_path(previousDirectory, ignored);
    fs::permissions(root, fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(root, ignored);
}

fs::path Sandbox::native(WideView name) const
{
    return name.empty() ? root : root / toNative(name);
}

Wide Sandbox::path(WideView name) const
{
#if defined(_WIN32)
    Wide text = native(name).wstring();
#else
    Wide text = W("C:") + native(name).u16string();
    std::replace(text.begin(), text.end(), W('/'), W('\\'));
#endif
    return text;
}

void Sandbox::write(WideView name, std::string_view bytes) const
{
    std::ofstream file(native(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(file.good());
}

std::string Sandbox::read(WideView name) const
{
    std::ifstream file(native(name), std::ios::binary);
    if (!file)
        return "<no such file>";
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

bool Sandbox::exists(WideView name) const
{
    return fs::exists(native(name));
}

void Sandbox::setEnvironment(const std::string& name, const std::optional<std::string>& value)
{
    if (savedEnvironment.count(name) == 0)
        savedEnvironment[name] = getEnvironment(name);
    putEnvironment(name, value);
}

} // namespace zutest
