#pragma once

#include "ui/options/VoacapAntennaPage.h"
#include "ui/options/VoacapAppearancePage.h"
#include "ui/options/VoacapMainPage.h"

namespace ui
{
/// The page with the inner notebook. It tells while its fields are filled in what voacapl will not read as it is typed.
class VoacapPage
{
public:
    VoacapPage(wxBookCtrlBase* outer, Editing& editing);
    VoacapPage(const VoacapPage&) = delete;
    VoacapPage& operator=(const VoacapPage&) = delete;

    wxBookCtrlBase* book;

private:
    Editing& m_editing;
    VoacapNotes m_notes;

public:
    // Made in this order.
    VoacapMainPage main;
    VoacapAppearancePage appearance;
    VoacapAntennaPage antenna;

private:
    void WatchInput();
    void OnInput(wxCommandEvent& event);
    void ShowNotes();
};
} // namespace ui
