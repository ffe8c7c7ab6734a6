#include "render/BorderLines.h"

#include "tests/support/Stencil.h"

#include <filesystem>
#include <random>

namespace
{
using render::BorderRecord;

std::string BytesOf(const std::vector<BorderRecord>& records)
{
    std::string bytes;
    for (const BorderRecord& record : records)
        for (const int value : {record.code, record.lat, record.lon})
            for (const int shift : {0, 8})
                bytes.push_back(static_cast<char>(value >> shift & 255));
    return bytes;
}

class BorderLinesTest : public LayerFixture
{
protected:
    BorderLinesTest()
    {
        settings.centreLat = 0;
        settings.centreLon = 0;
    }

    static std::vector<BorderRecord> ReadAll(const wxString& path)
    {
        std::vector<BorderRecord> records;
        render::BorderFile file(path);
        for (BorderRecord record{}; file.Next(record);)
            records.push_back(record);
        return records;
    }

    std::vector<std::pair<geo::Pixel, geo::Pixel>> Trace(const std::vector<BorderRecord>& records) const
    {
        const MapView view = View();
        std::vector<std::pair<geo::Pixel, geo::Pixel>> segments;
        const auto collect = [&](geo::Pixel from, geo::Pixel to) { segments.emplace_back(from, to); };
        render::BorderTracer tracer(view);
        for (const BorderRecord& record : records)
            tracer.Add(record, collect);
        return segments;
    }

    Ink Draw(const wxString& path, const wxColour& colour = *wxBLACK) const
    {
        return Paint([&](wxDC& dc) { render::DrawBorderLines(dc, View(), path); }, colour);
    }

