#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/commands/Value.h"

using node::commands::ChannelNumber;
using node::commands::coefficientsForm;
using node::commands::parseCoefficients;
using node::commands::parseNumberOf;
using node::commands::printCoefficients;

namespace
{

/// A typed word and the number that it is; none when it is not accepted.
struct Row
{
    std::string word;
    std::optional<std::int64_t> number;
};

template <typename Number>
void expectRows(const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        const auto parsed = parseNumberOf<Number>(row.word);
        EXPECT_EQ(row.number, parsed ? std::optional(std::int64_t{*parsed}) : std::nullopt) << '"' << row.word << '"';
    }
}

constexpr auto None = std::nullopt;

TEST(ValueTest, AByteIsAcceptedUpToItsBounds)
{
    expectRows<unsigned char>({{"-1", None},
                               {"0", 0},
                               {"1", 1},
                               {"254", 254},
                               {"255", 255},
                               {"256", None},
                               {"-0x1", None},
                               {"0x0", 0},
                               {"0xfe", 254},
                               {"0xff", 255},
                               {"0x100", None}});
}

TEST(ValueTest, A16BitNumberIsAcceptedUpToItsBounds)
{
    expectRows<unsigned short>({{"-1", None},
                                {"0", 0},
                                {"1", 1},
                                {"65534", 65534},
                                {"65535", 65535},
                                {"65536", None},
                                {"0xfffe", 65534},
                                {"0xffff", 65535},
                                {"0x10000", None}});
}

TEST(ValueTest, ASignedNumberIsAcceptedUpToItsBounds)
{
    expectRows<int>({{"-2147483649", None},
                     {"-2147483648", -2147483648},
                     {"-2147483647", -2147483647},
                     {"-1", -1},
                     {"0", 0},
                     {"1", 1},
                     {"2147483646", 2147483646},
                     {"2147483647", 2147483647},
                     {"2147483648", None},
                     {"-0x80000001", None},
                     {"-0x80000000", -2147483648},
                     {"0x7fffffff", 2147483647},
                     {"0x80000000", None}});
}

TEST(ValueTest, AnUnsignedNumberIsAcceptedUpToItsBounds)
{
    expectRows<std::uint32_t>({{"-1", None},
                               {"0", 0},
                               {"4294967294", 4294967294},
                               {"4294967295", 4294967295},
                               {"4294967296", None},
                               {"0xffffffff", 4294967295},
                               {"0x100000000", None}});
}

TEST(ValueTest, AChannelIs1Or2)
{
    const std::vector<Row> rows = {{"-1", None},  {"0", None},   {"1", 1},      {"2", 2},      {"3", None},
                                   {"0x1", 1},    {"0x2", 2},    {"02", 2},     {"0x3", None}, {"", None},
                                   {"1.0", None}, {"1,2", None}, {"one", None}, {"257", None}, {"4294967297", None}};
    for (const Row& row : rows)
    {
        const auto parsed = ChannelNumber::parse(row.word);
        EXPECT_EQ(row.number, parsed ? std::optional(std::int64_t{parsed->number}) : std::nullopt)
            << '"' << row.word << '"';
    }
}

TEST(ValueTest, NumbersAreDecimalOrHexadecimal)
{
    expectRows<int>({{"10", 10},
                     {"-10", -10},
                     {"0x10", 16},
                     {"0X10", 16},
                     {"-0x10", -16},
                     {"-0X10", -16},
                     {"0xabcdef", 0xABCDEF},
                     {"0xABCDEF", 0xABCDEF},
                     {"0XaBcDeF", 0xABCDEF}});
}

TEST(ValueTest, LeadingZerosDoNotMakeANumberOctal)
{
    expectRows<int>({{"010", 10},
                     {"-010", -10},
                     {"0x010", 16},
                     {"09", 9},
                     {"00000000000000000000000000000000000000001", 1},
                     {"-0", 0},
                     {"-0x0", 0}});
}

