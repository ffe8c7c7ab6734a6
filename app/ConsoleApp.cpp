#include "app/ConsoleApp.h"

#include "app/Aim.h"
#include "app/BatchRender.h"
#include "app/ErrorLines.h"
#include "app/FileNames.h"
#include "app/StartSettings.h"
#include "reports/PrintBearings.h"
#include "reports/PrintCheck.h"

#include <wx/font.h>
#include <wx/gdicmn.h>
#include <wx/image.h>
#include <wx/log.h>

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
namespace
{
// Whoever only asks does not care whether the working settings can be kept.

int PrintAim(const CommandLine& line)
{
    const wxLogNull silent;
    return Aim(*StartSettings(line), line);
}

int PrintBearings(const CommandLine& line)
{
    const wxLogNull silent;
    const auto settings = StartSettings(line);
    return line.AnswersInput() ? reports::AnswerBearings(*settings, line.time, stdin, stdout)
                               : reports::PrintBearings(*settings, FileName(*line.bearings), line.time, stdout);
}
} // namespace

ConsoleApp::ConsoleApp(const CommandLine& commandLine) : m_commandLine(commandLine)
{
    wxDISABLE_ASSERTS_IN_RELEASE_BUILD();
}

bool ConsoleApp::OnInit()
{
    // Numbers are written and read with a decimal point.
    std::setlocale(LC_ALL, "C");
    LogToStandardError();
    TakeFileNamesAsBytes();
    wxInitAllImageHandlers();
    OrdinaryFont::Provide();
    return true;
}

int ConsoleApp::OnRun()
{
    const CommandLine& line = m_commandLine;
    if (line.check)
        return reports::PrintCheck(line.settings ? std::optional(FileName(*line.settings)) : std::nullopt, stdout);
    if (line.aim)
        return PrintAim(line);
    if (line.bearings)
        return PrintBearings(line);
    return RenderToFile(*StartSettings(line), FileName(*line.render), line.voacaplTimeout, line.worldFile);
}

void ConsoleApp::OnUnhandledException()
{
    // Nothing is thrown but this, where memory is short.
    Report("Not enough memory");
}
} // namespace app
