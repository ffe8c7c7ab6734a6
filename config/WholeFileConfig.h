#pragma once

#include <wx/fileconf.h>

/**
 * A file of settings that is replaced only by a whole one: see WriteWholeFile(). The toolkit's own would put an
 * ordinary file in place of a link, a pipe or a device.
 *
 * Changes reach the disk with Flush() or at the latest when it is destroyed. The toolkit's log says why they can't.
 */
class WholeFileConfig : public wxFileConfig
{
public:
    /// @param[in] path absolute; an empty one is no file: nothing is read or kept.
    /// @param[in] style of the toolkit, for the system-wide file of that application.
    WholeFileConfig(const wxString& appName, const wxString& path, long style);
    ~WholeFileConfig() override { Keep(); }
    WholeFileConfig(const WholeFileConfig&) = delete;
    WholeFileConfig& operator=(const WholeFileConfig&) = delete;

    bool Flush(bool currentOnly = false) override;
    bool DeleteEntry(const wxString& key, bool groupIfEmptyAlso = true) override;

protected:
    bool DoWriteString(const wxString& key, const wxString& text) override;

private:
    bool Keep();

    const wxString m_path;
    bool m_isChanged = false;
};
