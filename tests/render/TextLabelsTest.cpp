#include "render/TextLabels.h"

#include "render/LabelBox.h"
#include "render/Occupancy.h"
#include "tests/support/Stencil.h"

namespace
{
using render::Alignment;

TEST(LabelBox, StandsAroundOrBesideItsPlace)
{
    const geo::Pixel place{100, 200};
    const wxSize extent(31, 15);
    EXPECT_EQ(render::LabelBox(place, extent, Alignment::Centre), wxRect(85, 193, 31, 15));
    EXPECT_EQ(render::LabelBox(place, extent, Alignment::Left), wxRect(69, 193, 31, 15));
    EXPECT_EQ(render::LabelBox(place, extent, Alignment::Right), wxRect(100, 193, 31, 15));
    EXPECT_EQ(render::LabelBox(place, extent, Alignment::Top), wxRect(85, 185, 31, 15));
    EXPECT_EQ(render::LabelBox(place, extent, Alignment::Bottom), wxRect(85, 200, 31, 15));
}

TEST(Occupancy, TakesAPlaceOnce)
{
    render::Occupancy occupancy(200);
    EXPECT_TRUE(occupancy.Take({50, 50, 40, 10}));
    EXPECT_FALSE(occupancy.Take({50, 50, 40, 10}));
    EXPECT_FALSE(occupancy.Take({80, 55, 40, 10}));
    EXPECT_TRUE(occupancy.Take({120, 50, 40, 10}));
}

TEST(Occupancy, LooksOnlyAtOutlines)
{
    render::Occupancy occupancy(200);
    ASSERT_TRUE(occupancy.Take({100, 100, 10, 10}));
    EXPECT_TRUE(occupancy.Take({50, 50, 100, 100})); // around it
    EXPECT_TRUE(occupancy.Take({60, 60, 10, 10}));   // inside that
    EXPECT_FALSE(occupancy.Take({60, 60, 10, 10}));
    EXPECT_FALSE(occupancy.Take({45, 60, 10, 10})); // across its edge
}

TEST(Occupancy, LooksOnePixelFartherThanItTakes)
{
    // The first takes columns 48 to 91, the second looks at its own from 2 pixels before its box.
    const auto isFree = [](int x)
    {
        render::Occupancy occupancy(200);
        return occupancy.Take({50, 50, 40, 10}) && occupancy.Take({x, 50, 20, 10});
    };
    EXPECT_TRUE(isFree(94));
    EXPECT_FALSE(isFree(93));
    EXPECT_TRUE(isFree(25));  // looks up to column 47
    EXPECT_FALSE(isFree(26)); // to column 48, though it would take only up to 47
}

TEST(Occupancy, CountsWhatLiesOutsideAsFree)
{
    render::Occupancy occupancy(100);
    EXPECT_TRUE(occupancy.Take({-30, -5, 40, 10}));
    EXPECT_FALSE(occupancy.Take({5, 0, 40, 10}));
    for (int i = 0; i < 2; ++i)
        for (const wxRect& box : {wxRect(-1048576, 50, 20, 10), wxRect(1048576, 50, 20, 10), wxRect(200, 200, 5, 5)})
            EXPECT_TRUE(occupancy.Take(box));
}

TEST(TextLabel, IsTakenFromTheFieldsOfALine)
{
    const auto label = render::ParseTextLabel(L"JP;Tokyo;Capital;JPN;35.6850;-139.75;22006299");
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text, "Tokyo");
    EXPECT_EQ(label->place.lat, 35.685);
    EXPECT_EQ(label->place.lon, -139.75);
}

TEST(TextLabel, DropsEmptyFields)
{
    const auto label = render::ParseTextLabel(L";;a;;Name;;;State;b;;1.5;2.5;");
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text, "Name");
    EXPECT_EQ(label->place.lat, 1.5);
    EXPECT_EQ(label->place.lon, 2.5);
}

TEST(TextLabel, IsNoneForACountryInExactlyThatSpelling)
{
    EXPECT_FALSE(render::ParseTextLabel(L"a;Name;Country;b;1;2"));
    EXPECT_TRUE(render::ParseTextLabel(L"a;Name;country;b;1;2"));
    EXPECT_TRUE(render::ParseTextLabel(L"a;Name;Country ;b;1;2"));
    EXPECT_TRUE(render::ParseTextLabel(L"a;Country;State;b;1;2"));
}

