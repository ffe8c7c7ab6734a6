#pragma once

#include "config/Settings.h"

#include <span>
#include <vector>

namespace propagation
{
/// What fits into the input of voacapl, and what happens to everything else: nothing tells when it is read.
struct InputRule
{
    const char* field;     ///< as the guide calls it
    const char* fits;      ///< what is read as it was typed
    const char* otherwise; ///< what becomes of the rest

    /// The keys in "Propagation" whose setting does not fit.
    std::vector<const char*> (*misfits)(const PropagationSettings& settings);
};

std::span<const InputRule> InputRules();

/// A setting that voacapl reads otherwise than it was typed, or refuses.
struct InputFinding
{
    const char* key; ///< in "Propagation"
    const InputRule* rule;

    /// In one line; or in two short ones.
    wxString Text(const char* between = " ") const;
};

/**
 * What does not fit, in the order of the rules.
 *
 * Looks for antenna files in the data directory. Whether the overlay is shown and whether it comes from another run's
 * result does not matter.
 */
std::vector<InputFinding> CheckInput(const PropagationSettings& settings);
} // namespace propagation
