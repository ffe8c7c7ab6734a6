#include "tests/support/ProgramFixture.h"

#include <wx/fileconf.h>
#include <wx/filename.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <map>

namespace
{
/// The shipped samples, drawn where there is no display; a stand-in for voacapl makes the forecast.
class SamplesTest : public ProgramTest
{
protected:
    void SetUp() override { std::filesystem::create_directories(home.Path("voacap/areadata/default").utf8_string()); }

    /// The picture of a sample, with other settings added; each is drawn once.
    wxImage Draw(const std::string& sample, const std::string& otherwise = "") const
    {
        static std::map<std::string, wxImage> drawn;
        wxImage& picture = drawn[sample + otherwise];
        if (!picture.IsOk())
            picture = DrawAnew(sample, otherwise);
        return picture;
    }

    wxImage DrawAnew(const std::string& sample, const std::string& otherwise) const
    {
        wxFile file(PathOf(sample));
        wxString settings;
        EXPECT_TRUE(file.ReadAll(&settings)) << sample;
        home.Write("sample.ini", settings.utf8_string() + otherwise +
                                     "\n[Propagation]\nGrid=0\nDir=" + home.Path("voacap").utf8_string() + "\n");
        EXPECT_EQ(Run("-t 2026-06-21T18:00 -s sample.ini -r map.pnm",
                      "-u DISPLAY -u WAYLAND_DISPLAY PATH=" KAV_STAND_IN ":" + std::string(std::getenv("PATH"))),
                  0)
            << sample;
        EXPECT_EQ(home.Read("err.txt"), "") << sample;
        return Picture("map.pnm");
    }

    static wxString PathOf(const std::string& sample) { return KAV_DATA_DIR "/samples/" + sample + ".ini"; }

    static long Size(const std::string& sample)
    {
        const wxFileConfig settings("", "", PathOf(sample), "", wxCONFIG_USE_LOCAL_FILE);
        return settings.ReadLong("Size", 900);
    }
};

template <class Test>
std::size_t CountPixels(const wxImage& picture, Test test)
{
    const unsigned char* const data = picture.GetData();
    std::size_t count = 0;
    for (int i = 0; i < picture.GetWidth() * picture.GetHeight(); ++i)
        count += test(data[3 * i], data[3 * i + 1], data[3 * i + 2]) ? 1 : 0;
    return count;
}

constexpr auto isWhite = [](int red, int green, int blue) { return red + green + blue == 3 * 255; };
constexpr auto isOrange = [](int red, int green, int blue) { return red > 160 && green < 140 && blue < 60; };

using Channels = std::array<double, 3>;

Channels Linear(unsigned long colour, double opacity)
{
    Channels linear{};
    for (std::size_t i = 0; i < linear.size(); ++i)
    {
        const double byte = static_cast<double>(colour >> (8 * i) & 255U);
        const double value = (byte * opacity + 255 * (1 - opacity)) / 255;
        linear[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    }
    return linear;
}

/// CIE lightness of a colour of the sRGB space.
double Lightness(const Channels& linear)
{
    const double y = 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2];
    return y > 216.0 / 24389 ? 116 * std::cbrt(y) - 16 : y * 24389 / 27;
}

/// What the eye without one kind of cone sees: red and green become one (Vienot, Brettel and Mollon 1999).
Channels Dichromat(const Channels& seen, double red, double blue)
{
    const double yellow = red * seen[0] + (1 - red) * seen[1];
    return {yellow, yellow, std::clamp(blue * (seen[0] - seen[1]) + seen[2], 0.0, 1.0)};
}

std::vector<wxString> ColourKeys(const wxString& scale)
{
    std::vector<wxString> keys;
    for (int step = 1; step <= 10; ++step)
        keys.push_back(scale == "S" ? (step == 10 ? wxString("S9PColour") : wxString::Format("S%dColour", step))
                                    : wxString::Format("%s%02dColour", scale, step));
    return keys;
}

TEST_F(SamplesTest, AreAllDrawn)
{
    wxArrayString samples;
    wxDir::GetAllFiles(KAV_DATA_DIR "/samples", &samples, "*.ini");
    EXPECT_GE(samples.size(), 9u);
    for (const wxString& path : samples)
    {
        const std::string sample = wxFileName(path).GetName().utf8_string();
        const wxImage picture = Draw(sample);
        EXPECT_EQ(picture.GetWidth(), Size(sample)) << sample;
        EXPECT_GT(picture.CountColours(30), 30u) << sample;
    }
}

TEST_F(SamplesTest, FillADarkDesktopToItsCorners)
{
    EXPECT_EQ(Size("desktop-3840"), 3840);
    const wxImage picture = Draw("desktop-1920");
    ASSERT_EQ(picture.GetWidth(), 1920);
    for (const int x : {0, 1919})
        for (const int y : {0, 1919})
            EXPECT_FALSE(isWhite(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y))) << x << ' ' << y;
    const auto isDark = [](int red, int green, int blue) { return red + green + blue < 3 * 100; };
    EXPECT_GT(CountPixels(picture, isDark), 1920u * 1920 * 3 / 4);
}

