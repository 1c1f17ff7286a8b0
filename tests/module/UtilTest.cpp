#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include "private/util.h"

namespace util = kel::device::kelDebugCmd::util;

namespace
{

constexpr auto Lowest = std::numeric_limits<int>::min();
constexpr auto Highest = std::numeric_limits<int>::max();

const std::pair<int, std::string> Rows[] = {
    {0, "0"},
    {1, "0.01"},
    {-1, "-0.01"},
    {5, "0.05"},
    {-5, "-0.05"},
    {10, "0.1"},
    {50, "0.5"},
    {99, "0.99"},
    {100, "1"},
    {-100, "-1"},
    {-150, "-1.5"},
    {1234, "12.34"},
    {2550, "25.5"},
    {-7350, "-73.5"},
    {-9999, "-99.99"},
    {-10000, "-100"},
    {999999, "9999.99"},
    {1000001, "10000"},
    {1234567, "12345.7"},
    {-1234567, "-12345.7"},
    {12345678, "123457"},
    {99999949, "999999"},
    {99999950, "1e+06"},
    {-99999949, "-999999"},
    {-99999950, "-1e+06"},
    {100000000, "1e+06"},
    {123456789, "1.23457e+06"},
    {Highest, "2.14748e+07"},
    {Lowest, "-2.14748e+07"},
};

TEST(UtilTest, HundredthsHaveSixDigitsAtMostAndNoTrailingZeros)
{
    for (const auto& [value, number] : Rows)
    {
        EXPECT_EQ(number, util::makeDecimalValString(value));
    }
}

TEST(UtilTest, LevelsCarryTheirUnit)
{
    for (const auto& [value, number] : Rows)
    {
        EXPECT_EQ(number + " dB", util::makeDbString(value));
        EXPECT_EQ(number + " dBm", util::makeDbmString(value));
    }
}

TEST(UtilTest, UnitIsAnyTextAsItStands)
{
    for (const auto& [value, number] : Rows)
    {
        EXPECT_EQ(number, util::makeDecibelString(value, ""));
        EXPECT_EQ(number + " kHz", util::makeDecibelString(value, util::KhzUnit));
        EXPECT_EQ(number + "a unit\nof two lines", util::makeDecibelString(value, "a unit\nof two lines"));
    }
}

TEST(UtilTest, ConstantsOfTheReports)
{
    EXPECT_EQ(" dB", util::DbUnit);
    EXPECT_EQ(" dBm", util::DbmUnit);
    EXPECT_EQ(" kHz", util::KhzUnit);
    EXPECT_EQ("Data could not be retrieved!", util::DataNotRetrievedText);
}

TEST(UtilTest, ParameterIsValidWhereItsNameIsDirectlyFollowedByItsValue)
{
    EXPECT_TRUE(util::validateParamValue("mode=3", "mode=", "3"));
    EXPECT_TRUE(util::validateParamValue("a, mode=3, b", "mode=", "3"));
    EXPECT_TRUE(util::validateParamValue("mode=1, mode=3", "mode=", "3"));
    EXPECT_TRUE(util::validateParamValue("mode=34", "mode=", "3"));
}

TEST(UtilTest, ParameterIsNotValidWhereNameAndValueStandApart)
{
    EXPECT_FALSE(util::validateParamValue("mode= 3", "mode=", "3"));
    EXPECT_FALSE(util::validateParamValue("3mode=", "mode=", "3"));
    EXPECT_FALSE(util::validateParamValue("mode=4", "mode=", "3"));
    EXPECT_FALSE(util::validateParamValue("MODE=3", "mode=", "3"));
    EXPECT_FALSE(util::validateParamValue("", "mode=", "3"));
    EXPECT_FALSE(util::validateParamValue("mode=", "mode=", "3"));
}

TEST(UtilTest, EmptyNameOrValueIsFoundAsTheOtherIs)
{
    EXPECT_TRUE(util::validateParamValue("", "", ""));
    EXPECT_TRUE(util::validateParamValue("text", "", ""));
    EXPECT_TRUE(util::validateParamValue("text", "ex", ""));
    EXPECT_TRUE(util::validateParamValue("text", "", "ex"));
    EXPECT_FALSE(util::validateParamValue("text", "", "x-"));
}

TEST(UtilTest, ErrorIsFoundAnywhereInTheText)
{
    EXPECT_TRUE(util::validateError("it failed", "it failed"));
    EXPECT_TRUE(util::validateError("it failed", "it"));
    EXPECT_TRUE(util::validateError("it failed", "failed"));
    EXPECT_FALSE(util::validateError("it failed", "Failed"));
}

TEST(UtilTest, EmptyErrorIsAlwaysFoundAndALongerOneNever)
{
    EXPECT_TRUE(util::validateError("it failed", ""));
    EXPECT_TRUE(util::validateError("", ""));
    EXPECT_FALSE(util::validateError("it failed", "it failed!"));
    EXPECT_FALSE(util::validateError("", "it"));
}

} // namespace
