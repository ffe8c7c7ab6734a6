#pragma once

#include "config/Settings.h"
#include "config/UtcTime.h"
#include "geo/AzimuthalProjection.h"
#include "reports/Places.h"

#include <string>

namespace reports
{
/**
 * Where places lie as seen from the station, and how light it is there, as lines of CSV (RFC 4180: commas, quotation
 * marks where needed, CR LF).
 *
 * Distance and bearing are those of the pointer read-out, with its one decimal; so is the long path, the other way
 * round the earth. The sun's elevation is without refraction. At the station itself distance and bearing are 0; at its
 * antipode, where every way leads, the bearing is 0.
 */
class Bearings
{
public:
    /// @param[in] settings the centre, brought into -90..90 and -180..180, and the width of the greyzone.
    explicit Bearings(const Settings& settings);

    /// The names of the columns.
    static std::string Header();

    /// A place at a time.
    std::string Row(const Place& place, const UtcTime& time) const;

    /// What answers a text that names no place: as many columns, all but the first empty.
    static std::string EmptyRow(const wxString& text);

private:
    AzimuthalProjection m_projection;
    GreyzoneSettings m_greyzone;
};
} // namespace reports
