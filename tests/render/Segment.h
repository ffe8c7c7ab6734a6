#pragma once

#include "geo/MapFrame.h"

/// A line between two pixels.
struct Segment
{
    geo::Pixel from;
    geo::Pixel to;

    bool operator==(const Segment&) const = default;
};
