#include <limits>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "node/output/Json.h"
#include "support/AnswerSamples.h"

using nlohmann::ordered_json;
using node::output::Answer;
using node::output::Status;
using node::output::toJson;
using node::output::toLine;
using node::radio::Ticks;

namespace
{

TEST(JsonTest, AnswerWithEverything)
{
    EXPECT_EQ(R"({
  "schema": "kel-node/1",
  "place": "faults.txt:3",
  "command": "getCtStatus",
  "arguments": [
    "1",
    "two words"
  ],
  "channel": 1,
  "time_s": 123.4,
  "status": "failed",
  "exit_status": 1,
  "result": 1,
  "report": "Lock: locked\nLevel: -43.02 dBm\n",
  "fields": [
    {
      "under": "CT info",
      "label": "Lock",
      "value": "locked"
    },
    {
      "label": "Level",
      "value": -43.02,
      "unit": "dBm"
    },
    {
      "label": "Blocks",
      "value": -9007199254740993
    },
    {
      "label": "XPIC Started",
      "value": true
    }
  ],
  "trace": [
    {
      "time_s": 123.4,
      "channel": "KEL.KDC",
      "level": 3,
      "file": "KelDebugCmd",
      "line": 17,
      "function": "getCtStatus",
      "text": "no answer\n"
    },
    {
      "time_s": 130.0,
      "channel": "KEL",
      "level": -1,
      "file": null,
      "line": null,
      "function": null,
      "text": "get failed"
    }
  ],
  "error": "no answer"
})",
              toJson(answer_samples::whole()).dump(2));
}

TEST(JsonTest, AnswerWithNothing)
{
    EXPECT_EQ(R"({
  "schema": "kel-node/1",
  "place": null,
  "command": "",
  "arguments": [],
  "channel": null,
  "time_s": 0.0,
  "status": "done",
  "exit_status": 0,
  "result": null,
  "report": "",
  "fields": [],
  "trace": [],
  "error": null
})",
              toJson(answer_samples::bare()).dump(2));
}

TEST(JsonTest, LineHoldsNoOtherLineEnd)
{
    const node::output::TimedMessage message{Ticks(1), {"KEL", 2, "", 0, "get", "one\ntwo\r\n"}};
    EXPECT_EQ(R"({"time_s":0.1,"channel":"KEL","level":2,"file":null,"line":null,"function":"get",)"
              R"("text":"one\ntwo\r\n"})"
              "\n",
              toLine(toJson(message)));
}

TEST(JsonTest, StatusIsTheExitStatusInWords)
{
    struct Row
    {
        Status status;
        std::string words;
        int number;
    };
    for (const Row& row : {Row{Status::Done, "done", 0},
                           {Status::CommandFailed, "failed", 1},
                           {Status::NotUnderstood, "not understood", 2},
                           {Status::NotStarted, "not started", 3}})
    {
        Answer answer;
        answer.status = row.status;
        const ordered_json document = toJson(answer);
        EXPECT_EQ(row.words, document["status"].get<std::string>());
        EXPECT_EQ(row.number, document["exit_status"]);
    }
}

TEST(JsonTest, ResultIsThatOfTheCall)
{
    for (const int result : {0, 1})
    {
        Answer answer;
        answer.outcome = {result, ""};
        EXPECT_EQ(result, toJson(answer)["result"]);
    }
}

TEST(JsonTest, TimeHasOneDecimal)
{
    struct Row
    {
        std::int64_t tenths;
        std::string text;
    };
    for (const Row& row : {Row{1, "0.1"},
                           {3, "0.3"},
                           {9, "0.9"},
                           {10, "1.0"},
                           {1799, "179.9"},
                           {864'003, "86400.3"},
                           {31'536'000'007, "3153600000.7"},
                           {9'007'199'254'740'991, "900719925474099.1"}})
    {
        Answer answer;
        answer.time = Ticks(row.tenths);
        EXPECT_EQ(row.text, toJson(answer)["time_s"].dump());
    }
}

TEST(JsonTest, RealNumbersAreReadBackExactly)
{
    Answer answer;
    answer.outcome.emplace();
    for (const double number : {0.1, 1.0 / 3, -43.02, 5e-324, 1.7976931348623157e308})
    {
        answer.outcome->fields = {{"", "a", number}};
        EXPECT_EQ(number, ordered_json::parse(toLine(toJson(answer)))["fields"][0]["value"].get<double>());
    }
}

TEST(JsonTest, NumbersThatAreNotFiniteAreTexts)
{
    using Limits = std::numeric_limits<double>;
    Answer answer;
    answer.outcome.emplace();
    answer.outcome->fields = {
        {"", "a", Limits::infinity()}, {"", "a", -Limits::infinity()}, {"", "a", Limits::quiet_NaN()}};
    EXPECT_EQ(R"([{"label":"a","value":"inf"},{"label":"a","value":"-inf"},{"label":"a","value":"nan"}])",
              toJson(answer)["fields"].dump());
}

} // namespace
