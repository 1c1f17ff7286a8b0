#include <algorithm>
#include <cstddef>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "endtoend/Program.h"
#include "node/commands/Command.h"
#include "support/TemporaryFolder.h"

using nlohmann::json;

namespace
{

/// The documents that the program prints for the lines of a script, with nothing beside them.
std::vector<json> answersOf(const std::string& lines)
{
    const Finished run = finish({.arguments = {"--json", "--keep-going"}, .input = lines});
    EXPECT_EQ("", run.errors);
    std::vector<json> documents;
    for (std::size_t begin = 0; begin < run.output.size();)
    {
        const auto end = run.output.find('\n', begin);
        EXPECT_NE(std::string::npos, end);
        documents.push_back(json::parse(run.output.substr(begin, end - begin)));
        begin = end + 1;
    }
    return documents;
}

/// A command's line that works on a node as it starts.
std::string lineOf(const node::commands::Command& command, const std::string& folder)
{
    if (command.name == "addFault")
    {
        return "addFault tiManageXpic channel=2";
    }
    if (command.name == "loadScenario")
    {
        return "loadScenario clear-sky";
    }
    if (command.name == "replay")
    {
        return "replay " + folder + "/record.out";
    }
    if (command.name == "watch")
    {
        return "watch -n 0.1 -c 1 showLink";
    }
    std::string line = command.name;
    for (const auto& argument : command.arguments)
    {
        if (argument.name == "file")
        {
            line += " " + folder + "/" + command.name + (command.name == "plot" ? ".svg" : ".out");
        }
        else if (argument.form == "on or off")
        {
            line += " on";
        }
        else if (argument.name == "coefficients")
        {
            line += " " + std::string(40, '0');
        }
        else if (argument.name == "topic")
        {
            line += " showLink";
        }
        else if (argument.name == "channels")
        {
            line += " KEL.*";
        }
        else
        {
            line += " 1";
        }
    }
    return line;
}

TEST(JsonAnswersTest, EveryCommandAnswersWithADocument)
{
    const TemporaryFolder folder;
    std::string lines;
    std::vector<std::string> expected;
    for (const auto& group : node::commands::commandGroups())
    {
        for (const auto& command : group.commands)
        {
            lines += lineOf(command, folder.path()) + "\n";
            if (command.name == "watch")
            {
                expected.emplace_back("showLink");
            }
            expected.push_back(command.name);
        }
    }
    std::vector<std::string> found;
    for (const json& answer : answersOf(lines))
    {
        EXPECT_EQ("kel-node/1", answer.at("schema"));
        EXPECT_LE(answer.at("exit_status"), 1) << answer.dump(2);
        found.push_back(answer.at("command"));
    }
    EXPECT_EQ(expected, found);
}

TEST(JsonAnswersTest, AReportIsTextAndFields)
{
    const json answer = answersOf("getCtStatus 2\n").at(0);
    EXPECT_EQ(runCommand("getCtStatus 2").output, answer.at("report").get<std::string>());
    EXPECT_EQ(2, answer.at("channel"));
    const json level = {{"label", "Actual Rf Input Power"}, {"value", -43.02}, {"unit", "dBm"}};
    const json power = {{"under", "Available Max Output Pwr"}, {"label", "4QAM"}, {"value", 24}, {"unit", "dBm"}};
    const json& fields = answer.at("fields");
    EXPECT_EQ(1, std::count(fields.begin(), fields.end(), level)) << fields;
    EXPECT_EQ(1, std::count(fields.begin(), fields.end(), power)) << fields;
}

TEST(JsonAnswersTest, BytesThatAreNotUtf8AreThereToo)
{
    const std::vector<json> answers = answersOf("addFault tiManageXpic text=\"a\xFF\xFE\"\n"
                                                "getXpicStatus 1\n"
                                                "setXpicPreamble 1 2\n");
    ASSERT_EQ(3U, answers.size());
    EXPECT_EQ("a\xEF\xBF\xBD\xEF\xBF\xBD", answers[1].at("report"));
    EXPECT_EQ("61fffe", answers[1].at("report_hex"));
    EXPECT_EQ("failed", answers[1].at("status"));
    EXPECT_EQ("61fffe", answers[2].at("trace").at(0).at("text_hex"));
    EXPECT_EQ("setXpicPreamble: failed", answers[2].at("error"));
}

TEST(JsonAnswersTest, WhatKeepsTheProgramFromCommandsIsADocumentToo)
{
    for (const auto& [options, error, status] :
         {std::tuple{"--json --bogus", R"(option: found "--bogus", expected one that "kel-node --help" lists)", 2},
          {"--json -s nix showLink",
           R"(scenario: found "nix", expected a .toml file, or a name that "listScenarios" lists)", 2},
          {"--json -s start-registration-throws showLink",
           "module KelDebugCmd: its constructor threw: registry is full", 3}})
    {
        const Finished run = runCommand(options);
        EXPECT_EQ(error, json::parse(run.output).at("error")) << options;
        EXPECT_EQ(status, json::parse(run.output).at("exit_status")) << options;
        EXPECT_EQ(status, run.status) << options;
        EXPECT_EQ("", run.errors) << options;
    }
}

} // namespace
