#include "FuzzedBytes.h"

#include "config/SettingKeys.h"
#include "propagation/AreaInput.h"
#include "propagation/InputRules.h"

namespace
{
void Take(std::string_view piece, wxString& value)
{
    value = wxString::FromUTF8(piece.data(), piece.size());
}

template <class Number>
void Take(std::string_view piece, Number& value)
{
    value = static_cast<Number>(std::strtol(std::string(piece).c_str(), nullptr, 10));
}
} // namespace

// Whatever the settings of a run hold, a line each in their order: the input of voacapl, and what is said about it.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Settings defaults = DefaultSettings();
    Settings settings = defaults;
    fuzz::Pieces lines(fuzz::BytesOf(data, size), '\n');
    const auto take = [&](const wxString&, auto& member, const auto&)
    {
        if (!lines.AtEnd())
            Take(lines.Next(), member);
    };
    config::VisitGreyzone(settings.greyzone, take);
    config::VisitPropagation(settings.propagation, take);
    const auto time = propagation::AreaTimeOf(settings.greyzone, {.year = 2026, .month = 11, .minute = 59});
    const wxString input = propagation::AreaInputText(settings, {55.6875, 12.625}, time, {"", ""});
    fuzz::Demand(input.Freq('\n') == 18);
    for (const auto& finding : propagation::CheckInput(settings.propagation))
        fuzz::Demand(!finding.Text().empty());
    return 0;
}
