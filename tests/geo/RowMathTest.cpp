#include "geo/RowMath.h"

#include "tests/geo/RandomMaps.h"
#include "tests/geo/TruePlace.h"

#include <gtest/gtest.h>

#include <cmath>

// The guard of the row kernels rests on the errors measured here.
namespace
{
namespace rowmath = geo::rowmath;

// What geo/RowMath.h promises, in radians times q.
constexpr double kKernelError = 4e-10;
constexpr double kPlainError = 1e-9;

struct Errors
{
    long double kernel = 0.0L;
    long double plain = 0.0L;
};

// The largest errors times q along a row, of latitude and longitude alike.
void MeasureRow(const geo::MapDisc& disc, int row, int step, Errors& largest)
{
    const geo::RowPlane plane(disc, row);
    for (int columns = 1; columns <= disc.Reach(row); columns += step)
    {
        const geo::MapPoint point = disc.frame.PixelToMap(disc.frame.half + columns, row);
        const TruePlace place = TruePlaceOf(disc.projection, point.x, point.y);
        if (place.q < rowmath::kPoleCap)
            continue;
        const rowmath::UnitVector vector = rowmath::UnitVectorOf(plane, columns);
        const long double turn = rowmath::AngleOf(vector.y, vector.x);
        const long double lat = std::copysign(kPiL / 2 - rowmath::AngleFromPole(vector.z).angle, vector.z);
        largest.kernel =
            std::max({largest.kernel, std::fabs(lat - place.lat) * place.q, std::fabs(turn - place.turn) * place.q});

        const auto plain = disc.At(disc.frame.half + columns, row);
        ASSERT_TRUE(plain);
        const long double lon = plain->lon - static_cast<long double>(disc.projection.centreLon);
        largest.plain = std::max({largest.plain, std::fabs(plain->lat - place.lat) * place.q,
                                  std::fabs(std::remainder(lon - place.turn, 2.0L * kPiL)) * place.q});
    }
}

TEST(RowMath, ItsPolynomialsAreAsGoodAsTheySay)
{
    constexpr int kSteps = 200000;
    for (int i = 0; i <= kSteps; ++i)
    {
        const double share = static_cast<double>(i) / kSteps;
        const double z = geo::kPi * share;
        ASSERT_NEAR(rowmath::CosOfRoot(z * z), std::cos(z), 1.14e-10) << z;
        ASSERT_NEAR(rowmath::SincOfRoot(z * z), z > 0.0 ? std::sin(z) / z : 1.0, 4e-11) << z;
        ASSERT_NEAR(rowmath::AngleOf(std::sin(z), std::cos(z)), z, 1.4e-10) << z;
        const double q = std::sqrt(1.0 - share);
        ASSERT_NEAR(rowmath::AngleFromPole(share).angle * q, std::acos(share) * q, 1.9e-10) << share;
    }
    EXPECT_EQ(rowmath::AngleOf(0.0, 0.0), 0.0);
}

TEST(RowMath, StaysWithinTheErrorsThatTheGuardAllowsFor)
{
    RandomMaps random(77);
    Errors largest;
    for (int i = 0; i < 4000; ++i)
    {
        geo::MapDisc disc = random.Disc();
        disc.limitMetres = 30000000;
        for (const int row : random.Rows(disc))
            MeasureRow(disc, row, 1 + disc.frame.mapSize / 100, largest);
    }
    RecordProperty("kernel", std::to_string(static_cast<double>(largest.kernel * 1e12L)) + "e-12");
    RecordProperty("plain", std::to_string(static_cast<double>(largest.plain * 1e12L)) + "e-12");
    EXPECT_LT(largest.kernel, kKernelError);
    EXPECT_LT(largest.plain, kPlainError);
    EXPECT_GT(rowmath::kGuard, 6.0 * (kKernelError + kPlainError));
}

TEST(RowMath, FindsTheSunsDistanceWithinTheSameError)
{
    RandomMaps random(78);
    for (int i = 0; i < 4000; ++i)
    {
        const geo::MapDisc disc = random.Disc();
        if (disc.projection.IsPolar())
            continue;
        const geo::LatLonRad sun{random.Real(-0.41, 0.41), random.Real(-geo::kPi, geo::kPi)};
        const int row = random.AnyRow(disc);
        const int reach = disc.Reach(row);
        for (int columns = 1; columns <= reach; columns += 1 + reach / 40)
        {
            const geo::MapPoint point = disc.frame.PixelToMap(disc.frame.half + columns, row);
            const TruePlace place = TruePlaceOf(disc.projection, point.x, point.y);
            const auto cosines = rowmath::SunCosinesOf(geo::SunPlane(disc, sun, row), columns);
            for (const int side : {1, -1})
            {
                const long double lon = side * place.turn + disc.projection.centreLon;
                const long double expected = std::cos(sun.lon - lon) * std::cos(sun.lat) * std::cos(place.lat) +
                                             std::sin(sun.lat) * std::sin(place.lat);
                ASSERT_NEAR(side > 0 ? cosines.east : cosines.west, static_cast<double>(expected), kKernelError)
                    << disc << ", row " << row << ", columns " << columns;
            }
        }
    }
}

TEST(RowMath, MeasuresTheWayToTheNextWholeNumber)
{
    EXPECT_DOUBLE_EQ(rowmath::FromWhole(3.25, 3), 0.25);
    EXPECT_DOUBLE_EQ(rowmath::FromWhole(3.75, 3), 0.25);
    EXPECT_DOUBLE_EQ(rowmath::FromWhole(4.0, 4), 0.0);
    EXPECT_DOUBLE_EQ(rowmath::FromWhole(0.5, 0), 0.5);
}

TEST(RowMath, IsNeverSureAtAPole)
{
    EXPECT_TRUE(rowmath::IsSure(1e-7, 0.5));
    EXPECT_FALSE(rowmath::IsSure(1e-8, 0.5));
    EXPECT_FALSE(rowmath::IsSure(1.0, rowmath::kPoleCap / 2));
}
} // namespace
