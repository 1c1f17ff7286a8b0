#include "node/scenario/Keys.h"

#include <algorithm>
#include <iterator>

#include "node/services/ModulationNames.h"
#include "node/services/PlatformCall.h"
#include "node/wording/Number.h"

namespace node::scenario
{

namespace
{

using radio::Channel;
using radio::LinkSetup;
using radio::Profile;
using radio::Weather;
using services::Fault;
using startup::BrokerEntry;
using startup::Configuration;

/// A channel width, and the symbol rate that goes through it: 1/1.12 of it, assumed.
struct Width
{
    double width_MHz;
    double symbolRate_Bd;
};

constexpr Width Widths[] = {{28, 25e6}, {56, 50e6}, {112, 100e6}};

Choices<const radio::FrequencyPlan*> plans()
{
    Choices<const radio::FrequencyPlan*> words;
    for (const radio::FrequencyPlan& plan : radio::frequencyPlans())
    {
        words.emplace_back(plan.name, &plan);
    }
    return words;
}

Choices<radio::ModulationIndex> modulations()
{
    Choices<radio::ModulationIndex> words;
    for (const std::string& name : services::modulationNames())
    {
        words.emplace_back(name, words.size());
    }
    return words;
}

Choices<const services::PlatformCall*> calls()
{
    Choices<const services::PlatformCall*> words;
    for (const services::PlatformCall& call : services::platformCalls())
    {
        words.emplace_back(call.name, &call);
    }
    return words;
}

Key<LinkSetup> widthKey()
{
    const std::string form = "28, 56 or 112";
    const auto* const byDefault =
        std::find_if(std::begin(Widths), std::end(Widths),
                     [](const Width& row) { return row.symbolRate_Bd == radio::Hop{}.symbolRate_Bd; });
    return {
        "channel_width_MHz", form, shown(byDefault->width_MHz), "Width of a channel; the symbol rate is 1/1.12 of it",
        [form](const Value& value, LinkSetup& setup)
        {
            const auto* const row = std::find_if(std::begin(Widths), std::end(Widths),
                                                 [&](const Width& width) { return width.width_MHz == value.number; });
            if (row == std::end(Widths))
            {
                value.refuse(form);
            }
            setup.hop.symbolRate_Bd = row->symbolRate_Bd;
        }};
}

Key<Channel> coefficientsKey()
{
    const std::size_t count = Channel{}.dpd.coefficients.size();
    const std::string form = wording::bytesForm(count);
    return {"dpd_coefficients", form, wording::quoted(std::string(2 * count, '0')), "Coefficients of the predistortion",
            [=](const Value& value, Channel& channel)
            {
                const auto bytes = value.text ? wording::parseBytes(*value.text, count) : std::nullopt;
                if (!bytes)
                {
                    value.refuse(form);
                }
                std::copy(bytes->begin(), bytes->end(), channel.dpd.coefficients.begin());
            }};
}

/// All but a link that was never calibrated have a coarse calibration behind them.
Key<Channel> calibrationKey()
{
    static const Choices<radio::PpsCalibration> calibrations = {
        {"never", radio::PpsCalibration::Never},
        {"fine not completed", radio::PpsCalibration::FineNotCompleted},
        {"auto", radio::PpsCalibration::Auto},
        {"manual", radio::PpsCalibration::Manual}};
    Key<Channel> key = wordKey<Channel>(
        "pps_calibration", [](Channel& c) -> radio::PpsCalibration& { return c.pps.calibration; }, calibrations,
        "Calibration of the PPS output at the start");
    const auto read = key.read;
    key.read = [read](const Value& value, Channel& channel)
    {
        read(value, channel);
        channel.pps.coarseDone = channel.pps.calibration != radio::PpsCalibration::Never;
    };
    return key;
}

/// Predistortion that runs from the start is adapted already.
Key<Channel> dpdKey()
{
    Key<Channel> key = flagKey<Channel>(
        "dpd_running", [](Channel& channel) -> bool& { return channel.dpd.running; }, "Predistortion runs");
    const auto read = key.read;
    key.read = [read](const Value& value, Channel& channel)
    {
        read(value, channel);
        channel.dpd.adapted = channel.dpd.running ? radio::Dpd::AdaptationTime : radio::Ticks(0);
    };
    return key;
}

Keys<Profile::Point> profileKeys(const std::string& name, radio::Range<double> range, const std::string& meaning)
{
    return {
        numberKey<Profile::Point>(
            "at_s", [](Profile::Point& point) -> double& { return point.at_s; }, {0.0, 1e6},
            "Time of this point; between two points the value goes in a straight line"),
        numberKey<Profile::Point>(
            name, [](Profile::Point& point) -> double& { return point.value; }, range, meaning),
    };
}

} // namespace

const Keys<Heading>& headingKeys()
{
    static const Keys<Heading> keys = {
        textKey<Heading>(
            "description", [](Heading& heading) -> std::string& { return heading.description; },
            "What the scenario shows, for the list of scenarios"),
    };
    return keys;
}

const Keys<Configuration>& nodeKeys()
{
    static const Keys<Configuration> keys = {
        wholeKey<Configuration>(
            "radio_channels", [](Configuration& node) -> std::uint32_t& { return node.link.numberOfChannels; },
            {1, LinkSetup::LargestNumberOfChannels}, "Radio channels of the node"),
        wholeKey<Configuration>(
            "radio_channels_told", [](Configuration& node) -> std::optional<int>& { return node.channelsTold; },
            {0, 255}, "How many channels the module is told; without this key, as many as there are"),
        flagKey<Configuration>(
            "runs_with_failed_modules", [](Configuration& node) -> bool& { return node.runsWithFailedModules; },
            "Keeps the node running when a module refuses its initialisation"),
        wholeKey<Configuration>(
            "seed", [](Configuration& node) -> std::uint64_t& { return node.link.weather.seed; }, {0, 9007199254740991},
            "Where the random numbers of the scintillation begin"),
    };
    return keys;
}

const Keys<Configuration>& brokerKeys()
{
    static const Choices<BrokerEntry> entries = {{"service", BrokerEntry::Service},
                                                 {"absent", BrokerEntry::Absent},
                                                 {"empty", BrokerEntry::Empty},
                                                 {"other type", BrokerEntry::OtherType}};
    const auto entry = [](const std::string& name, const std::string& meaning)
    {
        return wordKey<Configuration>(
            name, [name](Configuration& node) -> BrokerEntry& { return node.broker[name]; }, entries, meaning);
    };
    static const Keys<Configuration> keys = {
        entry("IRlbspKelApi", "The board-support interface"),
        entry("IDpdControllerSplit_1", "The DPD controller of channel 1"),
        entry("IDpdControllerSplit_2", "The DPD controller of channel 2"),
    };
    return keys;
}

const Keys<LinkSetup>& hopKeys()
{
    static const Choices<radio::Polarisation> polarisations = {{"vertical", radio::Polarisation::Vertical},
                                                               {"horizontal", radio::Polarisation::Horizontal}};
    const auto number =
        [](const std::string& name, double radio::Hop::*member, radio::Range<double> range, const std::string& meaning)
    {
        return numberKey<LinkSetup>(
            name, [member](LinkSetup& setup) -> double& { return setup.hop.*member; }, range, meaning);
    };
    using radio::Hop;
    static const Keys<LinkSetup> keys = {
        number("distance_km", &Hop::distance_km, radio::Distance_km, "Length of the hop"),
        wordKey<LinkSetup>(
            "frequency_plan", [](LinkSetup& setup) -> const radio::FrequencyPlan*& { return setup.hop.plan; }, plans(),
            "Plan of paired frequencies; the near end sends in the lower half"),
        wholeKey<LinkSetup>(
            "frequency_number", [](LinkSetup& setup) -> std::uint32_t& { return setup.hop.frequencyNumber; }, {1, 40},
            "Number of the frequency in the plan: up to 8 at 13 GHz, 35 at 18 GHz, 40 at 23 GHz"),
        widthKey(),
        wordKey<LinkSetup>(
            "channel_1_polarisation",
            [](LinkSetup& setup) -> radio::Polarisation& { return setup.channels[0].polarisation; }, polarisations,
            "Polarisation of channel 1; channel 2 has the other one"),
        number("peak_power_dBm", &Hop::peakPower_dBm,
               {radio::LowestPower_dBm + radio::backOff_dB(radio::modulations().back()), 40.0},
               "Peak power of the transmitters; the modulation's back-off comes off it"),
        number("antenna_gain_dBi", &Hop::antennaGain_dBi, {0.0, 60.0}, "Gain of each of the two antennas"),
        number("antenna_discrimination_dB", &Hop::antennaDiscrimination_dB, {10.0, 60.0},
               "Cross-polar discrimination of the lower one of the two antennas"),
        number("noise_figure_dB", &Hop::noiseFigure_dB, {0.0, 20.0}, "Noise figure of the receivers"),
        number("gas_loss_dB_per_km", &Hop::gasLoss_dB_per_km, {0.0, 20.0}, "Loss in the gases of the air"),
        number("reference_difference_ppm", &Hop::referenceDifference_ppm, {-20.0, 20.0},
               "How far the references of the two transmitters are apart; shifts the XPIC slave's carrier"),
    };
    return keys;
}

const Keys<Weather>& weatherKeys()
{
    static const Keys<Weather> keys = {
        numberKey<Weather>(
            "scintillation_deviation_dB",
            [](Weather& weather) -> double& { return weather.scintillation.deviation_dB; }, {0.0, 10.0},
            "How far the level trembles, as a standard deviation"),
        numberKey<Weather>(
            "scintillation_correlation_s",
            [](Weather& weather) -> double& { return weather.scintillation.correlation_s; }, {1.0, 3600.0},
            "How long the level remembers where it was"),
    };
    return keys;
}

const Keys<Profile::Point>& rainKeys()
{
    static const Keys<Profile::Point> keys =
        profileKeys("rate_mm_per_h", radio::RainRate_mm_per_h, "Rain over the whole hop");
    return keys;
}

const Keys<Profile::Point>& fadeKeys()
{
    static const Keys<Profile::Point> keys =
        profileKeys("depth_dB", radio::FadeDepth_dB, "Loss that is neither rain nor gas, such as multipath");
    return keys;
}

const Keys<Channel>& channelKeys()
{
    static const Choices<radio::XpicState> xpicStates = {{"acquired", radio::XpicState::Acquired},
                                                         {"idle", radio::XpicState::Idle}};
    static const Choices<radio::XpicAcquireMode> xpicModes = {{"full sweep", radio::XpicAcquireMode::FullSweep},
                                                              {"narrow sweep", radio::XpicAcquireMode::NarrowSweep},
                                                              {"direct", radio::XpicAcquireMode::Direct}};
    const std::string aModulation = R"(a modulation, such as "16QAM_LIGHT" or "4096QAM")";
    const auto flag = [](const std::string& name, auto access, const std::string& meaning)
    { return flagKey<Channel>(name, access, meaning); };
    static const Keys<Channel> keys = {
        flag(
            "transmitter_on", [](Channel& c) -> bool& { return c.transmitter.on; },
            "Both ends of the channel transmit"),
        numberKey<Channel>(
            "transmitter_power_dBm", [](Channel& c) -> double& { return c.transmitter.power_dBm; },
            {radio::LowestPower_dBm, 40.0},
            "Power that is set; a modulation whose back-off leaves less is sent with less"),
        wordKey<Channel>(
            "lowest_modulation", [](Channel& c) -> radio::ModulationIndex& { return c.modem.lowest; }, modulations(),
            "Lowest modulation that may be used", aModulation),
        wordKey<Channel>(
            "highest_modulation", [](Channel& c) -> radio::ModulationIndex& { return c.modem.highest; }, modulations(),
            "Highest modulation that may be used", aModulation),
        dpdKey(),
        coefficientsKey(),
        wordKey<Channel>(
            "xpic_state", [](Channel& c) -> radio::XpicState& { return c.xpic.state; }, xpicStates,
            "State of the canceller at the start; on a node of one channel it is idle"),
        flag(
            "xpic_cable_connected", [](Channel& c) -> bool& { return c.xpic.cableConnected; },
            "The cable brings the other channel's signal"),
        flag(
            "xpic_slave_muted", [](Channel& c) -> bool& { return c.xpic.slaveMuted; }, "The slave is muted"),
        wholeKey<Channel>(
            "xpic_preamble", [](Channel& c) -> std::uint32_t& { return c.xpic.preamble; }, {0, 3},
            "Preamble; a canceller needs the same one on both channels"),
        wordKey<Channel>(
            "xpic_acquire_mode", [](Channel& c) -> radio::XpicAcquireMode& { return c.xpic.mode; }, xpicModes,
            "How the canceller looks for the other polarisation"),
        flag(
            "xpic_retries", [](Channel& c) -> bool& { return c.xpic.retries; },
            "An acquisition that found nothing begins anew"),
        flag(
            "xpic_reacquires", [](Channel& c) -> bool& { return c.xpic.reacquires; },
            "An acquisition begins by itself after a loss"),
        calibrationKey(),
        flag(
            "pps_master_answers", [](Channel& c) -> bool& { return c.ppsMasterAnswers; },
            "The far end answers a PPS calibration"),
        wholeKey<Channel>(
            "pps_source", [](Channel& c) -> std::uint32_t& { return c.pps.source; }, {0, 2},
            "Source of the PPS output"),
        wholeKey<Channel>(
            "pps_source_parameter", [](Channel& c) -> std::int32_t& { return c.pps.sourceParameter; },
            {-2147483648, 2147483647}, "Parameter of that source"),
        wholeKey<Channel>(
            "pps_output_mode", [](Channel& c) -> std::uint32_t& { return c.pps.outputMode; }, {0, 2},
            "Mode of the PPS output"),
    };
    return keys;
}

const Keys<Fault>& faultKeys()
{
    static const Keys<Fault> keys = {
        wordKey<Fault>(
            "call", [](Fault& fault) -> const services::PlatformCall*& { return fault.call; }, calls(),
            "Which call; this key must be there", "a call of the platform, such as \"tiManageXpic\""),
        wholeKey<Fault>(
            "channel", [](Fault& fault) -> std::optional<RadioChannel>& { return fault.channel; }, {1, 2},
            "For which radio channel; without this key, for all"),
        wholeKey<Fault>(
            "code", [](Fault& fault) -> std::optional<std::int32_t>& { return fault.code; }, {-2147483648, 2147483647},
            "Code to answer; without this key, a refusal: 1 in the top-level API, 32768 elsewhere; 0 for a mere "
            "number"),
        textKey<Fault>(
            "text", [](Fault& fault) -> std::optional<std::string>& { return fault.text; },
            "Text to answer or to throw; without this key, \"planned fault\""),
        flagKey<Fault>(
            "throws", [](Fault& fault) -> bool& { return fault.throws; }, "Throws instead of answering"),
        wholeKey<Fault>(
            "from_call", [](Fault& fault) -> std::uint64_t& { return fault.fromCall; }, {1, 4294967295},
            "First call to hit, counted since the fault was planned"),
        wholeKey<Fault>(
            "calls", [](Fault& fault) -> std::optional<std::uint64_t>& { return fault.calls; }, {1, 4294967295},
            "How many calls to hit; without this key, all that follow"),
    };
    return keys;
}

} // namespace node::scenario
