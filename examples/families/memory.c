/* A host that counts the blocks which the library holds. */
#include "print.h"

#include <stdlib.h>

static int blocks = 0;

static void* countingAllocate(size_t size)
{
    ++blocks;
    return malloc(size);
}

static void* countingZeroAllocate(size_t count, size_t elementSize)
{
    ++blocks;
    return calloc(count, elementSize);
}

static void countingRelease(void* block)
{
    if (block != NULL)
        --blocks;
    free(block);
}

int main(void)
{
    /* First of all, and once. The runtime's own realloc will do. */
    zu_MemoryManager_set(countingAllocate, realloc, countingZeroAllocate, countingRelease);

    zu_wchar* copy = zu_Str_dup(ZU_W("elbow"));
    printf("%s: %d block\n", utf8(copy), blocks);
    zu_Free(copy);
    printf("%d blocks are left\n", blocks);
    return 0;
}
