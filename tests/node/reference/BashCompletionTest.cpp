#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/reference/BashCompletion.h"
#include "support/Shell.h"
#include "support/TemporaryFolder.h"

namespace
{

/// A command line in bash, what the program is asked about it, and what it offers; then what bash offers.
struct Row
{
    std::string line;               ///< up to the cursor
    std::vector<std::string> words; ///< as readline breaks it; of the last one, all
    std::string asked;
    std::string answer;
    std::string offered;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.line;
}

class BashCompletionTest : public ::testing::TestWithParam<Row>
{
protected:
    BashCompletionTest()
    {
        folder.write("rain.toml", "");
        folder.write("rain water", "");
    }

    TemporaryFolder folder;
};

/// The program's place is taken by one that writes what it is asked, and answers as it is told.
TEST_P(BashCompletionTest, OffersWhatTheProgramDoes)
{
    folder.write("completion", node::reference::bashCompletion());
    std::string script = "cd " + shellWord(folder.path()) + R"(
source ./completion
printf '#!/bin/sh\nprintf %%s "$2" >asked\nprintf %%s "$ANSWER"\n' >kel-node
chmod +x kel-node
compopt() { printf '[%s]\n' "$*"; }
)";
    script += "export ANSWER=" + shellWord(GetParam().answer) + "\n";
    script += "COMP_LINE=" + shellWord(GetParam().line) + "\nCOMP_POINT=${#COMP_LINE}\nCOMP_WORDS=(";
    for (const std::string& word : GetParam().words)
    {
        script += " " + shellWord(word);
    }
    script += ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_kel_node\n"
              "[ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\\n' \"${COMPREPLY[@]}\"\n";
    EXPECT_EQ(GetParam().offered, inShell("bash --norc " + folder.write("script", script)).output);
    EXPECT_EQ(GetParam().asked, folder.has("asked") ? folder.read("asked") : "");
}

constexpr const char* Program = "./kel-node";

INSTANTIATE_TEST_SUITE_P(
    Commands, BashCompletionTest,
    ::testing::Values(
        Row{"./kel-node ", {Program, ""}, R"(")", "\"advance\"\n\"exit\"\n", "advance\nexit\n"},
        Row{"./kel-node set", {Program, "set"}, R"("set)", "\"setRain\"\n", "setRain\n"},
        Row{"./kel-node  getCtStatus\t", {Program, "getCtStatus", ""}, R"("getCtStatus" ")", "\"1\"\n", "1\n"},
        Row{"./kel-node se", {Program, "setRain"}, R"("se)", "\"setRain\"\n", "setRain\n"}, // the cursor inside
        Row{"./kel-node nonsense ", {Program, "nonsense", ""}, R"("nonsense" ")", "", ""},
        Row{"./kel-node -- -", {Program, "--", "-"}, R"("-)", "", ""},
        Row{"./kel-node f --clock=w",
            {Program, "f", "--clock", "=", "w"},
            R"("f" "--clock=w)",
            "\"--clock=wx\"\n",
            "wx\n"},
        Row{"./kel-node watch -", {Program, "watch", "-"}, R"("watch" "-)", "\"-n\"\n", "-n\n"}));

INSTANTIATE_TEST_SUITE_P(
    QuotationMarks, BashCompletionTest,
    ::testing::Values(Row{R"(./kel-node a\ b 'c "d\' "e \"f\g" x)",
                          {Program, R"(a\ b)", R"('c "d\')", R"("e \"f\g")", "x"},
                          R"("a b" "c \"d\\" "e \"f\\g" "x)",
                          "\"xy\"\n",
                          "xy\n"},
                      Row{"./kel-node a",
                          {Program, "a"},
                          R"("a)",
                          R"("a \"b\" $c\\'")"
                          "\n",
                          R"(a\ \"b\"\ \$c\\\')"
                          "\n"},
                      Row{"./kel-node \"rain ", {Program, "\"rain "}, R"("rain )", "\"rain water\"\n", "rain water\n"},
                      Row{"./kel-node 'rain ", {Program, "'rain "}, R"("rain )", "\"rain water\"\n", "rain water\n"}));

// Readline breaks words at '=' and ':', and takes what is offered for the part behind.
INSTANTIATE_TEST_SUITE_P(
    BrokenWords, BashCompletionTest,
    ::testing::Values(
        Row{"./kel-node addFault x t",
            {Program, "addFault", "x", "t"},
            R"("addFault" "x" "t)",
            "\"text=\n",
            "[-o nospace]\ntext=\n"},
        Row{"./kel-node addFault x t",
            {Program, "addFault", "x", "t"},
            R"("addFault" "x" "t)",
            "\"text=\n\"throws=\n",
            "text=\nthrows=\n"},
        Row{"./kel-node f throws=", {Program, "f", "throws", "="}, R"("f" "throws=)", "\"throws=true\"\n", "true\n"},
        Row{"./kel-node f throws=t",
            {Program, "f", "throws", "=", "t"},
            R"("f" "throws=t)",
            "\"throws=true\"\n",
            "true\n"},
        Row{"./kel-node f throws=t",
            {Program, "f", "throws=t"},
            R"("f" "throws=t)",
            "\"throws=true\"\n",
            "throws=true\n"},
        Row{"./kel-node f a:b:c", {Program, "f", "a", ":", "b", ":", "c"}, R"("f" "a:b:c)", "\"a:b:cd\"\n", "cd\n"},
        Row{"./kel-node f a=1 b=",
            {Program, "f", "a", "=", "1", "b", "="},
            R"("f" "a=1" "b=)",
            "\"b=\n",
            "[-o nospace]\n\n"},
        Row{"./kel-node f a= b", {Program, "f", "a", "=", "b"}, R"("f" "a=" "b)", "\"bc\"\n", "bc\n"},
        Row{"./kel-node f fo", {Program, "f", "fo"}, R"("f" "fo)", "\"folder/\n", "[-o nospace]\nfolder/\n"}));

