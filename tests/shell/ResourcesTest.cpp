#include "GoldenCatalogue.h"

#include "resources/WFClearCaseResources.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

std::uint32_t readU32(std::span<const unsigned char> bytes, std::size_t at)
{
    return bytes[at] | bytes[at + 1] << 8 | bytes[at + 2] << 16 | static_cast<std::uint32_t>(bytes[at + 3]) << 24;
}

std::uint16_t readU16(std::span<const unsigned char> bytes, std::size_t at)
{
    return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8);
}

std::vector<std::string> bitmapNames()
{
    std::vector<std::string> names;
    for (const auto& row : wftest::goldenCatalogue())
        names.push_back(row.typeId);
    names.push_back("CC_LOGO");
    return names;
}

class BitmapTest : public testing::TestWithParam<std::string> {};

TEST_P(BitmapTest, IsA16By16PalettizedBitmap)
{
    const std::span<const unsigned char> bmp = WFClearCaseFindResource(GetParam());
    ASSERT_GE(bmp.size(), 14u + 40u);
    EXPECT_EQ(bmp[0], 'B');
    EXPECT_EQ(bmp[1], 'M');
    EXPECT_EQ(readU32(bmp, 2), bmp.size());
    const std::uint32_t pixelsAt = readU32(bmp, 10);
    EXPECT_EQ(readU32(bmp, 14), 40u) << "info header size";
    EXPECT_EQ(readU32(bmp, 18), 16u) << "width";
    EXPECT_EQ(readU32(bmp, 22), 16u) << "height";
    EXPECT_EQ(readU16(bmp, 26), 1u) << "planes";
    EXPECT_EQ(readU16(bmp, 28), 8u) << "bits per pixel";
    EXPECT_EQ(readU32(bmp, 30), 0u) << "compression";
    const std::uint32_t colours = readU32(bmp, 46);
    EXPECT_TRUE(colours == 0 || colours == 256) << colours;
    EXPECT_EQ(pixelsAt, 14u + 40u + 256u * 4u);
    EXPECT_EQ(bmp.size(), pixelsAt + 16u * 16u);
}

INSTANTIATE_TEST_SUITE_P(Resources, BitmapTest, testing::ValuesIn(bitmapNames()),
                         [](const testing::TestParamInfo<std::string>& info) { return info.param; });

TEST(ResourcesTest, ExactlyTheActionBitmapsAndTheLogo)
{
    std::vector<std::string> expected = bitmapNames();
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(WFClearCaseResourceNames(), expected);
}

TEST(ResourcesTest, EveryGlyphIsItsOwn)
{
    const std::vector<std::string> names = bitmapNames();
    for (std::size_t a = 0; a < names.size(); ++a) {
        for (std::size_t b = a + 1; b < names.size(); ++b) {
            const auto first = WFClearCaseFindResource(names[a]);
            const auto second = WFClearCaseFindResource(names[b]);
            EXPECT_FALSE(std::equal(first.begin(), first.end(), second.begin(), second.end()))
                << names[a] << " and " << names[b] << " look the same";
        }
    }
}

TEST(ResourcesTest, UnknownNamesFindNothing)
{
    for (const char* name : {"", "cc_checkout", "CC_CHECKOUT.bmp", "CC_NOSUCH"})
        EXPECT_TRUE(WFClearCaseFindResource(name).empty()) << name;
}

} // namespace
