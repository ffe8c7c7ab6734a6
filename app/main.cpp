#include "app/CommandLine.h"
#include "app/ConsoleApp.h"
#include "app/Room.h"
#include "app/StandardStreams.h"
#include "app/WxKavApp.h"
#include "render/PictureFile.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace
{
app::CommandLine theCommandLine;

template <class App>
wxAppConsole* NewApp()
{
    return new App(theCommandLine);
}

/// An outside program that asks for a key would wait for ever: it inherits an empty standard input.
void EmptyStandardInput()
{
    const int null = open("/dev/null", O_RDONLY);
    if (null > 0)
    {
        dup2(null, STDIN_FILENO);
        close(null);
    }
}
} // namespace

int main(int argc, char** argv)
{
    app::OccupyClosedStreams();
    theCommandLine = app::ParseCommandLine(argc, argv);
    const app::CommandLine& line = theCommandLine;
    if (line.exitStatus)
        return *line.exitStatus;
    if (line.render && !render::PictureTypeOf(wxString::From8BitData(line.render->c_str())))
    {
        std::fprintf(stderr, "kavmap: Couldn't save %s\n", line.render->c_str());
        return 1;
    }
    if (!line.AnswersInput())
        EmptyStandardInput();
    if (const std::string lack = app::LackOf(line.ShowsWindow() ? app::kRoomForWindow : app::kRoomForPictures);
        !lack.empty())
    {
        std::fprintf(stderr, "kavmap: %s\n", lack.c_str());
        return 1;
    }
    wxAppConsole::SetInitializerFunction(line.ShowsWindow() ? NewApp<WxKavApp> : NewApp<app::ConsoleApp>);
    int toolkitArgc = 1;
    const int status = wxEntry(toolkitArgc, argv);
    return status < 0 ? 1 : status;
}
