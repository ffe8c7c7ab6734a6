#pragma once

#include "render/MapSurface.h"

#include <wx/bitmap.h>
#include <wx/dc.h>
#include <wx/image.h>

#include <memory>

/**
 * The map and the two overlays as bitmaps, which can be seen while they are made, and how they lie over each other.
 *
 * Whoever changes a bitmap or a flag of a picture that is on the screen asks its canvas to refresh.
 */
struct MapPicture : MapSurface
{
    bool NewMap(int side) override;
    bool HasMap() const override { return mapBitmap != nullptr; }
    void PutBase(std::unique_ptr<render::PictureRows> base, const std::function<void(int)>& rowsDone) override;
    void PutLayer(render::Layer& layer, std::uint8_t alpha) override;
    bool PutGreyline(std::unique_ptr<render::PictureRows> overlay) override;
    bool PutPropagation(std::unique_ptr<render::PictureRows> overlay) override;

    /// Forgets all bitmaps and hides the overlays.
    void Clear();

    /// Draws what is to be seen at (0, 0): the map, over it the greyline, over that the propagation overlay.
    void Draw(wxDC& dc) const;

    /// What Draw() shows, as an image; an invalid one when there is not enough memory for it.
    /// @pre there is a map bitmap.
    wxImage Compose() const;

    std::unique_ptr<wxBitmap> mapBitmap;
    std::unique_ptr<wxBitmap> greylineBitmap;
    std::unique_ptr<wxBitmap> propagationBitmap;

private:
    bool IsMapAlone() const { return mapReady && !showGreyline && !showPropagation; }
};
