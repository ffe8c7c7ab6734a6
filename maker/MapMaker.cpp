#include "maker/MapMaker.h"

#include "render/DecodeApart.h"
#include "render/Style.h"

#include <wx/dcmemory.h>

#include <utility>

namespace
{
int MeasureCompassText(const wxString& fontDescription)
{
    wxBitmap pixel(1, 1);
    wxMemoryDC dc(pixel);
    dc.SetFont(render::FontFromSetting(fontDescription));
    return dc.GetTextExtent("123400").y;
}
} // namespace

MapMaker::MapMaker(Settings& settings, MapSurface& picture, MapListener& listener)
    : m_settings(settings), m_picture(picture), m_listener(listener)
{
}

MapMaker::Creation MapMaker::MakeMap()
{
    if (m_settings.size < render::kMinMapSize || m_settings.size > render::kMaxMapSize)
    {
        m_listener.OnError("Size must be between 100 and 8000 pixels.\nIt might fail with large pixel values.");
        return Creation::ImpossibleSize;
    }
    m_picture.mapReady = false;
    m_listener.OnStep("Creating Map");
    m_listener.OnCreationBegun();
    m_layer.reset();
    if (!NewMap() || !DrawBaseMaps())
        return Creation::Stopped;
    DrawLayers();
    m_layer.reset();
    DrawOverlays();
    m_listener.OnStep("Finished...");
    m_picture.mapReady = true;
    return Creation::Finished;
}

bool MapMaker::NewMap()
{
    m_view = render::MakeMapView(m_settings, MeasureCompassText(m_settings.compass.text.font));
    if (!m_picture.NewMap(m_view->frame.mapSize))
    {
        m_listener.OnError("Error creating bitmap in function OnCreateMap0");
        return false;
    }
    m_picture.mapReady = true;
    m_listener.OnNewMap(m_view->frame.mapSize);
    return true;
}

bool MapMaker::DrawBaseMaps()
{
    bool builtIn = true;
    for (std::size_t i = 0; i < m_settings.sourceBitmaps.size(); ++i)
    {
        if (!m_settings.sourceBitmaps[i].show)
            continue;
        // A picture that can't be loaded gets one message.
        const wxImage image = render::LoadImageApart(m_settings.sourceBitmaps[i].file);
        if (!image.IsOk())
        {
            m_listener.OnError(wxString::Format("Error creating bitmap in function OnCreateMap%zu", i + 1));
            return false;
        }
        ReprojectBaseMap(render::WorldPicture(image));
        builtIn = false;
    }
    if (builtIn)
        ReprojectBaseMap(render::WorldPicture::BuiltIn());
    return true;
}

void MapMaker::ReprojectBaseMap(render::WorldPicture source)
{
    const int size = m_view->frame.mapSize;
    m_listener.OnRows(0, size);
    m_picture.PutBase(std::make_unique<render::BaseMap>(*m_view, std::move(source)),
                      [this, size](int done)
                      {
                          m_listener.OnRows(done, size);
                          m_listener.OnPictureChanged();
                      });
    m_listener.OnRowsDone();
}
