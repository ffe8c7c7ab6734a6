#include "ui/options/Controls.h"

#include "ui/Native.h"

#include <wx/log.h>
#include <wx/utils.h>
#include <wx/valtext.h>

#include <algorithm>

namespace
{
constexpr int kTextPadding = 10;          ///< above and below a text in a field, together
constexpr int kFontButtonWidth = 150;     ///< at least
constexpr int kFontButtonDecoration = 50; ///< beside the name of the font and its size

/// A file picker whose browsing dialog is made when it is asked for. The toolkit's own makes one at once: with sixteen
/// of them the options dialog would take its time to open.
class FilePicker : public wxFilePickerCtrl
{
protected:
    wxFileDirPickerWidgetBase* CreatePicker(wxWindow* parent, const wxString& path, const wxString& message,
                                            const wxString& wildcard) override
    {
        return new wxGenericFileButton(parent, wxID_ANY, wxGetTranslation(wxFilePickerWidgetLabel), path, message,
                                       wildcard, wxDefaultPosition, wxDefaultSize, GetPickerStyle(GetWindowStyle()));
    }
};

class DirectoryPicker : public wxDirPickerCtrl
{
protected:
    wxFileDirPickerWidgetBase* CreatePicker(wxWindow* parent, const wxString& path, const wxString& message,
                                            const wxString&) override
    {
        return new wxGenericDirButton(parent, wxID_ANY, wxGetTranslation(wxDirPickerWidgetLabel), path, message,
                                      wxDefaultPosition, wxDefaultSize, GetPickerStyle(GetWindowStyle()));
    }
};

/// What a field needs for its text in any font: the toolkit's own idea of it is too low for large ones.
int HeightFor(const wxWindow* field)
{
    return field->GetCharHeight() + kTextPadding;
}

/// The toolkit would drop a path of more than 512 characters, and the lower part of a large font.
void MakeRoom(wxPickerBase* picker)
{
    picker->GetTextCtrl()->SetMaxLength(0);
    picker->GetTextCtrl()->SetMinSize(wxSize(-1, HeightFor(picker->GetTextCtrl())));
    picker->InvalidateBestSize();
}

void OpenAddress(wxHyperlinkEvent& event)
{
    const wxLogNull quiet;
    wxLaunchDefaultBrowser(event.GetURL());
}
} // namespace

namespace ui
{
wxScrolledWindow* NewPage(wxBookCtrlBase* book, const wxString& title)
{
    auto* const page = new wxScrolledWindow(book);
    page->SetScrollRate(10, 10);
    native::KeepScrollBarsInSight(page);
    book->AddPage(page, title);
    return page;
}

wxSpinCtrl* NewSpin(wxWindow* parent, int min, int max, long style)
{
    return new wxSpinCtrl(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS | style, min, max,
                          min);
}

wxChoice* NewChoice(wxWindow* parent, const wxArrayString& entries)
{
    auto* const choice = new wxChoice(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, entries);
    choice->SetSelection(0);
    return choice;
}

wxRadioBox* NewRadioBox(wxWindow* parent, const wxString& label, const wxArrayString& entries, int columns)
{
    return new wxRadioBox(parent, wxID_ANY, label, wxDefaultPosition, wxDefaultSize, entries, columns,
                          wxRA_SPECIFY_COLS);
}

wxFontPickerCtrl* NewFont(wxWindow* parent)
{
    // The label is in the ordinary font: one in a large font of its own has no room.
    auto* const font =
        new wxFontPickerCtrl(parent, wxID_ANY, wxNullFont, wxDefaultPosition, wxDefaultSize, wxFNTP_FONTDESC_AS_LABEL);
    // Whatever the name of the font: a button shortens one that is longer than most.
    const int usual = font->GetTextExtent("Verdana Bold").x + font->GetTextExtent("20").x + kFontButtonDecoration;
    font->SetMinSize(wxSize(std::max(kFontButtonWidth, usual), -1));
    return font;
}

wxTextCtrl* NewText(wxWindow* parent, int digits, const wxString& text)
{
    auto* const field = new wxTextCtrl(parent, wxID_ANY, text);
    const wxString widest('0', static_cast<std::size_t>(digits));
    wxSize size = field->GetSizeFromTextSize(field->GetTextExtent(widest).x);
    size.y = std::max(size.y, HeightFor(field));
    field->SetMinSize(size);
    return field;
}

wxTextCtrl* NewFiltered(wxWindow* parent, int digits, const wxString& characters)
{
    wxTextCtrl* const field = NewText(parent, digits);
    wxTextValidator filter(wxFILTER_INCLUDE_CHAR_LIST);
    filter.SetCharIncludes(characters);
    field->SetValidator(filter);
    return field;
}

wxFilePickerCtrl* NewFile(wxWindow* parent, const wxString& wildcard, long style)
{
    auto* const picker = new FilePicker;
    picker->Create(parent, wxID_ANY, "", "Select a file", wildcard, wxDefaultPosition, wxDefaultSize,
                   wxFLP_OPEN | wxFLP_FILE_MUST_EXIST | wxFLP_USE_TEXTCTRL | style);
    MakeRoom(picker);
    return picker;
}

wxDirPickerCtrl* NewDirectory(wxWindow* parent)
{
    auto* const picker = new DirectoryPicker;
    picker->Create(parent, wxID_ANY, "", "Select a folder", wxDefaultPosition, wxDefaultSize,
                   wxDIRP_DIR_MUST_EXIST | wxDIRP_USE_TEXTCTRL);
    MakeRoom(picker);
    return picker;
}

wxHyperlinkCtrl* NewLink(wxWindow* parent, const wxString& label, const wxString& address)
{
    auto* const link = new wxHyperlinkCtrl(parent, wxID_ANY, label, address);
    link->Bind(wxEVT_HYPERLINK, &OpenAddress);
    return link;
}
} // namespace ui
