#include "config/Choice.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{
constexpr config::Choice<int> kTable[] = {{"few", 3}, {"some", 7}, {nullptr, 50}};

TEST(Choice, OutsideTheTableIsTheNearest)
{
    EXPECT_EQ(config::Chosen(kTable, 1).value, 7);
    EXPECT_EQ(config::Chosen(kTable, -1).value, 3);
    EXPECT_EQ(config::Chosen(kTable, INT_MIN).value, 3);
    EXPECT_EQ(config::Chosen(kTable, 3).value, 50);
    EXPECT_EQ(config::Chosen(kTable, INT_MAX).value, 50);
}

TEST(Choice, WithoutALabelIsNotOffered)
{
    const wxArrayString labels = config::LabelsOf(kTable);
    ASSERT_EQ(labels.size(), 2u);
    EXPECT_EQ(labels[0], "few");
    EXPECT_EQ(labels[1], "some");
}
} // namespace
