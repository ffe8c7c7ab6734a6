// Compiled with options of its own (see CMakeLists.txt): multiplications and additions may be fused here, because the
// guard covers the difference. The plain arithmetic must never move into this file.
#include "geo/RowKernel.h"

#include "geo/RowMath.h"

#include <algorithm>

namespace
{
using namespace geo;

// Loop counts are whole vectors; the columns beyond the last repeat it.
constexpr int kPadding = 16;
static_assert(kKernelBlock % kPadding == 0);

[[gnu::always_inline]] inline int Padded(int count)
{
    return (count + kPadding - 1) / kPadding * kPadding;
}

/// One value for each column of a block.
struct alignas(64) Block
{
    double& operator[](int i) { return values[i]; }
    double operator[](int i) const { return values[i]; }

    double values[kKernelBlock];
};

// Three short loops rather than one: each step of a pixel waits for the one before it, and only in a short loop can a
// processor work on enough pixels at once. One loop for all takes up to a third longer.
[[gnu::always_inline]] inline void CellsBody(const RowPlane& rowPlane, const CellGrid& cellGrid, const Columns& asked)
{
    // Copies, which the results cannot alias.
    const Columns columns = asked;
    const RowPlane row = rowPlane;
    const CellGrid grid = cellGrid;
    const int count = Padded(columns.count);
    const int last = columns.first + columns.count - 1;
    Block towards;
    Block eastward;
    Block sinLat;
#pragma omp simd
    for (int i = 0; i < count; ++i)
    {
        const rowmath::UnitVector place = rowmath::UnitVectorOf(row, std::min(columns.first + i, last));
        towards[i] = place.x;
        eastward[i] = place.y;
        sinLat[i] = place.z;
    }

    Block turn;
#pragma omp simd
    for (int i = 0; i < count; ++i)
        turn[i] = rowmath::AngleOf(eastward[i], towards[i]) * grid.columnsPerRadian;

#pragma omp simd
    for (int i = 0; i < count; ++i)
    {
        const rowmath::FromPole latitude = rowmath::AngleFromPole(sinLat[i]);
        const double fromPole = latitude.angle * grid.rowsPerRadian;
        const double down = sinLat[i] < 0.0 ? grid.rowsAlong - fromPole : fromPole;
        double east = grid.centreColumn + turn[i];
        east = east < grid.columnsAround ? east : east - grid.columnsAround;
        double west = grid.centreColumn - turn[i];
        west = west < 0.0 ? west + grid.columnsAround : west;

        const auto gridRow = static_cast<std::int32_t>(down);
        const auto eastColumn = static_cast<std::int32_t>(east);
        const auto westColumn = static_cast<std::int32_t>(west);
        const double eastMargin = rowmath::FromWhole(east, eastColumn);
        const double westMargin = rowmath::FromWhole(west, westColumn);
        const double sideways = std::min(eastMargin, westMargin) * grid.radiansPerColumn;
        const double upright = rowmath::FromWhole(down, gridRow) * grid.radiansPerRow;
        const bool sure = rowmath::IsSure(std::min(sideways, upright), latitude.q);
        const std::int32_t before = gridRow * grid.stride;
        columns.east[i] = sure ? before + eastColumn : kAskPlain;
        columns.west[i] = sure ? before + westColumn : kAskPlain;
    }
}

template <bool kGradient>
[[gnu::always_inline]] inline std::int32_t GreyOf(const GreyBands& bands, double cosDistance)
{
    const double intoDay = cosDistance - bands.sinHalfWidth;
    const double intoNight = -bands.sinHalfWidth - cosDistance;
    std::int32_t level = bands.flat;
    bool sure = true;
    if constexpr (kGradient)
    {
        const rowmath::FromPole sun = rowmath::AngleFromPole(cosDistance); // the zenith as the pole
        const double height = cosDistance < 0.0 ? sun.angle - kPi / 2 : kPi / 2 - sun.angle;
        const double value = bands.levelAtHorizon + bands.levelPerRadian * height;
        const auto truncated = static_cast<std::int32_t>(value);
        level = truncated & 255;
        sure = rowmath::IsSure(rowmath::FromWhole(value, truncated) * bands.radiansPerLevel, sun.q);
    }
    level = sure ? level : kAskPlain;
    level = intoDay > 0.0 ? bands.day : level;
    level = intoNight > 0.0 ? bands.night : level;
    const double edge = std::min(std::fabs(intoDay), std::fabs(intoNight));
    return edge > rowmath::kGuard ? level : kAskPlain;
}

template <bool kGradient>
[[gnu::always_inline]] inline void GreysBody(const SunPlane& sunPlane, const GreyBands& greyBands, const Columns& asked)
{
    const Columns columns = asked;
    const SunPlane row = sunPlane;
    const GreyBands bands = greyBands;
    const int count = Padded(columns.count);
    const int last = columns.first + columns.count - 1;
#pragma omp simd
    for (int i = 0; i < count; ++i)
    {
        const rowmath::SunCosines cosines = rowmath::SunCosinesOf(row, std::min(columns.first + i, last));
        columns.east[i] = GreyOf<kGradient>(bands, cosines.east);
        columns.west[i] = GreyOf<kGradient>(bands, cosines.west);
    }
}

[[gnu::always_inline]] inline void GreysOfEitherKind(const SunPlane& row, const GreyBands& bands,
                                                     const Columns& columns)
{
    if (bands.gradient)
        GreysBody<true>(row, bands, columns);
    else
        GreysBody<false>(row, bands, columns);
}

// One copy of the loops for each instruction set, chosen by a table rather than by the loader: that also works with the
// thread sanitizer and across compilers.
#define KAV_ROW_KERNELS(name, target)                                                                                  \
    target void Cells##name(const RowPlane& row, const CellGrid& grid, const Columns& columns)                         \
    {                                                                                                                  \
        CellsBody(row, grid, columns);                                                                                 \
    }                                                                                                                  \
    target void Greys##name(const SunPlane& row, const GreyBands& bands, const Columns& columns)                       \
    {                                                                                                                  \
        GreysOfEitherKind(row, bands, columns);                                                                        \
    }                                                                                                                  \
    constexpr RowKernels k##name{Cells##name, Greys##name};

KAV_ROW_KERNELS(Baseline, )
#ifdef __x86_64__
KAV_ROW_KERNELS(Avx2, [[gnu::target("avx2,fma")]])
KAV_ROW_KERNELS(Avx512, [[gnu::target("avx2,fma,avx512f,avx512bw,avx512dq,avx512vl")]])
#endif
#undef KAV_ROW_KERNELS
} // namespace

namespace geo
{
const RowKernels* KernelsFor(InstructionSet set)
{
    static const InstructionSet best = BestInstructionSet();
    switch (std::min(set, best))
    {
    case InstructionSet::Plain:
        return nullptr;
#ifdef __x86_64__
    case InstructionSet::Avx2:
        return &kAvx2;
    case InstructionSet::Avx512:
        return &kAvx512;
#endif
    default:
        return &kBaseline;
    }
}
} // namespace geo
