#pragma once

#include <cstddef>

#include <dlfcn.h>
#include <malloc.h>

/// The bytes that this process has allocated and not given back, whatever the system still lends it beyond them.
inline std::size_t HeapInUse()
{
    using Count = std::size_t (*)();
    // AddressSanitizer has a heap of its own.
    if (void* const count = dlsym(RTLD_DEFAULT, "__sanitizer_get_current_allocated_bytes"))
        return reinterpret_cast<Count>(count)();
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}
