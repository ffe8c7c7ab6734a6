#include "app/ConsoleApp.h"

#include "app/Aim.h"
#include "app/BatchRender.h"
#include "app/FileNames.h"
#include "app/StartSettings.h"

#include <wx/font.h>
#include <wx/gdicmn.h>
#include <wx/image.h>

#include <clocale>

namespace
{
/// The first drawing context asks for the ordinary font, which would come from the settings of a desktop. This gives it
/// the one that stands in where there is none.
class OrdinaryFont : public wxStockGDI
{
public:
    static void Provide() { ms_stockObject[FONT_NORMAL] = new wxFont(wxString("Sans 10")); }
};
} // namespace

namespace app
{
ConsoleApp::ConsoleApp(const CommandLine& commandLine) : m_commandLine(commandLine)
{
    wxDISABLE_ASSERTS_IN_RELEASE_BUILD();
}

bool ConsoleApp::OnInit()
{
    // Numbers are written and read with a decimal point.
    std::setlocale(LC_ALL, "C");
    TakeFileNamesAsBytes();
    wxInitAllImageHandlers();
    OrdinaryFont::Provide();
    return true;
}

int ConsoleApp::OnRun()
{
    const auto settings = StartSettings(m_commandLine);
    if (m_commandLine.aim)
        return Aim(*settings, m_commandLine);
    return RenderToFile(*settings, FileName(*m_commandLine.render), m_commandLine.voacaplTimeout);
}
} // namespace app
