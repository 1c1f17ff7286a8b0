// Any text as a scenario's file: it is refused with its place, or it is a node that starts, or does not and says why.

#include <cmath>
#include <string>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "fuzz/NodeAround.h"
#include "fuzz/Target.h"
#include "node/scenario/Scenario.h"
#include "node/services/FaultPlan.h"
#include "node/startup/Node.h"
#include "node/wording/InputError.h"
#include "support/Portrait.h"

namespace
{

using fuzz::expect;
using node::scenario::Scenario;
using node::startup::Node;

constexpr auto FileName = "link.toml";

/// Takes a whole number above 0 off the text's beginning.
bool takeNumber(std::string& text)
{
    const std::size_t length = text.find_first_not_of("0123456789");
    const bool isNumber = length != 0 && length != std::string::npos && text.front() != '0';
    text.erase(0, isNumber ? length : 0);
    return isNumber;
}

bool take(std::string& text, const std::string& beginning)
{
    const bool begins = text.starts_with(beginning);
    text.erase(0, begins ? beginning.size() : 0);
    return begins;
}

/// "link.toml:LINE:COLUMN: ...found ..., expected ..." on one line.
void expectPlaceFoundAndExpected(const std::string& error)
{
    std::string left = error;
    const bool hasPlace = take(left, std::string(FileName) + ":") && takeNumber(left) && take(left, ":") &&
                          takeNumber(left) && take(left, ": ");
    const std::size_t found = left.find("found ");
    expect(hasPlace && found != std::string::npos && left.find(", expected ", found) != std::string::npos,
           "a refusal names its place, what was found and what was expected", error);
    expect(error.find('\n') == std::string::npos, "a refusal is one line", error);
}

void expectFinite(const node::radio::RadioLink& link)
{
    for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
    {
        const node::radio::Readings readings = link.snapshot(channel).readings;
        for (const double reading :
             {readings.txPower_dBm, readings.level_dBm, readings.snir_dB, readings.discrimination_dB,
              readings.interference_dB, readings.slaveCarrierOffset_Hz, readings.slaveLevel_dBm,
              readings.hopLengthTime_ns})
        {
            expect(std::isfinite(reading), "readings are numbers");
        }
    }
}

/// A moment of the node's life, as a text.
std::string lifeOf(Node& node)
{
    constexpr node::radio::Ticks Moment(3);
    expectFinite(node.link());
    node.link().advance(Moment);
    expectFinite(node.link());
    if (node.commands() == nullptr)
    {
        return "no callback";
    }
    std::string reports;
    for (RadioChannel channel = 1; channel <= node.link().numberOfChannels(); ++channel)
    {
        try
        {
            std::string report;
            node.commands()->getCtStatus(channel, report);
            expect(!report.empty(), "a report says something");
            reports += report;
        }
        catch (const node::services::PlannedException& planned)
        {
            reports += std::string("threw ") + planned.what();
        }
    }
    return reports;
}

std::string startOf(const Scenario& scenario)
{
    try
    {
        Node node(scenario.configuration);
        return lifeOf(node);
    }
    catch (const node::startup::StartUpError& error)
    {
        std::string text = error.what();
        expect(text.starts_with("module KelDebugCmd: "), "a start that fails names what failed", text);
        return text;
    }
}

/// All that comes of the text.
std::string outcomeOf(const std::string& text)
{
    Scenario scenario;
    try
    {
        scenario = node::scenario::parse(text, FileName);
    }
    catch (const node::wording::InputError& error)
    {
        expectPlaceFoundAndExpected(error.what());
        return error.what();
    }
    expect(scenario.text == text && scenario.file == FileName, "a scenario keeps its text and file");
    const fuzz::KeptTrace trace;
    const std::string started = startOf(scenario);
    fuzz::NodeAround::expectNothingThere();
    return fmt::format("{}\n{}\n{}", fmt::join(portrait::of(scenario), "\n"), started, trace.lines);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::NodeAround around;
    const std::string text(data, data + size);
    const std::string once = outcomeOf(text);
    fuzz::expectSame("the same text means the same again", once, outcomeOf(text));
    return 0;
}
