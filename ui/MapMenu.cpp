#include "ui/MapMenu.h"

#include "rotator/Azimuth.h"
#include "ui/Antenna.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/menu.h>

namespace ui
{
namespace
{
using Rows = std::vector<MapMenuRow>;

/// A row that copies a text.
MapMenuRow Copying(const wxString& label, const wxString& text)
{
    return {label, [text]
            {
                const wxClipboardLocker clipboard;
                if (!!clipboard)
                    wxTheClipboard->SetData(new wxTextDataObject(text));
            }};
}

wxString Heading(const MapSpot& spot, std::optional<double> bearing)
{
    wxString heading;
    if (spot.place)
        heading << spot.place->locator << wxString::Format(", %.1f km", spot.fromStation.distanceKm);
    if (bearing)
        heading << wxString::Format(spot.place ? L", %.1f\u00b0" : L"%.1f\u00b0", *bearing);
    return heading;
}

Rows SpotRows(const MapSpot& spot, std::optional<double> bearing,
              const std::function<void(const wxString& locator)>& centre)
{
    Rows rows{{Heading(spot, bearing), nullptr}, {}};
    if (spot.place)
    {
        rows.push_back(Copying("Copy locator", spot.place->locator));
        rows.push_back(Copying("Copy position", wxString::Format("%.4f,%.4f", spot.place->at.lat, spot.place->at.lon)));
    }
    if (bearing)
        rows.push_back(Copying("Copy bearing", wxString::Format("%.1f", *bearing)));
    if (spot.place)
        rows.push_back({"Centre here", [=] { centre(spot.place->locator); }});
    return rows;
}

Rows AntennaRows(Antenna& antenna, std::optional<double> bearing)
{
    Rows rows;
    if (bearing)
    {
        const double longPath = rotator::LongPath(*bearing);
        rows.push_back({wxString::Format(L"Turn antenna to %.1f\u00b0", *bearing),
                        [&antenna, bearing] { antenna.Turn(*bearing); }});
        rows.push_back({wxString::Format(L"Turn antenna to %.1f\u00b0 (long path)", longPath),
                        [&antenna, longPath] { antenna.Turn(longPath); }});
    }
    rows.push_back({"Stop antenna", [&antenna] { antenna.Stop(); }});
    return rows;
}

void Append(wxMenu& menu, const MapMenuRow& row)
{
    if (row.label.empty())
    {
        menu.AppendSeparator();
        return;
    }
    const int id = menu.Append(wxID_ANY, row.label)->GetId();
    if (row.act)
        menu.Bind(
            wxEVT_MENU, [&row](wxCommandEvent&) { row.act(); }, id);
    else
        menu.Enable(id, false);
}
} // namespace

std::vector<MapMenuRow> MapMenuRows(const std::optional<MapSpot>& spot, Antenna* antenna,
                                    const std::function<void(const wxString& locator)>& centre)
{
    std::optional<double> bearing;
    if (spot && spot->fromStation.distanceKm > 0.0)
        bearing = rotator::RoundedBearing(spot->fromStation.bearingDeg);
    Rows rows = spot ? SpotRows(*spot, bearing, centre) : Rows();
    if (!antenna)
        return rows;
    if (!rows.empty())
        rows.push_back({});
    const Rows more = AntennaRows(*antenna, bearing);
    rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

void ShowMenu(wxWindow& window, const std::vector<MapMenuRow>& rows, const wxPoint& place)
{
    if (rows.empty())
        return;
    wxMenu menu;
    for (const MapMenuRow& row : rows)
        Append(menu, row);
    window.PopupMenu(&menu, place);
}
} // namespace ui
