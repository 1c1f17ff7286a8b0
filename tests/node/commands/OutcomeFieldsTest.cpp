#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/commands/RecordingConsole.h"
#include "node/commands/RecordingDesk.h"
#include "node/report/FieldText.h"
#include "node/scenario/Scenario.h"
#include "node/services/PlatformCall.h"
#include "node/trace/TraceLibrary.h"

using node::report::Field;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// A line for each field, with the kind of its value.
std::string textOf(const std::vector<Field>& fields)
{
    struct Kind
    {
        std::string operator()(const std::string& value) const
        {
            return "\"" + value + "\"";
        }

        std::string operator()(bool value) const
        {
            return value ? "true" : "false";
        }

        std::string operator()(std::int64_t value) const
        {
            return fmt::format("whole {}", value);
        }

        std::string operator()(double value) const
        {
            return fmt::format("real {}", value);
        }
    };
    std::string text;
    for (const Field& field : fields)
    {
        text += field.under.empty() ? "" : field.under + ", ";
        text += field.label + ": " + std::visit(Kind(), field.value);
        text += (field.unit.empty() ? "" : " " + field.unit) + "\n";
    }
    return text;
}

class OutcomeFieldsTest : public ::testing::Test
{
protected:
    std::vector<Field> fieldsOf(const std::string& name, const std::vector<std::string>& words = {})
    {
        return node::commands::fieldsOf(node::commands::commandNamed(name).call(desk, console, words));
    }

    RecordingDesk desk;
    RecordingConsole console;
};

TEST_F(OutcomeFieldsTest, OfAReportAreReadFromIt)
{
    desk.recorder.report = "Lock: locked\n--- Level: -43.02 dBm\n\nno field\n";
    const std::vector<Field> expected = {{"", "Lock", "locked"}, {"Lock: locked", "Level", -43.02, "dBm"}};
    for (const std::string command :
         {"getCtStatus", "getBcmModemStatus", "getPpsCalibrationStatus", "getPpsHopLengthTime", "getXpicStatus"})
    {
        EXPECT_EQ(node::report::fieldsOf(desk.recorder.report), fieldsOf(command, {"1"})) << command;
        EXPECT_THAT(fieldsOf(command, {"1"}), SizeIs(2));
    }
    desk.recorder.result = 1;
    EXPECT_THAT(fieldsOf("getCtStatus", {"1"}), IsEmpty());
}

TEST_F(OutcomeFieldsTest, OfAValueAreTheValue)
{
    EXPECT_THAT(fieldsOf("getXpicPreamble", {"1"}), ElementsAre(Field{"", "value", std::int64_t{255}}));
    EXPECT_THAT(fieldsOf("getDpdCoefficients", {"2"}),
                ElementsAre(Field{"", "value", "00017f80ff000000000000000000000000000000"}));
}

TEST_F(OutcomeFieldsTest, OfAValueThatWasNotReadAreNone)
{
    desk.recorder.result = 1;
    EXPECT_THAT(fieldsOf("getXpicPreamble", {"1"}), IsEmpty());
    EXPECT_THAT(fieldsOf("getDpdCoefficients", {"2"}), IsEmpty());
}

TEST_F(OutcomeFieldsTest, OfWhatPrintsNothingAreNone)
{
    EXPECT_THAT(fieldsOf("startDpd", {"1"}), IsEmpty());
    EXPECT_THAT(fieldsOf("setRain", {"10"}), IsEmpty());
    EXPECT_THAT(fieldsOf("sample", {"0.1", "0.1", "-"}), IsEmpty());
    EXPECT_THAT(fieldsOf("listFaults"), IsEmpty());
    EXPECT_THAT(fieldsOf("help"), IsEmpty());
}

TEST_F(OutcomeFieldsTest, OfListFaultsStandUnderTheFault)
{
    node::services::Fault fault;
    fault.call = node::services::findPlatformCall("tiManageXpic");
    fault.code = 7;
    desk.plan.add(fault);
    const std::string text = "tiManageXpic code=7";
    EXPECT_THAT(fieldsOf("listFaults"),
                ElementsAre(Field{text, "seen", std::int64_t{0}}, Field{text, "hit", std::int64_t{0}}));
}

