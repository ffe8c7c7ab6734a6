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

/// The fastest choice on this processor.
InstructionSet BestInstructionSet();
} // namespace geo
