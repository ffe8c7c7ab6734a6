#pragma once

#include <wx/confbase.h>

#include <cmath>
#include <type_traits>

namespace config
{
/// Texts come back as they were written: "$HOME" is not replaced while this lives.
class VerbatimTexts
{
public:
    explicit VerbatimTexts(wxConfigBase& file) : m_file(file), m_before(file.IsExpandingEnvVars())
    {
        m_file.SetExpandEnvVars(false);
    }
    ~VerbatimTexts() { m_file.SetExpandEnvVars(m_before); }
    VerbatimTexts(const VerbatimTexts&) = delete;
    VerbatimTexts& operator=(const VerbatimTexts&) = delete;

private:
    wxConfigBase& m_file;
    bool m_before;
};

/// Reads one key; false when the member took the default. Numbers that are infinite or not numbers are unreadable.
template <class Value>
bool ReadSetting(wxConfigBase& file, const wxString& key, Value& member, const Value& fallback)
{
    bool good = file.Read(key, &member, fallback);
    if constexpr (std::is_same_v<Value, double>)
    {
        good = good && std::isfinite(member);
        member = good ? member : fallback;
    }
    return good;
}
} // namespace config
