#include "fuzz/NodeAnswers.h"

#include <cmath>

#include <fmt/format.h>

#include "fuzz/Target.h"
#include "node/services/ModulationNames.h"

namespace fuzz
{

void expectReport(const Answered& answered, const std::string& begin)
{
    if (answered.result == 0)
    {
        expect(answered.report.starts_with(begin) && answered.report.ends_with('\n'), "a report is complete",
               answered.report);
    }
    else if (answered.result == 1)
    {
        expectSame("a report that failed", NoData, answered.report);
    }
}

void expectCtLines(const std::string& report)
{
    for (const std::string caption : {"Tx Actual Status:",
                                      "DSP Lock:",
                                      "Actual Tx Modulation:",
                                      "Actual Rx Modulation:",
                                      "Actual Rf Input Power:",
                                      "Reported Rf Output Power:",
                                      "Actual SNIR:",
                                      "Tx Frequency:",
                                      "Rx Frequency:",
                                      "XPIC Started:",
                                      "Min Tx Frequency:",
                                      "Max Tx Frequency:",
                                      "Min Rx Frequency:",
                                      "Max Rx Frequency:",
                                      "Frequency Step Size:",
                                      "Available Min Output Pwr:",
                                      "Available Max Output Pwr:",
                                      "Radio Channel Id:",
                                      "Radio Frame Id:",
                                      "Min Modulation and Code:",
                                      "Max Modulation and Code:"})
    {
        expect(report.find("\n" + caption) != std::string::npos, caption.c_str(), report);
    }
}

void expectCtState(const std::string& report, const node::radio::Snapshot& now)
{
    const auto holds = [&](const std::string& caption, const std::string& value)
    {
        const std::string line = fmt::format("\n{:<26}{}\n", caption, value);
        expect(report.find(line) != std::string::npos, line.c_str(), report);
    };
    const auto level = [](double decibels, const char* unit)
    { return fmt::format("{:.6g} {}", static_cast<double>(std::lround(decibels * 100)) / 100, unit); };
    const auto& [hop, state, readings] = now;
    const std::string modulation = node::services::nameOf(state.modem.modulation());
    holds("Tx Actual Status:", state.transmitter.on ? "On" : "Off");
    holds("DSP Lock:", state.modem.locked ? "Locked" : "Unlocked");
    holds("Actual Tx Modulation:", modulation);
    holds("Actual Rx Modulation:", modulation);
    holds("Actual Rf Input Power:", level(readings.level_dBm, "dBm"));
    holds("Actual SNIR:", level(readings.snir_dB, "dB"));
}

} // namespace fuzz
