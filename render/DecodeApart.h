#pragma once

#include <wx/image.h>

#include <functional>

namespace render
{
/// What the decoding of a picture may take.
struct DecodeLimits
{
    std::size_t bytes = std::size_t{2} << 30; ///< of memory, beside what the program has
    unsigned seconds = 60;                    ///< of a processor
};

/// Pixels that a picture may have, more than 23000 x 11500.
inline constexpr std::size_t kMostPixels = std::size_t{1} << 28;

/**
 * Decodes a picture in a child of this program, so that no fault of a decoder is one of this program.
 *
 * @param[in] decode what the child does, in silence; an invalid picture says that it could not.
 * @return the picture without its opacity; invalid if decode could not, crashed, exceeded the limits, or if there is no
 *         memory for it.
 */
wxImage DecodeApart(const std::function<wxImage()>& decode, DecodeLimits limits = {});

/**
 * Decodes the picture in a file so, of any format that the toolkit knows.
 *
 * It may take 256 MB of memory, and 4096 bytes for each of the file's own, as none can be packed more densely; 2 GB at
 * most.
 *
 * @param[in] name see FindDataFile().
 */
wxImage LoadImageApart(const wxString& name);
} // namespace render