TEST(TextLabel, TakesMissingFieldsAsEmptyAndZero)
{
    for (const wchar_t* line : {L"", L"only", L";", L";;;;"})
    {
        const auto label = render::ParseTextLabel(line);
        ASSERT_TRUE(label);
        EXPECT_EQ(label->text, "");
        EXPECT_EQ(label->place.lat, 0);
    }
    EXPECT_EQ(render::ParseTextLabel(L"a;Name;State;b;north;12.5E")->place.lat, 0);
    EXPECT_EQ(render::ParseTextLabel(L"a;Name;State;b;north;12.5E")->place.lon, 12.5);
}

TEST(TextLabel, SurvivesLinesThatAreNone)
{
    std::wstring manyFields;
    for (int i = 0; i < 10000; ++i)
        manyFields += L"7;";
    EXPECT_EQ(render::ParseTextLabel(manyFields)->place.lat, 7);
    EXPECT_EQ(render::ParseTextLabel(std::wstring(10000000, L'x'))->text, "");
    EXPECT_EQ(render::ParseTextLabel(L"a;" + std::wstring(10000000, L'x') + L";b;c;1;2")->text.length(), 1000u);
    EXPECT_EQ(render::ParseTextLabel(std::wstring(L"a;b\0c;d;e;1;2", 13))->place.lat, 1);
}

class TextLabelsTest : public LayerFixture
{
protected:
    TextLabelsTest()
    {
        settings.centreLat = 0;
        settings.centreLon = 0;
        settings.zoom = 2000;
        style.font = "Sans 10";
        style.colour = 0x0A64C8;
    }

    Ink Draw(std::wstring_view text) const
    {
        return Paint([&](wxDC& dc) { render::DrawTextLabels(dc, View(), text, style); });
    }

    std::size_t Count(std::wstring_view text) const
    {
        std::size_t count = 0;
        Draw(text).ForEach([&](int, int) { ++count; });
        return count;
    }

    /// What the first text alone, and what both of them leave, without respect to where they overlap.
    bool IsSecondDrawn(std::wstring_view first, std::wstring_view second) const
    {
        const std::wstring both = std::wstring(first) + L"\n" + std::wstring(second);
        return !(Draw(both) == Draw(first));
    }

    const wxColour kColour{0xC8, 0x64, 0x0A};
    TextSlot style;
};

TEST_F(TextLabelsTest, LeaveOnlyTheirColour)
{
    for (style.align = 0; style.align < 10; ++style.align)
        EXPECT_EQ(Draw(L"a;Hamlet;x;y;5;-5\nb;Horatio;x;y;-5;5\n").colours, Only(kColour));
}

TEST_F(TextLabelsTest, StandAtTheirPlace)
{
    const OtherWay place(View(), 6, -6);
    const double x = place.x + 0.5;
    const double y = place.y + 0.5;
    const auto boundsAt = [&](int align)
    {
        style.align = align;
        return Draw(L"a;HHHH;x;y;6;-6").Bounds();
    };
    const wxRect centre = boundsAt(0);
    EXPECT_NEAR(centre.x + centre.width / 2.0, x, 3);
    EXPECT_NEAR(centre.y + centre.height / 2.0, y, 4);
    EXPECT_LE(boundsAt(1).GetRight(), x + 1);
    EXPECT_GE(boundsAt(2).x, x - 1);
    EXPECT_LE(boundsAt(3).GetBottom(), y + 1);
    EXPECT_GE(boundsAt(4).y, y - 1);
    EXPECT_EQ(boundsAt(10), centre);
    EXPECT_EQ(boundsAt(-1), centre);
}

TEST_F(TextLabelsTest, HaveADotOfFourByFourPixels)
{
    const OtherWay place(View(), 6, -6);
    const int x = static_cast<int>(place.x + 0.5);
    const int y = static_cast<int>(place.y + 0.5);
    for (style.align = 5; style.align < 10; ++style.align)
        EXPECT_EQ(Draw(L"a; ;x;y;6;-6").Bounds(), wxRect(x - 2, y - 2, 4, 4)) << style.align;
    style.align = 9;
    EXPECT_EQ(Draw(L"a; ;x;y;6;-6").colours, Only(kColour));
    const wxRect bounds = Draw(L"a;HHHH;x;y;6;-6").Bounds();
    EXPECT_EQ(bounds.y, y - 2);
    EXPECT_GT(bounds.GetBottom(), y + 6);
}

