#include "support/AnswerSamples.h"

using node::commands::Outcome;
using node::output::Answer;
using node::output::Status;
using node::output::TimedMessage;
using node::radio::Ticks;
using node::report::Field;

namespace answer_samples
{

namespace
{

/// The answer with `text` behind every text.
Answer withEveryText(Answer answer, const std::string& text)
{
    answer.place += text;
    answer.command += text;
    for (std::string& argument : answer.arguments)
    {
        argument += text;
    }
    answer.outcome->output += text;
    for (Field& field : answer.outcome->fields)
    {
        field.under += text;
        field.label += text;
        field.unit += text;
        if (auto* const value = std::get_if<std::string>(&field.value))
        {
            *value += text;
        }
    }
    for (auto& [time, message] : answer.trace)
    {
        message.channel += text;
        message.file += text;
        message.function += text;
        message.text += text;
    }
    answer.error += text;
    return answer;
}

Answer of(Status status, const std::string& error)
{
    Answer answer;
    answer.command = "getCtStatus";
    answer.status = status;
    answer.error = error;
    return answer;
}

Answer withChannel(RadioChannel channel)
{
    Answer answer = of(Status::Done, "");
    answer.channel = channel;
    answer.time = Ticks(std::int64_t{1} << 53);
    return answer;
}

} // namespace

Answer whole()
{
    const Outcome outcome{1,
                          "Lock: locked\nLevel: -43.02 dBm\n",
                          {{"CT info", "Lock", "locked"},
                           {"", "Level", -43.02, "dBm"},
                           {"", "Blocks", std::int64_t{-9007199254740993}},
                           {"", "XPIC Started", true}}};
    const TimedMessage placed{Ticks(1234), {"KEL.KDC", 3, "KelDebugCmd", 17, "getCtStatus", "no answer\n"}};
    const TimedMessage placeless{Ticks(1300), {"KEL", -1, "", 0, "", "get failed"}};
    return {"faults.txt:3",        "getCtStatus", {"1", "two words"},  1,          Ticks(1234),
            Status::CommandFailed, outcome,       {placed, placeless}, "no answer"};
}

Answer wholeOfBytes()
{
    return withEveryText(whole(), "\xff");
}

Answer bare()
{
    return {};
}

std::vector<Sample> all()
{
    return {{"whole", whole()},
            {"wholeOfBytes", wholeOfBytes()},
            {"wholeOfUmlauts", withEveryText(whole(), "\xc3\xa4\xef\xbf\xbd")},
            {"wholeOfControlCharacters", withEveryText(whole(), {"\n\0\"\\\x7f", 5})},
            {"bare", bare()},
            {"notUnderstood", of(Status::NotUnderstood, "command: found \"get\"")},
            {"notStarted", of(Status::NotStarted, "no node")},
            {"firstChannel", withChannel(0)},
            {"lastChannel", withChannel(0xFFFFFFFF)}};
}

} // namespace answer_samples
