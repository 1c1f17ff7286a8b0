#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/reference/Choice.h"

using node::reference::asTypedAfter;
using node::reference::fitting;

namespace
{

using Texts = std::vector<std::string>;

TEST(FittingTest, WordsBeginWithWhatIsTyped)
{
    EXPECT_EQ((Texts{"setFade", "setRain"}), fitting({"setRain", "getRain", "setFade", "se"}, "set"));
    EXPECT_EQ((Texts{"setRain"}), fitting({"setRain"}, "setRain"));
    EXPECT_EQ((Texts{}), fitting({"setRain"}, "setRains"));
    EXPECT_EQ((Texts{"a", "b"}), fitting({"b", "a", "b"}, ""));
    EXPECT_EQ((Texts{}), fitting({}, ""));
}

TEST(FittingTest, CaseCountsWhereAWordOfThatCaseFits)
{
    EXPECT_EQ((Texts{"setRain"}), fitting({"setRain", "SETRAIN"}, "set"));
    EXPECT_EQ((Texts{"SETRAIN", "setRain"}), fitting({"setRain", "SETRAIN"}, "Set"));
    EXPECT_EQ((Texts{"setRain"}), fitting({"setRain"}, "SETrAI"));
}

TEST(FittingTest, OnlyTheLettersOfAsciiHaveACase)
{
    EXPECT_EQ((Texts{}), fitting({"[", "{", "`", "@", "\xe4"}, "\xc4"));
    EXPECT_EQ((Texts{"[a"}), fitting({"[a", "{a"}, "[A"));
    EXPECT_EQ((Texts{"@Z"}), fitting({"@Z", "`z"}, "@z"));
}

TEST(AsTypedAfterTest, WordsHaveQuotationMarksWhereTheyNeedThem)
{
    EXPECT_EQ((Texts{"plain", R"("two words")", R"("5\"")"}), asTypedAfter("", {"plain", "two words", "5\""}));
}

TEST(AsTypedAfterTest, WordsHaveQuotationMarksWhereThePersonBeganWithOne)
{
    EXPECT_EQ((Texts{R"("plain")", R"("a\\b")"}), asTypedAfter("\"p", {"plain", "a\\b"}));
    EXPECT_EQ((Texts{"plain"}), asTypedAfter("p\"", {"plain"}));
}

TEST(AsTypedAfterTest, AWordThatIsNotWholeStaysOpen)
{
    EXPECT_EQ((Texts{"folder/", "code=", R"("my folder/)", R"("a key=)"}),
              asTypedAfter("", {"folder/", "code=", "my folder/", "a key="}));
    EXPECT_EQ((Texts{R"("folder/)", R"("code=)"}), asTypedAfter("\"", {"folder/", "code="}));
    EXPECT_EQ((Texts{R"("a/b c")"}), asTypedAfter("", {"a/b c"}));
}

} // namespace
