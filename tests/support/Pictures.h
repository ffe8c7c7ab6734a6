#pragma once

#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"
#include "render/PictureRows.h"

#include <gtest/gtest.h>

#include <wx/bitmap.h>

#include <memory>
#include <vector>

/// The colours of a picture by row and column, without opacity.
using Colours = std::vector<std::vector<render::Argb>>;

inline Colours ColoursOf(wxBitmap& bitmap)
{
    const render::BitmapPixels pixels(bitmap);
    Colours colours;
    for (int y = 0; y < pixels.Height(); ++y)
    {
        const auto row = pixels.Row(y);
        colours.emplace_back(row.begin(), row.end());
        for (render::Argb& colour : colours.back())
            colour |= 0xFF000000;
    }
    return colours;
}

/// Compares two pictures of one size and names the first pixel that differs.
inline testing::AssertionResult SamePicture(const Colours& got, const Colours& expected)
{
    std::size_t count = 0;
    testing::AssertionResult result = testing::AssertionSuccess();
    for (std::size_t y = 0; y < expected.size(); ++y)
        for (std::size_t x = 0; x < expected[y].size(); ++x)
            if (got[y][x] != expected[y][x] && count++ == 0)
                result = testing::AssertionFailure() << "pixel " << x << ", " << y << " is " << std::hex << got[y][x]
                                                     << " instead of " << expected[y][x] << std::dec;
    if (count > 0)
        result << "; " << count << " pixels differ";
    return result;
}

/// A picture as a bitmap with opacity.
inline std::unique_ptr<wxBitmap> BitmapOf(const render::PictureRows& picture)
{
    auto bitmap = render::NewOverlayBitmap(picture.Side());
    const render::BitmapPixels pixels(*bitmap);
    for (int y = 0; y < picture.Side(); ++y)
        picture.Row(y, pixels.Row(y));
    return bitmap;
}
