#include <string>

#include <gtest/gtest.h>

#include "node/terminal/EditorSession.h"

namespace
{

TEST(LineEditorTest, ALineIsRead)
{
    EditorSession session;
    session.type("one two\r", "host> one two\n<one two>\nhost> |\n");
}

TEST(LineEditorTest, EmacsKeysEditTheLine)
{
    EditorSession session;
    session.type("two three" + key::CtrlW + key::CtrlA + "one ", "host> one |two\n");
    session.type(key::CtrlK, "host> one |\n");
}

TEST(LineEditorTest, TheUsersFileOfKeysIsHonoured)
{
    EditorSession session({.editrc = "bind ^O ed-move-to-beg\n"
                                     "editor_host:bind ^G ed-prev-char\n"
                                     "another:bind ^G ed-move-to-end\n"});
    session.type("two\x0Fone \x07\x07!", "host> on!|e two\n");
}

TEST(LineEditorTest, KeysMayBeThoseOfVi)
{
    EditorSession session({.editrc = "bind -v\n"});
    session.type("one two\x1B" + std::string("0xiA"), "host> A|ne two\n");
    session.type(" sce\t", "host> A scenario/|ne two\n");
}

TEST(LineEditorTest, AnErrorInTheUsersFileIsNotInTheWay)
{
    EditorSession session({.editrc = "nonsense\nbind ^O nonsense\n"});
    session.type("one\r", "host> one\n<one>\nhost> |\n");
}

TEST(LineEditorTest, CtrlCDropsTheLine)
{
    EditorSession session;
    session.type("one two", "host> one two|\n");
    session.type(key::Left + key::Left, "host> one t|wo\n");
    session.type(key::CtrlC, "host> one two^C\ninterrupted\nhost> |\n");
    session.type("three\r", "host> one two^C\ninterrupted\nhost> three\n<three>\nhost> |\n");
}

TEST(LineEditorTest, CtrlCDropsHalfALetter)
{
    EditorSession session;
    session.type("a\xE2", "host> a|\n");
    session.type(key::CtrlC, "host> a^C\ninterrupted\nhost> |\n");
    session.type("b\r", "host> a^C\ninterrupted\nhost> b\n<b>\nhost> |\n");
}

TEST(LineEditorTest, CtrlCDuringASearchDropsTheLine)
{
    EditorSession session;
    session.type("one\r", "host> one\n<one>\nhost> |\n");
    session.type(key::CtrlR + "n", "host> one\n<one>\nhost> o|ne\nbck:n\n");
    session.type(key::CtrlC, "host> one\n<one>\nhost> one\nbck:n^C\n\ninterrupted\nhost> |\n");
}

TEST(LineEditorTest, CtrlCBetweenTwoLinesDoesNotReachTheNext)
{
    EditorSession session;
    session.type("hold\r", "host> hold\nholding\n|\n");
    session.type(key::CtrlC, "host> hold\nholding\n^C|\n");
    session.go();
    session.expectScreen("host> hold\nholding\n^C<hold>\nhost> |\n");
    session.type("one\r", "host> hold\nholding\n^C<hold>\nhost> one\n<one>\nhost> |\n");
}

TEST(LineEditorTest, CtrlDEndsAnEmptyLineAlone)
{
    EditorSession session;
    session.type("one", "host> one|\n");
    session.type(key::Left + key::CtrlD, "host> on|\n");
    session.type(key::CtrlD + "e", "host> one|\n");
    session.type(key::CtrlC, "host> one^C\ninterrupted\nhost> |\n");
    session.type(key::CtrlD);
    EXPECT_EQ("host> one^C\ninterrupted\nhost> ^D\n|\n", session.screenAtTheEnd());
    EXPECT_EQ(0, session.exitStatus());
}

TEST(LineEditorTest, ATerminalThatIsGoneIsTheEnd)
{
    EditorSession session;
    session.type("one", "host> one|\n");
    session.terminal().hangUp();
    EXPECT_EQ(0, session.exitStatus());
}

TEST(LineEditorTest, ATerminalThatIsGoneBetweenTwoLinesIsTheEnd)
{
    EditorSession session;
    session.type("hold\r", "host> hold\nholding\n|\n");
    session.terminal().hangUp();
    session.go();
    EXPECT_EQ(0, session.exitStatus());
}

TEST(LineEditorTest, PastedLinesAreReadOneByOne)
{
    EditorSession session;
    session.type("one\ntwo\r\nthree\nfour", R"(host> one
<one>
host> two
<two>
host>
<>
host> three
<three>
host> four|
)");
}

TEST(LineEditorTest, CtrlCDropsThePastedLinesThatWereNotReadYet)
{
    EditorSession session;
    session.type("hold\ntwo\nthree\n", "host> hold\nholding\n|\n");
    session.type(key::CtrlC, "host> hold\nholding\n^C|\n");
    session.go();
    session.expectScreen("host> hold\nholding\n^C<hold>\nhost> |\n");
    session.type("four\r", "host> hold\nholding\n^C<hold>\nhost> four\n<four>\nhost> |\n");
}

TEST(LineEditorTest, ALongLineThatIsPastedArrivesWhole)
{
    std::string line;
    for (int number = 1000; number < 2250; ++number)
    {
        line += std::to_string(number);
    }
    EditorSession session({.size = {.rows = 100, .columns = 100}});
    std::string rows = "host> " + line + "\n<" + line + ">\nhost> |\n";
    session.type(line + '\r');
    // Rows of 100 letters: the prompt has taken six of the first one.
    const auto wrapped = [](std::string text)
    {
        for (std::size_t place = 100; place < text.size(); place += 101)
        {
            text.insert(place, "\n");
        }
        return text;
    };
    session.expectScreen(wrapped("host> " + line) + '\n' + wrapped('<' + line + '>') + "\nhost> |\n");
}

TEST(LineEditorTest, LettersOfUtf8AreLetters)
{
    EditorSession session;
    session.type("\xC3\xA4\xE2\x82\xAC\xC3\xB6", "host> \xC3\xA4\xE2\x82\xAC\xC3\xB6|\n");
    session.type(key::Left + key::Left + key::Backspace, "host> |\xE2\x82\xAC\xC3\xB6\n");
    session.type(key::Return, "host> \xE2\x82\xAC\xC3\xB6\n<\xE2\x82\xAC\xC3\xB6>\nhost> |\n");
}

TEST(LineEditorTest, ALetterOfUtf8MayComeInParts)
{
    EditorSession session;
    session.type("a\xE2", "host> a|\n");
    session.type("\x82");
    session.type("\xAC", "host> a\xE2\x82\xAC|\n");
}

TEST(LineEditorTest, ABrokenLetterOfUtf8StaysAsItIs)
{
    EditorSession session;
    session.type("a\xE2z\r", "host> a\\U+DCE2z\n<a\xEF\xBF\xBDz>\nhost> |\n"); // the terminal shows it as U+FFFD
}

TEST(LineEditorTest, BytesPassThroughInTheCLocale)
{
    EditorSession session({.locale = "C"});
    session.type("a\xC3\xA4z\r", "host> a\\U+DCC3\\U+DCA4z\n<a\xC3\xA4z>\nhost> |\n");
    session.type(key::Up, "host> a\\U+DCC3\\U+DCA4z\n<a\xC3\xA4z>\nhost> a\\U+DCC3\\U+DCA4z|\n");
}

TEST(LineEditorTest, ADumbTerminalWillDo)
{
    for (const std::string terminalType : {"dumb", "unheard-of", ""})
    {
        EditorSession session({.terminalType = terminalType});
        session.type("one" + key::Backspace + "e two\r", "host> one two\n<one two>\nhost> |\n");
        session.type("get", "host> one two\n<one two>\nhost> get|\n");
        session.print("news");
        session.expectScreen("host> one two\n<one two>\nhost> get\nnews\nhost> get|\n");
    }
}

TEST(LineEditorTest, TerminalModesAreRestored)
{
    const auto describe = [](const termios& modes) {
        return std::vector<tcflag_t>{modes.c_iflag, modes.c_oflag, modes.c_cflag, modes.c_lflag};
    };
    const auto before = describe(Terminal({"/bin/true"}).modes());
    EditorSession session;
    EXPECT_NE(before, describe(session.terminal().modes()));
    session.type("hold\r", "host> hold\nholding\n|\n");
    EXPECT_EQ(before, describe(session.terminal().modes()));
    session.go();
    session.expectScreen("host> hold\nholding\n<hold>\nhost> |\n");
    session.type("exit\r");
    session.screenAtTheEnd();
    EXPECT_EQ(before, describe(session.terminal().modes()));
    EXPECT_EQ(0, session.exitStatus());
}

} // namespace
