#pragma once

#include "app/CommandLine.h"

#include <wx/app.h>

namespace app
{
/// The program without a window: it needs no display.
class ConsoleApp : public wxAppConsole
{
public:
    explicit ConsoleApp(const CommandLine& commandLine);

    bool OnInit() override;
    int OnRun() override;
    void OnUnhandledException() override;

private:
    const CommandLine& m_commandLine;
};
} // namespace app
