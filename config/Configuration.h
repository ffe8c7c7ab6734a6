#pragma once

#include "config/Settings.h"
#include "config/WholeFileConfig.h"

/**
 * The settings, and the working settings file that keeps them between runs.
 *
 * Settings never fail: a key that is missing or unreadable takes its default, silently. Texts come back exactly as they
 * were written.
 */
class Configuration : public WholeFileConfig, public Settings
{
public:
    /// Opens the user's working file of that name, reads it with ReadAll() and writes what it lacked. The toolkit's log
    /// says why no settings can be kept there; then they have their defaults, and nothing is written anywhere.
    explicit Configuration(const wxString& appName);

    /// Takes the settings from another object. The working file is opened but neither read nor completed.
    Configuration(const wxString& appName, wxConfigBase& source);

    /// Reads every key from the working file. Keys that are missing or damaged are written back with their defaults.
    void ReadAll();

    /// Reads every key from another object, which is left as it is.
    void ReadAllFrom(wxConfigBase& source);

    /// Writes every key to the working file, which reaches the disk when this object is flushed or destroyed.
    void WriteAll();

    /// Writes every key to another object.
    void WriteAllTo(wxConfigBase& target);

    /**
     * Overwrites a locator in place with that of a position in degrees.
     *
     * A position outside -90..90 and -180..180 changes nothing. The length of the text never changes: only as many
     * characters are written as it has.
     */
    static void LatLonToLocator(wxString& locator, double lat, double lon);

    /**
     * The centre of a locator's subsquare in degrees.
     *
     * @param[in,out] locator a text of four characters is completed with "LL".
     * @return 1, or 0 for what is no upper-case locator: then lat and lon keep their values.
     */
    static int LocatorToLatLon(double& lat, double& lon, wxString& locator);

    /// Set by the options dialog when its OK changed anything: the overlays no longer fit. Not a key.
    bool resetOverlays = false;
};
