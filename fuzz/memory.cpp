// The library's memory for fuzz targets: the runtime's, without hooks.
#include "zu_Memory.h"

#include <cstdlib>

void* zu_Malloc(uint64_t size)
{
    return std::malloc(size);
}

void zu_Free(void* block)
{
    std::free(block);
}
