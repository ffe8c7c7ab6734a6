#pragma once

#include <cstddef>

namespace render
{
/**
 * Asks the system to back fresh memory with huge pages: a large picture is then touched for the first time in a third
 * of the time. Only advice: nothing else changes, and systems without huge pages ignore it.
 */
void PreferHugePages(void* memory, std::size_t bytes);

/// The same for the memory of a drawing surface, if it is memory.
void PreferHugePagesOf(struct _cairo_surface* surface);
} // namespace render
