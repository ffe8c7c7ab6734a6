#include "ui/WxKavFrame.h"

#include "config/DataFile.h"
#include "render/Style.h"
#include "ui/Ids.h"
#include "ui/Native.h"

#include <wx/dcmemory.h>
#include <wx/log.h>
#include <wx/progdlg.h>
#include <wx/wfstream.h>

namespace
{
/// The picture on the screen grows by so many rows at a time.
constexpr int kBandRows = 100;

int MeasureCompassText(const wxString& fontDescription)
{
    wxBitmap pixel(1, 1);
    wxMemoryDC dc(pixel);
    dc.SetFont(render::FontFromSetting(fontDescription));
    return dc.GetTextExtent("123400").y;
}

wxImage LoadPicture(const wxString& name)
{
    // A picture that can't be loaded gets one message, the program's own.
    const wxLogNull silent;
    wxImage image;
    wxFile file;
    if (!OpenDataFile(file, name))
        return image;
    wxFileInputStream bytes(file);
    wxBufferedInputStream buffered(bytes);
    image.LoadFile(buffered);
    return image;
}
} // namespace

void WxKavFrame::OnCreateMap(wxCommandEvent&)
{
    CreateMap();
}

bool WxKavFrame::CreateMap()
{
    TakeCentreFromLocatorField();
    if (m_settings->size < render::kMinMapSize || m_settings->size > render::kMaxMapSize)
    {
        ShowError("Size must be between 100 and 8000 pixels.\nIt might fail with large pixel values.");
        EnableCreationTools(true);
        return false;
    }
    BeginCreation();
    if (!NewMap() || !DrawBaseMaps())
        return false;
    DrawLayers();
    DrawOverlays();
    FinishCreation();
    return true;
}

void WxKavFrame::TakeCentreFromLocatorField()
{
    wxString& stored = m_settings->centreLoc;
    if (m_locator->GetValue() == stored)
        return;
    stored = m_locator->GetValue().Upper();
    Configuration::LocatorToLatLon(m_settings->centreLat, m_settings->centreLon, stored);
    if (stored.length() != 6)
        stored = kScratchLocator;
    Configuration::LatLonToLocator(stored, m_settings->centreLat, m_settings->centreLon);
    m_locator->ChangeValue(stored);
}

void WxKavFrame::BeginCreation()
{
    m_canvas->mapReady = false;
    m_warning.clear();
    ShowStep("Creating Map");
    SetStatusText("", 1);
    EnableCreationTools(false);
    m_greylineTimer.Stop();
    m_propagationTimer.Stop();
    m_layer.reset();
}

void WxKavFrame::EnableCreationTools(bool enable)
{
    for (const int id : {ui::kIdCreate, ui::kIdSave, ui::kIdOptions})
        m_toolBar->EnableTool(id, enable);
}

bool WxKavFrame::NewMap()
{
    m_canvas->Clear();
    m_view = render::MakeMapView(*m_settings, MeasureCompassText(m_settings->compass.text.font));
    m_canvas->mapBitmap = render::NewWhiteBitmap(m_view->frame.mapSize);
    if (!m_canvas->mapBitmap)
    {
        ShowError("Error creating bitmap in function OnCreateMap0");
        return false;
    }
    m_canvas->mapReady = true;
    m_canvas->MakeRoomFor(m_view->frame.mapSize);
    return true;
}

bool WxKavFrame::DrawBaseMaps()
{
    bool builtIn = true;
    for (std::size_t i = 0; i < m_settings->sourceBitmaps.size(); ++i)
    {
        if (!m_settings->sourceBitmaps[i].show)
            continue;
        const wxImage image = LoadPicture(m_settings->sourceBitmaps[i].file);
        if (!image.IsOk())
        {
            ShowError(wxString::Format("Error creating bitmap in function OnCreateMap%zu", i + 1));
            return false;
        }
        ReprojectBaseMap(render::WorldPicture(image));
        builtIn = false;
    }
    if (builtIn)
        ReprojectBaseMap(render::BuiltInWorld());
    return true;
}

void WxKavFrame::ReprojectBaseMap(const render::WorldPicture& source)
{
    const int size = m_view->frame.mapSize;
    const geo::RowSampler rows = render::BaseMapRows(*m_view, source);
    std::optional<wxProgressDialog> progress;
    if (IsShown())
        progress.emplace("Kavdex", wxString(' ', 28) + "Creating Map" + wxString(' ', 28), size, this,
                         wxPD_APP_MODAL | wxPD_AUTO_HIDE);
    for (int first = 0; first < size; first += kBandRows)
    {
        const int end = std::min(first + kBandRows, size);
        {
            const render::BitmapPixels pixels(*m_canvas->mapBitmap);
            for (int row = first; row < end; ++row)
                rows.Row(row, pixels.Row(row));
        }
        if (progress)
            progress->Update(end);
        m_canvas->ShowPicture();
    }
}

void WxKavFrame::FinishCreation()
{
    m_layer.reset();
    ShowStep("Finished...");
    ui::native::Announce(m_statusBar, "Finished...");
    if (!m_warning.empty())
        SetStatusText(m_warning, 0);
    m_canvas->mapReady = true;
    EnableCreationTools(true);
    m_toolBar->EnableTool(ui::kIdGreyline, true);
    m_toolBar->ToggleTool(ui::kIdGreyline, m_settings->greyzone.show);
}