TEST_F(SamplesTest, PrintInBlackAndWhite)
{
    const wxImage picture = Draw("print-a3");
    EXPECT_EQ(CountPixels(picture, [](int red, int green, int blue) { return red != green || green != blue; }), 0u);
    EXPECT_LE(picture.GetWidth(), 3508); // the short side of A3 at 300 dots an inch
    EXPECT_GT(picture.GetWidth(), 3300);
    EXPECT_GT(CountPixels(picture, isWhite), 3400u * 3400 / 2);
}

TEST_F(SamplesTest, ShowWorkedSquaresInAContest)
{
    EXPECT_GT(CountPixels(Draw("contest"), isOrange), 2000u);
    EXPECT_EQ(CountPixels(Draw("contest", "\n[PlotSquares]\nShow1=0\n"), isOrange), 0u);
}

TEST_F(SamplesTest, HaveTheLegendOfTheFieldDaysForecast)
{
    // The legend stands in the lower left corner, outside the disc; the highest class, at its top, is yellow.
    const wxRect corner(0, 900, 200, 499);
    const auto isYellow = [](int red, int green, int blue) { return red > 230 && green > 220 && blue < 150; };
    EXPECT_GT(CountPixels(Draw("field-day").GetSubImage(corner), isYellow), 100u);
    EXPECT_EQ(CountPixels(Draw("field-day", "\n[Propagation]\nParamLegend=0\n").GetSubImage(corner), isYellow), 0u);
}

TEST_F(SamplesTest, HaveClassesThatEveryEyeSeesInTheirOrder)
{
    wxFileConfig settings("", "", PathOf("classes"), "", wxCONFIG_USE_LOCAL_FILE);
    settings.SetPath("/Propagation");
    const double opacity = static_cast<double>(settings.ReadLong("Alpha", 0)) / 256;
    for (const char* scale : {"S", "SNR", "MUF", "REL"})
    {
        std::array<double, 3> below{-100, -100, -100};
        for (const wxString& key : ColourKeys(scale))
        {
            ASSERT_TRUE(settings.HasEntry(key)) << key;
            const Channels seen = Linear(static_cast<unsigned long>(settings.ReadLong(key, 0)), opacity);
            const std::array<double, 3> lightness{Lightness(seen), Lightness(Dichromat(seen, 0.11238, 0.00401)),
                                                  Lightness(Dichromat(seen, 0.29275, -0.02234))};
            for (std::size_t eye = 0; eye < lightness.size(); ++eye)
                EXPECT_GT(lightness[eye], below[eye] + 3) << key << ", eye " << eye;
            below = lightness;
        }
    }
}
} // namespace