TEST_F(TextLabelsTest, LeaveCountriesOut)
{
    EXPECT_EQ(Count(L"a;Name;Country;y;5;5"), 0u);
    EXPECT_GT(Count(L"a;Name;country;y;5;5"), 0u);
}

TEST_F(TextLabelsTest, LeaveTheStationOut)
{
    style.align = 5;
    EXPECT_EQ(Count(L"a;Home;x;y;0;0"), 0u);
}

TEST_F(TextLabelsTest, StayInsideTheZoomWithTheCompass)
{
    EXPECT_EQ(Count(L"a;Far;x;y;0;19"), 0u);
    settings.compass.show = false;
    settings.zoom = 2500;
    EXPECT_GT(Count(L"a;Far;x;y;0;19"), 0u);
}

TEST_F(TextLabelsTest, OverlapUnlessToldOtherwise)
{
    EXPECT_TRUE(IsSecondDrawn(L"a;HHHH;x;y;5;5", L"a;MMMM;x;y;5;5"));
    style.avoidCollisions = true;
    EXPECT_FALSE(IsSecondDrawn(L"a;HHHH;x;y;5;5", L"a;MMMM;x;y;5;5"));
    EXPECT_TRUE(IsSecondDrawn(L"a;HHHH;x;y;5;5", L"a;MMMM;x;y;-5;5"));
}

TEST_F(TextLabelsTest, BeginAFileWithAnEmptyPicture)
{
    style.avoidCollisions = true;
    EXPECT_GT(Count(L"a;HHHH;x;y;5;5"), 0u);
    EXPECT_GT(Count(L"a;HHHH;x;y;5;5"), 0u);
}

TEST_F(TextLabelsTest, SurviveCoordinatesThatAreNone)
{
    settings.compass.show = false;
    for (const wchar_t* position : {L"inf;inf", L"nan;5", L"-inf;0", L"1e308;1e308", L"1e400;-1e400", L"abc;def",
                                    L"99999999999999999999;5", L"5;99999999999999999999"})
        Count(std::wstring(L"a;Name;x;y;") + position);
    EXPECT_EQ(Count(L"a;Name;x;y;nan;5"), 0u);
    EXPECT_EQ(Count(L"a;Name;x;y;inf;5"), 0u);
}

TEST_F(TextLabelsTest, SurviveTextsThatAreNone)
{
    Count(L"a;" + std::wstring(10000000, L'x') + L";b;c;1;2");
    Count(std::wstring(L"a;b\0c;d;e;5;5", 13));
    Count(L"a;\x1F\x7F\t;x;y;5;5");
    EXPECT_GT(Count(L"a;\x5730\x56F3;x;y;5;5"), 0u);
}

TEST_F(TextLabelsTest, ReachThePictureFromOutside)
{
    settings.compass.show = false;
    settings.zoom = 1000; // the edge lies at 9 degrees
    style.align = 1;
    EXPECT_GT(Count(L"a;A rather long name;x;y;0;9.2"), 0u);
    EXPECT_EQ(Count(L"a;A rather long name;x;y;0;100"), 0u);
}

TEST_F(TextLabelsTest, OfAFileThatCannotBeReadAreNone)
{
    const LogLines log;
    EXPECT_FALSE(render::ReadLabelFile("no such file.dat"));
    EXPECT_FALSE(render::ReadLabelFile(home.Path("")));
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(TextLabelsTest, OfEveryEncodingAreRead)
{
    const std::wstring expected = L"a;Ålesund;x;y;5;5\r\n";
    EXPECT_EQ(render::ReadLabelFile(home.Write("a.dat", "a;\xC3\x85lesund;x;y;5;5\r\n")), expected);
    EXPECT_EQ(render::ReadLabelFile(home.Write("b.dat", "a;\xC5lesund;x;y;5;5\r\n")), expected);
}

TEST_F(TextLabelsTest, ShipWithTheProgram)
{
    for (const char* name : {"cities.dat", "countries.dat", "prefixes.dat"})
    {
        settings.zoom = 20000;
        const auto text = render::ReadLabelFile(wxString(KAV_DATA_DIR "/") + name);
        ASSERT_TRUE(text);
        EXPECT_GT(Count(*text), 1000u) << name;
    }
}
} // namespace
