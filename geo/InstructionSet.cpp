#include "geo/InstructionSet.h"

namespace geo
{
InstructionSet BestInstructionSet()
{
#ifdef __x86_64__
    // What geo/RowKernel.cpp names as the targets of its functions.
    if (!__builtin_cpu_supports("avx2") || !__builtin_cpu_supports("fma"))
        return InstructionSet::Baseline;
    const bool avx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                        __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
    return avx512 ? InstructionSet::Avx512 : InstructionSet::Avx2;
#else
    return InstructionSet::Baseline;
#endif
}
} // namespace geo
