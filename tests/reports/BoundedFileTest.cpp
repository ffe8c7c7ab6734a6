#include "reports/BoundedFile.h"

#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

namespace
{
using reports::ReadBounded;
using reports::ReadBoundedText;

class BoundedFileTest : public testing::Test
{
protected:
    const TemporaryHome home;
};

TEST_F(BoundedFileTest, IsInMemoryByteByByte)
{
    home.Write("a", std::string("\0\r\n\xFF", 4));
    const auto file = ReadBounded("a");
    EXPECT_EQ(file.bytes, std::string("\0\r\n\xFF", 4));
    EXPECT_EQ(file.obstacle, "");
}

TEST_F(BoundedFileTest, IsRefusedWithTheReason)
{
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    EXPECT_EQ(ReadBounded("gone").obstacle, "No such file or directory");
    EXPECT_EQ(ReadBounded(home.Path("")).obstacle, "it is a directory");
    EXPECT_EQ(ReadBounded("pipe").obstacle, "it is a pipe or a device");
    EXPECT_EQ(ReadBounded("/dev/zero").obstacle, "it is a pipe or a device");
}

TEST_F(BoundedFileTest, IsRefusedWhenItIsTooLong)
{
    home.Write("long", "");
    std::filesystem::resize_file("long", std::uintmax_t{1} << 30);
    EXPECT_EQ(ReadBounded("long").obstacle, "it is longer than 64 MB");
    std::filesystem::resize_file("long", std::uintmax_t{1} << 20);
    EXPECT_EQ(ReadBounded("long", std::size_t{1} << 20).bytes.size(), std::size_t{1} << 20);
    std::filesystem::resize_file("long", (std::uintmax_t{1} << 20) + 1);
    EXPECT_EQ(ReadBounded("long", std::size_t{1} << 20).obstacle, "it is longer than 1 MB");
}

TEST_F(BoundedFileTest, IsNoTextWithZerosOrWithoutBytes)
{
    home.Write("empty", "");
    home.Write("binary", std::string("a\0b", 3));
    home.Write("wide", std::string("\xFF\xFE"
                                   "a\0",
                                   4));
    EXPECT_EQ(ReadBoundedText("empty").obstacle, "it is empty");
    EXPECT_EQ(ReadBoundedText("binary").obstacle, "it is no text");
    EXPECT_EQ(ReadBoundedText("wide").obstacle, "");
    EXPECT_EQ(ReadBoundedText("gone").obstacle, "No such file or directory");
}
} // namespace
