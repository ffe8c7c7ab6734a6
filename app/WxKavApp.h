#pragma once

#include "app/CommandLine.h"

#include <wx/app.h>

/// The program with its main window.
class WxKavApp : public wxApp
{
public:
    explicit WxKavApp(app::CommandLine commandLine);

    bool Initialize(int& argCount, wxChar** args) override;
    bool OnInit() override;

private:
    app::CommandLine m_commandLine;
};
