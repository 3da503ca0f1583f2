#include "files/file_address.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

TEST(FileAddress, TellsEveryByteOfAName)
{
    EXPECT_EQ(AddressOf("/home/anna/lat\xe4in one%.sdk"),
              "file:///home/anna/lat%E4in%20one%25.sdk");
    std::string name = "/";
    for (int byte = 1; byte < 256; ++byte) {
        name += static_cast<char>(byte);
    }
    EXPECT_EQ(PathOfAddress(AddressOf(name), "here"), name);
}

TEST(FileAddress, IsOfThisMachine)
{
    EXPECT_EQ(PathOfAddress("file:///a%20b", "here"), "/a b");
    EXPECT_EQ(PathOfAddress("file://localhost/a", "here"), "/a");
    EXPECT_EQ(PathOfAddress("file://here/a", "here"), "/a");
    EXPECT_EQ(PathOfAddress("file://there/a", "here"), "");
    EXPECT_EQ(PathOfAddress("file://", "here"), "");
    EXPECT_EQ(PathOfAddress("https://here/a", "here"), "");
    EXPECT_EQ(PathOfAddress("/a", "here"), "");
}

TEST(FileAddress, MayBeWrittenInOtherWays)
{
    EXPECT_EQ(PathOfAddress("file:/a%20b", "here"), "/a b");
    EXPECT_EQ(PathOfAddress("FILE:///a", "here"), "/a");
    EXPECT_EQ(PathOfAddress("File://there/a", "here"), "");
    EXPECT_EQ(PathOfAddress("file:a", "here"), "");
    EXPECT_EQ(PathOfAddress("file:", "here"), "");
    EXPECT_EQ(PathOfAddress("fil", "here"), "");
}

TEST(FileAddress, TakesWhatIsNoCodeAsItStands)
{
    EXPECT_EQ(PathOfAddress("file:///a%", "here"), "/a%");
    EXPECT_EQ(PathOfAddress("file:///a%4", "here"), "/a%4");
    EXPECT_EQ(PathOfAddress("file:///a%-1%g0", "here"), "/a%-1%g0");
    EXPECT_EQ(PathOfAddress("file:///a%00b", "here"), "") << "no path holds that byte";
}

TEST(FileAddress, StandsAloneInAList)
{
    EXPECT_EQ(OneAddressIn("file:///a\r\n"), "file:///a");
    EXPECT_EQ(OneAddressIn("# from a folder\r\nfile:///a\r\n"), "file:///a");
    EXPECT_EQ(OneAddressIn("file:///a"), "file:///a");
    EXPECT_EQ(OneAddressIn("file:///a\r\nfile:///b\r\n"), "");
    EXPECT_EQ(OneAddressIn(std::string_view("file:///a\r\n\0", 12)), "file:///a");
    EXPECT_EQ(OneAddressIn("\r\n"), "");
    EXPECT_EQ(OneAddressIn(""), "");
}

} // namespace
} // namespace kelvarine::testing
