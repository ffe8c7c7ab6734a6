#pragma once

#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <cstdint>
#include <memory>

namespace render
{
/**
 * The white sheet on which a layer is drawn before it is blended onto the map. One sheet serves all layers of a map.
 *
 * Begin(), draw, BlendOnto(); what is white is transparent.
 */
class Layer
{
public:
    /// @param[in] side side of the map in pixels.
    explicit Layer(int side);

    /// False when there was not enough memory: then nothing can be drawn.
    bool IsOk() const { return m_sheet != nullptr; }

    /**
     * Starts a layer on the white sheet.
     *
     * @return a drawing context with a solid pen of the colour and width, a transparent brush and texts on a
     * transparent ground. Shapes and texts are drawn without smoothing, so that they leave exactly their own colour:
     * what is mixed with the white of the sheet is blended as a pale fringe, which on dark parts of a map makes dark
     *         texts unreadable.
     */
    wxDC& Begin(const wxColour& colour, int lineWidth);

    /**
     * Ends the layer: blends it onto the map, of the same size, and leaves the sheet white again.
     *
     * @return false, with nothing done, where the pixels of bitmaps can't be reached in place; then TakeImage() ends
     *         the layer.
     */
    bool BlendOnto(wxBitmap& map, std::uint8_t alpha);

    /// Ends the layer: returns it as an image and leaves the sheet white again.
    wxImage TakeImage();

private:
    std::unique_ptr<wxBitmap> m_sheet;
    wxMemoryDC m_dc;
};

/// Makes a drawing context on a bitmap draw shapes and texts without smoothing.
void SwitchSmoothingOff(wxDC& dc);
} // namespace render
