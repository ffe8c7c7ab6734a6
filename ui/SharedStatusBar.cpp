#include "ui/SharedStatusBar.h"

#include <algorithm>

namespace
{
constexpr int kMargins = 8;          ///< to the left and right of a text
constexpr double kSmallerStep = 0.5; ///< points
constexpr double kSmallestFont = 6;  ///< points; anything smaller can't be read anyway
} // namespace

SharedStatusBar::SharedStatusBar(wxWindow* parent, wxWindowID id, long style)
    : wxStatusBar(parent, id, style), m_normalFont(GetFont())
{
    Bind(wxEVT_SIZE,
         [this](wxSizeEvent& event)
         {
             event.Skip();
             ShareRoom();
         });
}

void SharedStatusBar::DoUpdateStatusText(int number)
{
    wxString& widest = m_widest[static_cast<std::size_t>(number)];
    const wxString text = GetStatusText(number);
    if (text.empty() || GetTextExtent(text).x > GetTextExtent(widest).x)
    {
        widest = text;
        ShareRoom();
    }
    wxStatusBar::DoUpdateStatusText(number);
}

int SharedStatusBar::NeedOf(std::size_t field) const
{
    return GetTextExtent(m_widest[field]).x + kMargins;
}

void SharedStatusBar::ShareRoom()
{
    if (GetFieldsCount() != static_cast<int>(m_widest.size()))
        return;
    const int room = GetClientSize().x - GetSize().y; // the grip at the right is as wide as it is high
    const double before = GetFont().GetFractionalPointSize();
    SetFont(m_normalFont);
    for (double size = m_normalFont.GetFractionalPointSize() - kSmallerStep;
         NeedOf(0) + NeedOf(1) > room && size >= kSmallestFont; size -= kSmallerStep)
    {
        wxFont smaller = m_normalFont;
        smaller.SetFractionalPointSize(size);
        SetFont(smaller);
    }
    const int rightField = NeedOf(1);
    if (rightField == GetStatusWidth(1) && before == GetFont().GetFractionalPointSize())
        return;
    const int widths[] = {-1, rightField};
    SetStatusWidths(2, widths);
}
