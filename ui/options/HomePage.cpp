#include "ui/options/HomePage.h"

#include "config/Configuration.h"
#include "geo/AzimuthalProjection.h"
#include "ui/options/Guide.h"
#include "ui/options/Placing.h"

#include <wx/stdpaths.h>

namespace
{
/// Kilometres between two positions in degrees.
double Distance(geo::LatLon a, geo::LatLon b)
{
    AzimuthalProjection projection;
    projection.Init(0, 0, a.lat, a.lon);
    double x = 0.0;
    double y = 0.0;
    const auto [lat, lon] = geo::InRadians(b);
    const std::int64_t metres = projection.Forward(x, y, lon, lat);
    return metres > 0 ? static_cast<double>(metres) / 1000 : 0.0;
}

/// What to say of a locator when the map is centred on a position that is not in it.
wxString OtherPlace(const wxString& typed, geo::LatLon centre)
{
    wxString locator = typed.Upper();
    geo::LatLon named{};
    if (!Configuration::LocatorToLatLon(named.lat, named.lon, locator))
        return "no locator: the map is centred\non latitude and longitude";
    wxString here = "AA11RR";
    Configuration::LatLonToLocator(here, centre.lat, centre.lon);
    if (here == locator)
        return "";
    return wxString::Format("the map is centred on latitude and\nlongitude, %.1f km from this locator",
                            Distance(centre, named));
}
} // namespace

namespace ui
{
HomePage::HomePage(wxBookCtrlBase* book, Editing& editing)
    : m_page(book, "Home", editing),
      m_grid(NewGrid(7)),
      latitude(m_page, m_grid, kLatitude, editing.draft.centreLat),
      longitude(m_page, m_grid, kLongitude, editing.draft.centreLon)
{
    AddCells(m_grid, {m_page.Label("Locator")});
    locator = m_page.Text(editing.draft.centreLoc, 10);
    m_grid->Add(locator, wxSizerFlags().Expand());
    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(m_grid, 0, wxBOTTOM, 2 * kGap);
    content->Add(NewButtons(), 0, wxBOTTOM, 4 * kGap);
    link = NewLink(m_page.Parent(), "Kavdex Homepage", GuideAddress(wxStandardPaths::Get().GetExecutablePath()));
    content->Add(link);
    AddPlaceNote();
    m_page.Finish(content);
    BindEvents();
    editing.bindings.Then(
        [this]
        {
            latitude.FillParts();
            longitude.FillParts();
        });
}

wxSizer* HomePage::NewButtons()
{
    auto* const buttons = new wxBoxSizer(wxHORIZONTAL);
    latLonFromLocator = new wxButton(m_page.Parent(), wxID_ANY, "Lat/Lon from Loc");
    buttons->Add(latLonFromLocator, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
    locatorFromLatLon = new wxButton(m_page.Parent(), wxID_ANY, "Loc from Lat/Lon");
    buttons->Add(locatorFromLatLon);
    return buttons;
}

void HomePage::AddPlaceNote()
{
    const auto fields = [this]
    { return locator->GetValue() + ";" + latitude.decimal->GetValue() + ";" + longitude.decimal->GetValue(); };
    const auto words = [this](const wxString&)
    {
        const auto centre = Position();
        return centre ? OtherPlace(locator->GetValue(), *centre) : wxString();
    };
    m_page.Note(locatorFromLatLon, fields, words);
}

void HomePage::BindEvents()
{
    for (PositionFields* const position : {&latitude, &longitude})
    {
        position->decimal->Bind(wxEVT_TEXT, [position](wxCommandEvent&) { position->FillParts(); });
        position->toDecimal->Bind(wxEVT_BUTTON, [position](wxCommandEvent&) { position->FillDecimal(); });
    }
    latLonFromLocator->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { FillPosition(); });
    locatorFromLatLon->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { FillLocator(); });
}

std::optional<geo::LatLon> HomePage::Position() const
{
    const auto lat = latitude.Degrees();
    const auto lon = longitude.Degrees();
    return lat && lon ? std::optional(geo::LatLon{*lat, *lon}) : std::nullopt;
}

void HomePage::FillPosition()
{
    wxString typed = locator->GetValue().Upper();
    geo::LatLon centre{};
    if (!Configuration::LocatorToLatLon(centre.lat, centre.lon, typed))
        return;
    latitude.Show(centre.lat);
    longitude.Show(centre.lon);
}

void HomePage::FillLocator()
{
    const auto position = Position();
    if (!position)
        return;
    wxString found = "AA11RR";
    Configuration::LatLonToLocator(found, position->lat, position->lon);
    locator->ChangeValue(found);
}
} // namespace ui
