#include "zu_Memory.h"

#include "frame/format.h"
#include "frame/text.h"
#include "platform/runtime.h"
#include "zu_Msg.h"

#include <algorithm>
#include <cstdlib>

namespace {

using namespace zu;

// Set before any code of the library or its host can run.
constinit zu_AllocateHook allocateHook = std::malloc;
constinit zu_ReallocateHook reallocateHook = std::realloc;
constinit zu_ZeroAllocateHook zeroAllocateHook = std::calloc;
constinit zu_ReleaseHook releaseHook = std::free;

// The text of the last failure. Nothing reads it; it is there for whoever looks at a dump.
text::Buffer<511> lastFailure;

template <class Hook>
void replaceHook(Hook& hook, Hook replacement, Hook runtimeRoutine)
{
    const auto behind = [](Hook routine) {
        return platform::routineBehind(reinterpret_cast<const void*>(routine));
    };
    if (behind(replacement) != behind(runtimeRoutine))
        hook = replacement;
}

// The catalogue's text, or the English key where the catalogue fails.
void catalogueText(text::Buffer<255>& out, const char* key)
{
    try {
        out.set(text::view(zu_Msg(key, "TOOL", 0)));
    } catch (...) {
        // A failing translator must not hide that memory ran out.
        std::size_t length = 0;
        for (; key[length] != '\0'; ++length)
            out.units[length] = static_cast<zu_wchar>(key[length]);
        out.units[length] = 0;
    }
}

// Formats without allocating. The catalogue that it asks may allocate, and fail at that: such failures inside are
// passed over.
void noteFailure(const char* what, uint64_t number)
{
    static bool noting = false;
    if (noting)
        return;
    noting = true;
    text::Buffer<255> lead;
    text::Buffer<255> tail;
    catalogueText(lead, what);
    catalogueText(tail, "bytes of memory");
    formatInto(lastFailure.units, ZU_W("%s %d %s"), lead.view(), number, tail.view());
    noting = false;
}

} // namespace

zu_ReleaseHook zu_MemoryManager_set(zu_AllocateHook allocate, zu_ReallocateHook reallocate,
                                    zu_ZeroAllocateHook zeroAllocate, zu_ReleaseHook release)
{
    replaceHook<zu_AllocateHook>(allocateHook, allocate, std::malloc);
    replaceHook<zu_ReallocateHook>(reallocateHook, reallocate, std::realloc);
    replaceHook<zu_ZeroAllocateHook>(zeroAllocateHook, zeroAllocate, std::calloc);
    replaceHook<zu_ReleaseHook>(releaseHook, release, std::free);
    return release;
}

void* zu_Malloc(uint64_t size)
{
    void* const block = allocateHook(size);
    if (block == nullptr)
        noteFailure("Unable to allocate", size);
    return block;
}

void* zu_Realloc(void* block, uint64_t size)
{
    if (block == nullptr)
        return zu_Malloc(size);
    // A runtime's routine may release a block that is to have no size and answer null, which is the answer of a
    // failure.
    void* const moved = reallocateHook(block, std::max<uint64_t>(size, 1));
    if (moved == nullptr)
        noteFailure("Unable to re-allocate", size);
    return moved;
}

void* zu_Calloc(uint64_t count, uint64_t elementSize)
{
    void* const block = zeroAllocateHook(count, elementSize);
    // The message names the element size alone; that is how it is meant.
    if (block == nullptr)
        noteFailure("Unable to callocate", elementSize);
    return block;
}

void zu_Free(void* block)
{
    if (block != nullptr)
        releaseHook(block);
}

void zu_Memory_statistics(void*) {}

void zu_Memory_clear(void) {}
