#include "tests/support/FrameFixture.h"

// Last, for it defines words like None and Status.
#include <X11/Xlib.h>
#undef Status

namespace
{
/// A pointer that moves faster than the program looks.
class ScreenQuickPointer : public FrameFixture
{
protected:
    struct CloseDisplay
    {
        void operator()(Display* display) const { XCloseDisplay(display); }
    };

    void Move(const wxPoint& onCanvas)
    {
        const wxPoint place = Canvas().ClientToScreen(onCanvas);
        XWarpPointer(m_display.get(), None, DefaultRootWindow(m_display.get()), 0, 0, 0, 0, place.x, place.y);
    }

    /// Twenty motions to the right that end in a place.
    void StrokeTo(const wxPoint& end)
    {
        for (int left = 19; left >= 0; --left)
            Move(end - wxPoint(left * 3, 0));
        XSync(m_display.get(), False);
    }

    /// What the status says of a place when the canvas is told of it.
    wxString ReadOutAt(const wxPoint& place)
    {
        wxMouseEvent event(wxEVT_MOTION);
        event.SetPosition(place);
        event.SetEventObject(&Canvas());
        Canvas().GetEventHandler()->ProcessEvent(event);
        return Status(0);
    }

    std::unique_ptr<Display, CloseDisplay> m_display{XOpenDisplay(nullptr)};
};

TEST_F(ScreenQuickPointer, IsShownWhereItRests)
{
    settings->size = 300;
    ClickTool(ui::kIdCreate);
    ASSERT_TRUE(m_display);
    for (int stroke = 0; stroke < 12; ++stroke)
    {
        const wxPoint end(180 + stroke, 140 + 4 * stroke);
        const wxString readOut = ReadOutAt(end);
        StrokeTo(end - wxPoint(60, 0));
        ASSERT_TRUE(Await([&] { return Status(0) != readOut; }));
        StrokeTo(end);
        ASSERT_TRUE(Await([&] { return Status(0) == readOut; })) << readOut << " but " << Status(0);
    }
}
} // namespace
