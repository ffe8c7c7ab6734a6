#include "geo/Angles.h"
#include "geo/AzimuthalProjection.h"
#include "render/MapView.h"
#include "ui/FileKinds.h"
#include "ui/KavMapOptions.h"

#include <utility>

// What the options dialog says beside its fields while they are filled in.

namespace
{
wxString NoNumber(const wxString& text)
{
    double number = 0.0;
    return text.ToCDouble(&number) ? "" : "no number";
}

/// For whole numbers within limits.
ui::FieldNotes::Rule NoNumberFrom(long min, long max)
{
    return [=](const wxString& text) -> wxString
    {
        long number = 0;
        if (!text.ToCLong(&number))
            return "no whole number";
        return number < min || number > max ? wxString::Format("%ld to %ld", min, max) : wxString();
    };
}

/// Kilometres between two positions in degrees.
double Distance(double latA, double lonA, double latB, double lonB)
{
    AzimuthalProjection projection;
    projection.Init(0, 0, latA, lonA);
    double x = 0.0;
    double y = 0.0;
    const std::int64_t metres = projection.Forward(x, y, lonB * geo::kRadPerDeg, latB * geo::kRadPerDeg);
    return metres > 0 ? static_cast<double>(metres) / 1000 : 0.0;
}

/// What to say of a locator when the map is centred on a position that is not in it.
wxString OtherPlace(const wxString& typed, double lat, double lon)
{
    wxString locator = typed.Upper();
    double locatorLat = 0.0;
    double locatorLon = 0.0;
    if (!Configuration::LocatorToLatLon(locatorLat, locatorLon, locator))
        return "no locator: the map is centred\non latitude and longitude";
    wxString here = "AA11RR";
    Configuration::LatLonToLocator(here, lat, lon);
    if (here == locator)
        return "";
    return wxString::Format("the map is centred on latitude and\nlongitude, %.1f km from this locator",
                            Distance(lat, lon, locatorLat, locatorLon));
}
} // namespace

void KavMapOptions::AddNotes()
{
    AddFileNotes();
    AddNumberNotes();
    AddPlaceNote();
    Bind(wxEVT_IDLE,
         [this](wxIdleEvent& event)
         {
             event.Skip();
             m_notes.Update();
             EnableTimeFields();
         });
}

void KavMapOptions::NoteBeside(wxWindow* control, wxTextCtrl* field, ui::FieldNotes::Rule rule)
{
    m_notes.Add(
        ui::NewTextBeside(control), [field] { return field->GetValue(); }, std::move(rule));
}

void KavMapOptions::AddFileNotes()
{
    const auto note = [this](wxFilePickerCtrl* file, wxString (*rule)(const wxString&))
    { NoteBeside(file, file->GetTextCtrl(), rule); };
    for (const ui::BordersPage::Row& row : m_bordersPage.rows)
        note(row.file, ui::NoBorderFile);
    for (const ui::TextPage::Row& row : m_textPage.rows)
        note(row.file, ui::NoLabelFile);
    for (const ui::SourceMapPage::Row& row : m_sourceMapPage.rows)
        note(row.file, ui::NoPicture);
    for (const ui::PlotSquaresPage::Slot& slot : m_plotSquaresPage.slots)
        note(slot.file, ui::MissingFile);
    note(m_voacapPage.main.externalResult, ui::MissingFile);
}

void KavMapOptions::AddNumberNotes()
{
    const auto note = [this](wxTextCtrl* field, ui::FieldNotes::Rule rule)
    { NoteBeside(field, field, std::move(rule)); };
    note(m_settingsPage.zoom, NoNumberFrom(100, 20000));
    note(m_settingsPage.size, NoNumberFrom(render::kMinMapSize, render::kMaxMapSize));
    note(m_settingsPage.rangeEvery, NoNumberFrom(100, 20000));
    note(m_homePage.latitude.decimal, NoNumber);
    note(m_homePage.longitude.decimal, NoNumber);
}

void KavMapOptions::AddPlaceNote()
{
    wxWindow* const last = m_homePage.locatorFromLatLon;
    m_notes.Add(
        ui::NewTextBeside(last),
        [this]
        {
            return m_homePage.locator->GetValue() + ";" + m_homePage.latitude.decimal->GetValue() + ";" +
                   m_homePage.longitude.decimal->GetValue();
        },
        [this](const wxString&)
        {
            const auto lat = m_latitude.Degrees();
            const auto lon = m_longitude.Degrees();
            return lat && lon ? OtherPlace(m_homePage.locator->GetValue(), *lat, *lon) : wxString();
        });
}

void KavMapOptions::EnableTimeFields()
{
    const bool once = m_timePage.mode->GetSelection() == kOnce;
    for (wxWindow* const field : {static_cast<wxWindow*>(m_timePage.hour), static_cast<wxWindow*>(m_timePage.minute),
                                  static_cast<wxWindow*>(m_timePage.date), static_cast<wxWindow*>(m_timePage.now)})
        if (field->IsEnabled() != once)
            field->Enable(once);
}
