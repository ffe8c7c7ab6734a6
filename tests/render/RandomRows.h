#pragma once

#include "render/MapRows.h"

#include <random>

/// A picture of opaque or see-through pixels of any colours.
class RandomRows : public render::PictureRows
{
public:
    explicit RandomRows(int side, unsigned seed = 0, bool opaque = true) : m_side(side), m_seed(seed), m_opaque(opaque)
    {
    }
    int Side() const override { return m_side; }
    void Row(int y, std::span<render::Argb> out) const override
    {
        std::mt19937 random(m_seed + static_cast<unsigned>(y));
        for (render::Argb& pixel : out)
        {
            const auto value = static_cast<render::Argb>(random());
            pixel = m_opaque
                        ? 0xFF000000U | value
                        : render::PremultipliedPixel((value >> 16) & 255, (value >> 8) & 255, value & 255, value >> 24);
        }
    }

private:
    int m_side;
    unsigned m_seed;
    bool m_opaque;
};
