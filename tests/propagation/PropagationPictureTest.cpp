#include "propagation/Propagation.h"

#include "render/BitmapPixels.h"
#include "render/Layer.h"
#include "tests/propagation/PlaceAt.h"
#include "tests/support/Pictures.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/dcmemory.h>

#include <fstream>
#include <random>
#include <vector>

// The finished overlay against one that is computed here from the result file and the settings, in other ways than the
// program's.

namespace
{
using render::Argb;

constexpr char kRealResult[] = KAV_TEST_DATA "/area_36x36.vg1";
constexpr int kRealPoints = 36;

/// The scale that the settings ask for, as the user reads it in the options.
struct Scale
{
    std::array<double, 10> thresholds;
    std::array<wxColour, 10> colours;

    Scale(const PropagationSettings& settings, const std::vector<double>& values)
    {
        const auto [least, most] = std::ranges::minmax(values);
        const double step = (most - least) / 10;
        const ColourScale& stored = settings.scales[static_cast<std::size_t>(settings.parameter)];
        for (std::size_t k = 0; k < 10; ++k)
        {
            const auto grey = static_cast<unsigned char>(25 * k);
            const long c = stored.colours[k];
            colours[k] = settings.greyScale == 1
                             ? wxColour(grey, grey, grey)
                             : wxColour(static_cast<unsigned char>(c % 256), static_cast<unsigned char>(c / 256 % 256),
                                        static_cast<unsigned char>(c / 65536));
            thresholds[k] = settings.autoLevel == 1 ? least + step + static_cast<double>(k) * step
                                                    : std::stod(stored.values[k].utf8_string());
        }
    }

    std::size_t ClassOf(double value) const
    {
        std::size_t k = 9;
        while (k > 0 && value <= thresholds[k])
            --k;
        return k;
    }

    bool IsOnAThreshold(double value) const
    {
        return std::ranges::any_of(thresholds, [value](double t) { return std::abs(value - t) < 1e-9; });
    }
};

class PropagationPictureTest : public testing::Test, protected propagation::Progress
{
protected:
    PropagationPictureTest()
    {
        settings.propagation.useExternalResult = true;
        settings.propagation.externalResult = kRealResult;
    }

    void OnStep(const wxString&) override {}

    std::unique_ptr<wxBitmap> Draw()
    {
        view = render::MakeMapView(settings, 17);
        const Propagation made = Propagation::Compute(settings, view, UtcNow(), *this);
        EXPECT_THAT(made.errors, testing::IsEmpty());
        return BitmapOf(*made.overlay);
    }

    /// The chosen parameter's values in the real result.
    std::vector<double> RealValues() const
    {
        const std::pair<std::size_t, std::size_t> fields[] = {{74, 6}, {86, 6}, {26, 6}, {99, 5}};
        const auto [start, length] = fields[settings.propagation.parameter];
        std::ifstream file(kRealResult);
        std::vector<double> values;
        std::string line;
        for (int i = 0; i < 3; ++i)
            std::getline(file, line);
        while (std::getline(file, line))
            values.push_back(std::stod(line.substr(start, length)));
        return values;
    }

    /// Any settings that the options offer.
    void Vary(std::mt19937& random)
    {
        const auto between = [&](int least, int most) { return std::uniform_int_distribution(least, most)(random); };
        PropagationSettings& p = settings.propagation;
        settings.centreLat = between(-900, 900) * 0.1;
        settings.centreLon = between(-1800, 1800) * 0.1;
        settings.size = between(100, 260);
        settings.zoom = between(1000, 20000);
        settings.compass.show = between(0, 1) == 1;
        settings.compass.text.font =
            std::array{"DejaVu Sans 9", "DejaVu Serif Bold 13", "DejaVu Sans Mono 10"}[random() % 3];
        p.parameter = between(0, 3);
        p.greyScale = between(0, 1);
        p.autoLevel = between(0, 1);
        p.alpha = between(0, 255);
        for (long& colour : p.scales[static_cast<std::size_t>(p.parameter)].colours)
            colour = between(0, 0xEFEFEF);
    }

