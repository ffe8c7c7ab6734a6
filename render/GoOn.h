#pragma once

#include <functional>

namespace render
{
/// Asked for every part of a drawing that may take long, with what is done of it, from 0 to 1; false leaves out the
/// rest.
using GoOn = std::function<bool(double done)>;

inline bool Always(double)
{
    return true;
}
} // namespace render