INSTANTIATE_TEST_SUITE_P(
    Options, BashCompletionTest,
    ::testing::Values(
        Row{"./kel-node -",
            {Program, "-"},
            "",
            "",
            "-s\n--scenario\n-f\n--file\n-k\n--keep-going\n--json\n--clock\n--record\n--trace\n--trace-file\n-h\n"
            "--help\n--version\n"},
        Row{"./kel-node -k --tr", {Program, "-k", "--tr"}, "", "", "--trace\n--trace-file\n"},
        Row{"./kel-node --clock ", {Program, "--clock", ""}, "", "", "told\nwall\n"},
        Row{"./kel-node --clock w", {Program, "--clock", "w"}, "", "", "wall\n"},
        Row{"./kel-node --clock=w", {Program, "--clock", "=", "w"}, "", "", "wall\n"},
        Row{"./kel-node --clock=", {Program, "--clock", "="}, "", "", "told\nwall\n"},
        Row{"./kel-node --clock=w", {Program, "--clock=w"}, "", "", "--clock=wall\n"},
        Row{"./kel-node --clock told set",
            {Program, "--clock", "told", "set"},
            R"("set)",
            "\"setRain\"\n",
            "setRain\n"},
        Row{"./kel-node --clock=told set",
            {Program, "--clock", "=", "told", "set"},
            R"("set)",
            "\"setRain\"\n",
            "setRain\n"},
        Row{"./kel-node --json set", {Program, "--json", "set"}, R"("set)", "\"setRain\"\n", "setRain\n"},
        Row{"./kel-node -ks x set", {Program, "-ks", "x", "set"}, R"("set)", "\"setRain\"\n", "setRain\n"},
        Row{"./kel-node -sx set", {Program, "-sx", "set"}, R"("set)", "\"setRain\"\n", "setRain\n"},
        Row{"./kel-node --trace KE", {Program, "--trace", "KE"}, R"("setTraceLevel" "KE)", "\"KEL.A\"\n", "KEL.A\n"}));

INSTANTIATE_TEST_SUITE_P(
    Files, BashCompletionTest,
    ::testing::Values(
        Row{"./kel-node -f rain.", {Program, "-f", "rain."}, "", "", "[-o filenames]\nrain.toml\n"},
        Row{"./kel-node --file rain\\ w", {Program, "--file", "rain\\ w"}, "", "", "[-o filenames]\nrain water\n"},
        Row{"./kel-node -kf rain.", {Program, "-kf", "rain."}, "", "", "[-o filenames]\nrain.toml\n"},
        Row{"./kel-node --record rain.", {Program, "--record", "rain."}, "", "", "[-o filenames]\nrain.toml\n"},
        Row{"./kel-node --record=rain.", {Program, "--record", "=", "rain."}, "", "", "[-o filenames]\nrain.toml\n"},
        Row{"./kel-node --trace-file rain.", {Program, "--trace-file", "rain."}, "", "", "[-o filenames]\nrain.toml\n"},
        Row{"./kel-node -s rain",
            {Program, "-s", "rain"},
            R"("loadScenario" "rain)",
            "\"rain-front\"\n\"rain water\"\n",
            "rain-front\nrain\\ water\n"},
        Row{"./kel-node --scenario=ra",
            {Program, "--scenario", "=", "ra"},
            R"("loadScenario" "ra)",
            "\"rain-front\"\n",
            "rain-front\n"},
        Row{"./kel-node showLink > rain.", {Program, "showLink", ">", "rain."}, "", "", "[-o filenames]\nrain.toml\n"},
        Row{"./kel-node showLink 2>rain.",
            {Program, "showLink", "2", ">", "rain."},
            "",
            "",
            "[-o filenames]\nrain.toml\n"}));

TEST(BashCompletionProgramTest, IsTheOneThatIsTyped)
{
    const TemporaryFolder folder;
    folder.write("kel-node", "#!/bin/sh\necho '\"here\"'\n");
    const std::string completion = folder.write("completion", node::reference::bashCompletion());
    const std::string head =
        "export HOME=" + folder.path() + "; chmod +x ~/kel-node; source " + completion + "; COMP_WORDS=(";
    const std::string tail = " x); COMP_LINE=\"${COMP_WORDS[*]}\"; COMP_POINT=${#COMP_LINE}; COMP_CWORD=1; _kel_node; "
                             "echo \"${COMPREPLY[@]}\"";
    for (const std::string program : {"\\~/kel-node", "~/kel-node"})
    {
        EXPECT_EQ("here\n", inShell("bash --norc -c " + shellWord(head + program + tail)).output) << program;
    }
    EXPECT_EQ("\n", inShell("bash --norc -c " + shellWord(head + "/absent/kel-node" + tail)).output);
}

TEST(BashCompletionTextTest, IsSoundToTheShellsChecker)
{
    if (inShell("command -v shellcheck").status != 0)
    {
        GTEST_SKIP() << "shellcheck is not installed";
    }
    const TemporaryFolder folder;
    const std::string completion = folder.write("completion", node::reference::bashCompletion());
    EXPECT_EQ("", inShell("shellcheck -s bash " + completion).output);
}

} // namespace
