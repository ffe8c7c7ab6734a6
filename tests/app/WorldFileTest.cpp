#include "tests/support/Pictures.h"
#include "tests/support/ProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <set>

#include <sys/stat.h>

namespace
{
using testing::HasSubstr;

using Pixels = std::set<std::pair<int, int>>;

/// World files as GDAL's tools read them.
class WorldFileTest : public ProgramTest
{
protected:
    /// A hundred cities, spread over the shipped ones, as labels without a text that can be seen.
    void WriteCities()
    {
        std::ifstream shipped(KAV_DATA_DIR "/cities.dat");
        std::string labels;
        std::string positions;
        int count = 0;
        for (std::string line; count < 100 && std::getline(shipped, line);)
        {
            std::istringstream fields(line);
            std::array<std::string, 6> field;
            for (std::string& text : field)
                std::getline(fields, text, ';');
            labels += "x;\xC2\xA0;City;x;" + field[4] + ";" + field[5] + ";x\n";
            positions += field[5] + " " + field[4] + "\n";
            ++count;
        }
        ASSERT_EQ(count, 100);
        home.Write("cities.dat", labels);
        home.Write("positions.txt", positions);
    }

    /// Draws the dots of the cities and nothing else in their colour.
    void Draw(double lat, double lon, int size, int zoom)
    {
        std::ostringstream settings;
        settings << "Size=" << size << "\nZoom=" << zoom << "\n[Center\\ pos]\nLat=" << lat << "\nLon=" << lon
                 << "\n[Compass]\nShow=0\nFontShow=0\n[Meridians]\nShow=0\n[Radials]\nShow=0\n"
                    "[Text]\nShow1=1\nFile1=cities.dat\nAlign1=5\nFontAlpha1=255\nFontColour1=16711935\nFont1=Sans 6\n";
        home.Write("map.ini", settings.str());
        ASSERT_EQ(Run("-s map.ini -r map.png --world-file"), 0) << home.Read("err.txt");
    }

    /// The pixels of the dots in the picture.
    Pixels Dots() const
    {
        const wxImage image = Picture("map.png");
        Pixels dots;
        for (int y = 0; y < image.GetHeight(); ++y)
            for (int x = 0; x < image.GetWidth(); ++x)
                if (image.GetRed(x, y) == 254 && image.GetGreen(x, y) == 0 && image.GetBlue(x, y) == 254)
                    dots.insert({x, y});
        return dots;
    }

    /// Where GDAL puts the cities, each with its dot around it.
    Pixels DotsByGdal(int size) const
    {
        EXPECT_EQ(Shell("gdaltransform -i -s_srs map.prj -t_srs '+proj=longlat +R=6370997 +no_defs' map.png "
                        "<positions.txt >pixels.txt 2>err.txt"),
                  0)
            << "GDAL's tools (gdal-bin) are needed: " << home.Read("err.txt");
        std::istringstream lines(home.Read("pixels.txt"));
        Pixels dots;
        int count = 0;
        for (std::string line; std::getline(lines, line); ++count)
        {
            double x = 0.0;
            double y = 0.0;
            std::istringstream(line) >> x >> y;
            const int left = static_cast<int>(std::floor(x)) - 2;
            const int top = static_cast<int>(std::floor(y)) - 2;
            // The outermost frame of a map is never drawn on.
            for (int i = 0; i < 16; ++i)
                if (const int column = left + i % 4, row = top + i / 4;
                    column > 0 && row > 0 && column < size - 1 && row < size - 1)
                    dots.insert({column, row});
        }
        EXPECT_EQ(count, 100);
        return dots;
    }
};

TEST_F(WorldFileTest, PutsCitiesWhereTheirDotsAre)
{
    struct Map
    {
        double lat;
        double lon;
        int size;
        int zoom;
    };
    WriteCities();
    for (const Map& map : {Map{55.6875, 12.625, 900, 20000},
                           {-33.8688, 151.2093, 1201, 20000},
                           {0, 0, 500, 12000},
                           {40.1, -179.9, 2000, 20000},
                           {48.2, 16.4, 700, 2500},
                           {90, 0, 800, 20000},
                           {90, 100.5, 801, 9000},
                           {-90, 0, 800, 20000},
                           {-90, -77.25, 333, 15000}})
    {
        Draw(map.lat, map.lon, map.size, map.zoom);
        const Pixels dots = Dots();
        EXPECT_GT(dots.size(), 100U) << map.lat << " " << map.lon;
        EXPECT_EQ(dots, DotsByGdal(map.size)) << map.lat << " " << map.lon << " " << map.size << " " << map.zoom;
    }
}

TEST_F(WorldFileTest, IsNamedAfterThePictureAsReadersExpect)
{
    home.Write("small.ini", "Size=120\n");
    for (const auto& [picture, worldFile, projection] : {std::array{"a.png", "a.pgw", "a.prj"},
                                                         {"b.jpg", "b.jgw", "b.prj"},
                                                         {"c.bmp", "c.bpw", "c.prj"},
                                                         {"d.tif", "d.tfw", "d.prj"},
                                                         {"e.pnm", "e.pmw", "e.prj"},
                                                         {"f.pcx", "f.pxw", "f.prj"},
                                                         {"G.PNG", "G.PGW", "G.prj"}})
    {
        EXPECT_EQ(Run(std::string("-s small.ini --world-file -r ") + picture), 0) << picture;
        EXPECT_THAT(home.Read(worldFile), HasSubstr("\n0\n0\n-")) << picture;
        EXPECT_THAT(home.Read(projection), HasSubstr("Azimuthal_Equidistant")) << picture;
    }
}

TEST_F(WorldFileTest, IsNotThereUnlessAskedForAndAPictureWasWritten)
{
    home.Write("small.ini", "Size=120\n");
    EXPECT_EQ(Run("-s small.ini -r a.png"), 0);
    home.Write("large.ini", "Size=9000\n");
    EXPECT_EQ(Run("-s large.ini -r b.png --world-file"), 1);
    EXPECT_EQ(CountFilesLike("*.pgw") + CountFilesLike("*.prj"), 0U);
}

TEST_F(WorldFileTest, IsToldWhenItCanNotBeWritten)
{
    home.Write("small.ini", "Size=120\n");
    ASSERT_EQ(mkfifo(home.Path("a.pgw").utf8_str(), 0600), 0);
    EXPECT_EQ(Run("-s small.ini -r a.png --world-file"), 2);
    EXPECT_EQ(Err(), "kavmap: Couldn't write a.pgw: it is a pipe or a device\n");
    EXPECT_TRUE(Picture("a.png").IsOk());
    EXPECT_NE(home.Read("a.prj"), "");
}

TEST_F(WorldFileTest, NeedsAPicture)
{
    EXPECT_EQ(Run("--world-file"), 1);
    EXPECT_EQ(Err(), "kavmap: --world-file goes with --render\n");
}
} // namespace
