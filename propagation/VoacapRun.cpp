#include "propagation/VoacapRun.h"

#include "config/SpecialFile.h"
#include "propagation/AntennaName.h"
#include "propagation/AreaInput.h"

#include <wx/crt.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>

namespace propagation
{
namespace
{
constexpr int kFailed = OutsideProgram::kNotStarted;

using File = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

std::optional<AntennaNames> NamesOfAntennas(const PropagationSettings& settings, const Reports& reports)
{
    AntennaNames names;
    for (const auto& [antenna, name] :
         {std::pair{&settings.transmitter, &names.transmitter}, {&settings.receiver, &names.receiver}})
    {
        const AntennaName found = AntennaNameOf(antenna->file);
        if (!found.problem.empty())
        {
            reports.error(found.problem);
            return std::nullopt;
        }
        *name = found.columns;
    }
    return names;
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

int Execute(const wxString& directory, const KeepWaiting& keepWaiting)
{
    const wxCharBuffer directoryBytes = directory.fn_str();
    const char* const arguments[] = {"voacapl", "-s", directoryBytes.data(), "area", "calc", "default/kavdex.voa",
                                     nullptr};
    return OutsideProgram(arguments).Wait(keepWaiting).value_or(kAbandoned);
}
} // namespace

AreaFiles::AreaFiles(const wxString& dataDirectory)
    : directory(dataDirectory),
      input(directory + "/areadata/default/kavdex.voa"),
      result(directory + "/areadata/default/kavdex.vg1")
{
}

int RunVoacap(const AreaFiles& files, Settings& settings, geo::LatLon transmitter, const Reports& reports,
              const KeepWaiting& keepWaiting)
{
    const AreaTime time = AreaTimeOf(settings.greyzone, UtcNow());
    const auto antennas = NamesOfAntennas(settings.propagation, reports);
    if (!antennas)
        return kFailed;
    // Whoever opens a pipe waits for somebody at its other end.
    File input(PipeOrDeviceAt(files.input.fn_str()) ? nullptr : wxFopen(files.input, "w"), &std::fclose);
    if (input)
    {
        settings.propagation.engine = kVoacap;
        reports.step("Calling VoaArea...");
    }
    if (!input || !WriteAndClose(std::move(input), AreaInputText(settings, transmitter, time, *antennas)))
    {
        reports.error(kFileOpenError);
        return kFailed;
    }
    return Remove(files.result) ? Execute(files.directory, keepWaiting) : kFailed;
}
} // namespace propagation
