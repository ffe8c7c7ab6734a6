#include "geo/GreylineRows.h"
#include "geo/RowSampler.h"
#include "render/HugePages.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

// Whole maps of the default station, row by row: the plain loop against the kernels. At 900 pixels the picture's memory
// is in use already; at 8000 the allocator gets it from the system each time, so its first touch is counted, in huge
// pages as for the program's own maps. Each run first compares rows with the plain loop and gives up if a pixel
// differs.
namespace
{
using geo::InstructionSet;

geo::MapDisc DefaultDisc(int size)
{
    AzimuthalProjection projection;
    projection.Init(0, 0, 55.6875, 12.625);
    return {projection, MapFrame(size, 20000000, 1), 20000000};
}

std::vector<std::uint32_t> NumberedPixels(int count)
{
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = static_cast<std::uint32_t>(i);
    return pixels;
}

struct BaseMap
{
    using Pixel = std::uint32_t;

    static geo::RowSampler Rows(int size, InstructionSet set)
    {
        static const std::vector<std::uint32_t> pixels = NumberedPixels(720 * 360);
        return {DefaultDisc(size), geo::WorldCells::Filling(pixels.data(), 720, 360, 0), 0xFFFFFFFF, set};
    }
};

struct PropagationOverlay
{
    using Pixel = std::uint32_t;

    static geo::RowSampler Rows(int size, InstructionSet set)
    {
        static const std::vector<std::uint32_t> pixels = NumberedPixels(1801 * 901);
        return {DefaultDisc(size), geo::WorldCells::Lattice(pixels.data(), 5), 0xFFFFFFFF, set};
    }
};

struct Greyline
{
    using Pixel = std::uint8_t;

    static geo::GreylineRows Rows(int size, InstructionSet set)
    {
        return {DefaultDisc(size), {{0.35, -0.8}, 6.0, true, 60.0, 30.0}, set};
    }
};

template <class Rows, class Pixel>
bool RowsAgree(const Rows& rows, int size, std::vector<Pixel>& line)
{
    constexpr int kRowsCompared = 40;
    for (int row = size / 3 % 7; row < size; row += std::max(size / kRowsCompared, 1))
    {
        rows.Row(row, line);
        for (int column = 0; column < size; ++column)
            if (line[static_cast<std::size_t>(column)] != rows.Pixel(column, row))
                return false;
    }
    return true;
}

/// Memory for a picture that is not touched yet.
template <class Pixel>
std::unique_ptr<Pixel[]> FreshPicture(std::size_t side)
{
    auto picture = std::make_unique_for_overwrite<Pixel[]>(side * side);
    render::PreferHugePages(picture.get(), side * side * sizeof(Pixel));
    return picture;
}

/// Uses a picture's memory and gives it back. The host of a virtual machine takes idle memory away; whoever needs it
/// next pays for that, and that should be none of those compared.
template <class Pixel>
void WakeMemory(benchmark::State& state, std::size_t side)
{
    state.PauseTiming();
    std::fill_n(FreshPicture<Pixel>(side).get(), side * side, Pixel{});
    benchmark::ClobberMemory();
    state.ResumeTiming();
}

template <class Layer>
void WholeMap(benchmark::State& state)
{
    const int size = static_cast<int>(state.range(0));
    const auto set = static_cast<InstructionSet>(state.range(1));
    if (set > geo::BestInstructionSet())
        return state.SkipWithError("not on this processor");
    const auto rows = Layer::Rows(size, set);
    const auto side = static_cast<std::size_t>(size);
    std::vector<typename Layer::Pixel> line(side);
    if (!RowsAgree(rows, size, line))
        return state.SkipWithError("a pixel differs from the plain loop");
    for (auto _ : state)
    {
        WakeMemory<typename Layer::Pixel>(state, side);
        const auto picture = FreshPicture<typename Layer::Pixel>(side);
        for (int row = 0; row < size; ++row)
            rows.Row(row, {picture.get() + static_cast<std::size_t>(row) * side, side});
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * size * size);
}

template <class Layer>
void Register(const std::string& name)
{
    using enum InstructionSet;
    for (const int size : {900, 8000})
        for (const auto set : {Plain, Baseline, Avx2, Avx512})
        {
            auto* bench = benchmark::RegisterBenchmark(name.c_str(), WholeMap<Layer>);
            bench->ArgNames({"size", "set"})->Args({size, static_cast<int>(set)})->Unit(benchmark::kMillisecond);
            if (set == Plain && size == 8000)
                bench->Iterations(1); // several seconds each
        }
}

[[maybe_unused]] const bool kRegistered = []
{
    Register<BaseMap>("BaseMap");
    Register<PropagationOverlay>("PropagationOverlay");
    Register<Greyline>("Greyline");
    return true;
}();
} // namespace
