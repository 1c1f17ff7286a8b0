#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "node/report/FieldText.h"
#include "support/CommaLocale.h"

using node::report::Field;
using node::report::fieldsOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

constexpr std::size_t Megabyte = 1'000'000;

std::string repeated(const std::string& piece, std::size_t size = Megabyte)
{
    std::string text;
    while (text.size() < size)
    {
        text += piece;
    }
    return text;
}

TEST(AnyTextTest, BytesOfEveryKindStandInLabelsAndValues)
{
    const std::string bytes("\0\x01\x7f\x80\xc3\xff", 6);
    EXPECT_THAT(fieldsOf(bytes + ": " + bytes), ElementsAre(Field{"", bytes, bytes}));
    EXPECT_THAT(fieldsOf(bytes + ":\n " + bytes + "1\n"), ElementsAre(Field{bytes, bytes, 1}));
}

TEST(AnyTextTest, NulIsNoBlankAndNoEnd)
{
    const std::string number("1\0", 2);
    EXPECT_THAT(fieldsOf("a: " + number + "\nb: 2"), ElementsAre(Field{"", "a", number}, Field{"", "b", 2}));
}

TEST(AnyTextTest, LineWithoutAnEndMayBeLong)
{
    for (const std::string piece : {" ", ":", "-", "[", "1", ".", "e+", "x", "\t-", ": ", "- ", "1 "})
    {
        const std::string line = repeated(piece);
        EXPECT_THAT(fieldsOf(line + "!"), IsEmpty()) << piece;
        EXPECT_THAT(fieldsOf("a: " + line + "!"), SizeIs(1)) << piece;
        EXPECT_THAT(fieldsOf("a:\n " + line + "!"), IsEmpty()) << piece;
    }
}

TEST(AnyTextTest, NumberMayHaveManyDigits)
{
    const std::string digits = repeated("7");
    EXPECT_THAT(fieldsOf("a: " + digits), ElementsAre(Field{"", "a", digits}));
    EXPECT_THAT(fieldsOf("a: 0." + digits), ElementsAre(Field{"", "a", 7.0 / 9}));
    EXPECT_THAT(fieldsOf("a:\n b " + digits), IsEmpty());
}

TEST(AnyTextTest, WhatComesOutGrowsAsWhatGoesIn)
{
    constexpr std::size_t Lines = 8334;
    for (const std::size_t heading : {10U, 80U, 81U, 50'000U})
    {
        const auto fields = fieldsOf(std::string(heading, 'h') + ":\n" + repeated(" a: 1\n", 50'000));
        const std::size_t bytes = std::accumulate(fields.begin(), fields.end(), std::size_t{0},
                                                  [](std::size_t sum, const Field& f) { return sum + f.under.size(); });
        EXPECT_THAT(fields, SizeIs(Lines)) << heading;
        EXPECT_EQ(heading <= 80 ? Lines * heading : 0, bytes) << heading;
    }
}

TEST(AnyTextTest, LocaleChangesNothing)
{
    const std::string report = "a: 1234567.25 dBm\nb: 1,5\nc:\n d1234567.5 dB\n";
    const CommaLocale commas;
    EXPECT_THAT(fieldsOf(report), ElementsAre(Field{"", "a", 1234567.25, "dBm"}, Field{"", "b", "1,5"},
                                              Field{"c", "d", 1234567.5, "dB"}));
}

class RandomTextTest : public ::testing::TestWithParam<std::uint64_t>
{
protected:
    static constexpr int Rounds = 3000;

    std::size_t below(std::size_t end)
    {
        return static_cast<std::size_t>(random() % end);
    }

    std::mt19937_64 random{GetParam()};
};

TEST_P(RandomTextTest, WhateverComesOutStandsInTheText)
{
    const std::vector<std::string> pieces = {"a",     "b c",   ": ",   ":",    "\n",  " ",    "--- ", "-",
                                             "[5]: ", "[KHz]", "1",    "24.2", "dBm", "e+06", "nan",  "true",
                                             "\t",    "\r",    "\xff", "QAM",  "[",   "]"};
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        std::string text;
        for (std::size_t left = below(60); left > 0; --left)
        {
            text += pieces[below(pieces.size())];
        }
        for (const Field& field : fieldsOf(text))
        {
            EXPECT_NE("", field.label);
            EXPECT_NE(std::string::npos, text.find(field.label)) << text;
            EXPECT_NE(std::string::npos, text.find(field.under)) << text;
            const auto* const value = std::get_if<std::string>(&field.value);
            EXPECT_TRUE(value == nullptr || (!value->empty() && text.find(*value) != std::string::npos)) << text;
            EXPECT_TRUE(value == nullptr || field.unit.empty()) << text;
        }
    }
}

TEST_P(RandomTextTest, FieldsAreReadAsTheyAreWritten)
{
    const std::vector<std::string> units = {"", " dBm", " dB", " kHz"};
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        const std::string& unit = units[below(units.size())];
        const std::string bare = unit.empty() ? "" : unit.substr(1);
        const auto whole = static_cast<std::int64_t>(random() >> below(64));
        const double real = static_cast<double>(whole) / 1024 + 0.5 / 1024;
        EXPECT_THAT(
            fieldsOf(fmt::format("l:\n w: {0}{1}\n QAM{0}{1}\nr: {2:.20f}{1}\n", whole, unit, real)),
            ElementsAre(Field{"l", "w", whole, bare}, Field{"l", "QAM", whole, bare}, Field{"", "r", real, bare}));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTextTest, ::testing::Values(1, 2, 3));

} // namespace
