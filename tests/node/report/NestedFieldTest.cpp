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

/// The fields of the rows of a list.
std::vector<Field> listed(const std::string& rows)
{
    return fieldsOf("Powers:\n" + rows);
}

TEST(NestedFieldTest, NestedLinesStandUnderTheLineAbove)
{
    EXPECT_THAT(fieldsOf("a: 1\n b: 2\n\tc: 3\n--- d: 4\n------ e: 5\n - f: 6\ng: 7\n h: 8\n"),
                ElementsAre(Field{"", "a", 1}, Field{"a", "b", 2}, Field{"a", "c", 3}, Field{"a", "d", 4},
                            Field{"a", "e", 5}, Field{"a", "f", 6}, Field{"", "g", 7}, Field{"g", "h", 8}));
}

TEST(NestedFieldTest, NestedHeadingTakesOver)
{
    EXPECT_THAT(fieldsOf("a:\n b: 1\n c:\n  d: 2\ne: 3\n"),
                ElementsAre(Field{"a", "b", 1}, Field{"c", "d", 2}, Field{"", "e", 3}));
}

TEST(NestedFieldTest, LineWithoutALabelEndsWhatStandsAbove)
{
    EXPECT_THAT(fieldsOf("a:\nChannel 2\n b: 1\n c 2\n"), ElementsAre(Field{"", "b", 1}));
    EXPECT_THAT(fieldsOf("a:\n-----\n b: 1\n c 2\n"), ElementsAre(Field{"", "b", 1}));
}

TEST(NestedFieldTest, EmptyLinesAndNestedTextEndNothing)
{
    EXPECT_THAT(fieldsOf("a:\n\n b: 1\n \n text\n c 2\n"), ElementsAre(Field{"a", "b", 1}, Field{"a", "c", 2}));
}

TEST(NestedFieldTest, DashesWithoutABlankBehindThemAreNoMarker)
{
    EXPECT_THAT(fieldsOf("a: 1\n-b: 2\n"), ElementsAre(Field{"", "a", 1}, Field{"", "-b", 2}));
}

TEST(NestedFieldTest, EntriesOfALegendAreNoFields)
{
    EXPECT_THAT(fieldsOf("a: 1\n--- [0]: never\n--- [1]: 7\n[2]: once\n"), ElementsAre(Field{"", "a", 1}));
}

TEST(NestedFieldTest, ValueInALegendIsAField)
{
    EXPECT_THAT(fieldsOf("a: 1\n--- [5]: failed: 3\n"), ElementsAre(Field{"", "a", 1}, Field{"a", "failed", 3}));
    EXPECT_THAT(fieldsOf("[5]: failed: 3\n"), ElementsAre(Field{"", "failed", 3}));
}

TEST(NestedFieldTest, BracketElsewhereMakesNoLegend)
{
    EXPECT_THAT(fieldsOf("[5] a: b: 3\na [5]: 3\n"), ElementsAre(Field{"", "[5] a", "b: 3"}, Field{"", "a [5]", 3}));
}

TEST(NestedFieldTest, RowsOfAListEndInANumber)
{
    struct Row
    {
        std::string text;
        Field field;
    };
    for (const Row& row : {Row{"BPSK_LONG_NAME_24.2 dBm", {"Powers", "BPSK_LONG_NAME_", 24.2, "dBm"}},
                           {"HALF_BPSK_STRONG24.2 dBm", {"Powers", "HALF_BPSK_STRONG", 24.2, "dBm"}},
                           {"HALF_BPSK_STRONG-2.5 dBm", {"Powers", "HALF_BPSK_STRONG", -2.5, "dBm"}},
                           {"HALF_BPSK_STRONG-2 dBm", {"Powers", "HALF_BPSK_STRONG", -2, "dBm"}},
                           {"HALF_BPSK_STRONG1e+06 dBm", {"Powers", "HALF_BPSK_STRONG", 1e6, "dBm"}},
                           {"HALF_BPSK_STRONG-2.14748e+07 dBm", {"Powers", "HALF_BPSK_STRONG", -2.14748e7, "dBm"}},
                           {"1024QAM_STRONG1e-05 dBm", {"Powers", "1024QAM_STRONG", 1e-5, "dBm"}},
                           {"Mode24 dBm", {"Powers", "Mode", 24, "dBm"}},
                           {"Mode-24 dBm", {"Powers", "Mode", -24, "dBm"}},
                           {"4QAM          24 dBm", {"Powers", "4QAM", 24, "dBm"}},
                           {"4QAM          -2e+06 dBm", {"Powers", "4QAM", -2e6, "dBm"}},
                           {"4QAM\t24", {"Powers", "4QAM", 24}},
                           {"two words 24", {"Powers", "two words", 24}}})
    {
        EXPECT_THAT(listed("    " + row.text), ElementsAre(row.field)) << row.text;
        EXPECT_THAT(listed("--- " + row.text + "\r"), ElementsAre(row.field)) << row.text;
    }
}

TEST(NestedFieldTest, OtherTextIsNoRow)
{
    for (const std::string text :
         {"4QAM", "4QAM dBm", "24", "24 dBm", "-24 dBm", "1e+06 dBm", "4QAM 24 dBm high", "4QAM 24.2.2 dBm",
          "4QAM nan dBm", "4QAM 1e+999 dBm", "4QAM 24:", "dBm", "e-", "- -", "."})
    {
        EXPECT_THAT(listed("    " + text), IsEmpty()) << text;
    }
}

TEST(NestedFieldTest, RowsStandOnlyUnderALabelWithoutAValue)
{
    EXPECT_THAT(fieldsOf(" 4QAM 24\n"), IsEmpty());
    EXPECT_THAT(listed("4QAM 24\n"), IsEmpty());
    EXPECT_THAT(fieldsOf("Fade: 0 dB\n\n     Channel 1      Channel 2\n"), ElementsAre(Field{"", "Fade", 0, "dB"}));
}

TEST(NestedFieldTest, FieldsAmongRowsAreFields)
{
    EXPECT_THAT(
        listed(" 4QAM 24\n a: 1\n 8QAM 23\n"),
        ElementsAreArray(std::vector<Field>{{"Powers", "4QAM", 24}, {"Powers", "a", 1}, {"Powers", "8QAM", 23}}));
}

} // namespace
