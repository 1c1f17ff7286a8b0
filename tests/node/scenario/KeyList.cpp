#include "node/scenario/KeyList.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

#include "node/scenario/ScenarioText.h"

namespace key_list
{

namespace
{

using Rows = std::vector<Row>;

constexpr auto AModulation = R"(a modulation, such as "16QAM_LIGHT" or "4096QAM")";
constexpr auto ABrokerEntry = R"(one of "service", "absent", "empty", "other type")";
constexpr auto ACall = R"(a call of the platform, such as "tiManageXpic")";

Row number(const std::string& table, const std::string& name, const std::string& defaultText, const std::string& lowest,
           const std::string& highest)
{
    return {table, name, Takes::Number, "a number from " + lowest + " to " + highest, defaultText, lowest, highest};
}

Row whole(const std::string& table, const std::string& name, const std::string& defaultText, const std::string& lowest,
          const std::string& highest)
{
    const std::string form = "a whole number from " + lowest + " to " + highest;
    return {table, name, Takes::Whole, form, defaultText, lowest, highest};
}

Row flag(const std::string& table, const std::string& name, const std::string& defaultText)
{
    return {table, name, Takes::Flag, "true or false", defaultText};
}

Row text(const std::string& table, const std::string& name, const std::string& form, const std::string& defaultText)
{
    return {table, name, Takes::Text, form, defaultText};
}

Rows ofNode()
{
    return {text("", "description", "a text", ""),
            whole("node", "radio_channels", "2", "1", "2"),
            whole("node", "radio_channels_told", "", "0", "255"),
            flag("node", "runs_with_failed_modules", "false"),
            whole("node", "seed", "1", "0", "9007199254740991"),
            text("broker", "IRlbspKelApi", ABrokerEntry, "\"service\""),
            text("broker", "IDpdControllerSplit_1", ABrokerEntry, "\"service\""),
            text("broker", "IDpdControllerSplit_2", ABrokerEntry, "\"service\"")};
}

Rows ofHop()
{
    return {number("hop", "distance_km", "10", "0.1", "100"),
            text("hop", "frequency_plan", R"(one of "13 GHz", "18 GHz", "23 GHz")", "\"18 GHz\""),
            whole("hop", "frequency_number", "1", "1", "40"),
            {"hop", "channel_width_MHz", Takes::Number, "28, 56 or 112", "28"},
            text("hop", "channel_1_polarisation", R"(one of "vertical", "horizontal")", "\"vertical\""),
            number("hop", "peak_power_dBm", "24.2", "5.6", "40"),
            number("hop", "antenna_gain_dBi", "38.5", "0", "60"),
            number("hop", "antenna_discrimination_dB", "36", "10", "60"),
            number("hop", "noise_figure_dB", "6", "0", "20"),
            number("hop", "gas_loss_dB_per_km", "0.06", "0", "20"),
            number("hop", "reference_difference_ppm", "0.5", "-20", "20")};
}

Rows ofWeather()
{
    return {number("weather", "scintillation_deviation_dB", "0", "0", "10"),
            number("weather", "scintillation_correlation_s", "10", "1", "3600"),
            number("weather.rain", "at_s", "0", "0", "1000000"),
            number("weather.rain", "rate_mm_per_h", "0", "0", "250"),
            number("weather.fade", "at_s", "0", "0", "1000000"),
            number("weather.fade", "depth_dB", "0", "0", "100")};
}

Rows ofChannel(const std::string& table)
{
    return {flag(table, "transmitter_on", "true"),
            number(table, "transmitter_power_dBm", "18", "-2", "40"),
            text(table, "lowest_modulation", AModulation, "\"4QAM_STRONG\""),
            text(table, "highest_modulation", AModulation, "\"4096QAM\""),
            flag(table, "dpd_running", "true"),
            text(table, "dpd_coefficients", "20 bytes as 40 hexadecimal digits",
                 "\"0000000000000000000000000000000000000000\""),
            text(table, "xpic_state", R"(one of "acquired", "idle")", "\"acquired\""),
            flag(table, "xpic_cable_connected", "true"),
            flag(table, "xpic_slave_muted", "false"),
            whole(table, "xpic_preamble", "0", "0", "3"),
            text(table, "xpic_acquire_mode", R"(one of "full sweep", "narrow sweep", "direct")", "\"full sweep\""),
            flag(table, "xpic_retries", "true"),
            flag(table, "xpic_reacquires", "true"),
            text(table, "pps_calibration", R"(one of "never", "fine not completed", "auto", "manual")", "\"never\""),
            flag(table, "pps_master_answers", "true"),
            whole(table, "pps_source", "0", "0", "2"),
            whole(table, "pps_source_parameter", "0", "-2147483648", "2147483647"),
            whole(table, "pps_output_mode", "0", "0", "2")};
}

Rows ofFault()
{
    return {text("fault", "call", ACall, ""),
            whole("fault", "channel", "", "1", "2"),
            whole("fault", "code", "", "-2147483648", "2147483647"),
            text("fault", "text", "a text", ""),
            flag("fault", "throws", "false"),
            whole("fault", "from_call", "1", "1", "4294967295"),
            whole("fault", "calls", "", "1", "4294967295")};
}

/// Whether the table is one of several of its name.
bool repeats(const Row& row)
{
    return row.table == "weather.rain" || row.table == "weather.fade" || row.table == "fault";
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const Row& row)
{
    return stream << path(row);
}

const std::vector<Row>& all()
{
    static const Rows rows = []
    {
        Rows together;
        for (const Rows& some :
             {ofNode(), ofHop(), ofWeather(), ofChannel("channel.1"), ofChannel("channel.2"), ofFault()})
        {
            together.insert(together.end(), some.begin(), some.end());
        }
        return together;
    }();
    return rows;
}

std::vector<Row> taking(Takes takes)
{
    Rows rows;
    std::copy_if(all().begin(), all().end(), std::back_inserter(rows),
                 [&](const Row& row) { return row.takes == takes; });
    return rows;
}

std::string identifier(const Row& row)
{
    std::string name = row.table.empty() ? row.name : row.table + "_" + row.name;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

std::string header(const Row& row)
{
    if (row.table.empty())
    {
        return "";
    }
    return (repeats(row) ? "[[" + row.table + "]]" : "[" + row.table + "]") + "\n";
}

std::string opening(const Row& row)
{
    return header(row) + (row.table == "fault" && row.name != "call" ? "call = \"tiManageXpic\"\n" : "");
}

std::string path(const Row& row)
{
    return row.table.empty() ? row.name : row.table + (repeats(row) ? "[1]." : ".") + row.name;
}

std::string refusal(const Row& row, const std::string& found, const std::string& expected)
{
    const std::size_t column = row.name.size() + std::string(" = ").size() + 1;
    return fmt::format("{}:{}:{}: {}: found {}, expected {}", scenario_text::FileName, row.table.empty() ? 1 : 2,
                       column, path(row), found, expected);
}

} // namespace key_list
