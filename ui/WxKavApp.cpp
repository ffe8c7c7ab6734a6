#include "ui/WxKavApp.h"

#include "config/Configuration.h"
#include "config/SettingsFile.h"
#include "resources/icons/window.xpm"
#include "ui/BatchRender.h"
#include "ui/WxKavFrame.h"

#include <wx/icon.h>
#include <wx/intl.h>
#include <wx/log.h>

#include <clocale>
#include <cstdio>

ui::CommandLine WxKavApp::commandLine;

namespace
{
/// File names are bytes to the system. Taken as UTF-8 whatever the locale, with a detour for bytes that are not, every
/// name survives the way through the toolkit's texts.
wxMBConvUTF8 theFileNames(wxMBConvUTF8::MAP_INVALID_UTF8_TO_PUA);

wxString FileName(const std::string& bytes)
{
    return {bytes.c_str(), theFileNames};
}
} // namespace

WxKavApp::WxKavApp()
{
    wxDISABLE_ASSERTS_IN_RELEASE_BUILD();
}

bool WxKavApp::Initialize(int& argCount, wxChar** args)
{
    const wxLogNull silent;
    if (wxApp::Initialize(argCount, args))
        return true;
    std::fputs("kavmap: no display to draw on: set DISPLAY, or start kavmap under a virtual one with xvfb-run -a\n",
               stderr);
    return false;
}

bool WxKavApp::OnInit()
{
    // Numbers are written and read with a decimal point.
    std::setlocale(LC_ALL, "C");
    wxConvFileName = &theFileNames;
    wxInitAllImageHandlers();
    if (commandLine.render)
        return true;

    auto* const frame = new WxKavFrame(nullptr, ReadSettings());
    frame->SetTitle(wxGetTranslation("Kavmap V3.1.9 Linux QQ0QQQ"));
    frame->SetIcon(wxIcon(icon_window));
    frame->Show();
    return true;
}

int WxKavApp::OnRun()
{
    return commandLine.render
               ? ui::RenderToFile(ReadSettings(), FileName(*commandLine.render), commandLine.voacaplTimeout)
               : wxApp::OnRun();
}

std::unique_ptr<Configuration> WxKavApp::ReadSettings() const
{
    const wxString name = "Kavdex";
    auto settings = commandLine.settings
                        ? std::make_unique<Configuration>(name, *OpenSettingsFile(FileName(*commandLine.settings)))
                        : std::make_unique<Configuration>(name);
    if (commandLine.time)
    {
        settings->greyzone.timeMode = kOnce;
        settings->greyzone.once = *commandLine.time;
    }
    return settings;
}
