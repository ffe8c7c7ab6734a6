#include "tests/support/FrameFixture.h"
#include "tests/support/OptionsFixture.h"

#include <gmock/gmock.h>

#include <gtk/gtk.h>

#include <algorithm>
#include <set>
#include <string>

namespace
{
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// What a screen reader has to say about one thing on the screen.
struct Spoken
{
    AtkRole role;
    std::string name;
    std::vector<std::string> labels; ///< by which it is labelled

    std::string Text() const
    {
        std::string text = std::string(atk_role_get_name(role)) + " \"" + name + "\"";
        for (const std::string& label : labels)
            text += " labelled \"" + label + "\"";
        return text;
    }
};

std::string NameOf(AtkObject* object)
{
    const char* const name = atk_object_get_name(object);
    return name ? name : "";
}

Spoken SpokenOf(AtkObject* object)
{
    Spoken spoken{atk_object_get_role(object), NameOf(object), {}};
    AtkRelationSet* const relations = atk_object_ref_relation_set(object);
    if (AtkRelation* const labels = atk_relation_set_get_relation_by_type(relations, ATK_RELATION_LABELLED_BY))
        for (const GPtrArray* targets = atk_relation_get_target(labels); spoken.labels.size() < targets->len;)
            spoken.labels.push_back(NameOf(static_cast<AtkObject*>(targets->pdata[spoken.labels.size()])));
    g_object_unref(relations);
    return spoken;
}

/// Everything in a window, in the order in which a screen reader finds it.
void CollectSpoken(AtkObject* object, std::vector<Spoken>& all)
{
    all.push_back(SpokenOf(object));
    for (int i = 0; i < atk_object_get_n_accessible_children(object); ++i)
        if (AtkObject* const child = atk_object_ref_accessible_child(object, i))
        {
            CollectSpoken(child, all);
            g_object_unref(child);
        }
}

std::vector<Spoken> SpokenIn(wxWindow* window)
{
    std::vector<Spoken> all;
    CollectSpoken(gtk_widget_get_accessible(window->GetHandle()), all);
    return all;
}

/// What one types into, presses or chooses from.
bool IsControl(AtkRole role)
{
    static const std::set<AtkRole> kRoles{
        ATK_ROLE_PUSH_BUTTON, ATK_ROLE_TOGGLE_BUTTON, ATK_ROLE_RADIO_BUTTON, ATK_ROLE_CHECK_BOX, ATK_ROLE_TEXT,
        ATK_ROLE_SPIN_BUTTON, ATK_ROLE_COMBO_BOX,     ATK_ROLE_SLIDER,       ATK_ROLE_CALENDAR,  ATK_ROLE_PAGE_TAB};
    return kRoles.contains(role);
}

/// What screen readers find in a window.
class Voice
{
public:
    explicit Voice(wxWindow* window) : m_all(SpokenIn(window)) {}

    std::vector<std::string> Nameless() const
    {
        return TextsOf([](const Spoken& spoken) { return IsControl(spoken.role) && spoken.name.empty(); });
    }

    /// Controls of one kind that nobody could tell apart.
    std::vector<std::string> Ambiguous() const
    {
        std::set<std::string> seen;
        return TextsOf([&](const Spoken& spoken)
                       { return IsControl(spoken.role) && !seen.insert(spoken.Text()).second; });
    }

    /// Controls labelled by a text that their name does not begin with, as far as lines go.
    std::vector<std::string> Mislabelled() const
    {
        return TextsOf(
            [](const Spoken& spoken)
            {
                for (std::string label : spoken.labels)
                {
                    std::ranges::replace(label, '\n', ' ');
                    label.erase(label.find_last_not_of(' ') + 1);
                    if (label.empty() || spoken.name.rfind(label, 0) != 0)
                        return true;
                }
                return false;
            });
    }

    std::vector<std::string> NamesOf(AtkRole role) const
    {
        std::vector<std::string> names;
        for (const Spoken& spoken : m_all)
            if (spoken.role == role)
                names.push_back(spoken.name);
        return names;
    }

    /// The labels of a control, by its name.
    std::vector<std::string> LabelsOf(const std::string& name) const
    {
        for (const Spoken& spoken : m_all)
            if (spoken.name == name && IsControl(spoken.role))
                return spoken.labels;
        return {"no control " + name};
    }

private:
    template <class Condition>
    std::vector<std::string> TextsOf(Condition condition) const
    {
        std::vector<std::string> texts;
        for (const Spoken& spoken : m_all)
            if (condition(spoken))
                texts.push_back(spoken.Text());
        return texts;
    }

    std::vector<Spoken> m_all;
};

class AccessibleFrameTest : public FrameFixture
{
protected:
    GtkToolItem* ToolItem(int id) const
    {
        auto* const field = static_cast<GtkWidget*>(LocatorField().GetHandle());
        auto* const bar = GTK_TOOLBAR(gtk_widget_get_ancestor(field, GTK_TYPE_TOOLBAR));
        return gtk_toolbar_get_nth_item(bar, Tools().GetToolPos(id));
    }

