#include "rotator/Address.h"

#include <gtest/gtest.h>

namespace
{
using rotator::Address;
using rotator::ParseAddress;

TEST(RotatorAddress, HasADefaultPort)
{
    EXPECT_EQ(ParseAddress("localhost"), (Address{"localhost", 4533}));
    EXPECT_EQ(ParseAddress("192.168.1.7"), (Address{"192.168.1.7", 4533}));
}

TEST(RotatorAddress, TakesAPort)
{
    EXPECT_EQ(ParseAddress("shack.local:14533"), (Address{"shack.local", 14533}));
    EXPECT_EQ(ParseAddress("h:1"), (Address{"h", 1}));
    EXPECT_EQ(ParseAddress("h:65535"), (Address{"h", 65535}));
}

TEST(RotatorAddress, TakesIpV6InBracketsAndWithout)
{
    EXPECT_EQ(ParseAddress("[::1]"), (Address{"::1", 4533}));
    EXPECT_EQ(ParseAddress("[fe80::1%eth0]:4534"), (Address{"fe80::1%eth0", 4534}));
    EXPECT_EQ(ParseAddress("::1"), (Address{"::1", 4533}));
    EXPECT_EQ(ParseAddress("2001:db8::7"), (Address{"2001:db8::7", 4533}));
}

TEST(RotatorAddress, RefusesAnythingElse)
{
    for (const char* text : {"",     ":",           ":4533",     "h:",     "h:0",     "h:65536", "h:-1",
                             "h:+1", "h:1x",        "h: 1",      "a b",    " h",      "h\n",     "[::1",
                             "[]",   "[]:1",        "[::1]4533", "[::1]:", "[::1]:x", "::1]",    "http://h",
                             "a[b",  "h\xC3\xB6st", "\xFF",      "a\x7F"})
        EXPECT_FALSE(ParseAddress(text)) << text;
    EXPECT_TRUE(ParseAddress(std::string(253, 'a')));
    EXPECT_FALSE(ParseAddress(std::string(254, 'a')));
}

TEST(RotatorAddress, IsWrittenAsItCanBeRead)
{
    EXPECT_EQ((Address{"localhost", 4533}.Text()), "localhost:4533");
    EXPECT_EQ((Address{"::1", 4534}.Text()), "[::1]:4534");
}
} // namespace
