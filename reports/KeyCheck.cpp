#include "reports/KeyCheck.h"

#include "config/ReadSetting.h"
#include "config/SettingKeys.h"
#include "reports/SettingRanges.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>

namespace reports
{
namespace
{
template <class Value>
constexpr const char* kKind = "a whole number";
template <>
constexpr const char* kKind<double> = "a number";
template <>
constexpr const char* kKind<bool> = "0 or 1";

wxString TextIn(wxConfigBase& file, const wxString& key)
{
    return file.Read(key, "");
}

/// What is wrong with a value that was read; empty if nothing is. The text may say more than the member can hold.
wxString OutOfRange(const wxString& key, const wxString& text)
{
    const SettingRange* const range = RangeOf(key);
    double number = 0.0;
    if (!range || !text.ToCDouble(&number) || (number >= range->least && number <= range->most))
        return "";
    return wxString::Format("%s is out of range, %g to %.10g: %s", text, range->least, range->most, range->otherwise);
}

template <class Value>
wxString Trouble(wxConfigBase& file, const wxString& key, bool isRead, const Value& member)
{
    const wxString text = TextIn(file, key);
    if (!isRead)
        return wxString::Format("'%s' is not %s: the default, %s, is used", text, kKind<Value>, wxString() << member);
    if constexpr (std::is_same_v<Value, bool>)
        return text == "0" || text == "1" ? wxString() : wxString::Format("'%s' is not 0 or 1: counts as 1", text);
    return OutOfRange(key, text);
}

template <>
wxString Trouble(wxConfigBase&, const wxString&, bool, const wxString&)
{
    return "";
}

/// Letters that have to be changed, added or left out to make one text of the other.
std::size_t EditDistance(std::wstring_view from, std::wstring_view to)
{
    std::vector<std::size_t> row(to.length() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (std::size_t i = 1; i <= from.length(); ++i)
    {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= to.length(); ++j)
        {
            const std::size_t changed = diagonal + (from[i - 1] == to[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

std::vector<wxString> KnownKeys()
{
    std::vector<wxString> keys;
    Settings settings;
    settings.ForEachSetting([&keys](const wxString& key, const auto&, const auto&) { keys.push_back(key); });
    return keys;
}

/// The known key that is most like another one; empty where none is.
wxString Nearest(const wxString& unknown, const std::vector<wxString>& known)
{
    const std::wstring lower = unknown.Lower().ToStdWstring();
    std::size_t tooFar = std::max<std::size_t>(2, lower.length() / 3) + 1;
    wxString nearest;
    for (const wxString& key : known)
    {
        const std::size_t longest = std::max(key.length(), lower.length());
        if (longest - std::min(key.length(), lower.length()) >= tooFar)
            continue; // by its length alone; unknown keys may be as long as a file
        const std::size_t distance = EditDistance(lower, key.Lower().ToStdWstring());
        if (distance < tooFar)
        {
            tooFar = distance;
            nearest = key;
        }
    }
    return nearest;
}

/// Calls visit(key) for every key of a file, with its group.
template <class Visit>
void ForEachKey(wxConfigBase& file, const wxString& group, Visit visit)
{
    const wxString before = file.GetPath();
    file.SetPath("/" + group);
    wxString name;
    long cookie = 0;
    for (bool more = file.GetFirstEntry(name, cookie); more; more = file.GetNextEntry(name, cookie))
        visit(group.empty() ? name : group + "/" + name);
    std::vector<wxString> groups;
    for (bool more = file.GetFirstGroup(name, cookie); more; more = file.GetNextGroup(name, cookie))
        groups.push_back(group.empty() ? name : group + "/" + name);
    file.SetPath(before);
    for (const wxString& inner : groups)
        ForEachKey(file, inner, visit);
}

/// Whether a line is what a settings file is made of: a group, a key with a value, a comment, nothing.
bool IsUnderstood(std::string_view line)
{
    const std::size_t first = line.find_first_not_of(" \t\r");
    if (first == std::string_view::npos || line[first] == '#' || line[first] == ';')
        return true;
    const char mark = line[first] == '[' ? ']' : '=';
    const std::size_t marked = line.find(mark);
    return marked != std::string_view::npos && marked > first;
}
} // namespace

Findings CheckValues(wxConfigBase& file, Settings& settings)
{
    Findings findings;
    const config::VerbatimTexts verbatim(file);
    settings.ForEachSetting(
        [&]<class Value>(const wxString& key, Value& member, const auto& fallback)
        {
            const bool isRead = config::ReadSetting(file, key, member, Value(fallback));
            const wxString trouble = file.HasEntry(key) ? Trouble(file, key, isRead, member) : wxString();
            if (!trouble.empty())
                findings.push_back({key, trouble});
        });
    return findings;
}

Findings CheckKeys(wxConfigBase& file)
{
    Findings findings;
    const std::vector<wxString> known = KnownKeys();
    const auto isKnown = [&known](const wxString& key)
    { return std::ranges::any_of(known, [&key](const wxString& other) { return other.IsSameAs(key, false); }); };
    ForEachKey(file, "",
               [&](const wxString& key)
               {
                   // A key without a name has been told by its line.
                   if (isKnown(key) || key.AfterLast('/').empty())
                       return;
                   const wxString nearest = Nearest(key, known);
                   findings.push_back(
                       {key, "no such key, it is ignored" + (nearest.empty() ? "" : ": is it " + nearest + "?")});
               });
    return findings;
}

Findings CheckLines(std::string_view bytes)
{
    Findings findings;
    for (std::size_t number = 1; !bytes.empty(); ++number)
    {
        const std::size_t length = std::min(bytes.find('\n'), bytes.size());
        if (!IsUnderstood(bytes.substr(0, length)))
            findings.push_back({wxString::Format("line %zu", number), "neither a group nor a key, it is ignored"});
        bytes.remove_prefix(std::min(length + 1, bytes.size()));
    }
    return findings;
}
} // namespace reports
