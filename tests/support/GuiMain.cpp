#include "tests/support/DefaultSignals.h"
#include "tests/support/FailOnAssert.h"
#include "tests/support/OwnDisplay.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/image.h>
#include <wx/log.h>

#include <clocale>

namespace
{
/// Runs the tests inside an application with a display, under the program's own locale.
class TestApp : public wxApp
{
public:
    bool OnInit() override
    {
        std::setlocale(LC_ALL, "C");
        wxInitAllImageHandlers();
        FailOnAssert();
        // Nobody is there to close a message box: what is logged goes to standard error.
        delete wxLog::SetActiveTarget(new wxLogStderr);
        return true;
    }

    int OnRun() override
    {
        wxGUIEventLoop loop;
        const wxEventLoopActivator activate(&loop);
        return RUN_ALL_TESTS();
    }
};
} // namespace

wxIMPLEMENT_APP_NO_MAIN(TestApp);

int main(int argc, char** argv)
{
    TakeDefaultSignals();
    TakeOwnDisplay(argv);
    testing::InitGoogleTest(&argc, argv);
    // Tests are listed while the program is built, where there is no display.
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    return wxEntry(argc, argv);
}
