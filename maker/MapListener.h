#pragma once

#include "propagation/Progress.h"

#include <wx/string.h>

/// Whoever wants to know what a MapMaker does: a window, or the command line.
class MapListener : public propagation::Progress
{
public:
    /// A creation begins: the map that there was is gone.
    virtual void OnCreationBegun() {}

    /// There is a new map, white as yet, of so many pixels a side.
    virtual void OnNewMap(int /*side*/) {}

    /// What is being done now; an empty text when it is done.
    void OnStep(const wxString& text) override = 0;

    /// The time that the greyline is drawn for, and where the sun stands.
    virtual void OnSun(const wxString&) {}

    /// A message for the user.
    virtual void OnError(const wxString& text) = 0;

    /// What is not right about an overlay that is drawn nevertheless.
    virtual void OnWarning(const wxString&) {}

    /// Around the making of a propagation overlay, in which OnWaiting() may be called.
    virtual void OnPropagationBegun() {}
    virtual void OnPropagationEnded() {}

    /// Rows of the base picture that are done, from 0 to all.
    virtual void OnRows(int /*done*/, int /*all*/) {}

    /// The last of the rows is done, and the picture with it.
    virtual void OnRowsDone() {}

    /// Called again and again while a layer with a file of any length is drawn, with what is done of it, from 0 to 1.
    /// False leaves out the rest of the layer, and whoever answers so tells the user.
    virtual bool OnDrawing(double /*done*/) { return true; }

    /// The picture is another one than before.
    virtual void OnPictureChanged() {}

    /// The greyline is drawn and to be seen.
    virtual void OnGreylineShown() {}
};
