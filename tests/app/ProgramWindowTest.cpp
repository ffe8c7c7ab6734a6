#include "tests/support/Processes.h"
#include "tests/support/ProgramUnderTest.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/utils.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <signal.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// Last, for they define words like None and Bool.
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace
{
/// What the display knows of the windows on it.
class Screen
{
public:
    explicit Screen(const char* name = nullptr) : m_display(XOpenDisplay(name), XCloseDisplay)
    {
        // Windows may vanish while they are asked.
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    }

    bool IsOk() const { return m_display != nullptr; }

    /// The window with a title; None if there isn't one.
    Window Find(const std::string& title) const { return Find(title, DefaultRootWindow(m_display.get())); }

    bool HasIcon(Window window) const { return !Property(window, "_NET_WM_ICON", XA_CARDINAL).empty(); }

    /// As a click on the cross in the title bar does.
    void Close(Window window) const
    {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = window;
        event.xclient.message_type = AtomOf("WM_PROTOCOLS");
        event.xclient.format = 32;
        event.xclient.data.l[0] = static_cast<long>(AtomOf("WM_DELETE_WINDOW"));
        XSendEvent(m_display.get(), window, False, NoEventMask, &event);
        XFlush(m_display.get());
    }

private:
    Atom AtomOf(const char* name) const { return XInternAtom(m_display.get(), name, False); }

    std::string Property(Window window, const char* name, Atom type) const
    {
        Atom actualType = None;
        int format = 0;
        unsigned long count = 0;
        unsigned long left = 0;
        unsigned char* bytes = nullptr;
        XGetWindowProperty(m_display.get(), window, AtomOf(name), 0, 1000, False, type, &actualType, &format, &count,
                           &left, &bytes);
        const std::unique_ptr<unsigned char, decltype(&XFree)> owner(bytes, XFree);
        return bytes ? std::string(reinterpret_cast<char*>(bytes), count) : std::string();
    }

    Window Find(const std::string& title, Window parent) const
    {
        if (Property(parent, "_NET_WM_NAME", AtomOf("UTF8_STRING")) == title)
            return parent;
        Window root = None;
        Window* children = nullptr;
        unsigned count = 0;
        XQueryTree(m_display.get(), parent, &root, &parent, &children, &count);
        const std::unique_ptr<Window, decltype(&XFree)> owner(children, XFree);
        for (unsigned i = 0; i < count; ++i)
            if (const Window found = Find(title, children[i]))
                return found;
        return None;
    }

    std::unique_ptr<Display, decltype(&XCloseDisplay)> m_display;
};

/// The program as it comes up without any option.
class RunningProgram
{
public:
    RunningProgram() : RunningProgram({ProgramUnderTest()}) {}
    explicit RunningProgram(std::vector<const char*> command) : m_process(fork())
    {
        if (m_process != 0)
            return;
        for (int file = STDERR_FILENO + 1; file < 256; ++file)
            close(file); // what the test itself was given
        command.push_back(nullptr);
        execvp(command[0], const_cast<char**>(command.data()));
        _exit(127);
    }
    ~RunningProgram() { Kill(); }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    void Kill()
    {
        if (HasEnded())
            return;
        kill(m_process, SIGKILL);
        waitpid(m_process, &m_status, 0);
        m_hasEnded = true;
    }
    bool HasEnded()
    {
        m_hasEnded = m_hasEnded || waitpid(m_process, &m_status, WNOHANG) == m_process;
        return m_hasEnded;
    }
    /// The open files of the program beyond its outputs that lead somewhere.
    std::set<int> FilesThatAre(const std::filesystem::path& place) const
    {
        std::set<int> files;
        std::error_code failed;
        for (const auto& entry :
             std::filesystem::directory_iterator("/proc/" + std::to_string(m_process) + "/fd", failed))
            if (std::filesystem::read_symlink(entry.path(), failed) == place)
                files.insert(std::stoi(entry.path().filename().string()));
        files.erase(STDOUT_FILENO);
        files.erase(STDERR_FILENO);
        return files;
    }

    bool HasExited() const { return m_hasEnded && WIFEXITED(m_status); }
    bool HasSucceeded() const { return m_hasEnded && WIFEXITED(m_status) && WEXITSTATUS(m_status) == 0; }

private:
    pid_t m_process;
    int m_status = 0;
    bool m_hasEnded = false;
};

TEST(ScreenProgramWindow, ComesUpWithTitleAndIconAndEndsWhenItIsClosed)
{
    const TemporaryHome home;
    const Screen screen;
    ASSERT_TRUE(screen.IsOk());
    RunningProgram program;
    Window window = None;
    ASSERT_TRUE(AwaitQuietly([&] { return (window = screen.Find(kTitle)) != None || program.HasEnded(); }));
    ASSERT_NE(window, None);
    EXPECT_TRUE(AwaitQuietly([&] { return screen.HasIcon(window); }));
    EXPECT_FALSE(program.HasEnded());
    EXPECT_EQ(program.FilesThatAre("/dev/null"), std::set<int>{STDIN_FILENO});

    screen.Close(window);
    EXPECT_TRUE(AwaitQuietly([&] { return program.HasEnded(); }));
    EXPECT_TRUE(program.HasSucceeded());
    EXPECT_NE(home.Read(".Kavdex").find("Zoom=20000\n"), std::string::npos);
}

/// A display that can be lost.
class LosableDisplay
{
public:
    LosableDisplay() : m_server({"sh", "-c", "exec Xvfb -displayfd 3 -noreset -nolisten tcp 3>number >server.txt 2>&1"})
    {
        std::ifstream number;
        AwaitQuietly([&] { return (number.open("number"), number >> m_name) || (number.close(), false); });
        m_name = ":" + m_name;
        wxGetEnv("DISPLAY", &m_nameBefore);
        wxSetEnv("DISPLAY", m_name);
    }
    ~LosableDisplay() { wxSetEnv("DISPLAY", m_nameBefore); }
    LosableDisplay(const LosableDisplay&) = delete;
    LosableDisplay& operator=(const LosableDisplay&) = delete;

    bool Shows(const std::string& title) const
    {
        const Screen screen(m_name.c_str());
        return screen.IsOk() && screen.Find(title) != None;
    }
    void Lose() { m_server.Kill(); }

private:
    RunningProgram m_server;
    std::string m_name;
    wxString m_nameBefore;
};

TEST(ProgramWindow, EndsWithItsDisplayAndLeavesNothingBehind)
{
    const TemporaryHome home;
    home.Write(".Kavdex", "Size=123\n");
    LosableDisplay display;
    RunningProgram program;
    ASSERT_TRUE(AwaitQuietly([&] { return display.Shows(kTitle) || program.HasEnded(); }));
    ASSERT_FALSE(program.HasEnded());

    display.Lose();
    EXPECT_TRUE(AwaitQuietly([&] { return program.HasEnded(); }));
    EXPECT_TRUE(program.HasExited());
    EXPECT_FALSE(program.HasSucceeded());
    std::set<std::string> left;
    for (const auto& entry : std::filesystem::directory_iterator(home.Path("").utf8_string()))
        left.insert(entry.path().filename());
    EXPECT_EQ(left, (std::set<std::string>{".Kavdex", "number", "server.txt"}));
    // Completed at the start, from its first key to its last.
    EXPECT_THAT(home.Read(".Kavdex"),
                testing::AllOf(testing::StartsWith("Size=123\n"), testing::EndsWith("[DefaultIniDir]\nIniDir=\n")));
}
} // namespace
