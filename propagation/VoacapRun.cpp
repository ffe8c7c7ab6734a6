#include "propagation/VoacapRun.h"

#include "config/SpecialFile.h"
#include "propagation/AntennaName.h"
#include "propagation/AreaInput.h"
#include "propagation/Engines.h"
#include "propagation/OutsideProgram.h"

#include <wx/crt.h>
#include <wx/filename.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <utility>

namespace propagation
{
namespace
{
constexpr int kVoacap = 1; ///< its index among the engines
constexpr char kCallError[] = "Error calling VOACAP";

using File = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

/// Names both antennas. @return why one can't be named, empty when all is well.
wxString NameAntennas(const PropagationSettings& settings, AntennaNames& names)
{
    for (const auto& [antenna, name] :
         {std::pair{&settings.transmitter, &names.transmitter}, {&settings.receiver, &names.receiver}})
    {
        const AntennaName found = AntennaNameOf(antenna->file);
        if (!found.problem.empty())
            return found.problem;
        *name = found.columns;
    }
    return {};
}

File OpenToWrite(const wxString& path)
{
    // Whoever opens a pipe waits for somebody at its other end.
    return {PipeOrDeviceAt(path.fn_str()) ? nullptr : wxFopen(path, "w"), &std::fclose};
}

bool WriteAndClose(File file, const wxString& text)
{
    // Antennas are files, so their names are written as the bytes of file names.
    const wxCharBuffer bytes = text.mb_str(*wxConvFileName);
    const bool written = std::fwrite(bytes.data(), 1, bytes.length(), file.get()) == bytes.length();
    return std::fclose(file.release()) == 0 && written;
}

bool Remove(const wxString& path)
{
    std::error_code error;
    std::filesystem::remove(path.fn_str().data(), error);
    return !error;
}

std::optional<int> Execute(const wxString& directory, Progress& progress)
{
    const wxCharBuffer directoryBytes = directory.fn_str();
    const char* const arguments[] = {"voacapl", "-s", directoryBytes.data(), "area", "calc", "default/kavdex.voa",
                                     nullptr};
    return OutsideProgram(arguments).Wait(progress);
}

/// Runs voacapl on its input. What there is afterwards is this run's: an earlier result is removed before.
AreaRun RunOn(const AreaFiles& files, Progress& progress)
{
    const auto status = Remove(files.result) ? Execute(files.directory, progress) : OutsideProgram::kNotStarted;
    if (!status)
        return {{}, {}, kVoacap};
    if (*status != 0)
        return {{}, {kCallError}, kVoacap};
    // voacapl may leave an empty file behind and still end well.
    if (wxFileName::GetSize(files.result) == 0)
        return {{}, {kFileOpenError}, kVoacap};
    return {files.result, {}, kVoacap};
}
} // namespace

AreaFiles::AreaFiles(const wxString& dataDirectory)
    : directory(dataDirectory),
      input(directory + "/areadata/default/kavdex.voa"),
      result(directory + "/areadata/default/kavdex.vg1")
{
}

AreaRun RunVoacap(const Settings& settings, geo::LatLon transmitter, const UtcTime& now, Progress& progress)
{
    const PropagationSettings& p = settings.propagation;
    AntennaNames antennas;
    if (const wxString problem = NameAntennas(p, antennas); !problem.empty())
        return {{}, {problem, kCallError}, p.engine};
    const AreaFiles files(p.directory);
    File input = OpenToWrite(files.input);
    if (!input)
        return {{}, {kFileOpenError, kCallError}, p.engine};
    progress.OnStep("Calling VoaArea...");
    const AreaTime time = AreaTimeOf(settings.greyzone, now);
    if (!WriteAndClose(std::move(input), AreaInputText(settings, transmitter, time, antennas)))
        return {{}, {kFileOpenError, kCallError}, kVoacap};
    return RunOn(files, progress);
}
} // namespace propagation
