#pragma once

#include "geo/InstructionSet.h"
#include "geo/RowPlane.h"

#include <cstdint>

/// What the row classes of this room share: the vectorised loops, and the constants they run on.
namespace geo
{
/// In place of a result: too near to a decision, or a case of its own; ask the plain arithmetic.
inline constexpr std::int32_t kAskPlain = -1;

/// How many columns one call of a kernel may ask for.
inline constexpr int kKernelBlock = 256;

/// How the cells of an equirectangular picture lie on the globe.
struct CellGrid
{
    double columnsPerRadian;
    double radiansPerColumn;
    double columnsAround; ///< a whole turn
    double centreColumn;  ///< of the station's longitude, 0..columnsAround
    double rowsPerRadian;
    double radiansPerRow;
    double rowsAlong;    ///< from pole to pole
    std::int32_t stride; ///< cells in a row of the picture
};

/// How the cosine of the sun's distance becomes a grey level.
struct GreyBands
{
    double sinHalfWidth; ///< of the greyzone
    std::int32_t day;
    std::int32_t night;
    bool gradient;
    std::int32_t flat; ///< level of the greyzone without a gradient
    // With a gradient the level, before truncation, is levelAtHorizon + levelPerRadian * (sun's height).
    double levelAtHorizon;
    double levelPerRadian;
    double radiansPerLevel;
};

/**
 * The columns first..first + count - 1 to the right (east) and to the left (west) of the station's column.
 *
 * A kernel writes count results, and some more that mean nothing, to each array of kKernelBlock.
 */
struct Columns
{
    int first;
    int count; ///< 1..kKernelBlock
    std::int32_t* east;
    std::int32_t* west;
};

struct RowKernels
{
    /// Index of the picture's cell under each pixel, or kAskPlain.
    void (*cells)(const RowPlane& row, const CellGrid& grid, const Columns& columns);
    /// Grey level of each pixel, 0..255, or kAskPlain.
    void (*greys)(const SunPlane& row, const GreyBands& bands, const Columns& columns);
};

/// The loops for an instruction set, or for the best there is if this processor lacks it; none for Plain.
const RowKernels* KernelsFor(InstructionSet set);
} // namespace geo
