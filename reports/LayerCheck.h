#pragma once

#include "config/Settings.h"
#include "reports/Finding.h"

namespace reports
{
/// What will not work in the layers that are shown: colours of pure white, fonts and files.
Findings CheckLayers(Settings& settings);
} // namespace reports
