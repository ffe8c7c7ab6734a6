#include "ui/GUIFrame.h"

#include "config/PropagationParameters.h"
#include "config/Version.h"
#include "propagation/AreaInput.h"
#include "resources/icons/create.xpm"
#include "resources/icons/fq_10_1.xpm"
#include "resources/icons/fq_14_0.xpm"
#include "resources/icons/fq_18_1.xpm"
#include "resources/icons/fq_21_0.xpm"
#include "resources/icons/fq_24_9.xpm"
#include "resources/icons/fq_28_0.xpm"
#include "resources/icons/fq_3_5.xpm"
#include "resources/icons/fq_7_0.xpm"
#include "resources/icons/fq_user.xpm"
#include "resources/icons/greyline.xpm"
#include "resources/icons/help.xpm"
#include "resources/icons/muf.xpm"
#include "resources/icons/options.xpm"
#include "resources/icons/rel.xpm"
#include "resources/icons/save.xpm"
#include "resources/icons/signal.xpm"
#include "resources/icons/snr.xpm"
#include "ui/Ids.h"
#include "ui/Native.h"
#include "ui/SharedStatusBar.h"
#include "ui/ToolPictures.h"

#include <ToolDrawings.h>
#include <wx/menu.h>
#include <wx/sizer.h>

#include <array>
#include <vector>

namespace
{
struct Tool
{
    int id;
    const char* label;
    wxItemKind kind;
    ui::ToolPicture icon;
    const char* name; ///< for screen readers, and in the menu of tools that have no room
};

constexpr Tool kCommandTools[] = {
    {ui::kIdCreate, "Create", wxITEM_NORMAL, {icon_create, drawing_create}, "Create"},
    {ui::kIdSave, "Save", wxITEM_NORMAL, {icon_save, drawing_save}, "Save"},
    {ui::kIdOptions, "Options", wxITEM_NORMAL, {icon_options, drawing_options}, "Options"},
    {ui::kIdHelp, "Help", wxITEM_NORMAL, {icon_help, drawing_help}, "Help"},
};
constexpr Tool kGreylineTool{ui::kIdGreyline, "tool", wxITEM_CHECK, {icon_greyline, drawing_greyline}, "Greyline"};

constexpr std::array<ui::ToolPicture, std::size(propagation::kFrequencies)> kFrequencyIcons{{
    {icon_fq_3_5, drawing_fq_3_5},
    {icon_fq_7_0, drawing_fq_7_0},
    {icon_fq_10_1, drawing_fq_10_1},
    {icon_fq_14_0, drawing_fq_14_0},
    {icon_fq_18_1, drawing_fq_18_1},
    {icon_fq_21_0, drawing_fq_21_0},
    {icon_fq_24_9, drawing_fq_24_9},
    {icon_fq_28_0, drawing_fq_28_0},
    {icon_fq_user, drawing_fq_user},
}};
constexpr std::array<ui::ToolPicture, config::kParameters.size()> kParameterIcons{{
    {icon_signal, drawing_signal},
    {icon_snr, drawing_snr},
    {icon_muf, drawing_muf},
    {icon_rel, drawing_rel},
}};
static_assert(ui::kIdLastFrequency - ui::kIdFirstFrequency + 1 == kFrequencyIcons.size());

Tool FrequencyTool(std::size_t i)
{
    const auto& [label, megahertz] = propagation::kFrequencies[i];
    return {ui::kIdFirstFrequency + static_cast<int>(i), "tool", wxITEM_RADIO, kFrequencyIcons[i],
            megahertz ? label : "User frequency"};
}

Tool ParameterTool(std::size_t i)
{
    const auto& parameter = config::kParameters[i];
    return {parameter.tool, "tool", wxITEM_RADIO, kParameterIcons[i], parameter.toolName};
}

void AddTool(wxToolBar* bar, const Tool& tool)
{
    if (tool.kind == wxITEM_SEPARATOR)
        bar->AddSeparator();
    else
        bar->AddTool(tool.id, tool.label, ui::BundleOf(tool.icon), wxBitmapBundle(), tool.kind);
}

/// From the left.
std::vector<Tool> ToolsInOrder()
{
    std::vector<Tool> tools(std::begin(kCommandTools), std::end(kCommandTools));
    for (std::size_t i = 0; i < kFrequencyIcons.size(); ++i)
        tools.push_back(FrequencyTool(i));
    // Two radio groups side by side would be one.
    tools.push_back({wxID_SEPARATOR, "", wxITEM_SEPARATOR, {}, ""});
    for (std::size_t i = 0; i < kParameterIcons.size(); ++i)
        tools.push_back(ParameterTool(i));
    tools.push_back(kGreylineTool);
    return tools;
}
} // namespace

GUIFrame::GUIFrame(wxWindow* parent)
    : wxFrame(parent, wxID_ANY, "Kavmap V" KAV_VERSION " QQ0QQQ", wxDefaultPosition, wxSize(765, 550),
              wxDEFAULT_FRAME_STYLE | wxTAB_TRAVERSAL)
{
    CreateMenus();
    m_statusBar = CreateStatusBar(2, wxSTB_SIZEGRIP);
    m_canvas = new MapCanvas(this);
    m_canvas->SetScrollRate(5, 5);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_canvas, 1, wxEXPAND);
    SetSizer(sizer);
    CreateTools();
    BindCommands();
    BindKeyboard();
    ui::native::AllocateSize(this);
}

