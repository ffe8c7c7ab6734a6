#pragma once

#include "config/Endings.h"
#include "propagation/Progress.h"

#include <optional>

#include <sys/types.h>

namespace propagation
{
/**
 * An outside program at work, with an empty standard input and in a process group of its own.
 *
 * It ends with this object, and also with this program, however that ends: by a signal that asks for it, the whole
 * group; otherwise at least the process that was started. One at a time.
 */
class OutsideProgram
{
public:
    static constexpr int kNotStarted = -1;

    /// @param[in] arguments the name of the program, which is looked up as a shell does, what it is given, a null.
    explicit OutsideProgram(const char* const* arguments);
    ~OutsideProgram();
    OutsideProgram(const OutsideProgram&) = delete;
    OutsideProgram& operator=(const OutsideProgram&) = delete;

    /// Returns its exit status, or minus the signal that ended it; none when progress has ended it.
    std::optional<int> Wait(Progress& progress);

private:
    pid_t m_process;
    std::optional<Endings> m_endings;
};
} // namespace propagation
