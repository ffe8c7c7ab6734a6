#pragma once

#include <wx/menu.h>
#include <wx/toolbar.h>

#include <vector>

namespace ui
{
/**
 * Greys the tools and menus of a window for as long as it lives.
 *
 * The window itself stays enabled: it would lose the keyboard focus, and what is being typed.
 */
class CommandsOff
{
public:
    CommandsOff(wxToolBar& tools, wxMenuBar& menus);
    ~CommandsOff();
    CommandsOff(const CommandsOff&) = delete;
    CommandsOff& operator=(const CommandsOff&) = delete;

private:
    void EnableMenus(bool enable);

    wxToolBar& m_tools;
    wxMenuBar& m_menus;
    std::vector<int> m_disabled; ///< tools that were enabled
};
} // namespace ui
