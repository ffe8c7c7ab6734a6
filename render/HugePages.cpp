#include "render/HugePages.h"

#include <cairo.h>

#include <cstdint>
#include <sys/mman.h>

namespace render
{
void PreferHugePages(void* memory, std::size_t bytes)
{
    constexpr std::uintptr_t kHugePage = 2U << 20;
    const auto begin = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t first = (begin + kHugePage - 1) / kHugePage * kHugePage;
    const std::uintptr_t end = (begin + bytes) / kHugePage * kHugePage;
    if (first < end)
        madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
}

void PreferHugePagesOf(cairo_surface_t* surface)
{
    // A surface that is no memory has no height.
    PreferHugePages(cairo_image_surface_get_data(surface),
                    static_cast<std::size_t>(cairo_image_surface_get_stride(surface)) *
                        static_cast<std::size_t>(cairo_image_surface_get_height(surface)));
}
} // namespace render
