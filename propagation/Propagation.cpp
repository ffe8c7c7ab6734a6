#include "propagation/Propagation.h"

#include "propagation/Engines.h"
#include "propagation/Overlay.h"
#include "propagation/WorldGrid.h"
#include "render/Style.h"

#include <utility>

using namespace propagation;

namespace
{
AreaRun ResultOf(const Settings& settings, const MapView& view, const UtcTime& now, Progress& progress)
{
    const PropagationSettings& p = settings.propagation;
    if (p.useExternalResult)
        return {p.externalResult, {}, p.engine};
    const geo::LatLon transmitter{view.projection.centreLatDeg, view.projection.centreLonDeg};
    return config::Chosen(kEngines, p.engine).value(settings, transmitter, now, progress);
}

std::unique_ptr<Overlay> OverlayOf(const ResultGrid& result, const Settings& settings, const MapView& view,
                                   Progress& progress)
{
    const PropagationSettings& p = settings.propagation;
    progress.OnStep("Calling Regrid...");
    const ClassScale scale = ScaleOf(p, result);
    auto classes = WorldClasses(WorldValues(result), scale);
    progress.OnStep("Creating prop img...");
    auto overlay = std::make_unique<Overlay>(view, std::move(classes), scale, static_cast<std::uint8_t>(p.alpha & 255));
    if (p.legend == 1)
    {
        const wxFont font = render::FontFromSetting(settings.compass.text.font);
        overlay->PutLegend(DrawLegend(ParameterOf(p.parameter), scale, font, *overlay));
    }
    return overlay;
}

wxString WarningOf(const ResultGrid& result)
{
    return result.withoutValue == 0
               ? wxString()
               : wxString::Format("Result not whole: %zu of %zu points lack a value and count as 0",
                                  result.withoutValue, result.values.size());
}
} // namespace

Propagation Propagation::Compute(const Settings& settings, const MapView& view, const UtcTime& now, Progress& progress)
{
    AreaRun run = ResultOf(settings, view, now, progress);
    Propagation made{{}, std::move(run.errors), {}, run.engine};
    if (!run.resultFile)
        return made;
    progress.OnStep("Reading file...");
    LineReader file(*run.resultFile);
    if (!file.IsOk())
        made.errors.emplace_back(kFileOpenError);
    else if (const auto result = ReadResult(file, ParameterOf(settings.propagation.parameter)))
    {
        made.overlay = OverlayOf(*result, settings, view, progress);
        made.warning = WarningOf(*result);
    }
    return made;
}