    void ExpectEmptyLayer(const wxString& path) const { EXPECT_TRUE(Draw(path).Bounds().IsEmpty()) << path; }
};

TEST_F(BorderLinesTest, ReadLittleEndianRecords)
{
    const std::vector<BorderRecord> records{{1000, 3341, 758}, {999, -5400, 10800}, {-32768, 5400, -10800}};
    EXPECT_EQ(ReadAll(home.Write("a.pnt", BytesOf(records))), records);
    EXPECT_EQ(ReadAll(home.Write("b.pnt", std::string("\xE8\x03\x01\x00\xFF\xFF", 6))),
              (std::vector<BorderRecord>{{1000, 1, -1}}));
}

TEST_F(BorderLinesTest, ReadAShortLastRecordOverTheOneBefore)
{
    const std::string bytes = BytesOf({{1000, 100, 200}, {0, 0x1234, 0x5678}});
    const std::vector<BorderRecord> cut = ReadAll(home.Write("cut.pnt", bytes.substr(0, 9)));
    EXPECT_EQ(cut, (std::vector<BorderRecord>{{1000, 100, 200}, {0, 0x0034, 200}}));
}

TEST_F(BorderLinesTest, ReadOneToFiveBytesAsARecord)
{
    EXPECT_TRUE(ReadAll(home.Write("none.pnt", "")).empty());
    for (std::size_t length = 1; length < 6; ++length)
    {
        const auto records = ReadAll(home.Write("short.pnt", std::string("\x01\x02\x03\x04\x05").substr(0, length)));
        ASSERT_EQ(records.size(), 1u);
        EXPECT_EQ(records[0].code, length == 1 ? 1 : 0x0201);
        EXPECT_EQ(records[0].lon, length == 5 ? 5 : 0);
    }
}

TEST_F(BorderLinesTest, ReadFilesOfAnyLengthWhole)
{
    std::vector<BorderRecord> records;
    for (int i = 0; i < 30000; ++i)
        records.push_back(
            {static_cast<std::int16_t>(i % 2000), static_cast<std::int16_t>(i / 7), static_cast<std::int16_t>(-i)});
    // At the end of a block, before it and behind it.
    for (const std::size_t count : {9999u, 10000u, 10001u, 20000u, 30000u})
    {
        records.resize(30000);
        records.resize(count);
        EXPECT_EQ(ReadAll(home.Write("long.pnt", BytesOf(records))), records) << count;
    }
}

TEST_F(BorderLinesTest, DrawALineFromAMoveToADraw)
{
    const auto segments = Trace({{1000, 0, 600}, {999, 600, 600}});
    ASSERT_EQ(segments.size(), 1u);
    const MapView view = View();
    const OtherWay from(view, 0, 10);
    const OtherWay to(view, 10, 10);
    EXPECT_NEAR(segments[0].first.x, from.x + 0.5, 1.01);
    EXPECT_NEAR(segments[0].second.y, to.y + 0.5, 1.01);
    const Ink ink = Draw(home.Write("line.pnt", BytesOf({{1000, 0, 600}, {999, 600, 600}})), wxColour(1, 2, 255));
    Stencil stencil(300, 1.5);
    stencil.Line(from.x, from.y, to.x, to.y);
    EXPECT_TRUE(stencil.Fits(ink));
    EXPECT_EQ(ink.colours, Only(wxColour(1, 2, 255)));
}

TEST_F(BorderLinesTest, TellMovesFromDrawsAt1000)
{
    EXPECT_EQ(Trace({{1000, 0, 600}, {1000, 0, 900}, {32767, 0, 1200}}).size(), 0u);
    EXPECT_EQ(Trace({{1000, 0, 600}, {999, 0, 900}, {0, 0, 1200}, {-1, 0, 1300}, {-32768, 0, 1400}}).size(), 4u);
}

TEST_F(BorderLinesTest, LeaveADotWhereAPointIsRepeated)
{
    EXPECT_EQ(Trace({{1000, 0, 600}, {0, 0, 600}, {0, 0, 600}}).size(), 2u);
}

TEST_F(BorderLinesTest, BreakWhereTheyLeaveTheDiscAndResumeInside)
{
    settings.zoom = 2000; // 18 degrees
    const auto segments =
        Trace({{1000, 0, 300}, {0, 0, 600}, {0, 0, 1500}, {0, 0, 1600}, {0, 0, 900}, {0, 0, 660}, {0, 60, 660}});
    ASSERT_EQ(segments.size(), 3u);
    EXPECT_EQ(segments[1].first, Trace({{1000, 0, 900}, {0, 0, 660}})[0].first);
}

TEST_F(BorderLinesTest, BreakWhereAMoveIsNotVisible)
{
    settings.zoom = 2000;
    EXPECT_EQ(Trace({{1000, 0, 300}, {1000, 0, 1500}, {0, 0, 600}, {0, 0, 660}}).size(), 1u);
}

TEST_F(BorderLinesTest, BreakAtTheCentre)
{
    EXPECT_EQ(Trace({{1000, 0, 300}, {0, 0, 0}, {0, 0, -300}, {0, 0, -600}}).size(), 1u);
}

TEST_F(BorderLinesTest, BeginInTheCornerWithoutAMove)
{
    const auto segments = Trace({{0, 0, 600}});
    ASSERT_EQ(segments.size(), 1u);
    EXPECT_EQ(segments[0].first, (geo::Pixel{0, 0}));
}

TEST_F(BorderLinesTest, RunIntoTheCornersWithoutTheCompass)
{
    settings.zoom = 2000;
    const wxString path = home.Write("far.pnt", BytesOf({{1000, 1020, 1020}, {0, 1140, 1140}}));
    ExpectEmptyLayer(path);
    settings.compass.show = false;
    EXPECT_GT(Draw(path).Bounds().width, 5); // 2800 km away
}

TEST_F(BorderLinesTest, StayInsideTheRingWithTheCompass)
{
    settings.zoom = 2000;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> minutes(-1500, 1500);
    std::vector<BorderRecord> records;
    for (int i = 0; i < 500; ++i)
        records.push_back({static_cast<std::int16_t>(i % 50 == 0 ? 1000 : 0),
                           static_cast<std::int16_t>(minutes(random)), static_cast<std::int16_t>(minutes(random))});
    records[0] = {1000, 10, 10};
    Draw(home.Write("wild.pnt", BytesOf(records)))
        .ForEach([](int x, int y) { EXPECT_LE(std::hypot(x - 150, y - 150), 151); });
}

TEST_F(BorderLinesTest, OfAnEmptyFileAreAnEmptyLayer)
{
    const LogLines log;
    ExpectEmptyLayer(home.Write("empty.pnt", ""));
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(BorderLinesTest, OfAFileThatIsNotThereAreReportedByTheLog)
{
    const LogLines log;
    ExpectEmptyLayer("no such file.pnt");
    EXPECT_TRUE(ReadAll("no such file.pnt").empty());
    ASSERT_EQ(log.lines.size(), 2u);
    EXPECT_TRUE(log.lines[0].Contains("no such file.pnt")) << log.lines[0];
}

TEST_F(BorderLinesTest, OfADirectoryAreReportedByTheLog)
{
    const LogLines log;
    ExpectEmptyLayer(home.Path(""));
    EXPECT_EQ(log.lines.size(), 1u);
}

TEST_F(BorderLinesTest, OfRandomBytesAreDrawn)
{
    std::mt19937 random(1);
    std::string bytes(60001, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    EXPECT_EQ(Draw(home.Write("random.pnt", bytes)).colours, Only(*wxBLACK));
}

TEST_F(BorderLinesTest, OfAHundredMegabytesAreDrawn)
{
    const wxString path = home.Write("huge.pnt", BytesOf({{1000, 0, 600}, {0, 600, 600}}));
    std::filesystem::resize_file(path.utf8_string(), 100000000);
    EXPECT_EQ(Draw(path).colours, Only(*wxBLACK));
}

TEST_F(BorderLinesTest, ShipWithTheProgram)
{
    settings.zoom = 20000;
    std::size_t pixels = 0;
    Draw(KAV_DATA_DIR "/mapper.pnt").ForEach([&](int, int) { ++pixels; });
    EXPECT_GT(pixels, 3000u);
}
} // namespace
