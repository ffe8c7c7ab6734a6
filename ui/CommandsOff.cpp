#include "ui/CommandsOff.h"

namespace ui
{
CommandsOff::CommandsOff(wxToolBar& tools, wxMenuBar& menus) : m_tools(tools), m_menus(menus)
{
    for (int i = 0; i < static_cast<int>(m_tools.GetToolsCount()); ++i)
    {
        const wxToolBarToolBase* const tool = m_tools.GetToolByPos(i);
        if (tool->IsButton() && tool->IsEnabled())
            m_disabled.push_back(tool->GetId());
    }
    for (const int id : m_disabled)
        m_tools.EnableTool(id, false);
    EnableMenus(false);
}

CommandsOff::~CommandsOff()
{
    for (const int id : m_disabled)
        m_tools.EnableTool(id, true);
    EnableMenus(true);
}

void CommandsOff::EnableMenus(bool enable)
{
    for (std::size_t i = 0; i < m_menus.GetMenuCount(); ++i)
        m_menus.EnableTop(i, enable);
}
} // namespace ui
