#pragma once

#include <wx/bitmap.h>
#include <wx/dc.h>
#include <wx/image.h>

#include <memory>

/**
 * The map and the two overlays that can change without it, and how they lie over each other.
 *
 * Whoever changes a bitmap or a flag of a picture that is on the screen asks its canvas to refresh.
 */
struct MapPicture
{
    /// Forgets all bitmaps and hides the overlays.
    void Clear();

    /// Draws what is to be seen at (0, 0): the map, over it the greyline, over that the propagation overlay.
    void Draw(wxDC& dc) const;

    /// What Draw() shows, as an image; an invalid one when there is not enough memory for it.
    /// @pre there is a map bitmap.
    wxImage Compose() const;

    /// The same, in the memory of the map itself: the map is gone with it, and the image is valid only as long as this.
    /// @pre there is a map bitmap.
    wxImage Take();

    std::unique_ptr<wxBitmap> mapBitmap;
    std::unique_ptr<wxBitmap> greylineBitmap;
    std::unique_ptr<wxBitmap> propagationBitmap;
    bool mapReady = false;        ///< the map may be shown
    bool showGreyline = false;    ///< the greyline is shown over it
    bool showPropagation = false; ///< the propagation overlay is shown over both

private:
    bool IsMapAlone() const { return mapReady && !showGreyline && !showPropagation; }
    std::unique_ptr<wxBitmap> Composed() const; ///< none when there is not enough memory for it
};
