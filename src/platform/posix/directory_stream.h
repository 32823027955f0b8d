// A directory that is being read, and closes itself.
#pragma once

#include <dirent.h>
#include <memory>

namespace zu::posix {

struct DirectoryCloser
{
    void operator()(DIR* directory) const { ::closedir(directory); }
};
using DirectoryStream = std::unique_ptr<DIR, DirectoryCloser>;

} // namespace zu::posix
