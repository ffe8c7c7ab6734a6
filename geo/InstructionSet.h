#pragma once

namespace geo
{
/**
 * How rows of pixels are computed. Every choice gives the same pixels; they differ in speed only.
 *
 * In ascending order: a processor that has one has those before it.
 */
enum class InstructionSet
{
    Plain,    ///< the plain arithmetic, pixel by pixel
    Baseline, ///< the vectors that every processor of the kind has (SSE2 on x86-64)
    Avx2,     ///< with fused multiply-add
    Avx512,
};

// What the functions of geo/RowKernel.cpp name as their targets, a bit each.
inline constexpr unsigned kHasAvx2 = 1;
inline constexpr unsigned kHasFma = 2;
inline constexpr unsigned kHasAvx512F = 4;
inline constexpr unsigned kHasAvx512Bw = 8;
inline constexpr unsigned kHasAvx512Dq = 16;
inline constexpr unsigned kHasAvx512Vl = 32;

/// The fastest choice on a processor with these features.
InstructionSet BestOf(unsigned features);

/// The fastest choice on this processor.
InstructionSet BestInstructionSet();
} // namespace geo
