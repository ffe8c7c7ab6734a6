#include "reports/FileCheck.h"

#include "config/DataFile.h"
#include "propagation/ResultReader.h"
#include "render/DecodeApart.h"
#include "render/TextFile.h"
#include "reports/BoundedFile.h"
#include "reports/Places.h"

#include <wx/tokenzr.h>

#include <cstdlib>

namespace reports
{
namespace
{
constexpr char kNoName[] = "no file is named: choose one, or do not show the layer";
constexpr std::size_t kRecordSize = 6;
constexpr int kFirstCode = 1000;
constexpr std::size_t kLabelFields = 7;

/// Judges the bytes of a file, if they can be had.
template <class Judge>
wxString Trouble(const wxString& name, BoundedFile (*read)(const wxString&), Judge judge)
{
    if (name.empty())
        return kNoName;
    const BoundedFile file = read(FindDataFile(name));
    return file.obstacle.empty() ? judge(file.bytes) : name + ": " + file.obstacle;
}

BoundedFile ReadRecords(const wxString& path)
{
    return ReadBounded(path);
}

int CodeAt(const std::string& bytes)
{
    return static_cast<std::int16_t>(static_cast<unsigned char>(bytes[0]) | static_cast<unsigned char>(bytes[1]) << 8);
}

wxString ShortLines(std::wstring_view text)
{
    std::size_t number = 0;
    std::size_t first = 0;
    std::size_t count = 0;
    render::ForEachLine(text,
                        [&](std::wstring_view line)
                        {
                            ++number;
                            const wxString fields(line.data(), line.size());
                            if (wxStringTokenizer(fields, ";", wxTOKEN_STRTOK).CountTokens() < kLabelFields &&
                                count++ == 0)
                                first = number;
                        });
    if (count == 0)
        return "";
    return wxString::Format("%zu of %zu lines have fewer than 7 fields (empty ones do not count), the first is line "
                            "%zu: a position that is missing is taken as 0",
                            count, number, first);
}
} // namespace

wxString SourcePictureTrouble(const wxString& name)
{
    if (name.empty())
        return kNoName;
    if (const wxString obstacle = ObstacleTo(FindDataFile(name)); !obstacle.empty())
        return name + ": " + obstacle;
    const wxImage image = render::LoadImageApart(name);
    if (!image.IsOk())
        return name + ": it is no picture that can be loaded";
    if (std::abs(image.GetWidth() - 2 * image.GetHeight()) <= 1)
        return "";
    return wxString::Format("%s: it is %d x %d pixels, not 2:1: places will not lie where they belong", name,
                            image.GetWidth(), image.GetHeight());
}

wxString BorderFileTrouble(const wxString& name)
{
    return Trouble(name, ReadRecords,
                   [&name](const std::string& bytes) -> wxString
                   {
                       if (bytes.empty())
                           return name + ": it is empty";
                       if (bytes.size() % kRecordSize != 0)
                           return wxString::Format(
                               "%s: its length, %zu bytes, is no multiple of 6: it is damaged or no "
                               "border file",
                               name, bytes.size());
                       if (CodeAt(bytes) >= kFirstCode)
                           return "";
                       return wxString::Format("%s: its first code is %d, under 1000: it begins no line, it is damaged "
                                               "or no border file",
                                               name, CodeAt(bytes));
                   });
}

wxString LabelFileTrouble(const wxString& name)
{
    return Trouble(name, ReadBoundedText,
                   [&name](const std::string& bytes)
                   {
                       const wxString trouble = ShortLines(render::DecodeText(bytes));
                       return trouble.empty() ? trouble : name + ": " + trouble;
                   });
}

wxString LogTrouble(const wxString& name)
{
    return Trouble(name, ReadBoundedText,
                   [&name](const std::string& bytes)
                   {
                       const bool hasNone = SquaresOfLog(render::DecodeText(bytes)).found.empty();
                       return hasNone ? name + ": there is no square in it" : wxString();
                   });
}

wxString ResultTrouble(const wxString& name, int parameter)
{
    if (name.empty())
        return kNoName;
    propagation::LineReader file(name);
    if (!file.IsOk())
        return name + ": it can't be read";
    const auto grid = propagation::ReadResult(file, propagation::ParameterOf(parameter));
    if (!grid)
        return name + ": it is no area result: fewer than 18 points a side";
    if (grid->withoutValue == 0)
        return "";
    return wxString::Format("%s: it is not whole: %zu of %d points lack a value and count as 0", name,
                            grid->withoutValue, grid->points * grid->points);
}
} // namespace reports
