#pragma once

#include "render/LayerMarks.h"

#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/dcgraph.h>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace render
{
/// In how many colours a layer is drawn.
enum class Inks
{
    One,  ///< in that of Begin() alone: all that is kept is which pixels are marked
    Many, ///< in any
};

/**
 * The sheet on which a layer is drawn before it is blended onto the map. It can serve one layer after the other.
 *
 * Begin(), draw, BlendOnto() or TakeMarks(); what is not drawn on, or is drawn in white, is transparent, and so is the
 * outermost frame of one pixel.
 */
class Layer
{
public:
    /// @param[in] side side of the map in pixels.
    explicit Layer(int side, Inks inks = Inks::One);

    /// False when there was not enough memory: then nothing can be drawn.
    bool IsOk() const { return m_sheet != nullptr; }

    Inks Kind() const { return m_inks; }

    /**
     * Starts a layer on the blank sheet.
     *
     * @return a drawing context with a solid pen of the colour and width, a transparent brush and texts on a
     *         transparent ground, without smoothing: a pixel is marked or not, and marks for those half covered would
     *         make lines fat and texts unreadable.
     */
    wxDC& Begin(const wxColour& colour, int lineWidth);

    /// Ends the layer: blends it onto the map, of the same size, and leaves the sheet blank again.
    void BlendOnto(wxBitmap& map, std::uint8_t alpha);

    /// Ends the layer: gives what it would blend, for later, and leaves the sheet blank again.
    LayerMarks TakeMarks(std::uint8_t alpha);

private:
    template <class Visit>
    void TakeSheet(Visit visit);

    struct Destroy
    {
        void operator()(struct _cairo_surface* surface) const;
    };

    int m_side;
    Inks m_inks;
    wxColour m_colour;
    std::unique_ptr<struct _cairo_surface, Destroy> m_sheet;
    std::unique_ptr<wxGCDC> m_dc;
};

/// Makes a drawing context on a bitmap draw shapes and texts without smoothing.
void SwitchSmoothingOff(wxDC& dc);

/// What a drawing context can draw on: its picture, in pixels.
wxRect DrawableArea(const wxDC& dc);
} // namespace render