TEST_F(OutcomeFieldsTest, OfListsAreTheirNamesAndWhatIsSaidOfThem)
{
    const auto calls = fieldsOf("listCalls");
    EXPECT_THAT(calls, SizeIs(node::services::platformCalls().size()));
    EXPECT_THAT(calls, Contains(Field{"", "tiManageXpic", "a code, failing above 0, and a text"}));

    node::trace::setLevel("OutcomeFieldsTest", 3);
    const auto levels = fieldsOf("listTraceLevels");
    EXPECT_THAT(levels, SizeIs(node::trace::levels().size()));
    EXPECT_THAT(levels, Contains(Field{"", "OutcomeFieldsTest", std::int64_t{3}}));

    const auto scenarios = fieldsOf("listScenarios");
    const auto ready = node::scenario::readyScenarios();
    EXPECT_THAT(scenarios, SizeIs(ready.size()));
    const std::string description = node::scenario::load(ready.front()).description;
    EXPECT_EQ((Field{"", ready.front(), description.substr(0, description.find('\n'))}), scenarios.front());
}

TEST_F(OutcomeFieldsTest, OfTheLinkStandUnderTheirChannel)
{
    desk.link().turnRain(60.0, {});
    desk.link().advance(node::radio::Ticks(15));
    EXPECT_EQ(R"-(Time: "0:00:01.5"
Distance: whole 10 km
Rain: real 60 mm/h
Fade: real 0 dB
Channel 1, Polarisation: "vertical"
Channel 1, Tx frequency: whole 17727500 kHz
Channel 1, Rx frequency: whole 18737500 kHz
Channel 1, Transmitter: "on"
Channel 1, Tx power: real 18 dBm
Channel 1, Rx level: real -70.19 dBm
Channel 1, XPD: real 20.71 dB
Channel 1, XPI: real 20.71 dB
Channel 1, SNIR: real 23.69 dB
Channel 1, Modem: "locked"
Channel 1, Modulation: "256QAM"
Channel 1, Errored blocks: whole 1
Channel 1, DPD: "adapted"
Channel 1, DPD floor: real 45 dB
Channel 1, XPIC: "Locked"
Channel 1, XPIC mode: "full sweep"
Channel 1, XPIC option: whole 3
Channel 1, XPIC slave: "open"
Channel 1, XPIC cable: "on"
Channel 1, XPIC preamble: whole 0
Channel 1, Slave offset: whole 8864 Hz
Channel 1, PPS calibration: "never"
Channel 1, PPS failure: "none"
Channel 1, PPS master: "answers"
Channel 1, PPS source: "0 (0)"
Channel 1, PPS output mode: whole 0
Channel 1, Hop length time: whole 33000 ns
Channel 2, Polarisation: "horizontal"
Channel 2, Tx frequency: whole 17727500 kHz
Channel 2, Rx frequency: whole 18737500 kHz
Channel 2, Transmitter: "on"
Channel 2, Tx power: real 18 dBm
Channel 2, Rx level: real -75.63 dBm
Channel 2, XPD: real 18.98 dB
Channel 2, XPI: real 18.98 dB
Channel 2, SNIR: real 18.32 dB
Channel 2, Modem: "locked"
Channel 2, Modulation: "64QAM"
Channel 2, Errored blocks: whole 1
Channel 2, DPD: "adapted"
Channel 2, DPD floor: real 45 dB
Channel 2, XPIC: "Locked"
Channel 2, XPIC mode: "full sweep"
Channel 2, XPIC option: whole 3
Channel 2, XPIC slave: "open"
Channel 2, XPIC cable: "on"
Channel 2, XPIC preamble: whole 0
Channel 2, Slave offset: whole -8864 Hz
Channel 2, PPS calibration: "never"
Channel 2, PPS failure: "none"
Channel 2, PPS master: "answers"
Channel 2, PPS source: "0 (0)"
Channel 2, PPS output mode: whole 0
Channel 2, Hop length time: whole 33000 ns
)-",
              textOf(fieldsOf("showLink")));
}

} // namespace
