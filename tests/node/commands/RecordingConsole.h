#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/commands/Console.h"

/// A console that logs what commands ask of it.
class RecordingConsole : public node::commands::Console
{
public:
    std::string help(const std::string& topic) override
    {
        calls.push_back(fmt::format("help({})", topic));
        return "the help\n";
    }

    void leave() override
    {
        calls.emplace_back("leave()");
    }

    int watch(const node::commands::Watch& watch) override
    {
        calls.push_back(fmt::format("watch({}, {}, {})", fmt::join(watch.command, " "), watch.interval.count(),
                                    watch.rounds ? fmt::format("{}", *watch.rounds) : "no end"));
        return result;
    }

    void startRecording(const std::string& file) override
    {
        calls.push_back(fmt::format("startRecording({})", file));
    }

    void stopRecording() override
    {
        calls.emplace_back("stopRecording()");
    }

    node::commands::Outcome replay(const std::string& file) override
    {
        calls.push_back(fmt::format("replay({})", file));
        return {result, "the difference\n"};
    }

    void filterTrace(const std::string& channels, std::int32_t level) override
    {
        calls.push_back(fmt::format("filterTrace({}, {})", channels, level));
    }

    void startTraceFile(const std::string& file) override
    {
        calls.push_back(fmt::format("startTraceFile({})", file));
    }

    void stopTraceFile() override
    {
        calls.emplace_back("stopTraceFile()");
    }

    bool canCreate(const std::string& file) override
    {
        calls.push_back(fmt::format("canCreate({})", file));
        return false;
    }

    std::unique_ptr<std::ostream> create(const std::string& file) override
    {
        calls.push_back(fmt::format("create({})", file));
        return nullptr;
    }

    std::unique_ptr<node::commands::LongRun> beginLongRun() override
    {
        calls.emplace_back("beginLongRun()");
        return std::make_unique<Endless>();
    }

    node::terminal::Size size() const override
    {
        return {};
    }

    std::vector<std::string> calls;
    int result = 0;

private:
    class Endless : public node::commands::LongRun
    {
    public:
        void reached(double /*share*/) override
        {
        }
    };
};
