#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/output/Output.h"

/// An output that keeps what it is given.
class KeptAnswers : public node::output::Output
{
public:
    void trace(const node::output::TimedMessage& message) override
    {
        told.push_back(message.message.text);
    }

    void show(const node::output::Answer& answer) override
    {
        answers.push_back(answer);
        atShow();
    }

    void closeLine() override
    {
        ++closedLines;
    }

    void interrupted() override
    {
        ++interruptions;
    }

    bool good() const override
    {
        return isGood;
    }

    std::unique_ptr<node::output::Output> beginWatch(const node::commands::Watch& watch) override
    {
        watches.push_back(watch);
        return view();
    }

    std::vector<node::output::Answer> answers;
    std::vector<std::string> told; ///< texts of trace messages, as they came
    std::vector<node::commands::Watch> watches;
    int closedLines = 0;
    int interruptions = 0;
    bool isGood = true;
    std::function<void()> atShow = [] {};
    std::function<std::unique_ptr<node::output::Output>()> view = [] { return nullptr; };
};

/// A trace message: `1.5s KEL:3 "text"`.
inline std::string textOf(const node::output::TimedMessage& timed)
{
    return fmt::format("{}s {}:{} {:?}", node::radio::seconds(timed.time), timed.message.channel, timed.message.level,
                       timed.message.text);
}

/// All of an answer but its fields, in lines of which those are left out that say nothing.
inline std::string textOf(const node::output::Answer& answer)
{
    std::string text = answer.place.empty() ? "" : fmt::format("place {}\n", answer.place);
    text += fmt::format("{:?} {}\n", answer.command, answer.arguments);
    text += answer.channel ? fmt::format("channel {}\n", *answer.channel) : "";
    text += fmt::format("time {}s\n", node::radio::seconds(answer.time));
    text += fmt::format("status {}\n", static_cast<int>(answer.status));
    text += answer.outcome ? fmt::format("result {}, {:?}\n", answer.outcome->result, answer.outcome->output) : "";
    for (const node::output::TimedMessage& message : answer.trace)
    {
        text += "trace " + textOf(message) + "\n";
    }
    return text + (answer.error.empty() ? "" : fmt::format("error {}\n", answer.error));
}
