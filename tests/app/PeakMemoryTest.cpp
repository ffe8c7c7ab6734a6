#include "tests/support/ProgramFixture.h"
#include "tests/support/ScarceMemory.h"

#include <sys/resource.h>

#include <filesystem>

namespace
{
/// How much memory the program takes for the largest picture.
class PeakMemoryTest : public ProgramTest
{
protected:
    /// In MB, of the largest process that was started so far.
    static long Peak()
    {
        rusage usage{};
        getrusage(RUSAGE_CHILDREN, &usage);
        return usage.ru_maxrss / 1024;
    }

    void ExpectLessThanThePicture(const std::string& settings, const char* picture) const
    {
        if (UnderAddressSanitizer())
            GTEST_SKIP() << "AddressSanitizer keeps memory of its own beside the program's";
        home.Write("large.ini", "Size=8000\n" + settings);
        ASSERT_EQ(Run(std::string("--settings large.ini --time 2026-03-20T16:30 --render ") + picture), 0) << Err();
        EXPECT_LE(Peak(), 150);
        EXPECT_GT(std::filesystem::file_size(picture), std::uintmax_t{8000} * 8000 * 3); // 192 MB
    }
};

TEST_F(PeakMemoryTest, OfTheDefaultMapIsLessThanThePicture)
{
    ExpectLessThanThePicture("", "map.bmp");
}

TEST_F(PeakMemoryTest, OfAMapWithOverlaysIsLessThanThePicture)
{
    ExpectLessThanThePicture("[Greyzone]\nShow=1\n"
                             "[Propagation]\nShow=1\nParamLegend=1\nExtVg1=1\n"
                             "ExtVg1File=" KAV_TEST_DATA "/area_36x36.vg1\n",
                             "map.pnm");
}
} // namespace
