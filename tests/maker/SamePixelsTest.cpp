#include "maker/MapMaker.h"

#include "render/Images.h"
#include "render/MapPicture.h"
#include "render/MapRows.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

namespace
{
/// The map of any settings, made in rows and made of bitmaps.
class SamePixelsTest : public testing::Test, protected MapListener
{
protected:
    void OnStep(const wxString&) override {}
    void OnError(const wxString& text) override { ADD_FAILURE() << text.utf8_string(); }

    long Between(long least, long most) { return std::uniform_int_distribution(least, most)(random); }
    bool Perhaps() { return Between(0, 2) == 0; }
    long AnyColour() { return Between(0, 0xFFFFFF); }

    void Vary(LineStyle& style) { style = {Perhaps(), AnyColour(), Between(0, 255), Between(1, 12)}; }

    void Vary(TextStyle& style)
    {
        static constexpr std::array kFonts{"DejaVu Sans 9", "DejaVu Serif Bold 13", "DejaVu Sans Mono 24"};
        style.show = Perhaps();
        style.colour = AnyColour();
        style.alpha = Between(0, 255);
        style.font = kFonts[static_cast<std::size_t>(Between(0, 2))];
    }

    void VaryFiles()
    {
        static constexpr std::array kLabels{KAV_DATA_DIR "/cities.dat", KAV_DATA_DIR "/countries.dat",
                                            KAV_DATA_DIR "/prefixes.dat"};
        static constexpr std::array kLines{KAV_DATA_DIR "/mapper.pnt", KAV_DATA_DIR "/states.pnt"};
        for (BorderSlot& slot : settings.borders)
        {
            Vary(slot);
            slot.file = kLines[static_cast<std::size_t>(Between(0, 1))];
        }
        for (TextSlot& slot : settings.texts)
        {
            Vary(slot);
            slot.file = kLabels[static_cast<std::size_t>(Between(0, 2))];
            slot.align = static_cast<int>(Between(0, 9));
            slot.avoidCollisions = Perhaps();
        }
        for (PlotSquaresSlot& slot : settings.plotSquares)
        {
            slot.show = Perhaps();
            slot.file = KAV_DATA_DIR "/sample.log";
            slot.alpha = Between(0, 255);
            slot.stipple = static_cast<int>(Between(0, 6));
            slot.borderColour = AnyColour();
            slot.fillColour = AnyColour();
        }
    }

    void VaryOverlays()
    {
        settings.greyzone = {!Perhaps(),
                             Between(0, 40),
                             Perhaps(),
                             Between(0, 100),
                             Between(0, 100),
                             kOnce,
                             {2026, static_cast<int>(Between(0, 11)), 20, static_cast<int>(Between(0, 23)), 0, 0}};
        PropagationSettings& p = settings.propagation;
        p.show = Perhaps();
        p.useExternalResult = true;
        p.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
        p.parameter = static_cast<int>(Between(0, 3));
        p.alpha = Between(0, 255);
        p.legend = static_cast<int>(Between(0, 1));
    }

    void VaryMap()
    {
        static constexpr std::array kLatitudes{90.0, -90.0, 55.6875, 0.0};
        settings.size = Between(100, 400);
        settings.centreLat = kLatitudes[static_cast<std::size_t>(Between(0, 3))];
        settings.centreLon = static_cast<double>(Between(-1800, 1800)) / 10;
        settings.zoom = Between(1, 20) * 1000;
        for (LineStyle* const lines :
             std::initializer_list<LineStyle*>{&settings.meridians, &settings.fields, &settings.squares,
                                               &settings.compass, &settings.radials, &settings.rangeCircles})
            Vary(*lines);
        for (TextStyle* const text : {&settings.fields.text, &settings.squares.text, &settings.compass.text})
            Vary(*text);
        settings.compass.insideMap = Perhaps();
        settings.radials.every = static_cast<int>(Between(0, 4));
        settings.rangeCircles.distanceKm = Between(100, 3000);
        settings.rangeCircles.legendShow = Perhaps();
    }

    void Make(MapSurface& map) { EXPECT_EQ(MapMaker(settings, map, *this).MakeMap(), MapMaker::Creation::Finished); }

    const TemporaryHome home;
    Settings settings = DefaultSettings();
    std::mt19937 random{2026};
};

TEST_F(SamePixelsTest, OfAMapInRowsAndOfBitmaps)
{
    for (int round = 0; round < 15; ++round)
    {
        VaryMap();
        VaryFiles();
        VaryOverlays();
        MapRows rows;
        MapPicture picture;
        Make(rows);
        Make(picture);
        const wxImage one = render::ImageOf(rows);
        const wxImage other = picture.Compose();
        ASSERT_EQ(one.GetSize(), other.GetSize());
        ASSERT_EQ(
            0, std::memcmp(one.GetData(), other.GetData(), static_cast<std::size_t>(3 * settings.size * settings.size)))
            << "round " << round;
    }
}
} // namespace
