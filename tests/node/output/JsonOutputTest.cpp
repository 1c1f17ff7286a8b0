#include "node/output/JsonOutput.h"

#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "node/output/CountingBuffer.h"
#include "node/output/Json.h"

using nlohmann::ordered_json;
using node::output::Answer;
using node::output::JsonOutput;
using node::output::Status;
using node::radio::Ticks;
using ::testing::ElementsAre;

namespace
{

Answer answerOf(const std::string& command)
{
    Answer answer;
    answer.command = command;
    answer.arguments = {"1"};
    answer.time = Ticks(15);
    answer.outcome = {0, "two\nlines \xff\n", {{"", "Level", -43.02, "dBm"}}};
    answer.trace = {{Ticks(15), {"KEL", 3, "file", 17, "function", "no\nanswer\n"}}};
    answer.error = "failed\n";
    return answer;
}

TEST(JsonOutputTest, EachAnswerIsADocumentOnALineOfItsOwn)
{
    std::ostringstream output;
    JsonOutput json(output);
    std::vector<std::string> expected;
    for (const std::string command : {"getCtStatus", "\xff", ""})
    {
        json.show(answerOf(command));
        expected.push_back(toJson(answerOf(command)).dump());
    }
    std::istringstream written(output.str());
    std::vector<std::string> lines;
    for (std::string line; std::getline(written, line);)
    {
        lines.push_back(ordered_json::parse(line).dump());
    }
    EXPECT_EQ(expected, lines);
    EXPECT_TRUE(output.str().ends_with("}\n"));
}

TEST(JsonOutputTest, ADocumentIsSeenAtOnce)
{
    CountingBuffer buffer;
    std::ostream output(&buffer);
    JsonOutput(output).show(answerOf("getCtStatus"));
    EXPECT_EQ(1, buffer.syncs);
}

TEST(JsonOutputTest, TraceMessagesStandInTheDocumentsAlone)
{
    std::ostringstream output;
    JsonOutput json(output);
    json.trace({Ticks(0), {"KEL", 3, "", 0, "", "no answer"}});
    json.closeLine();
    EXPECT_EQ("", output.str());
}

TEST(JsonOutputTest, RoundsOfAWatchAreDocumentsAsOthersAre)
{
    std::ostringstream output;
    JsonOutput json(output);
    EXPECT_EQ(nullptr, json.beginWatch({{"showLink"}, Ticks(20), {}}));
    EXPECT_EQ("", output.str());
}

TEST(JsonOutputTest, IsGoodUntilTheOutputIsNot)
{
    std::ostringstream output;
    JsonOutput json(output);
    EXPECT_TRUE(json.good());
    output.setstate(std::ios::failbit);
    EXPECT_FALSE(json.good());
}

} // namespace
