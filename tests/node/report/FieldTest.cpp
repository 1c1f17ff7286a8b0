#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/report/FieldText.h"

using node::report::Field;
using node::report::fieldsOf;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace
{

struct Row
{
    std::string text;
    std::vector<Field> fields;
};

void expectFields(const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        EXPECT_THAT(fieldsOf(row.text), ElementsAreArray(row.fields)) << row.text;
    }
}

TEST(FieldTest, WholeNumbersHave64BitsAndLargerOnesAreReal)
{
    expectFields({{"a: 0", {{"", "a", 0}}},
                  {"a: -0", {{"", "a", 0}}},
                  {"a: -1", {{"", "a", -1}}},
                  {"a: 007", {{"", "a", 7}}},
                  {"a: 4294967296", {{"", "a", 4294967296}}},
                  {"a: 9223372036854775806", {{"", "a", 9223372036854775806}}},
                  {"a: 9223372036854775807", {{"", "a", 9223372036854775807}}},
                  {"a: 9223372036854775808", {{"", "a", 9223372036854775808.0}}},
                  {"a: -9223372036854775808", {{"", "a", -9223372036854775807 - 1}}},
                  {"a: -9223372036854775809", {{"", "a", -9223372036854775809.0}}},
                  {"a: 18446744073709551616", {{"", "a", 18446744073709551616.0}}}});
}

TEST(FieldTest, NumbersWithFractionOrExponentAreReal)
{
    expectFields({{"a: 18.00", {{"", "a", 18.0}}},
                  {"a: -43.02", {{"", "a", -43.02}}},
                  {"a: -0.0", {{"", "a", 0.0}}},
                  {"a: -2.14748e+07 dBm", {{"", "a", -2.14748e+07, "dBm"}}},
                  {"a: 1e308", {{"", "a", 1e308}}}});
}

TEST(FieldTest, WhatIsNoNumberIsAText)
{
    for (const std::string text :
         {"1e309",      "-1e999",  "nan",      "-nan",      "inf",   "infinity", "NaN dBm", "0x10",
          "+1",         "--1",     "1,5",      "1.2.3",     "1e",    "-",        ".",       "1 -",
          "- 1",        "4096QAM", "24dBm",    "0:00:00.0", "0 (0)", "3 of 4",   "12 34",   "4 way hand shake",
          "24 dBm dBm", "24 m2",   "24 [dBm]", "on",        "dBm"})
    {
        EXPECT_THAT(fieldsOf("a: " + text), ElementsAre(Field{"", "a", text}));
    }
}

TEST(FieldTest, UnitIsTheOneWordBehindANumber)
{
    expectFields({{"a: 24 dBm", {{"", "a", 24, "dBm"}}},
                  {"a: 24.5  \t dB", {{"", "a", 24.5, "dB"}}},
                  {"a: 2 mm/h", {{"", "a", 2, "mm/h"}}},
                  {"a: 2 %", {{"", "a", 2, "%"}}},
                  {"a: 2 Az", {{"", "a", 2, "Az"}}},
                  {"a: 4096 points", {{"", "a", 4096, "points"}}}});
}

TEST(FieldTest, UnitMayStandInTheLabel)
{
    expectFields({{"a [KHz]: 1", {{"", "a", 1, "kHz"}}},
                  {"a[nsec] : 1", {{"", "a", 1, "ns"}}},
                  {"a [.1dB]: 1", {{"", "a", 1, "0.1 dB"}}},
                  {"a b [ms]: 1.5", {{"", "a b", 1.5, "ms"}}},
                  {"a [1] [ms]: 1", {{"", "a [1]", 1, "ms"}}},
                  {"a [.2dB]: 1", {{"", "a [.2dB]", 1}}},
                  {"a [3]: 1", {{"", "a [3]", 1}}},
                  {"a []: 1", {{"", "a []", 1}}},
                  {"[5]: [ms]: 1", {{"", "[ms]", 1}}},
                  {"a [ms] b: 1", {{"", "a [ms] b", 1}}},
                  {"a ms]: 1", {{"", "a ms]", 1}}},
                  {"a [ms: 1", {{"", "a [ms", 1}}},
                  {"a [ms]: 1 ns", {{"", "a [ms]", 1, "ns"}}},
                  {"a [ms]: late", {{"", "a [ms]", "late"}}},
                  {"a [ms]: true", {{"", "a [ms]", true}}}});
}

TEST(FieldTest, TrueAndFalseAloneAreNoTexts)
{
    expectFields({{"a: true", {{"", "a", true}}},
                  {"a: false", {{"", "a", false}}},
                  {"a: True", {{"", "a", "True"}}},
                  {"a: true dBm", {{"", "a", "true dBm"}}},
                  {"a: untrue", {{"", "a", "untrue"}}}});
}

TEST(FieldTest, BlanksAroundAreNoPart)
{
    expectFields({{"a b \t:\t 1 \t", {{"", "a b", 1}}},
                  {"a: 1\r\nb: x \r\n", {{"", "a", 1}, {"", "b", "x"}}},
                  {"a: two  words", {{"", "a", "two  words"}}}});
}

TEST(FieldTest, LabelEndsAtTheFirstColonBeforeABlank)
{
    expectFields({{"a:b: 1", {{"", "a:b", 1}}},
                  {"a: b: 1", {{"", "a", "b: 1"}}},
                  {"a:: 1", {{"", "a:", 1}}},
                  {"a:1", {}},
                  {"12:30:59", {}},
                  {": 1", {}},
                  {" : 1", {}},
                  {"a", {}},
                  {":", {}},
                  {"", {}}});
}

TEST(FieldTest, LabelHasEightyBytesAtMost)
{
    const std::string label(81, 'x');
    EXPECT_THAT(fieldsOf(label.substr(2) + ": 1"), ElementsAre(Field{"", label.substr(2), 1}));
    EXPECT_THAT(fieldsOf(label.substr(1) + ": 1"), ElementsAre(Field{"", label.substr(1), 1}));
    EXPECT_THAT(fieldsOf(label + ": 1"), IsEmpty());
}

TEST(FieldTest, ValueThatIsEmptyIsNoField)
{
    expectFields({{"a:", {}}, {"a: \n b:\nc: 1", {{"", "c", 1}}}});
}

} // namespace
