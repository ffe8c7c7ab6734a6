#include "ui/WxKavFrame.h"

#include "render/Blend.h"

#include <wx/log.h>

void WxKavFrame::DrawLayers() {}

wxDC* WxKavFrame::BeginLayer(const wxString& statusText, const wxColour& colour, int alpha, int lineWidth)
{
    ShowStep(statusText);
    if (static_cast<std::uint8_t>(alpha) == 0)
        return nullptr; // nothing of it would be seen
    if (!m_layer)
        m_layer.emplace(m_view->frame.mapSize);
    if (!m_layer->IsOk())
    {
        wxLogError("Not enough memory for a layer: %s", statusText);
        return nullptr;
    }
    return &m_layer->Begin(colour, lineWidth);
}

void WxKavFrame::EndLayer(int alpha)
{
    const auto opacity = static_cast<std::uint8_t>(alpha);
    if (!m_layer->BlendOnto(*m_canvas->mapBitmap, opacity))
        BlendLayer(m_layer->TakeImage(), m_canvas->mapBitmap->ConvertToImage(), opacity);
    m_canvas->ShowPicture();
}

void WxKavFrame::BlendLayer(wxImage layerImage, wxImage mapImage, int alpha)
{
    const int width = mapImage.GetWidth();
    const int height = mapImage.GetHeight();
    const std::size_t bytes = 3 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    render::BlendLayer({layerImage.GetData(), bytes}, {mapImage.GetData(), bytes}, width, height,
                       static_cast<std::uint8_t>(alpha));
    m_canvas->mapBitmap = std::make_unique<wxBitmap>(mapImage);
    m_canvas->ShowPicture();
}
