#pragma once

#include "geo/Locator.h"
#include "ui/options/PositionFields.h"

#include <wx/hyperlink.h>

namespace ui
{
class HomePage
{
public:
    HomePage(wxBookCtrlBase* book, Editing& editing);
    HomePage(const HomePage&) = delete;
    HomePage& operator=(const HomePage&) = delete;

private:
    Page m_page;
    wxFlexGridSizer* m_grid;

public:
    // Made in this order.
    PositionFields latitude;
    PositionFields longitude;
    wxTextCtrl* locator;
    wxButton* latLonFromLocator;
    wxButton* locatorFromLatLon;
    wxHyperlinkCtrl* link;

private:
    wxSizer* NewButtons();
    void AddPlaceNote();
    void BindEvents();
    std::optional<geo::LatLon> Position() const;
    void FillPosition();
    void FillLocator();
};
} // namespace ui