void GUIFrame::DoGiveHelp(const wxString& text, bool show)
{
    wxFrame::DoGiveHelp(text, show && !text.empty());
}

wxStatusBar* GUIFrame::OnCreateStatusBar(int number, long style, wxWindowID id, const wxString&)
{
    auto* const bar = new SharedStatusBar(this, id, style);
    bar->SetFieldsCount(number);
    return bar;
}

void GUIFrame::CreateMenus()
{
    auto* const file = new wxMenu;
    file->Append(ui::kIdQuit, "&Quit\tAlt+F4", "Quit the application");
    auto* const options = new wxMenu;
    options->Append(ui::kIdProperties, "&Properties");
    auto* const help = new wxMenu;
    help->Append(ui::kIdAbout, "&About", "Show info about this application");

    auto* const bar = new wxMenuBar;
    bar->Append(file, "&File");
    bar->Append(options, "&Options");
    bar->Append(help, "&Help");
    SetMenuBar(bar);
}

void GUIFrame::CreateTools()
{
    m_toolBar = CreateToolBar(wxTB_HORIZONTAL, ui::kIdToolBar);
    m_locator =
        new wxTextCtrl(m_toolBar, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_RIGHT | wxTE_PROCESS_ENTER);
    // A little wider than a locator: all tools must fit beside it.
    m_locator->SetInitialSize(m_locator->GetSizeFromText("JO65HQ0"));
    m_toolBar->AddControl(m_locator);
    const std::vector<Tool> tools = ToolsInOrder();
    for (const Tool& tool : tools)
        AddTool(m_toolBar, tool);
    m_toolBar->Realize();
    for (const Tool& tool : tools)
        if (tool.kind != wxITEM_SEPARATOR)
            ui::native::NameTool(m_toolBar, tool.id, tool.name);
    ui::native::Name(m_locator, "Locator of the station");
}

void GUIFrame::BindCommands()
{
    Bind(wxEVT_ACTIVATE, &GUIFrame::OnActivate, this);
    Bind(wxEVT_CLOSE_WINDOW, &GUIFrame::OnClose, this);
    Bind(wxEVT_MENU, &GUIFrame::OnQuit, this, ui::kIdQuit);
    Bind(wxEVT_MENU, &GUIFrame::OnProperties, this, ui::kIdProperties);
    Bind(wxEVT_MENU, &GUIFrame::OnAbout, this, ui::kIdAbout);
    Bind(wxEVT_TOOL, &GUIFrame::OnCreateMap, this, ui::kIdCreate);
    Bind(wxEVT_TOOL, &GUIFrame::OnSaveImage, this, ui::kIdSave);
    // The options tool passes its own handler and ends in that of the menu: handlers bound last are called first.
    Bind(wxEVT_TOOL, &GUIFrame::OnProperties, this, ui::kIdOptions);
    Bind(wxEVT_TOOL, &GUIFrame::OnOptionsTool, this, ui::kIdOptions);
    Bind(wxEVT_TOOL, &GUIFrame::OnAbout, this, ui::kIdHelp);
    Bind(wxEVT_TOOL, &GUIFrame::OnFrequencyTool, this, ui::kIdFirstFrequency, ui::kIdLastFrequency);
    for (const auto& parameter : config::kParameters)
        Bind(wxEVT_TOOL, &GUIFrame::OnParameterTool, this, parameter.tool);
    Bind(wxEVT_TOOL, &GUIFrame::OnGreylineTool, this, ui::kIdGreyline);
    m_canvas->Bind(wxEVT_LEFT_DOWN, &GUIFrame::OnCanvasLeftDown, this);
    m_canvas->Bind(wxEVT_MOTION, &GUIFrame::OnCanvasMotion, this);
}

void GUIFrame::BindKeyboard()
{
    m_locator->SetFocus();
    Bind(wxEVT_CHAR_HOOK, &GUIFrame::OnTab, this);
    m_locator->Bind(wxEVT_TEXT_ENTER,
                    [this](wxCommandEvent&)
                    {
                        wxCommandEvent create(wxEVT_TOOL, ui::kIdCreate);
                        if (m_toolBar->GetToolEnabled(ui::kIdCreate))
                            ProcessWindowEvent(create);
                    });
    // Bound after the handler of the left button, which ends the event, and so called before it.
    m_canvas->Bind(wxEVT_LEFT_DOWN,
                   [this](wxMouseEvent& event)
                   {
                       event.Skip();
                       m_canvas->SetFocusIgnoringChildren();
                   });
}

void GUIFrame::OnTab(wxKeyEvent& event)
{
    const bool back = event.GetModifiers() == wxMOD_SHIFT;
    if (event.GetKeyCode() != WXK_TAB || (event.HasAnyModifiers() && !back))
        return event.Skip();
    // The canvas comes after the toolbar, and before it.
    if (!ui::native::MoveFocusOnToolBar(m_toolBar, back ? -1 : 1))
        m_canvas->SetFocusIgnoringChildren();
}
