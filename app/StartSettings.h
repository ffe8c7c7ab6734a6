#pragma once

#include "app/CommandLine.h"
#include "config/Configuration.h"

#include <memory>

namespace app
{
/// The settings that the program starts with: those of the working file or of the one that the command line names, at
/// the time that it names.
std::unique_ptr<Configuration> StartSettings(const CommandLine& commandLine);
} // namespace app
