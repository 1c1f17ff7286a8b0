#include <string>

#include <gtest/gtest.h>

#include "node/reference/Escape.h"

using node::reference::markdown;
using node::reference::roff;

namespace
{

TEST(MarkdownTest, PlainTextStays)
{
    const std::string text = R"(Report, in ns: "a" or 'b' (dB), 1.5s - 2h; #1?)";
    EXPECT_EQ(text, markdown(text));
}

TEST(MarkdownTest, MarksAreEscaped)
{
    EXPECT_EQ(R"(\|)", markdown("|"));
    EXPECT_EQ(R"(\<rate\> \[KEY=VALUE...\])", markdown("<rate> [KEY=VALUE...]"));
    EXPECT_EQ(R"(from\_call \*any\* \`code\` \\ \&)", markdown(R"(from_call *any* `code` \ &)"));
}

TEST(RoffTest, PlainTextStays)
{
    const std::string text = "Report, in ns: <a> [b] (dB), 1.5s; #1? | &\nand more.\n";
    EXPECT_EQ(text, roff(text));
}

TEST(RoffTest, MarksAreEscaped)
{
    EXPECT_EQ(R"(\-\-file)", roff("--file"));
    EXPECT_EQ(R"(\e\en)", roff(R"(\\n)"));
    EXPECT_EQ(R"(\(dqa\(dq \(aqb\(aq \(gac\(ga \(had \(tie)", roff(R"("a" 'b' `c` ^d ~e)"));
}

TEST(RoffTest, AFullStopThatBeginsALineIsNoRequest)
{
    EXPECT_EQ("\\&.toml a.b .c\n\\&.d\n", roff(".toml a.b .c\n.d\n"));
}

TEST(RoffTest, AnApostropheThatBeginsALineIsNoRequest)
{
    EXPECT_EQ("\\(aqbr", roff("'br"));
}

} // namespace
