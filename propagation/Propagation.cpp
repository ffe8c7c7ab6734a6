#include "propagation/Propagation.h"

#include "propagation/Overlay.h"
#include "propagation/WorldGrid.h"
#include "render/Style.h"

#include <wx/filename.h>

#include <memory>
#include <utility>

namespace
{
bool isBusy = false;

/// Says that an overlay is being made for as long as it lives.
class Busy
{
public:
    Busy() { isBusy = true; }
    ~Busy() { isBusy = false; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
};
} // namespace

using namespace propagation;

Propagation::Propagation(MapSurface& picture, const MapView& view, Settings& settings, Reports reports,
                         KeepWaiting keepWaiting)
    : m_picture(picture),
      m_view(view),
      m_settings(settings),
      m_reports(std::move(reports)),
      m_keepWaiting(std::move(keepWaiting)),
      m_files(settings.propagation.directory)
{
    if (isBusy)
        return;
    const Busy busy;
    m_picture.showPropagation = false;
    if (m_settings.propagation.useExternalResult)
        DrawResultIn(m_settings.propagation.externalResult);
    else
        RunAndDraw();
}

bool Propagation::IsBusy()
{
    return isBusy;
}

void Propagation::RunAndDraw()
{
    const int status = RunVoacap(m_files, m_settings, {m_view.projection.centreLatDeg, m_view.projection.centreLonDeg},
                                 m_reports, m_keepWaiting);
    if (status == kAbandoned)
        return;
    if (status != 0)
        m_reports.error("Error calling VOACAP");
    // voacapl may leave an empty file behind and still end well.
    else if (wxFileName::GetSize(m_files.result) == 0)
        m_reports.error(kFileOpenError);
    else
        DrawResultIn(m_files.result);
}

void Propagation::DrawResultIn(const wxString& path)
{
    m_reports.step("Reading file...");
    LineReader file(path);
    if (!file.IsOk())
        m_reports.error(kFileOpenError);
    else if (const auto result = ReadResult(file, ParameterOf(m_settings.propagation.parameter)))
        Draw(*result);
}

void Propagation::Draw(const ResultGrid& result)
{
    const PropagationSettings& p = m_settings.propagation;
    const auto alpha = static_cast<std::uint8_t>(p.alpha & 255);
    m_reports.step("Calling Regrid...");
    const ClassScale scale = ScaleOf(p, result);
    auto classes = WorldClasses(WorldValues(result), scale);
    m_reports.step("Creating prop img...");
    auto overlay = std::make_unique<Overlay>(m_view, std::move(classes), scale, alpha);
    if (p.legend == 1)
    {
        const wxFont font = render::FontFromSetting(m_settings.compass.text.font);
        overlay->PutLegend(DrawLegend(ParameterOf(p.parameter), scale, font, *overlay));
    }
    if (!m_picture.PutPropagation(std::move(overlay)))
    {
        m_reports.error("Error creating bitmap original function Prop");
        return;
    }
    if (result.withoutValue > 0)
        m_warning = wxString::Format("Result not whole: %zu of %zu points lack a value and count as 0",
                                     result.withoutValue, result.values.size());
}
