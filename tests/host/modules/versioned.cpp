// The version of versioned.rc, as a note.
#include "platform/posix/version_note.h"

namespace {

using namespace zu::posix;

constexpr VersionText german[] = {{u"FileVersion", u"1, 2, 3, 4"}, {u"ProductVersion", u"4, 3"}};
constexpr VersionText english[] = {{u"FileVersion", u"8, 11, 9, 245"}, {u"ProductVersion", u"8 . 11,\t09  ,beta 2"}};
constexpr VersionTable tables[] = {{0x0407, 1200, german}, {0x0809, 1200, english}};
constexpr VersionData version{.file = {8, 11, 9, 244}, .product = {8, 11, 9, 245}, .tables = tables};

ZU_VERSION_NOTE(version);

} // namespace
