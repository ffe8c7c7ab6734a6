#include "propagation/ClassScale.h"

#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{
using namespace propagation;

ResultGrid Range(double minimum, double maximum)
{
    ResultGrid grid;
    grid.minimum = minimum;
    grid.maximum = maximum;
    return grid;
}

class ClassScaleTest : public testing::Test
{
protected:
    const TemporaryHome home;
    Settings settings = DefaultSettings();
    PropagationSettings& propagation = settings.propagation;

    ClassScale Scale(const ResultGrid& grid = {}) const { return ScaleOf(propagation, grid); }
};

TEST_F(ClassScaleTest, SortsSignalPowerByTheSMeter)
{
    const ClassScale scale = Scale();
    EXPECT_EQ(scale.colours[ClassOf(-90, scale.thresholds)], wxColour(255, 0, 0));
    EXPECT_EQ(scale.colours[ClassOf(-100, scale.thresholds)], wxColour(0, 255, 0));
    EXPECT_EQ(scale.colours[ClassOf(-105, scale.thresholds)], wxColour(0, 0, 255));
    EXPECT_EQ(scale.colours[ClassOf(-144, scale.thresholds)], wxColour(0, 0, 128));
    EXPECT_EQ(scale.colours[ClassOf(-160, scale.thresholds)], wxColour(0, 0, 0));
}

TEST_F(ClassScaleTest, PutsAValueOnAThresholdIntoTheLowerClass)
{
    const auto thresholds = Scale().thresholds;
    EXPECT_EQ(ClassOf(-93, thresholds), 8u);
    EXPECT_EQ(ClassOf(std::nextafter(-93, 0), thresholds), 9u);
    EXPECT_EQ(ClassOf(-145, thresholds), 0u);
    EXPECT_EQ(ClassOf(-151, thresholds), 0u); // the lowest threshold is for the legend only
    EXPECT_EQ(ClassOf(-1000, thresholds), 0u);
}

TEST_F(ClassScaleTest, PutsWhatIsNotANumberIntoTheLowestClass)
{
    EXPECT_EQ(ClassOf(std::numeric_limits<double>::quiet_NaN(), Scale().thresholds), 0u);
    EXPECT_EQ(ClassOf(std::numeric_limits<double>::infinity(), Scale().thresholds), 9u);
}

TEST_F(ClassScaleTest, AsksThresholdsFromTheHighestDown)
{
    propagation.scales[0].values.fill("-200");
    EXPECT_EQ(ClassOf(-199, Scale().thresholds), 9u);
    EXPECT_EQ(ClassOf(-200, Scale().thresholds), 0u);
    for (std::size_t k = 0; k < 10; ++k) // the wrong way round
        propagation.scales[0].values[k] = wxString::Format("%d", 100 - static_cast<int>(k) * 10);
    EXPECT_EQ(ClassOf(11, Scale().thresholds), 9u);
    EXPECT_EQ(ClassOf(10, Scale().thresholds), 0u);
    propagation.scales[0].values[4] = "-50";
    EXPECT_EQ(ClassOf(5, Scale().thresholds), 4u);
}

TEST_F(ClassScaleTest, TakesThresholdsThatAreNoNumbersAsZero)
{
    propagation.scales[0].values[9] = "loud";
    propagation.scales[0].values[8] = "";
    EXPECT_EQ(Scale().thresholds[9], 0.0);
    EXPECT_EQ(Scale().thresholds[8], 0.0);
}

