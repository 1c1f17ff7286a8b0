#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "node/wording/Number.h"

using node::wording::bytesForm;
using node::wording::parseBytes;
using node::wording::parseReal;
using node::wording::parseWhole;
using node::wording::printBytes;

namespace
{

constexpr auto None = std::nullopt;

template <typename Number>
struct Row
{
    std::string text;
    std::optional<Number> number;
};

TEST(WholeNumberTest, DecimalNumbersHave32BitsAndASign)
{
    for (const Row<std::int64_t>& row : {Row<std::int64_t>{"0", 0},
                                         {"-0", 0},
                                         {"1", 1},
                                         {"-1", -1},
                                         {"10", 10},
                                         {"010", 10},
                                         {"0000000000000000000000000000000000017", 17},
                                         {"4294967294", 4294967294},
                                         {"4294967295", 4294967295},
                                         {"4294967296", None},
                                         {"-4294967294", -4294967294},
                                         {"-4294967295", -4294967295},
                                         {"-4294967296", None},
                                         {"18446744073709551617", None}})
    {
        EXPECT_EQ(row.number, parseWhole(row.text)) << row.text;
    }
}

TEST(WholeNumberTest, HexadecimalNumbersHave32BitsAndASign)
{
    for (const Row<std::int64_t>& row : {Row<std::int64_t>{"0x0", 0},
                                         {"0x10", 16},
                                         {"0X10", 16},
                                         {"-0x10", -16},
                                         {"-0X10", -16},
                                         {"0xabcdef", 0xABCDEF},
                                         {"0XABCdef", 0xABCDEF},
                                         {"0xfffffffe", 4294967294},
                                         {"0xffffffff", 4294967295},
                                         {"0x100000000", None},
                                         {"-0xffffffff", -4294967295},
                                         {"-0x100000000", None},
                                         {"0x0000000000000000f", 15}})
    {
        EXPECT_EQ(row.number, parseWhole(row.text)) << row.text;
    }
}

TEST(WholeNumberTest, OtherTextIsNone)
{
    for (const std::string text :
         {"",   " ",   "-",   "+",     "+1",   "--1",  "-+1",   "+-1",  "1-",    "- 1", " 1",  "1 ", "\t1", "1\n",
          "0x", "0X",  "-0x", "0x-1",  "0x+1", "0x 1", "-0x-1", "0xx1", "0x0x1", "x1",  "0xg", "1a", "a",   "1.0",
          "1.", "1,0", "1e3", "1_000", "0b1",  "0o7",  "1h",    "١",    "true",  "nan", "inf", "#1"})
    {
        EXPECT_EQ(None, parseWhole(text)) << '"' << text << '"';
    }
    EXPECT_EQ(None, parseWhole(std::string("1\0", 2)));
}

TEST(RealNumberTest, DecimalDigitsWithFractionAndExponentAreANumber)
{
    for (const Row<double>& row : {Row<double>{"0", 0.0},
                                   {"-0.5", -0.5},
                                   {"12", 12.0},
                                   {"012.50", 12.5},
                                   {"0.1", 0.1},
                                   {"1e3", 1000.0},
                                   {"1E+3", 1000.0},
                                   {"25e-1", 2.5},
                                   {"1.7976931348623157e308", std::numeric_limits<double>::max()},
                                   {"-1.7976931348623157e308", std::numeric_limits<double>::lowest()},
                                   {"1.7976931348623159e308", None},
                                   {"1e999", None},
                                   {"-1e999", None}})
    {
        EXPECT_EQ(row.number, parseReal(row.text)) << row.text;
    }
}

TEST(RealNumberTest, OtherTextIsNone)
{
    for (const std::string text :
         {"",    " ",    "-",   ".",   "-.",   "+1",  "--1", "1,5",  "1.5 ",     " 1.5", "1.5x", "1.5.2", "e3",    "1e",
          "1e+", "0x10", "1p3", "nan", "-nan", "NAN", "inf", "-inf", "infinity", "1_0",  "1 e3", "true",  "nan(1)"})
    {
        EXPECT_EQ(None, parseReal(text)) << '"' << text << '"';
    }
    EXPECT_EQ(None, parseReal(std::string("1\0", 2)));
}

TEST(BytesTest, TwoDigitsAreAByte)
{
    EXPECT_EQ((std::vector<std::uint8_t>{0x00, 0x7F, 0x80, 0xFF}), parseBytes("007f80FF", 4));
    EXPECT_EQ((std::vector<std::uint8_t>{0xAB}), parseBytes("aB", 1));
    EXPECT_EQ(std::vector<std::uint8_t>{}, parseBytes("", 0));
}

TEST(BytesTest, TheCountIsExact)
{
    for (std::size_t digits = 0; digits <= 12; ++digits)
    {
        EXPECT_EQ(digits == 6, parseBytes(std::string(digits, '7'), 3).has_value()) << digits << " digits";
    }
}

TEST(BytesTest, NothingButDigitsIsAccepted)
{
    const std::string digits = "123456";
    for (std::size_t place = 0; place < digits.size(); ++place)
    {
        for (const char character : {'g', 'G', 'x', ' ', '-', '+', '.', '\0', '/', ':', '@', '`', '\xc3'})
        {
            std::string text = digits;
            text[place] = character;
            EXPECT_EQ(None, parseBytes(text, 3)) << "'" << character << "' at " << place;
        }
    }
    EXPECT_EQ(None, parseBytes("0x1234", 3));
}

TEST(BytesTest, ArePrintedInLowerCase)
{
    const std::vector<std::uint8_t> bytes = {0x00, 0x0F, 0xA0, 0xFF};
    EXPECT_EQ("000fa0ff", printBytes(bytes));
    EXPECT_EQ("", printBytes({}));
}

TEST(BytesTest, TheFormIsWorded)
{
    EXPECT_EQ("20 bytes as 40 hexadecimal digits", bytesForm(20));
    EXPECT_EQ("3 bytes as 6 hexadecimal digits", bytesForm(3));
}

class RandomNumberTest : public ::testing::TestWithParam<std::uint64_t>
{
protected:
    static constexpr int Rounds = 200;

    std::mt19937_64 random{GetParam()};
};

TEST_P(RandomNumberTest, WholeNumbersAreReadAsTheyArePrinted)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        const auto size = static_cast<std::int64_t>((random() & 0xFFFFFFFF) >> (random() % 32));
        EXPECT_EQ(size, parseWhole(fmt::format("{}", size)));
        EXPECT_EQ(-size, parseWhole(fmt::format("{}", -size)));
        EXPECT_EQ(size, parseWhole(fmt::format("{:#x}", size)));
        EXPECT_EQ(-size, parseWhole(fmt::format("{:#X}", -size)));
    }
}

TEST_P(RandomNumberTest, RealNumbersAreReadAsTheyArePrinted)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        const auto mantissa = static_cast<double>(static_cast<std::int64_t>(random()));
        const double number = std::ldexp(mantissa, static_cast<int>(random() % 200) - 160);
        EXPECT_EQ(number, parseReal(fmt::format("{}", number)));
    }
}

TEST_P(RandomNumberTest, BytesAreReadAsTheyArePrinted)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(random() % 24));
        for (std::uint8_t& byte : bytes)
        {
            byte = static_cast<std::uint8_t>(random() & 0xFF);
        }
        EXPECT_EQ(bytes, parseBytes(printBytes(bytes), bytes.size()));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomNumberTest, ::testing::Values(1, 2, 3));

} // namespace
