#include "tests/support/Processes.h"
#include "tests/support/ProgramUnderTest.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/utils.h>

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <signal.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

// Last, for they define words like None and Bool.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace
{
/// A keyboard on the display of the tests, and what it sees there.
class Keyboard
{
public:
    Keyboard() : m_display(XOpenDisplay(nullptr), XCloseDisplay)
    {
        // Windows may vanish while they are asked.
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    }

    bool IsOk() const { return m_display != nullptr; }

    void Press(KeySym key, KeySym modifier = NoSymbol)
    {
        Send(modifier, True);
        Send(key, True);
        Send(key, False);
        Send(modifier, False);
        XSync(m_display.get(), False);
    }

    /// The window whose keys these are.
    Window Focus()
    {
        Window focus = None;
        int revert = 0;
        XGetInputFocus(m_display.get(), &focus, &revert);
        return focus;
    }

    /// The window with a title in which the focus is; None if it has none.
    Window FocusedWindow(std::string& title)
    {
        for (Window window = Focus(); window > PointerRoot;)
        {
            char* name = nullptr;
            XFetchName(m_display.get(), window, &name);
            const std::unique_ptr<char, decltype(&XFree)> owner(name, XFree);
            if (name && *name)
            {
                title = name;
                return window;
            }
            Window root = None;
            Window parent = None;
            Window* children = nullptr;
            unsigned count = 0;
            if (XQueryTree(m_display.get(), window, &root, &parent, &children, &count) == 0)
                return None;
            XFree(children);
            window = parent == root ? None : parent;
        }
        return None;
    }

    /// Whether the middle of a window shows something that is not white.
    bool ShowsAMap(Window window)
    {
        XWindowAttributes size{};
        if (XGetWindowAttributes(m_display.get(), window, &size) == 0)
            return false;
        XImage* const pixel =
            XGetImage(m_display.get(), window, size.width / 2, size.height / 2, 1, 1, AllPlanes, ZPixmap);
        const bool isWhite = !pixel || (XGetPixel(pixel, 0, 0) & 0xffffff) == 0xffffff;
        if (pixel)
            XDestroyImage(pixel);
        return !isWhite;
    }

private:
    void Send(KeySym key, Bool down)
    {
        if (key != NoSymbol)
            XTestFakeKeyEvent(m_display.get(), XKeysymToKeycode(m_display.get(), key), down, CurrentTime);
    }

    std::unique_ptr<Display, decltype(&XCloseDisplay)> m_display;
};

/// The program, and what it writes to standard error.
class Program
{
public:
    explicit Program(const std::string& errors) : m_process(fork())
    {
        if (m_process != 0)
            return;
        dup2(open(errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
        execl(ProgramUnderTest(), "kavmap", static_cast<char*>(nullptr));
        _exit(127);
    }
    ~Program()
    {
        if (!HasEnded())
        {
            kill(m_process, SIGKILL);
            waitpid(m_process, nullptr, 0);
        }
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool HasEnded()
    {
        m_hasEnded = m_hasEnded || waitpid(m_process, nullptr, WNOHANG) == m_process;
        return m_hasEnded;
    }

private:
    pid_t m_process;
    bool m_hasEnded = false;
};

TEST(ScreenProgramQuiet, SaysNothingToTheTerminalFromStartToEnd)
{
    const TemporaryHome home;
    Keyboard keyboard;
    ASSERT_TRUE(keyboard.IsOk());
    Program program(home.Path("err.txt").utf8_string());
    std::string title;
    Window window = None;
    const auto isMain = [&] { return (window = keyboard.FocusedWindow(title)) != None && title == kTitle; };
    ASSERT_TRUE(AwaitQuietly(isMain));

    keyboard.Press(XK_Return); // in the locator field: creates
    ASSERT_TRUE(AwaitQuietly([&] { return isMain() && keyboard.ShowsAMap(window); }));

    ASSERT_TRUE(std::filesystem::remove(home.WorkingFile().utf8_string())); // it was completed at the start
    // Menu and dialog come a little later than the keys that ask for them, and may not listen at once.
    int polls = 0;
    ASSERT_TRUE(AwaitQuietly(
        [&]
        {
            if (isMain() && polls++ % 20 == 0)
            {
                keyboard.Press(XK_o, XK_Alt_L); // menu "Options"
                keyboard.Press(XK_Return);      // its one entry, "Properties"
            }
            else if (keyboard.Focus() > PointerRoot && !isMain())
                keyboard.Press(XK_Return); // OK, which writes the settings
            return home.Read(".Kavdex").find("Zoom=20000") != std::string::npos;
        }));
    ASSERT_TRUE(AwaitQuietly(isMain));

    polls = 0;
    EXPECT_TRUE(AwaitQuietly(
        [&]
        {
            if (!program.HasEnded() && polls++ % 20 == 0)
                keyboard.Press(XK_F4, XK_Alt_L);
            return program.HasEnded();
        }));
    EXPECT_EQ(home.Read("err.txt"), "");
}
} // namespace
