#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "node/terminal/EditorSession.h"

namespace
{

TEST(PrintTest, TextStandsAboveTheLineThatIsBeingTyped)
{
    EditorSession session;
    session.type("one two" + key::Left + key::Left, "host> one t|wo\n");
    session.print("news");
    session.expectScreen("news\nhost> one t|wo\n");
    session.printWithoutLineEnd("more");
    session.expectScreen("news\nmore\nhost> one t|wo\n");
    session.type("x\r", "news\nmore\nhost> one txwo\n<one txwo>\nhost> |\n");
}

TEST(PrintTest, TextStandsAboveALineOfSeveralRows)
{
    EditorSession session({.size = {.rows = 10, .columns = 20}});
    session.type("aaaaaaaaaaaaaaaaaaaabbbbbbbbbbbbbbbbbbbbcccc" + key::CtrlA, R"(host> |aaaaaaaaaaaaaa
aaaaaabbbbbbbbbbbbbb
bbbbbbcccc
)");
    session.print("news");
    session.expectScreen(R"(news
host> |aaaaaaaaaaaaaa
aaaaaabbbbbbbbbbbbbb
bbbbbbcccc
)");
    session.type(key::CtrlE, R"(news
host> aaaaaaaaaaaaaa
aaaaaabbbbbbbbbbbbbb
bbbbbbcccc|
)");
    session.print("more");
    session.expectScreen(R"(news
more
host> aaaaaaaaaaaaaa
aaaaaabbbbbbbbbbbbbb
bbbbbbcccc|
)");
}

TEST(PrintTest, TextStandsAboveALineThatFillsItsRow)
{
    EditorSession session({.size = {.rows = 10, .columns = 20}});
    session.type("aaaaaaaaaaaaaa", "host> aaaaaaaaaaaaaa\n|\n");
    session.print("news");
    session.expectScreen("news\nhost> aaaaaaaaaaaaaa\n|\n");
    session.type("b", "news\nhost> aaaaaaaaaaaaaa\nb|\n");
}

TEST(PrintTest, TextStandsAboveLettersThatAreTwoWide)
{
    EditorSession session({.size = {.rows = 10, .columns = 20}});
    const std::string line = "host> aaaaaaaaaaaaa\n\xE4\xB8\xAD"
                             "bbbbbbbbbbbbbbbbbb\n|\n";
    session.type("aaaaaaaaaaaaa\xE4\xB8\xAD"
                 "bbbbbbbbbbbbbbbbbb",
                 line);
    session.print("news");
    session.expectScreen("news\n" + line);
}

TEST(PrintTest, TextStandsAboveControlLetters)
{
    EditorSession session({.size = {.rows = 10, .columns = 20}});
    session.type("aaaaaaaaaaaa\x16\x01"
                 "b",
                 "host> aaaaaaaaaaaa^A\nb|\n");
    session.print("news");
    session.expectScreen("news\nhost> aaaaaaaaaaaa^A\nb|\n");
}

TEST(PrintTest, NoTextIsNoRow)
{
    EditorSession session;
    session.type("one", "host> one|\n");
    session.printWithoutLineEnd("");
    session.print("news");
    session.expectScreen("news\nhost> one|\n");
}

TEST(PrintTest, TextStandsAboveALineThatIsLongerThanTheTerminal)
{
    EditorSession session({.size = {.rows = 3, .columns = 10}});
    session.type("aaaa1111111111222222222233333", "host> aaaa\n1111111111\n2222222222\n33333|\n");
    session.print("news");
    session.expectScreen("host> aaaa\nnews\n1111111111\n2222222222\n33333|\n");
}

TEST(PrintTest, TextDoesNotDisturbASearch)
{
    EditorSession session;
    session.type("one\r", "host> one\n<one>\nhost> |\n");
    session.type(key::CtrlR + "n", "host> one\n<one>\nhost> o|ne\nbck:n\n");
    session.print("news");
    session.expectScreen("host> one\n<one>\nnews\nhost> o|ne\nbck:n\n");
    session.type("e\r", "host> one\n<one>\nnews\nhost> one\n<one>\nhost> |\n");
}

TEST(PrintTest, TextBetweenTwoLinesIsPrintedAtOnceAsItIs)
{
    EditorSession session;
    session.type("hold\r", "host> hold\nholding\n|\n");
    session.printWithoutLineEnd("1 ");
    session.expectScreen("host> hold\nholding\n1 |\n");
    session.print("2");
    session.expectScreen("host> hold\nholding\n1 2\n|\n");
    session.go();
    session.expectScreen("host> hold\nholding\n1 2\n<hold>\nhost> |\n");
}

TEST(PrintTest, NoneOfAThousandMessagesIsLost)
{
    EditorSession session;
    std::string messages;
    session.type("one two" + key::Left, "host> one tw|o\n");
    for (int number = 1; number <= 1000; ++number)
    {
        session.print("message " + std::to_string(number));
        messages += "message " + std::to_string(number) + '\n';
    }
    session.expectScreen(messages + "host> one tw|o\n");
}

TEST(PrintTest, NoneOfAThousandMessagesIsLostWhileLinesAreTyped)
{
    EditorSession session;
    std::string messages;
    std::string lines;
    for (int number = 1; number <= 1000; ++number)
    {
        session.print("message " + std::to_string(number));
        messages += "message " + std::to_string(number) + '\n';
        if (number % 10 == 0)
        {
            session.type(std::to_string(number) + '\r');
            lines += '<' + std::to_string(number) + ">\n";
        }
    }
    session.type("exit\r");
    std::string seenMessages;
    std::string seenLines;
    std::istringstream rows(session.screenAtTheEnd());
    for (std::string row; std::getline(rows, row);)
    {
        seenMessages += row.starts_with("message ") ? row + '\n' : "";
        seenLines += row.starts_with('<') ? row + '\n' : "";
    }
    EXPECT_EQ(messages, seenMessages);
    EXPECT_EQ(lines, seenLines);
}

TEST(ResizeTest, ALineIsShownAtTheNewWidth)
{
    const std::string line =
        "aaaaaaaaaabbbbbbbbbbccccccccccddddddddddeeeeeeeeeeffffffffffgggggggggghhhhhhhhhhiiiiiiiiii";
    EditorSession session;
    session.type("one\r", "host> one\n<one>\nhost> |\n");
    session.type(line, R"(host> one
<one>
host> aaaaaaaaaabbbbbbbbbbccccccccccddddddddddeeeeeeeeeeffffffffffgggggggggghhhh
hhhhhhiiiiiiiiii|
)");
    session.resize({.rows = 24, .columns = 40});
    session.expectScreen(R"(host> one
<one>
host> aaaaaaaaaabbbbbbbbbbccccccccccdddd
ddddddeeeeeeeeeeffffffffffgggggggggghhhh
hhhhhhiiiiiiiiii|
)");
    // This terminal leaves the rows as they were; of one that breaks them anew, the rows above would be erased.
    session.resize({.rows = 24, .columns = 120});
    session.expectScreen(R"(host> one
<one>
host> aaaaaaaaaabbbbbbbbbbccccccccccdddd
ddddddeeeeeeeeeeffffffffffgggggggggghhhh
host> aaaaaaaaaabbbbbbbbbbccccccccccddddddddddeeeeeeeeeeffffffffffgggggggggghhhhhhhhhhiiiiiiiiii|
)");
    session.type(key::CtrlA + ".", R"(host> one
<one>
host> aaaaaaaaaabbbbbbbbbbccccccccccdddd
ddddddeeeeeeeeeeffffffffffgggggggggghhhh
host> .|aaaaaaaaaabbbbbbbbbbccccccccccddddddddddeeeeeeeeeeffffffffffgggggggggghhhhhhhhhhiiiiiiiiii
)");
}

TEST(ResizeTest, ASizeThatChangedBetweenTwoLinesIsNoticed)
{
    EditorSession session;
    session.type("hold\r", "host> hold\nholding\n|\n");
    session.resize({.rows = 24, .columns = 10});
    session.go();
    session.expectScreen("host> hold\nholding\n<hold>\nhost> |\n");
    session.type("aaaabbbb", "host> hold\nholding\n<hold>\nhost> aaaa\nbbbb|\n");
}

} // namespace
