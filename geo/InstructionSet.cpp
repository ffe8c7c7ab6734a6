#include "geo/InstructionSet.h"

namespace geo
{
namespace
{
constexpr unsigned kForAvx2 = kHasAvx2 | kHasFma;
constexpr unsigned kForAvx512 = kForAvx2 | kHasAvx512F | kHasAvx512Bw | kHasAvx512Dq | kHasAvx512Vl;

unsigned FeaturesOfThisProcessor()
{
#ifdef __x86_64__
    // The compiler takes names as literals only.
    return (__builtin_cpu_supports("avx2") ? kHasAvx2 : 0U) | (__builtin_cpu_supports("fma") ? kHasFma : 0U) |
           (__builtin_cpu_supports("avx512f") ? kHasAvx512F : 0U) |
           (__builtin_cpu_supports("avx512bw") ? kHasAvx512Bw : 0U) |
           (__builtin_cpu_supports("avx512dq") ? kHasAvx512Dq : 0U) |
           (__builtin_cpu_supports("avx512vl") ? kHasAvx512Vl : 0U);
#else
    return 0;
#endif
}

bool HasAll(unsigned features, unsigned needed)
{
    return (features & needed) == needed;
}
} // namespace

InstructionSet BestOf(unsigned features)
{
    if (HasAll(features, kForAvx512))
        return InstructionSet::Avx512;
    return HasAll(features, kForAvx2) ? InstructionSet::Avx2 : InstructionSet::Baseline;
}

InstructionSet BestInstructionSet()
{
    return BestOf(FeaturesOfThisProcessor());
}
} // namespace geo
