#include "propagation/InputRules.h"

#include "propagation/AreaInput.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace
{
using propagation::CheckInput;
using propagation::InputFinding;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class InputRulesTest : public testing::Test
{
protected:
    InputRulesTest() { p.directory = home.Path("data"); }

    /// The keys of all findings.
    std::vector<std::string> Keys() const
    {
        std::vector<std::string> keys;
        for (const InputFinding& finding : CheckInput(p))
            keys.push_back(finding.key);
        return keys;
    }

    std::string Texts() const
    {
        wxString texts;
        for (const InputFinding& finding : CheckInput(p))
            texts << finding.Text() << "\n";
        return texts.utf8_string();
    }

    /// Where each line of the input ends: a value that is too wide moves an end.
    std::vector<std::size_t> LineEnds() const
    {
        const std::string text =
            propagation::AreaInputText(settings, {0, 0}, {1, 0}, {"        \\            ", "        \\            "})
                .utf8_string();
        std::vector<std::size_t> lengths;
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);)
            lengths.push_back(line.size());
        return lengths;
    }

    const TemporaryHome home;
    Settings settings = DefaultSettings();
    PropagationSettings& p = settings.propagation;
};

TEST_F(InputRulesTest, FindNothingInTheDefaults)
{
    EXPECT_THAT(Keys(), IsEmpty());
}

TEST_F(InputRulesTest, KnowWhatFitsEachColumn)
{
    struct Case
    {
        const char* key;
        wxString& value;
        std::vector<const char*> fit; ///< the widest first
        std::vector<const char*> misfit;
    };
    p.frequency = 8;
    const Case cases[] = {
        {"MMN", p.manMadeNoise, {"999", "0", "145", " 145 dB"}, {"1000", "-1", "-145", "999.6"}},
        {"MTA", p.minTakeOffAngle, {"9.999", "0"}, {"10", "9.9996", "-1"}},
        {"RCR", p.requiredReliability, {"99", "0", "99.4"}, {"100", "99.6", "-10"}},
        {"RSN", p.requiredSnr, {"99", "-9", "0"}, {"100", "-10", "-9.6"}},
        {"MPT", p.multipathPowerTolerance, {"9.999", "0"}, {"10", "-1"}},
        {"MTM", p.maxMultipathDelay, {"9.999", "0"}, {"10", "-1"}},
        {"TxGain", p.transmitter.gain, {"9.999", "0", "3.0"}, {"10", "-3", "9.9999"}},
        {"Tx1Dir", p.transmitter.directionDeg, {"999.9", "-99.9", "270"}, {"1000", "-100"}},
        {"RxGain", p.receiver.gain, {"9.9", "0", "3.0"}, {"10", "-3", "9.96"}},
        {"Rx1Dir", p.receiver.directionDeg, {"99.9", "-9.9", "0"}, {"100", "270", "-10", "99.96"}},
        {"Fo1", p.layerMultipliers[0], {"9.99", "0"}, {"10", "-1", "9.996"}},
        {"Fo2", p.layerMultipliers[1], {"9.99", "0"}, {"10", "-1"}},
        {"Fo3", p.layerMultipliers[2], {"9.99", "0"}, {"10", "-1"}},
        {"Fo4", p.layerMultipliers[3], {"9.99", "0"}, {"10", "-1"}},
        {"UserFq", p.userFrequencyMHz, {"99.999", "0.001", "14.074"}, {"100", "99.9996", "0", "-1"}},
    };
    for (const auto& [key, value, fit, misfit] : cases)
    {
        const wxString before = value;
        value = fit[0];
        const auto widest = LineEnds();
        for (const char* const text : fit)
        {
            value = text;
            EXPECT_THAT(Keys(), IsEmpty()) << key << " " << text;
            const auto ends = LineEnds();
            for (std::size_t i = 0; i < ends.size(); ++i)
                EXPECT_LE(ends[i], widest[i]) << key << " " << text;
        }
        for (const char* const text : misfit)
        {
            value = text;
            EXPECT_THAT(Keys(), ElementsAre(key)) << text;
        }
        for (const char* const text : {"", "x", "three"})
        {
            value = text;
            EXPECT_THAT(Keys(), Contains(key)) << text;
            EXPECT_THAT(Texts(), testing::StartsWith("counts as 0 (fits: what begins with a number)\n")) << key;
        }
        value = "1,5";
        EXPECT_THAT(Keys(), ElementsAre(key));
        EXPECT_EQ(Texts(), "a comma ends it: 14,2 counts as 14 (fits: a decimal point)\n");
        value = before;
    }
}

