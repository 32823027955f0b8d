// Keys of the machine-wide registry that live as long as a test: real ones where the system has a registry, else in a
// text of the usual form.
#pragma once

#include "support/sandbox.h"

#include <map>

namespace zutest {

class Registry
{
public:
    // A registry without keys of its own.
    explicit Registry(Sandbox& sandbox);
    ~Registry();
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;

    void addKey(const Wide& path);
    void addText(const Wide& path, const Wide& name, const Wide& value);

private:
    void publish();

    Sandbox& world;
    std::vector<Wide> made; // keys, those above before those below
    std::map<Wide, Wide> sections;
};

} // namespace zutest
