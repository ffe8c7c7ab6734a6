#include "config/WholeFileConfig.h"

#include "config/WholeFile.h"

#include <wx/log.h>

#include <utility>

WholeFileConfig::WholeFileConfig(const wxString& appName, const wxString& path, long style)
    : wxFileConfig(appName, "", path, "", path.empty() ? style : style | wxCONFIG_USE_LOCAL_FILE), m_path(path)
{
    DisableAutoSave();
}

bool WholeFileConfig::Flush(bool)
{
    return Keep();
}

bool WholeFileConfig::DoWriteString(const wxString& key, const wxString& text)
{
    m_isChanged = true;
    return wxFileConfig::DoWriteString(key, text);
}

bool WholeFileConfig::DeleteEntry(const wxString& key, bool groupIfEmptyAlso)
{
    m_isChanged = true;
    return wxFileConfig::DeleteEntry(key, groupIfEmptyAlso);
}

bool WholeFileConfig::Keep()
{
    if (m_path.empty() || !std::exchange(m_isChanged, false))
        return true;
    const wxString reason =
        WriteWholeFile(m_path, [this](wxOutputStream& stream) { return wxFileConfig::Save(stream, wxConvUTF8); });
    if (!reason.empty())
        wxLogError("can't keep settings in '%s': %s", m_path, reason);
    return reason.empty();
}
