#include "tests/support/FrameFixture.h"
#include "tests/support/OptionsFixture.h"
#include "tests/support/Pictures.h"

#include <wx/fontpicker.h>
#include <wx/scrolwin.h>

#include <gtk/gtk.h>

#include <cstdlib>

namespace
{
/// Pixels of a picture at another density than the first.
class ToolPicturesTest : public FrameFixture
{
protected:
    Colours At(std::size_t position, std::size_t density)
    {
        const wxBitmapBundle bundle = Tools().GetToolByPos(static_cast<int>(position))->GetNormalBitmapBundle();
        const wxImage image = bundle.GetBitmap(wxSize(16, 15) * static_cast<int>(density)).ConvertToImage();
        wxImage onWhite(image.GetSize());
        for (int y = 0; y < image.GetHeight(); ++y)
            for (int x = 0; x < image.GetWidth(); ++x)
                if (image.IsTransparent(x, y))
                    onWhite.SetRGB(x, y, 255, 255, 255);
                else
                    onWhite.SetRGB(x, y, image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y));
        wxBitmap bitmap(onWhite);
        return ColoursOf(bitmap);
    }

    std::vector<std::size_t> Positions()
    {
        std::vector<std::size_t> positions;
        for (std::size_t i = 1; i < Tools().GetToolsCount(); ++i) // the locator field is the first
            if (!Tools().GetToolByPos(static_cast<int>(i))->IsSeparator())
                positions.push_back(i);
        return positions;
    }
};

bool IsScaledUp(const Colours& picture, std::size_t density)
{
    for (std::size_t y = 0; y < picture.size(); ++y)
        for (std::size_t x = 0; x < picture[y].size(); ++x)
            if (picture[y][x] != picture[y - y % density][x - x % density])
                return false;
    return true;
}

/// The mean difference of a colour channel, 0 to 255, between the larger picture and the smaller below it.
double Difference(const Colours& large, const Colours& small, std::size_t density)
{
    double sum = 0;
    std::size_t count = 0;
    for (std::size_t y = 0; y < large.size(); ++y)
        for (std::size_t x = 0; x < large[y].size(); ++x)
            for (const int shift : {0, 8, 16})
            {
                const auto channel = [shift](render::Argb colour) { return static_cast<int>(colour >> shift & 255U); };
                sum += std::abs(channel(large[y][x]) - channel(small[y / density][x / density]));
                ++count;
            }
    return sum / static_cast<double>(count);
}

TEST_F(ToolPicturesTest, AreDrawnForScreensOfMorePixels)
{
    for (const std::size_t density : {2U, 3U})
        for (const std::size_t position : Positions())
        {
            const Colours picture = At(position, density);
            ASSERT_EQ(picture.size(), 15U * density);
            EXPECT_FALSE(IsScaledUp(picture, density)) << position;
        }
}

TEST_F(ToolPicturesTest, AreTheSameAtEveryDensity)
{
    for (const std::size_t density : {2U, 3U})
        for (const std::size_t position : Positions())
        {
            const Colours picture = At(position, density);
            const double difference = Difference(picture, At(position, 1), density);
            for (const std::size_t other : Positions())
                if (other != position)
                {
                    EXPECT_LT(difference, Difference(picture, At(other, 1), density)) << position << ' ' << other;
                }
        }
}

using OptionsOnSmallScreensTest = OptionsFixture;

std::size_t CountScrolledWindows(wxWindow* window, bool withBarsInSight)
{
    std::size_t count = 0;
    if (dynamic_cast<wxScrolledWindow*>(window))
        count += (gtk_scrolled_window_get_overlay_scrolling(GTK_SCROLLED_WINDOW(window->GetHandle())) == FALSE) ==
                         withBarsInSight
                     ? 1
                     : 0;
    for (wxWindow* const child : window->GetChildren())
        count += CountScrolledWindows(child, withBarsInSight);
    return count;
}

TEST_F(OptionsOnSmallScreensTest, ShowThatAPageGoesOn)
{
    EXPECT_GE(CountScrolledWindows(dialog, true), 10u);
    EXPECT_EQ(CountScrolledWindows(dialog, false), 0u);
}

TEST_F(OptionsOnSmallScreensTest, NameEveryFontInTheOrdinaryOne)
{
    std::size_t count = 0;
    ForEachWindow(dialog,
                  [&count](wxWindow* window)
                  {
                      if (auto* const picker = dynamic_cast<wxFontPickerCtrl*>(window))
                      {
                          GtkWidget* const button = picker->GetPickerCtrl()->GetHandle();
                          EXPECT_FALSE(gtk_font_button_get_use_font(GTK_FONT_BUTTON(button)));
                          ++count;
                      }
                  });
    EXPECT_EQ(count, 6u);
}
} // namespace
