#include <string>

#include <gtest/gtest.h>

#include "node/terminal/EditorSession.h"

namespace
{

TEST(CompletionKeyTest, OneCandidateIsInsertedWithABlank)
{
    EditorSession session;
    session.type("getP\t", "host> getPower |\n");
}

TEST(CompletionKeyTest, ACandidateThatIsNotWholeHasNoBlank)
{
    EditorSession session;
    session.type("sc\t", "host> scenario/|\n");
    session.type(" le\t", "host> scenario/ level=|\n");
}

TEST(CompletionKeyTest, ACandidateTakesThePlaceOfWhatIsTyped)
{
    EditorSession session;
    session.type("set rai\t", "host> set \"rain front\" |\n");
}

TEST(CompletionKeyTest, InsideTheLineTheRestStays)
{
    EditorSession session;
    session.type("getPx 1" + key::Left + key::Left + key::Left, "host> getP|x 1\n");
    session.type(key::Tab, "host> getPower |x 1\n");
}

TEST(CompletionKeyTest, ABlankThatIsThereIsNotDoubled)
{
    EditorSession session;
    session.type("getP 1" + key::Left + key::Left, "host> getP| 1\n");
    session.type(key::Tab + "2", "host> getPower 2|1\n");
}

TEST(CompletionKeyTest, WhatSeveralBeginWithIsInserted)
{
    EditorSession session;
    session.type("g\t", "host> get|\n");
    session.type("L\t", "host> getLevel|\n");
    EXPECT_EQ(0, session.screen().beeps());
}

TEST(CompletionKeyTest, TheSecondTimeSeveralAreListed)
{
    EditorSession session;
    session.type("g\t", "host> get|\n");
    session.type(key::Tab, R"(host> get
getLevel   getLevels  getPower
host> get|
)");
    EXPECT_EQ(0, session.screen().beeps());
}

TEST(CompletionKeyTest, WhereNothingIsInsertedTheFirstTimeBeeps)
{
    EditorSession session;
    session.type("get\t");
    session.expectBeeps(1);
    session.expectScreen("host> get|\n");
    session.type(key::Tab, "host> get\ngetLevel   getLevels  getPower\nhost> get|\n");
}

TEST(CompletionKeyTest, HalfALetterInCommonIsNotInserted)
{
    EditorSession session;
    session.type("w\t");
    session.expectBeeps(1);
    session.expectScreen("host> w|\n");
}

TEST(CompletionKeyTest, AnotherLineIsAnotherFirstTime)
{
    EditorSession session;
    session.type("get\t");
    session.expectBeeps(1);
    session.type("L\t", "host> getLevel|\n");
    session.type(key::Backspace + "\t");
    session.type("\t", "host> getLevel\ngetLevel   getLevels\nhost> getLevel|\n");
    EXPECT_EQ(1, session.screen().beeps());
}

TEST(CompletionKeyTest, AnotherWordIsAnotherFirstTime)
{
    EditorSession session;
    session.type("get\t");
    session.expectBeeps(1);
    session.type(key::CtrlW + "\xC3\xA4\t");
    session.expectBeeps(2);
    session.expectScreen("host> \xC3\xA4|\n");
}

TEST(CompletionKeyTest, TheSameWordInTheNextLineIsAnotherFirstTime)
{
    EditorSession session;
    session.type("get\t");
    session.expectBeeps(1);
    session.type("\rget\t");
    session.expectBeeps(2);
    session.expectScreen("host> get\n<get>\nhost> get|\n");
}

TEST(CompletionKeyTest, TheListFitsTheWidth)
{
    EditorSession session({.size = {.rows = 24, .columns = 30}});
    session.type(key::Tab + key::Tab, "host>\n"
                                      "getLevel      scenario/\n"
                                      "getLevels     \"rain front\"\n"
                                      "getPower      \xC3\xA4rger\n"
                                      "set           \xC3\xA4hnlich\n"
                                      "level=\n"
                                      "host> |\n");
}

TEST(CompletionKeyTest, TheListLeavesTheCursorInItsPlace)
{
    EditorSession session;
    session.type("get 1 2" + key::Left + key::Left + key::Left + key::Left, "host> get| 1 2\n");
    session.type(key::Tab + key::Tab, R"(host> get 1 2
getLevel   getLevels  getPower
host> get| 1 2
)");
    session.type("P\t", R"(host> get 1 2
getLevel   getLevels  getPower
host> getPower |1 2
)");
}

TEST(CompletionKeyTest, WhatSeveralBeginWithIsWholeLetters)
{
    EditorSession session;
    session.type("\xC3\xA4\t");
    session.expectBeeps(1);
    session.expectScreen("host> \xC3\xA4|\n");
    session.type("h\t", "host> \xC3\xA4hnlich |\n");
}

TEST(CompletionKeyTest, NoCandidateBeeps)
{
    EditorSession session;
    session.type("x\t");
    session.expectBeeps(1);
    session.expectScreen("host> x|\n");
}

TEST(CompletionKeyTest, WhatTheHelperThrowsLeavesTheLineBehindWhatItPrinted)
{
    EditorSession session;
    session.type("throw\t");
    EXPECT_EQ("host> throw\nprinted\nthrown: no candidates today\n|\n", session.screenAtTheEnd());
    EXPECT_EQ(1, session.exitStatus());
}

TEST(ExplanationKeyTest, WhatMayComeIsToldAboveTheLine)
{
    EditorSession session;
    session.type("set 1?", R"(host> set 1
after <set 1>
anything may come
host> set 1|
)");
    session.type("2\r", R"(host> set 1
after <set 1>
anything may come
host> set 12
<set 12>
host> |
)");
}

TEST(ExplanationKeyTest, ALineEndIsNotDoubled)
{
    EditorSession session;
    session.type("set ?", "host> set\nends its line\nhost> set |\n");
}

TEST(ExplanationKeyTest, TheCursorStaysInItsPlace)
{
    EditorSession session({.size = {.rows = 24, .columns = 20}});
    session.type("set 1 2 3 4 5 6 7 8 9", "host> set 1 2 3 4 5\n6 7 8 9|\n");
    session.type(key::CtrlA + key::MetaF + key::MetaF, "host> set 1| 2 3 4 5\n6 7 8 9\n");
    session.type("?", R"(host> set 1 2 3 4 5
6 7 8 9
after <set 1>
anything may come
host> set 1| 2 3 4 5
6 7 8 9
)");
}

TEST(ExplanationKeyTest, WhereNothingIsToldItIsALetter)
{
    EditorSession session;
    session.type("say \"?\r", "host> say \"?\n<say \"?>\nhost> |\n");
}

} // namespace
