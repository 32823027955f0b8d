/** @file zu_Memory.h
 *  @ingroup frame
 *  Memory of the library, obtained and released through four replaceable hooks.
 *
 *  Everything that the library hands out as "new" is released with zu_Free (or with the destroy operation of its
 *  family). A host that wants the library to use its own allocator installs it once, before any other call:
 *
 *      zu_MemoryManager_set(host_alloc, host_realloc, host_calloc, host_free);
 *
 *  @par Example
 *  @include memory.c
 */
#ifndef ZU_MEMORY_H
#define ZU_MEMORY_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/* Hooks, with the signatures of the runtime's routines. */

/** As malloc. */
typedef void* (*zu_AllocateHook)(size_t size);
/** As realloc. */
typedef void* (*zu_ReallocateHook)(void* block, size_t size);
/** As calloc. */
typedef void* (*zu_ZeroAllocateHook)(size_t count, size_t elementSize);
/** As free. */
typedef void (*zu_ReleaseHook)(void* block);

/** Replaces the allocation hooks.
 *
 *  Each argument replaces its hook unless it is the runtime's own routine of that role. The replacement is one-way on
 *  purpose: passing the runtime's routine later keeps what was installed. Null is installed like any other value, so a
 *  null hook makes the next use of it fail hard.
 *
 *  @return the last argument. */
ZU_API zu_ReleaseHook zu_MemoryManager_set(zu_AllocateHook allocate, zu_ReallocateHook reallocate,
                                           zu_ZeroAllocateHook zeroAllocate, zu_ReleaseHook release);

/** Obtains a block.
 *
 *  @param size  in bytes.
 *  @return a new block, released with zu_Free; null when the hook has none. */
ZU_API void* zu_Malloc(uint64_t size);

/** Changes the size of a block.
 *
 *  @param block  from this library; null makes the call zu_Malloc(size).
 *  @param size   the new size in bytes; 0 is taken as 1, so that null always means that the old block is still there.
 *  @return the block in its new place, or null; the old block then stays as it was. */
ZU_API void* zu_Realloc(void* block, uint64_t size);

/** Obtains a zero-filled block of count times elementSize bytes.
 *
 *  @return a new block, released with zu_Free; null when the hook has none. */
ZU_API void* zu_Calloc(uint64_t count, uint64_t elementSize);

/** Releases a block of this library; null is ignored. */
ZU_API void zu_Free(void* block);

/** Kept for hosts that call it; does nothing. */
ZU_API void zu_Memory_statistics(void* ignored);

/** Kept for hosts that call it; does nothing. */
ZU_API void zu_Memory_clear(void);

ZU_EXTERN_C_END

#endif