TEST(ValueTest, WhatIsNotANumberIsNotAccepted)
{
    for (const std::string word : {"",   " ",   "-",   "+",    "+1",  "--1", "-+1",  "+-1",   "1-",    "- 1",   " 1",
                                   "1 ", "\t1", "1\n", "0x",   "0X",  "-0x", "0x-1", "0x+1",  "-0x-1", "0xx1",  "0x0x1",
                                   "x1", "0xg", "1a",  "a",    "1.0", "1.",  "1,0",  "1e3",   "1'000", "1_000", "0b1",
                                   "1h", "1u",  "١",   "true", "nan", "inf", "#1",   "\"1\"", "0x 1",  "0 x1"})
    {
        EXPECT_EQ(None, parseNumberOf<int>(word)) << '"' << word << '"';
        EXPECT_EQ(None, parseNumberOf<unsigned char>(word)) << '"' << word << '"';
    }
    EXPECT_EQ(None, parseNumberOf<int>(std::string("1\0", 2)));
    EXPECT_EQ(None, parseNumberOf<int>(std::string("\0001", 2)));
}

TEST(ValueTest, NumbersThatOverflowAreNotAccepted)
{
    expectRows<int>({{"4294967295", None},
                     {"4294967296", None},
                     {"4294967297", None},
                     {"-4294967296", None},
                     {"-4294967297", None},
                     {"9223372036854775807", None},
                     {"9223372036854775808", None},
                     {"18446744073709551616", None},
                     {"18446744073709551617", None},
                     {"0xffffffffffffffff", None},
                     {"0x10000000000000001", None},
                     {std::string(1000, '9'), None}});
}

TEST(ValueTest, TheFormOfAChannelIsWorded)
{
    EXPECT_EQ("a whole number from 1 to 2", ChannelNumber::form());
}

TEST(ValueTest, CoefficientsAreReadByteByByte)
{
    const auto coefficients = parseCoefficients("000102030405060708090a0b0c0d0e0fF07fFe80");
    ASSERT_TRUE(coefficients);
    const std::array<std::uint8_t, 20> expected = {0,  1,  2,  3,  4,  5,  6,    7,    8,    9,
                                                   10, 11, 12, 13, 14, 15, 0xF0, 0x7F, 0xFE, 0x80};
    EXPECT_EQ(expected, coefficients->bytes);
}

TEST(ValueTest, CoefficientsHave40Digits)
{
    for (std::size_t digits = 0; digits <= 60; ++digits)
    {
        EXPECT_EQ(digits == 40, parseCoefficients(std::string(digits, '7')).has_value()) << digits << " digits";
    }
}

TEST(ValueTest, CoefficientsHaveNothingButDigits)
{
    const std::string digits(40, '0');
    for (std::size_t place = 0; place < digits.size(); ++place)
    {
        for (const char character : {'g', 'G', 'x', ' ', '-', '+', '.', '\0', '/', ':', '@', '`'})
        {
            std::string word = digits;
            word[place] = character;
            EXPECT_FALSE(parseCoefficients(word)) << "'" << character << "' at " << place;
        }
    }
    EXPECT_FALSE(parseCoefficients("0x" + digits));
    EXPECT_FALSE(parseCoefficients("0x" + digits.substr(2)));
    EXPECT_FALSE(parseCoefficients(digits + "\n"));
}

TEST(ValueTest, CoefficientsArePrintedInLowerCaseAsTheyAreRead)
{
    EXPECT_EQ("0000000000000000000000000000000000000000", printCoefficients({}));
    const auto coefficients = parseCoefficients("FFFEFDFCFBFAF9F8F7F6F5F4F3F2F1F00A0B0C0D");
    ASSERT_TRUE(coefficients);
    EXPECT_EQ("fffefdfcfbfaf9f8f7f6f5f4f3f2f1f00a0b0c0d", printCoefficients(*coefficients));
}

TEST(ValueTest, TheFormOfCoefficientsIsWorded)
{
    EXPECT_EQ("20 bytes as 40 hexadecimal digits", coefficientsForm());
}

} // namespace
