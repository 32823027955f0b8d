// The version of this library, in its own note.
#include "platform/posix/version_note.h"
#include "zu_Api.h"

#define ZU_TEXT_OF_(value) u## #value
#define ZU_TEXT_OF(value) ZU_TEXT_OF_(value)
#define ZU_VERSION_TEXT                                                                                                \
    ZU_TEXT_OF(ZU_VERSION_MAJOR) u"." ZU_TEXT_OF(ZU_VERSION_MINOR) u"." ZU_TEXT_OF(ZU_VERSION_PATCH) u".0"

namespace {

using namespace zu::posix;

constexpr std::array<std::uint16_t, 4> number{ZU_VERSION_MAJOR, ZU_VERSION_MINOR, ZU_VERSION_PATCH, 0};
constexpr VersionText texts[] = {
    {u"FileDescription", u"General tools library for engineering-design applications"},
    {u"FileVersion", ZU_VERSION_TEXT},
    {u"InternalName", u"zu"},
    {u"OriginalFilename", u"libzu.so"},
    {u"ProductName", u"zu"},
    {u"ProductVersion", ZU_VERSION_TEXT},
};
constexpr VersionTable tables[] = {{0x0409, 1200, texts}};
constexpr VersionData version{.file = number, .product = number, .tables = tables};

ZU_VERSION_NOTE(version);

} // namespace
