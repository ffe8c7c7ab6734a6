#include "app/WxKavApp.h"

#include "app/FileNames.h"
#include "app/StartSettings.h"
#include "config/Version.h"
#include "resources/icons/window.xpm"
#include "ui/WxKavFrame.h"

#include <wx/icon.h>
#include <wx/intl.h>
#include <wx/log.h>

#include <clocale>
#include <cstdio>
#include <utility>

WxKavApp::WxKavApp(app::CommandLine commandLine) : m_commandLine(std::move(commandLine))
{
    wxDISABLE_ASSERTS_IN_RELEASE_BUILD();
}

bool WxKavApp::Initialize(int& argCount, wxChar** args)
{
    const wxLogNull silent;
    if (wxApp::Initialize(argCount, args))
        return true;
    std::fputs("kavmap: no display for the window: set DISPLAY. Pictures need none: kavmap --render PICTURE\n", stderr);
    return false;
}

bool WxKavApp::OnInit()
{
    // Numbers are written and read with a decimal point.
    std::setlocale(LC_ALL, "C");
    app::TakeFileNamesAsBytes();
    wxInitAllImageHandlers();

    auto* const frame = new WxKavFrame(nullptr, app::StartSettings(m_commandLine), m_commandLine.rotator);
    frame->SetTitle(wxGetTranslation("Kavmap V" KAV_VERSION " Linux QQ0QQQ"));
    frame->SetIcon(wxIcon(icon_window));
    frame->Show();
    return true;
}
