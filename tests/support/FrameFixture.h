#pragma once

#include "tests/support/Await.h"
#include "tests/support/Dialogs.h"
#include "tests/support/TemporaryHome.h"
#include "ui/Ids.h"
#include "ui/WxKavFrame.h"

#include <gtest/gtest.h>

#include <optional>

/// A real main window on an empty home, with small maps, and what a user can do to it.
class FrameFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        auto fresh = std::make_unique<Configuration>("Kavdex");
        settings = fresh.get();
        settings->size = 200;
        frame = new WxKavFrame(nullptr, std::move(fresh), rotator);
        frame->Show();
        Settle();
    }

    void TearDown() override
    {
        if (frame)
            frame->Destroy();
        Settle();
    }

    /// Lets all pending events happen.
    static void Settle() { LetEventsHappen(); }

    /// Lets events happen until something has become true, a minute at most.
    template <class Condition>
    static bool Await(Condition condition)
    {
        return AwaitEvents(condition);
    }

    /// From now on keeps the texts of the steps of a creation.
    void RecordSteps()
    {
        frame->onStep = [this](const wxString& step) { steps.push_back(step); };
    }

    /// Switches off the layers that are shown by default.
    void HideLayers() const { settings->meridians.show = settings->compass.show = settings->radials.show = false; }

    void Command(wxEventType type, int id, bool checked = false)
    {
        wxCommandEvent event(type, id);
        event.SetInt(checked);
        event.SetEventObject(frame);
        frame->GetEventHandler()->ProcessEvent(event);
    }
    void ClickTool(int id, bool checked = false) { Command(wxEVT_TOOL, id, checked); }
    void ChooseMenu(int id) { Command(wxEVT_MENU, id); }

    wxToolBar& Tools() const { return *frame->GetToolBar(); }
    wxTextCtrl& LocatorField() const
    {
        return *dynamic_cast<wxTextCtrl*>(frame->GetToolBar()->FindControl(LocatorFieldId()));
    }
    MapCanvas& Canvas() const
    {
        for (wxWindow* child : frame->GetChildren())
            if (auto* canvas = dynamic_cast<MapCanvas*>(child))
                return *canvas;
        throw std::logic_error("no canvas");
    }
    wxString Status(int field) const { return frame->GetStatusBar()->GetStatusText(field); }

    const TemporaryHome home;
    Dialogs dialogs;
    std::optional<rotator::Address> rotator; ///< of the antenna; to be set before SetUp()
    Configuration* settings = nullptr;       ///< owned by the frame
    WxKavFrame* frame = nullptr;
    std::vector<wxString> steps; ///< see RecordSteps()

private:
    int LocatorFieldId() const
    {
        for (wxWindow* child : frame->GetToolBar()->GetChildren())
            if (dynamic_cast<wxTextCtrl*>(child))
                return child->GetId();
        return wxID_NONE;
    }
};
