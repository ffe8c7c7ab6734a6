#pragma once

#include "ui/options/Form.h"

#include <wx/button.h>
#include <wx/calctrl.h>

namespace ui
{
class TimePage
{
public:
    TimePage(wxBookCtrlBase* book, Editing& editing);
    TimePage(const TimePage&) = delete;
    TimePage& operator=(const TimePage&) = delete;

    wxRadioBox* mode;
    wxChoice* hour;
    wxChoice* minute;
    wxCalendarCtrl* date;
    wxButton* now;

private:
    wxSizer* NewClock(const Form& form);
    void ShowNow();
    void EnableFields(); ///< in real time they would do nothing
};
} // namespace ui
