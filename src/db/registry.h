// The registries beyond their exported operations.
#pragma once

#include "zu_DbRef.h"

namespace zu::db {

// Makes the registries that do not exist; false without memory.
bool createRegistries();
// Destroys them with their records and tags.
void destroyRegistries();

// The tags in the order of their making: nodes of DbTagRefNode.
const LnkNode* firstTag();

} // namespace zu::db
