#pragma once

#include "ui/CommandLine.h"

#include <wx/app.h>

#include <memory>

class Configuration;

/// Starts the program: the main window, or one picture without a window.
class WxKavApp : public wxApp
{
public:
    WxKavApp();

    bool Initialize(int& argCount, wxChar** args) override;
    bool OnInit() override;
    int OnRun() override;

    /// What main() read from the command line before the toolkit was started.
    static ui::CommandLine commandLine;

private:
    std::unique_ptr<Configuration> ReadSettings() const;
};
