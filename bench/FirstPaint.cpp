// Opens a window, waits until it has been painted and prints what that took: milliseconds of processor time and of
// waiting since the moment that the caller gives. Built twice: with the program's window, and with that of an empty
// program of the same toolkit. bench/first_paint runs both and compares.

#include <wx/app.h>
#include <wx/dcclient.h>
#include <wx/frame.h>
#include <wx/panel.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>

#ifdef KAV_WITH_PROGRAM
#include "app/WxKavApp.h"
#include "ui/MapCanvas.h"

class App : public WxKavApp
{
public:
    App() : WxKavApp(app::CommandLine()) {}
};
using Painted = MapCanvas;
#else
class App : public wxApp
{
public:
    bool OnInit() override
    {
        auto* const frame = new wxFrame(nullptr, wxID_ANY, "Empty", wxDefaultPosition, wxSize(775, 600));
        new wxPanel(frame);
        frame->Show();
        return true;
    }
};
using Painted = wxPanel;
#endif

namespace
{
double MillisecondsOf(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
}

class WatchedApp : public App
{
public:
    static double startedAt; ///< on the monotonic clock, milliseconds

    bool OnInit() override
    {
        if (!App::OnInit())
            return false;
        for (wxWindow* const child : GetTopWindow()->GetChildren())
            if (dynamic_cast<Painted*>(child))
                child->Bind(wxEVT_PAINT, &WatchedApp::OnPaint, this);
        return true;
    }

private:
    void OnPaint(wxPaintEvent& event)
    {
        event.Skip();
        CallAfter(
            []
            {
                std::printf("%.3f %.3f\n", MillisecondsOf(CLOCK_PROCESS_CPUTIME_ID),
                            MillisecondsOf(CLOCK_MONOTONIC) - startedAt);
                std::fflush(stdout);
                std::_Exit(0);
            });
    }
};

double WatchedApp::startedAt = 0;
} // namespace

wxIMPLEMENT_APP_NO_MAIN(WatchedApp);

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fputs("The start is to be given: milliseconds on the monotonic clock\n", stderr);
        return 1;
    }
    WatchedApp::startedAt = std::atof(argv[1]);
    argc = 1;
    return wxEntry(argc, argv);
}