    const TemporaryHome home;
    Settings settings = DefaultSettings();
    MapView view;
};

/// The value between four points of the real result by the usual formula.
double Bilinear(const std::vector<double>& values, double column, double row)
{
    const int c = std::min(static_cast<int>(column), kRealPoints - 2);
    const int r = std::min(static_cast<int>(row), kRealPoints - 2);
    const auto at = [&](int i, int j) { return values[static_cast<std::size_t>((r + j) * kRealPoints + c + i)]; };
    const double u = column - c;
    const double v = row - r;
    return (1 - u) * (1 - v) * at(0, 0) + u * (1 - v) * at(1, 0) + (1 - u) * v * at(0, 1) + u * v * at(1, 1);
}

TEST_F(PropagationPictureTest, HasTheColourOfTheValueUnderEachPixel)
{
    std::mt19937 random(11);
    for (int i = 0; i < 12; ++i)
    {
        Vary(random);
        const std::vector<double> values = RealValues();
        ASSERT_EQ(values.size(), std::size_t{kRealPoints * kRealPoints});
        const Scale scale(settings.propagation, values);
        const auto overlay = Draw();
        const render::BitmapPixels pixels(*overlay);
        const int side = static_cast<int>(settings.size);
        ASSERT_EQ(pixels.Width(), side);
        ASSERT_EQ(pixels.Height(), side);
        const double limit = settings.compass.show ? static_cast<double>(settings.zoom) * 1000 : 20000000;
        int checked = 0;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
            {
                const double east = (x - side / 2) * view.frame.metresPerPixel;
                const double north = (side / 2 - y) * view.frame.metresPerPixel;
                const double range = std::hypot(east, north);
                wxColour colour = *wxWHITE;
                if (range >= 1 && range < limit)
                {
                    const Position place = PlaceAt(view, east, north);
                    const double latticeColumn = (place.lon + 180) * 5;
                    const double latticeRow = (place.lat + 90) * 5;
                    const double value = Bilinear(values, std::floor(latticeColumn) / 1800 * (kRealPoints - 1),
                                                  std::ceil(latticeRow) / 900 * (kRealPoints - 1));
                    const bool onAnEdge = std::abs(std::remainder(latticeColumn, 1.0)) < 1e-5 ||
                                          std::abs(std::remainder(latticeRow, 1.0)) < 1e-5 ||
                                          std::abs(range - limit) < 2;
                    if (onAnEdge || scale.IsOnAThreshold(value))
                        continue;
                    colour = scale.colours[scale.ClassOf(value)];
                }
                const bool frame = x == 0 || y == 0 || x == side - 1 || y == side - 1;
                const auto alpha = static_cast<unsigned>(frame ? 255 : settings.propagation.alpha);
                ASSERT_EQ(pixels.Row(y)[static_cast<std::size_t>(x)],
                          render::PremultipliedPixel(colour.Red(), colour.Green(), colour.Blue(), alpha))
                    << x << ", " << y << " in picture " << i;
                ++checked;
            }
        EXPECT_GT(checked, side * side * 9 / 10);
    }
}

/// The legend alone, drawn with the toolkit's plain calls on a white picture.
wxBitmap PlainLegend(const Scale& scale, int parameter, const wxString& fontDescription, int side)
{
    wxFont font;
    EXPECT_TRUE(font.SetNativeFontInfo(fontDescription));
    wxBitmap bitmap(side, side);
    wxMemoryDC dc(bitmap);
    render::SwitchSmoothingOff(dc);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    dc.SetFont(font);
    dc.SetTextForeground(*wxBLACK);
    dc.SetPen(*wxBLACK_PEN);
    const char* const titles[] = {"SDBW", "Signal Noice Ratio dB", "Muf MHz", "Reliability"};
    std::vector<wxString> labels;
    int w = 0;
    for (const double threshold : scale.thresholds)
    {
        labels.push_back(wxString::Format("%3.2f", threshold));
        w = std::max(w, dc.GetTextExtent(labels.back()).x);
    }
    const int h = dc.GetTextExtent(labels[0]).y;
    dc.DrawText(titles[parameter], 10, side - 13 * h);
    for (int k = 12; k >= 3; --k)
    {
        const auto index = static_cast<std::size_t>(k - 3);
        dc.DrawText(labels[index], 10, side - k * h);
        dc.SetBrush(wxBrush(scale.colours[index]));
        dc.DrawRectangle(w + 20, side - k * h, 2 * h, h - 1);
    }
    dc.SelectObject(wxNullBitmap);
    return bitmap;
}

TEST_F(PropagationPictureTest, HasALegendInTheFontOfTheCompass)
{
    std::mt19937 random(12);
    for (int i = 0; i < 12; ++i)
    {
        Vary(random);
        settings.propagation.parameter = i % 4;
        settings.propagation.greyScale = 0;
        for (long& colour : settings.propagation.scales[static_cast<std::size_t>(i % 4)].colours)
            colour |= 0xA0A0A0; // light, so that the texts are black everywhere
        SCOPED_TRACE(testing::Message() << "size " << settings.size << ", parameter " << i % 4 << ", font "
                                        << settings.compass.text.font);
        const int side = static_cast<int>(settings.size);
        const Scale scale(settings.propagation, RealValues());
        wxBitmap legend = PlainLegend(scale, i % 4, settings.compass.text.font, side);
        settings.propagation.legend = 0;
        const auto without = Draw();
        settings.propagation.legend = 1;
        const auto with = Draw();
        const render::BitmapPixels ink(legend);
        const render::BitmapPixels before(*without);
        const render::BitmapPixels after(*with);
        int inked = 0;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
            {
                const auto column = static_cast<std::size_t>(x);
                const bool frame = x == 0 || y == 0 || x == side - 1 || y == side - 1;
                const auto seeThrough = [&](Argb c)
                {
                    return render::PremultipliedPixel((c >> 16) & 255, (c >> 8) & 255, c & 255,
                                                      frame ? 255 : static_cast<unsigned>(settings.propagation.alpha));
                };
                const Argb drawn = ink.Row(y)[column] | 0xFF000000;
                const Argb got = after.Row(y)[column];
                // Between texts and boxes there may be a ground or not.
                const Argb expected = drawn != render::kWhite || got == seeThrough(render::kWhite)
                                          ? seeThrough(drawn)
                                          : before.Row(y)[column];
                ASSERT_EQ(got, expected) << x << ", " << y;
                inked += drawn != render::kWhite;
            }
        EXPECT_GT(inked, 1000);
    }
}

TEST_F(PropagationPictureTest, HasItsOwnOpacityWhateverTheLegend)
{
    for (const long alpha : {0L, 301L, -1L})
        for (const long legend : {0L, 1L})
        {
            settings.propagation.alpha = alpha;
            settings.propagation.legend = legend;
            const auto overlay = Draw();
            const render::BitmapPixels pixels(*overlay);
            for (int y = 0; y < pixels.Height(); ++y)
                for (int x = 0; x < pixels.Width(); ++x)
                {
                    const bool frame = x == 0 || y == 0 || x == pixels.Width() - 1 || y == pixels.Height() - 1;
                    ASSERT_EQ(pixels.Row(y)[static_cast<std::size_t>(x)] >> 24,
                              frame ? 255 : static_cast<unsigned>(alpha) % 256)
                        << x << ", " << y;
                }
        }
}

TEST_F(PropagationPictureTest, TellsOtherChoicesThanOneFromOne)
{
    settings.size = 150;
    const auto pixels = [this]
    {
        const auto overlay = Draw();
        const render::BitmapPixels rows(*overlay);
        std::vector<Argb> all;
        for (int y = 0; y < rows.Height(); ++y)
            all.insert(all.end(), rows.Row(y).begin(), rows.Row(y).end());
        return all;
    };
    PropagationSettings& p = settings.propagation;
    const auto plain = pixels();
    for (long* const choice : {&p.greyScale, &p.autoLevel, &p.legend})
    {
        for (const long other : {2L, -1L, 0L})
        {
            *choice = other;
            EXPECT_EQ(pixels(), plain) << other;
        }
        *choice = 1;
        EXPECT_NE(pixels(), plain);
        *choice = 0;
    }
}

TEST_F(PropagationPictureTest, NamesAntennasByTheBytesOfTheirFiles)
{
    // No voacapl is there, so that the input stays as it was written.
    settings.propagation.useExternalResult = false;
    settings.propagation.directory = home.Path("none") + "/..";
    settings.propagation.transmitter.file = wxString::FromUTF8("/1/2/3/4/5/blåbær/地図.00");
    settings.propagation.receiver.file = "/1/2/3/4/5/ascii/other.00";
    home.Write("none/file", "");
    const wxString input = home.Write("areadata/default/kavdex.voa", std::string(2000, 'x'));
    wxString pathBefore;
    wxGetEnv("PATH", &pathBefore);
    wxSetEnv("PATH", home.Path("none"));
    view = render::MakeMapView(settings, 17);
    const Propagation made = Propagation::Compute(settings, view, UtcNow(), *this);
    wxSetEnv("PATH", pathBefore);
    EXPECT_EQ(made.errors, std::vector<wxString>{"Error calling VOACAP"});
    const std::string written = home.Read("areadata/default/kavdex.voa");
    EXPECT_NE(written.find("\nTx Ants  :[blåbær  \\地図.00       ]"), std::string::npos) << written;
    EXPECT_NE(written.find("\nRec Ants :[ascii   \\other.00    ]"), std::string::npos) << written;
    EXPECT_EQ(written.find("xx"), std::string::npos); // nothing is left of a longer file
}
} // namespace
