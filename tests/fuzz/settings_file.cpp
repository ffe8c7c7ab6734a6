#include "FuzzedBytes.h"

#include "config/Configuration.h"
#include "config/QuietToolkit.h"
#include "config/SettingKeys.h"
#include "config/SettingsFile.h"
#include "reports/KeyCheck.h"

#include <wx/sstream.h>

#include <cmath>

namespace
{
std::unique_ptr<wxFileConfig> FileOf(const wxString& text)
{
    const QuietToolkit quiet;
    wxStringInputStream stream(text);
    return std::make_unique<wxFileConfig>(stream);
}

void Load(wxConfigBase& source)
{
    static const std::unique_ptr<wxFileConfig> nothing = FileOf("");
    static Configuration configuration("/dev/null", *nothing);
    configuration.ReadAllFrom(source);
    configuration.ForEachSetting(
        []<class Value>(const wxString&, Value& member, const auto&)
        {
            if constexpr (std::is_same_v<Value, double>)
                fuzz::Demand(std::isfinite(member));
        });
}

void Check(wxConfigBase& source, std::string_view bytes)
{
    Settings settings;
    reports::CheckValues(source, settings);
    reports::CheckKeys(source);
    reports::CheckLines(bytes);
}
} // namespace

// Any settings file, loaded (every number comes out finite) or checked: the length tells which, both take their time.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzz::NamedBytes file;
    const std::string_view bytes = fuzz::BytesOf(data, size);
    const auto source = OpenSettingsFile(file.Hold(bytes));
    if (size % 2 == 0)
        Load(*source);
    else
        Check(*source, bytes);
    return 0;
}
