#pragma once

#include <wx/statusbr.h>

#include <array>

/**
 * A status bar of two fields that share their room by need.
 *
 * The right field gets what its text needs, the left one the rest. Where both texts together are longer than the bar,
 * its font becomes smaller until they fit. So that neither moves while numbers change, a field counts as wide as the
 * widest text it has had since it was empty.
 */
class SharedStatusBar : public wxStatusBar
{
public:
    SharedStatusBar(wxWindow* parent, wxWindowID id, long style);

protected:
    void DoUpdateStatusText(int number) override;

private:
    int NeedOf(std::size_t field) const; ///< pixels, for its widest text and what stands around it
    void ShareRoom();

    std::array<wxString, 2> m_widest;
    wxFont m_normalFont;
};
