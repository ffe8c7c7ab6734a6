#pragma once

#include "render/PictureRows.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace render
{
class Layer;
} // namespace render

/**
 * What a map is made on: the base picture, the layers blended onto it one after the other, and the two overlays, which
 * can change without the map.
 */
class MapSurface
{
public:
    virtual ~MapSurface() = default;

    /// Forgets everything and begins a white map. @return false when there is not enough memory for it.
    virtual bool NewMap(int side) = 0;
    virtual bool HasMap() const = 0;

    /// Paints the whole map. @param[in] rowsDone may be called with the number of rows that are to be seen so far.
    virtual void PutBase(std::unique_ptr<render::PictureRows> base, const std::function<void(int)>& rowsDone) = 0;

    /// Blends a layer of the map's size onto the map and leaves its sheet blank.
    virtual void PutLayer(render::Layer& layer, std::uint8_t alpha) = 0;

    // Replace an overlay and show it. False when there is not enough memory for it: then nothing changes.
    virtual bool PutGreyline(std::unique_ptr<render::PictureRows> overlay) = 0;
    virtual bool PutPropagation(std::unique_ptr<render::PictureRows> overlay) = 0;

    bool mapReady = false;        ///< the map may be shown
    bool showGreyline = false;    ///< the greyline is shown over it
    bool showPropagation = false; ///< the propagation overlay is shown over both
};