TEST_F(InputRulesTest, KnowThatTheSunspotNumberHasTwoDigits)
{
    for (const long number : {0L, 99L})
    {
        p.sunspotNumber = number;
        EXPECT_THAT(Keys(), IsEmpty()) << number;
    }
    for (const long number : {100L, 200L, -1L})
    {
        p.sunspotNumber = number;
        EXPECT_THAT(Keys(), ElementsAre("SSN")) << number;
    }
    EXPECT_EQ(Texts(), "the last digit is lost: 120 counts as 12 (fits: 0 to 99)\n");
}

TEST_F(InputRulesTest, LeaveAFrequencyAloneThatIsNotChosen)
{
    p.userFrequencyMHz = "144,3";
    p.frequency = 7;
    EXPECT_THAT(Keys(), IsEmpty());
    p.frequency = 8;
    EXPECT_THAT(Keys(), ElementsAre("UserFq", "UserFq"));
}

TEST_F(InputRulesTest, CountTheBytesOfTheDirectory)
{
    p.directory = wxString('d', 113);
    EXPECT_THAT(Keys(), IsEmpty());
    p.directory = wxString('d', 114);
    EXPECT_THAT(Keys(), ElementsAre("Dir"));
    p.directory = wxString('d', 111) + wxString::FromUTF8("\u00e5");
    EXPECT_THAT(Keys(), IsEmpty());
    p.directory += "d";
    EXPECT_THAT(Keys(), ElementsAre("Dir"));
}

TEST_F(InputRulesTest, LookForAntennaFilesBelowTheDirectory)
{
    home.Write("data/antennas/samples/sample.00", "antenna");
    for (const auto& [file, key] : {std::pair{&p.transmitter.file, "Tx1File"}, {&p.receiver.file, "Rx1File"}})
    {
        for (const char* const found : {"", "/usr/local/share/voacapl/antennas/samples/sample.00",
                                        "/usr/local/share/voacapl/itshfbc/antennas/samples/sample.00"})
        {
            *file = found;
            EXPECT_THAT(Keys(), IsEmpty()) << found;
        }
        const std::pair<const char*, const char*> wrong[] = {
            {"/home/me/itshfbc/antennas/samples/longer.00", "refused (fits: names of 8 and 12 characters)\n"},
            {"/a/b/c/d/samples/short", "counts as none, isotropic (fits: a path of seven or eight parts)\n"},
            {"/antennas/samples/sample.00", "counts as none, isotropic (fits: a path of seven or eight parts)\n"},
            {"sample.00", "counts as none, isotropic (fits: a path of seven or eight parts)\n"},
            {"/usr/local/share/voacapl/antennas/samples/long.antenna.file",
             "refused (fits: names of 8 and 12 characters)\n"},
            {"/usr/local/share/voacapl/antennas/samples/sample.01",
             "leaves no result (fits: one below antennas in the directory)\n"},
            {"/usr/local/share/voacapl/antennas/samples/SAMPLE.00",
             "leaves no result (fits: one below antennas in the directory)\n"},
        };
        for (const auto& [path, text] : wrong)
        {
            *file = path;
            EXPECT_THAT(Keys(), ElementsAre(key)) << path;
            EXPECT_EQ(Texts(), text) << path;
        }
        *file = "";
    }
}

TEST_F(InputRulesTest, AreTheTableOfTheGuide)
{
    std::ifstream guide(KAV_GUIDE);
    std::vector<std::string> inGuide;
    bool here = false;
    for (std::string line; std::getline(guide, line);)
    {
        if (line.starts_with("## "))
            here = line == "## Numbers that do not fit";
        else if (here && line.starts_with("| "))
            inGuide.push_back(line);
    }
    std::vector<std::string> rules{"| field | fits | otherwise |"};
    for (const propagation::InputRule& rule : propagation::InputRules())
        rules.push_back(std::string("| ") + rule.field + " | " + rule.fits + " | " + rule.otherwise + " |");
    EXPECT_EQ(inGuide, rules);
}
} // namespace
