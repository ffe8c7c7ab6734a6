#pragma once

#include "tests/support/ProgramUnderTest.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/dir.h>
#include <wx/image.h>

#include <cstdlib>
#include <sstream>
#include <sys/wait.h>

/// Starts the program in an empty home and keeps what it printed.
class ProgramTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG))
            wxInitAllImageHandlers();
    }

    /// Returns the exit status.
    static int Run(const std::string& arguments, const std::string& environment = "",
                   const std::string& input = "</dev/null")
    {
        return Shell("timeout 100 env " + environment + " $KAVMAP " + arguments + " >out.txt 2>err.txt " + input);
    }
    static int Shell(const std::string& command)
    {
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string Out() const { return home.Read("out.txt"); }

    /// Standard error without what the toolkit's own libraries say about the machine.
    std::string Err() const
    {
        std::istringstream lines(home.Read("err.txt"));
        std::string ours;
        for (std::string line; std::getline(lines, line);)
            if (line.rfind("kavmap: ", 0) == 0 || (!ours.empty() && line.find("WARNING") == std::string::npos))
                ours += line + "\n";
        return ours;
    }

    wxImage Picture(const wxString& name) const
    {
        wxImage image;
        image.LoadFile(home.Path(name));
        return image;
    }

    std::size_t CountFilesLike(const wxString& pattern) const
    {
        wxArrayString files;
        return wxDir::GetAllFiles(home.Path(""), &files, pattern);
    }

    const TemporaryHome home;
};
