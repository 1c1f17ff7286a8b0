#include "node/cli/Options.h"

#include <ostream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <gtest/gtest.h>

#include "node/wording/InputError.h"

using node::cli::Options;

namespace
{

/// What has been read, or the mistake behind it.
std::string read(const std::vector<std::string>& arguments)
{
    std::vector<std::string> words = {"kel-node"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& word : words)
    {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    Options options;
    std::string mistake;
    try
    {
        readOptions(static_cast<int>(words.size()), argv.data(), options);
    }
    catch (const node::wording::InputError& error)
    {
        mistake = error.what();
    }
    std::string text;
    text += options.help ? "help " : "";
    text += options.version ? "version " : "";
    text += options.json ? "json " : "";
    text += options.keepGoing ? "keep-going " : "";
    text += options.scenario ? fmt::format("scenario={:?} ", *options.scenario) : "";
    text += options.file ? fmt::format("file={:?} ", *options.file) : "";
    text += options.record ? fmt::format("record={:?} ", *options.record) : "";
    text += options.trace ? fmt::format("trace={:?}:{} ", options.trace->channels, options.trace->level) : "";
    text += options.traceFile ? fmt::format("trace-file={:?} ", *options.traceFile) : "";
    text += options.clockOnTheWall ? fmt::format("wall={} ", *options.clockOnTheWall) : "";
    text += options.complete ? fmt::format("complete={:?} ", *options.complete) : "";
    return text + (mistake.empty() ? fmt::format("{}", options.words) : mistake);
}

/// Arguments, and what is read.
struct Row
{
    std::vector<std::string> arguments;
    std::string read;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << ::testing::PrintToString(row.arguments);
}

class OptionsTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(OptionsTest, AreReadAndReadAgain)
{
    EXPECT_EQ(GetParam().read, read(GetParam().arguments));
    EXPECT_EQ(GetParam().read, read(GetParam().arguments));
    EXPECT_EQ("json []", read({"--json"}));
}

INSTANTIATE_TEST_SUITE_P(
    EachOne, OptionsTest,
    ::testing::Values(Row{{}, "[]"}, Row{{"--help"}, "help []"}, Row{{"-h"}, "help []"},
                      Row{{"--version"}, "version []"}, Row{{"--json"}, "json []"},
                      Row{{"--keep-going"}, "keep-going []"}, Row{{"-k"}, "keep-going []"},
                      Row{{"--scenario", "rain"}, "scenario=\"rain\" []"},
                      Row{{"--scenario=rain"}, "scenario=\"rain\" []"}, Row{{"-s", "rain"}, "scenario=\"rain\" []"},
                      Row{{"-srain"}, "scenario=\"rain\" []"}, Row{{"--file", "-"}, "file=\"-\" []"},
                      Row{{"-f", "a b"}, "file=\"a b\" []"}, Row{{"--record", "file"}, "record=\"file\" []"},
                      Row{{"--trace-file", "file"}, "trace-file=\"file\" []"},
                      Row{{"--complete", "getC 1 "}, "complete=\"getC 1 \" []"},
                      Row{{"--clock", "wall"}, "wall=true []"}, Row{{"--clock=told"}, "wall=false []"},
                      Row{{"--scenario", ""}, "scenario=\"\" []"}, Row{{"-s", "--json"}, "scenario=\"--json\" []"}));

INSTANTIATE_TEST_SUITE_P(
    Trace, OptionsTest,
    ::testing::Values(
        Row{{"--trace", "KEL.*"}, "trace=\"KEL.*\":255 []"}, Row{{"--trace", "KEL.*:1"}, "trace=\"KEL.*\":1 []"},
        Row{{"--trace", "*:0"}, "trace=\"*\":0 []"}, Row{{"--trace", "*:255"}, "trace=\"*\":255 []"},
        Row{{"--trace", ":1"}, "trace=\"\":1 []"}, Row{{"--trace", ""}, "trace=\"\":255 []"},
        Row{{"--trace", "a:b:2"}, "trace=\"a:b\":2 []"},
        Row{{"--trace", "x:"}, "option --trace (level): found \"\", expected a whole number from 0 to 255"},
        Row{{"--trace", "a:b"}, "option --trace (level): found \"b\", expected a whole number from 0 to 255"},
        Row{{"--trace", "x:256"}, "option --trace (level): found \"256\", expected a whole number from 0 to 255"},
        Row{{"--trace", "x:-1"}, "option --trace (level): found \"-1\", expected a whole number from 0 to 255"}));

INSTANTIATE_TEST_SUITE_P(Several, OptionsTest,
                         ::testing::Values(Row{{"-k", "--json", "-s", "rain", "-f", "file"},
                                               "json keep-going scenario=\"rain\" file=\"file\" []"},
                                           Row{{"-ks", "rain"}, "keep-going scenario=\"rain\" []"},
                                           Row{{"-s", "rain", "-s", "sky"}, "scenario=\"sky\" []"},
                                           Row{{"--clock", "wall", "--clock", "told"}, "wall=false []"}));

INSTANTIATE_TEST_SUITE_P(Words, OptionsTest,
                         ::testing::Values(Row{{"getCtStatus", "1"}, R"(["getCtStatus", "1"])"},
                                           Row{{"--json", "setPpsSource", "1", "2", "-3"},
                                               R"(json ["setPpsSource", "1", "2", "-3"])"},
                                           Row{{"watch", "-n", "1", "--json"}, R"(["watch", "-n", "1", "--json"])"},
                                           Row{{"help", "--help"}, R"(["help", "--help"])"},
                                           Row{{"--json", "--", "--json"}, R"(json ["--json"])"},
                                           Row{{"-"}, R"(["-"])"}, Row{{""}, R"([""])"}));

const std::string Unknown = ", expected one that \"kel-node --help\" lists";

INSTANTIATE_TEST_SUITE_P(
    Mistakes, OptionsTest,
    ::testing::Values(
        Row{{"--nonsense"}, "option: found \"--nonsense\"" + Unknown}, Row{{"-x"}, "option: found \"-x\"" + Unknown},
        Row{{"--json", "-k", "-x", "--help"}, "json keep-going option: found \"-x\"" + Unknown},
        Row{{"-kx"}, "keep-going option: found \"-kx\"" + Unknown}, Row{{"-xk"}, "option: found \"-xk\"" + Unknown},
        Row{{"--json=yes"}, "option: found \"--json=yes\"" + Unknown}, Row{{"-1"}, "option: found \"-1\"" + Unknown},
        Row{{"--scenario"}, "option --scenario: found nothing, expected a value"},
        Row{{"-s"}, "option -s: found nothing, expected a value"},
        Row{{"--json", "--file"}, "json option --file: found nothing, expected a value"},
        Row{{"-kf"}, "keep-going option -kf: found nothing, expected a value"},
        Row{{"--clock", "sun"}, "option --clock: found \"sun\", expected told or wall"},
        Row{{"--clock", ""}, "option --clock: found \"\", expected told or wall"},
        Row{{"--clock"}, "option --clock: found nothing, expected a value"}));

} // namespace
