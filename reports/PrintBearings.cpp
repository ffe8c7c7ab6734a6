#include "reports/PrintBearings.h"

#include "config/DataFile.h"
#include "render/TextFile.h"
#include "reports/Bearings.h"
#include "reports/BoundedFile.h"

#include <wx/log.h>

#include <cerrno>

namespace reports
{
namespace
{
constexpr std::size_t kLongestLine = 1000; ///< bytes of a line that may be a place

void Complain(const wxString& text)
{
    std::fprintf(stderr, "kavmap: %s\n", text.utf8_str().data());
}

/// Says why nothing was printed.
int Nothing(const wxString& why)
{
    Complain(why);
    return 1;
}

/// Whether all of a text reached its reader.
bool Put(const std::string& text, std::FILE* out)
{
    if (std::fputs(text.c_str(), out) >= 0 && std::fflush(out) == 0)
        return true;
    Complain("can't write the bearings: " + wxString(wxSysErrorMsgStr(static_cast<unsigned long>(errno))));
    return false;
}

/// The next line without its end, as far as it may be a place; none at the end.
std::optional<std::string> NextLine(std::FILE* in)
{
    std::string line;
    int c = getc_unlocked(in);
    if (c == EOF)
        return std::nullopt;
    for (; c != EOF && c != '\n'; c = getc_unlocked(in))
        if (line.size() <= kLongestLine)
            line += static_cast<char>(c);
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

/// A line of printable text, for an answer or a message.
wxString TextOf(const std::string& line)
{
    const bool isText = line.size() <= kLongestLine && line.find('\0') == std::string::npos;
    wxString text(isText ? render::DecodeText(line) : std::wstring());
    return text.Trim().Trim(false);
}

/// Answers lines one after the other.
class Calculator
{
public:
    Calculator(const Settings& settings, const std::optional<UtcTime>& time, std::FILE* out)
        : m_bearings(settings), m_time(time), m_out(out)
    {
    }

    bool Answer(const std::string& line)
    {
        const wxString text = TextOf(line);
        const auto place = WrittenPlace(text);
        if (!place)
            Complain(
                wxString::Format("line %zu is neither a locator nor latitude and longitude: %s", m_lines + 1, text));
        m_answered += place ? 1 : 0;
        return Put((m_lines++ == 0 ? Bearings::Header() : "") +
                       (place ? m_bearings.Row(*place, m_time.value_or(UtcNow())) : Bearings::EmptyRow(text)),
                   m_out);
    }

    int Status() const { return m_answered == 0 ? 1 : m_answered < m_lines ? 2 : 0; }
    bool HasLines() const { return m_lines > 0; }

private:
    Bearings m_bearings;
    std::optional<UtcTime> m_time;
    std::FILE* m_out;
    std::size_t m_lines = 0;
    std::size_t m_answered = 0;
};
} // namespace

int PrintBearings(const Settings& settings, const wxString& name, const std::optional<UtcTime>& time, std::FILE* out)
{
    const BoundedFile file = ReadBoundedText(FindDataFile(name));
    if (!file.obstacle.empty())
        return Nothing("can't read " + name + ": " + file.obstacle);
    const Places places = PlacesOf(render::DecodeText(file.bytes), name);
    if (places.found.empty())
        return Nothing("no place in " + name + ": neither a label nor a square");
    const Bearings bearings(settings);
    const UtcTime moment = time.value_or(UtcNow());
    std::string table = Bearings::Header();
    for (const Place& place : places.found)
        table += bearings.Row(place, moment);
    for (const std::size_t line : places.linesWithout)
        Complain(wxString::Format("%s: line %zu names no place", name, line));
    if (!Put(table, out))
        return 1;
    return places.linesWithout.empty() ? 0 : 2;
}

int AnswerBearings(const Settings& settings, const std::optional<UtcTime>& time, std::FILE* in, std::FILE* out)
{
    Calculator calculator(settings, time, out);
    while (const auto line = NextLine(in))
        if (!calculator.Answer(*line))
            return 1;
    return calculator.HasLines() ? calculator.Status() : Nothing("no place on standard input");
}
} // namespace reports
