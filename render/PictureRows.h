#pragma once

#include "render/Pixel.h"

#include <span>

namespace render
{
/// A square picture whose rows can be computed in any order, each without the others.
class PictureRows
{
public:
    virtual ~PictureRows() = default;

    /// Width and height in pixels.
    virtual int Side() const = 0;

    /// One row from the top, 0 <= y < Side(), into as many pixels.
    virtual void Row(int y, std::span<Argb> out) const = 0;
};
} // namespace render