    /// From now on keeps what is announced.
    void Listen()
    {
        const auto hear =
            +[](AtkObject*, const char* text, std::vector<std::string>* texts) { texts->push_back(text); };
        g_signal_connect(gtk_widget_get_accessible(frame->GetStatusBar()->GetHandle()), "announcement",
                         G_CALLBACK(hear), &said);
    }

    std::vector<std::string> said;
};

TEST_F(AccessibleFrameTest, NamesEveryToolAndTheField)
{
    const Voice voice(frame);
    EXPECT_THAT(voice.Nameless(), IsEmpty());
    EXPECT_THAT(voice.Ambiguous(), IsEmpty());
    EXPECT_THAT(voice.NamesOf(ATK_ROLE_PUSH_BUTTON), ElementsAre("Create", "Save", "Options", "Help"));
    EXPECT_THAT(voice.NamesOf(ATK_ROLE_RADIO_BUTTON),
                ElementsAre("3.5 MHz", "7.0 MHz", "10.1 MHz", "14.0 MHz", "18.1 MHz", "21.0 MHz", "24.9 MHz", "28 MHz",
                            "User frequency", "Signal power (SDBW)", "Signal-to-noise ratio (SNR)",
                            "Maximum usable frequency (MUF)", "Reliability (Rel)"));
    EXPECT_THAT(voice.NamesOf(ATK_ROLE_TOGGLE_BUTTON), Contains("Greyline"));
    EXPECT_THAT(voice.NamesOf(ATK_ROLE_TEXT), ElementsAre("Locator of the station"));
}

TEST_F(AccessibleFrameTest, ShowsWordsInTheMenuOfToolsThatHaveNoRoom)
{
    for (const auto& [id, words] :
         {std::pair(1005, "3.5 MHz"), {1014, "Signal-to-noise ratio (SNR)"}, {1017, "Greyline"}})
    {
        EXPECT_EQ(Tools().FindById(id)->GetLabel(), "tool");
        GtkWidget* const entry = gtk_tool_item_retrieve_proxy_menu_item(ToolItem(id));
        ASSERT_TRUE(GTK_IS_MENU_ITEM(entry));
        EXPECT_STREQ(gtk_menu_item_get_label(GTK_MENU_ITEM(entry)), words);
    }
}

TEST_F(AccessibleFrameTest, AnnouncesTheEndOfACreationAndErrors)
{
    Listen();
    ClickTool(ui::kIdCreate);
    EXPECT_THAT(said, ElementsAre("Finished..."));
    said.clear();
    settings->size = 99;
    ClickTool(ui::kIdCreate);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_THAT(said, ElementsAre(dialogs.messages[0].text.utf8_string()));
}

TEST_F(AccessibleFrameTest, AnnouncesThePlaceOfTheCross)
{
    ClickTool(ui::kIdCreate);
    Listen();
    wxKeyEvent key(wxEVT_KEY_DOWN);
    key.m_keyCode = WXK_HOME;
    key.SetShiftDown(true);
    Canvas().GetEventHandler()->ProcessEvent(key);
    EXPECT_THAT(said, ElementsAre("lat = 55.7 / long = 12.6 / JO65HQ /   0.0 km / 0.0 degs"));
}

class AccessibleOptionsTest : public OptionsFixture
{
protected:
    void SetUp() override
    {
        OptionsFixture::SetUp();
        dialog->Show();
        Settle();
    }
};

TEST_F(AccessibleOptionsTest, NamesEveryControl)
{
    const Voice voice(dialog);
    EXPECT_GT(voice.NamesOf(ATK_ROLE_SPIN_BUTTON).size(), 20u);
    EXPECT_THAT(voice.Nameless(), IsEmpty());
    EXPECT_THAT(voice.Ambiguous(), IsEmpty());
}

TEST_F(AccessibleOptionsTest, LabelsNothingWithTheTextOfAnother)
{
    const Voice voice(dialog);
    EXPECT_THAT(voice.Mislabelled(), IsEmpty());
    EXPECT_THAT(voice.LabelsOf("Size of map (in pixels)"), ElementsAre("Size of map (in pixels)"));
    EXPECT_THAT(voice.LabelsOf("SSN"), ElementsAre("SSN"));
    EXPECT_THAT(voice.LabelsOf("Antenna file: Receiver Antenna"), ElementsAre("Antenna file"));
    EXPECT_THAT(voice.LabelsOf("Borders 1: Plot"), IsEmpty());
    EXPECT_THAT(voice.LabelsOf("Meridians: Plot"), ElementsAre("Meridians"));
}
} // namespace