TEST_F(ClassScaleTest, BelongsToTheParameter)
{
    for (std::size_t p = 0; p < 4; ++p)
        for (std::size_t k = 0; k < 10; ++k)
        {
            propagation.scales[p].colours[k] = static_cast<long>(p * 10 + k) * 0x010203;
            propagation.scales[p].values[k] = wxString::Format("%zu.5", p * 10 + k);
        }
    for (const auto& [setting, p] : {std::pair{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 0}, {-1, 0}})
    {
        propagation.parameter = setting;
        const ClassScale scale = Scale();
        for (int k = 0; k < 10; ++k)
        {
            const int n = p * 10 + k;
            EXPECT_EQ(scale.thresholds[static_cast<std::size_t>(k)], n + 0.5);
            EXPECT_EQ(scale.colours[static_cast<std::size_t>(k)],
                      wxColour(static_cast<unsigned char>(3 * n), static_cast<unsigned char>(2 * n),
                               static_cast<unsigned char>(n)));
        }
    }
}

TEST_F(ClassScaleTest, IsGreyForAnyParameterOnRequest)
{
    propagation.greyScale = 1;
    for (propagation.parameter = 0; propagation.parameter < 4; ++propagation.parameter)
        for (std::size_t k = 0; k < 10; ++k)
        {
            const auto level = static_cast<unsigned char>(25 * k);
            EXPECT_EQ(Scale().colours[k], wxColour(level, level, level));
        }
    propagation.parameter = 0;
    propagation.greyScale = 2;
    EXPECT_EQ(Scale().colours[9], wxColour(255, 0, 0));
}

TEST_F(ClassScaleTest, DividesTheRangeOfTheValuesAutomatically)
{
    propagation.autoLevel = 1;
    const ClassScale scale = Scale(Range(-200, -100));
    for (std::size_t k = 0; k < 10; ++k)
        EXPECT_EQ(scale.thresholds[k], -190 + 10 * static_cast<double>(k));
    EXPECT_EQ(ClassOf(-100, scale.thresholds), 8u);
    EXPECT_EQ(ClassOf(-200, scale.thresholds), 0u);
}

TEST_F(ClassScaleTest, LeavesTheHighestAutomaticClassEmptyWhateverTheRounding)
{
    propagation.autoLevel = 1;
    for (int i = 0; i < 2000; ++i)
    {
        const double minimum = -183.2 + i * 0.1;
        const double maximum = minimum + 0.7 + i * 0.3;
        EXPECT_LE(ClassOf(maximum, Scale(Range(minimum, maximum)).thresholds), 8u) << minimum << ".." << maximum;
    }
}

TEST_F(ClassScaleTest, PutsAConstantGridIntoTheLowestAutomaticClass)
{
    propagation.autoLevel = 1;
    const ClassScale scale = Scale(Range(-120.3, -120.3));
    for (const double threshold : scale.thresholds)
        EXPECT_EQ(threshold, -120.3);
    EXPECT_EQ(ClassOf(-120.3, scale.thresholds), 0u);
}

TEST_F(ClassScaleTest, CountsUpFromTheMinimumEvenWhereNoValueWasRead)
{
    propagation.autoLevel = 1;
    const ClassScale scale = Scale(Range(999, -999));
    for (std::size_t k = 0; k < 10; ++k)
        EXPECT_NEAR(scale.thresholds[k], 999 + 199.8 * static_cast<double>(k + 1), 1e-9) << k;
}

TEST_F(ClassScaleTest, SetsItsOwnLevelsUnlessAutomaticOnesAreAskedFor)
{
    for (const long other : {0L, 2L, -1L})
    {
        propagation.autoLevel = other;
        EXPECT_EQ(Scale(Range(-200, -100)).thresholds, Scale().thresholds) << other;
        EXPECT_EQ(Scale(Range(-200, -100)).thresholds[9], -93);
    }
}

TEST(ClassOf, IsTheHighestThresholdBelowTheValue)
{
    std::array<double, 10> thresholds;
    for (std::size_t k = 0; k < 10; ++k)
        thresholds[k] = static_cast<double>(k);
    for (std::uint32_t k = 0; k < 10; ++k)
    {
        EXPECT_EQ(ClassOf(k + 0.5, thresholds), k);
        EXPECT_EQ(ClassOf(k, thresholds), k == 0 ? 0 : k - 1);
    }
}
} // namespace
