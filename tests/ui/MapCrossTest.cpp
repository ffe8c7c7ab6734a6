#include "ui/MapCross.h"

#include "tests/support/Pictures.h"

#include <gtest/gtest.h>

#include <wx/dcmemory.h>

namespace
{
constexpr int kMapSide = 201;
constexpr int kMiddle = 100;

wxKeyEvent Key(int code, bool shift = true, bool control = false)
{
    wxKeyEvent key(wxEVT_KEY_DOWN);
    key.m_keyCode = code;
    key.m_shiftDown = shift;
    key.m_controlDown = control;
    return key;
}

struct Arrow
{
    int key, keyOfNumberPad;
    wxPoint way;
};
const Arrow kArrows[] = {{WXK_LEFT, WXK_NUMPAD_LEFT, {-1, 0}},
                         {WXK_RIGHT, WXK_NUMPAD_RIGHT, {1, 0}},
                         {WXK_UP, WXK_NUMPAD_UP, {0, -1}},
                         {WXK_DOWN, WXK_NUMPAD_DOWN, {0, 1}}};

TEST(MapCross, MovesFromTheStationByTenPixelsOrByOne)
{
    for (const Arrow& arrow : kArrows)
        for (const int key : {arrow.key, arrow.keyOfNumberPad})
        {
            MapCross cross;
            EXPECT_TRUE(cross.Move(Key(key), kMapSide));
            EXPECT_EQ(cross.Place(), wxPoint(kMiddle, kMiddle) + 10 * arrow.way) << key;
            EXPECT_TRUE(cross.Move(Key(key, true, true), kMapSide));
            EXPECT_EQ(cross.Place(), wxPoint(kMiddle, kMiddle) + 11 * arrow.way) << key;
        }
}

TEST(MapCross, StaysOnTheMap)
{
    for (const Arrow& arrow : kArrows)
    {
        MapCross cross;
        for (int i = 0; i < 12; ++i)
            EXPECT_TRUE(cross.Move(Key(arrow.key), kMapSide));
        EXPECT_EQ(cross.Place(), wxPoint(kMiddle, kMiddle) + kMiddle * arrow.way) << arrow.key;
    }
}

TEST(MapCross, GoesHomeToTheStation)
{
    for (const int home : {WXK_HOME, WXK_NUMPAD_HOME})
    {
        MapCross cross;
        cross.Move(Key(WXK_UP), kMapSide);
        EXPECT_TRUE(cross.Move(Key(home), kMapSide));
        EXPECT_EQ(cross.Place(), wxPoint(kMiddle, kMiddle));
        EXPECT_FALSE(cross.Move(Key(home, true, true), kMapSide));
    }
}

TEST(MapCross, LeavesOtherKeysAlone)
{
    MapCross cross;
    for (const wxKeyEvent& key :
         {Key(WXK_LEFT, false), Key(WXK_LEFT, false, true), Key(WXK_HOME, false), Key(WXK_END), Key('A')})
        EXPECT_FALSE(cross.Move(key, kMapSide)) << key.GetKeyCode();
    EXPECT_FALSE(cross.Place());
}

TEST(MapCross, HasFourArmsDarkWithinLightAndAnOpenMiddle)
{
    wxBitmap bitmap(kMapSide, kMapSide, 24);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(wxBrush(wxColour(0, 128, 255)));
    dc.Clear();
    MapCross cross;
    cross.Draw(dc);
    const auto ground = ColoursOf(bitmap);
    cross.Move(Key(WXK_HOME), kMapSide);
    cross.Draw(dc);
    dc.SelectObject(wxNullBitmap);
    const auto drawn = ColoursOf(bitmap);
    const auto at = [&](int x, int y)
    { return drawn[static_cast<std::size_t>(kMiddle + y)][static_cast<std::size_t>(kMiddle + x)]; };
    for (const auto& [x, y] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}})
    {
        for (int n = 3; n <= 8; ++n)
        {
            EXPECT_EQ(at(x * n, y * n), 0xFF000000U) << x << ", " << y << ": " << n;
            EXPECT_EQ(at(x * n + y, y * n + x), 0xFFFFFFFFU) << x << ", " << y << ": " << n;
        }
        EXPECT_EQ(at(x * 12, y * 12), ground[0][0]);
    }
    EXPECT_EQ(at(0, 0), ground[0][0]);
    cross.Hide();
    EXPECT_FALSE(cross.Place());
}
} // namespace
