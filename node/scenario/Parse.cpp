#include <algorithm>

#include <fmt/format.h>
#include <toml++/toml.h>

#include "node/scenario/FaultKeys.h"
#include "node/scenario/Keys.h"
#include "node/scenario/Scenario.h"
#include "node/services/ModulationNames.h"

namespace node::scenario
{

namespace
{

using wording::InputError;
using wording::quoted;

/// A key of a table with its value.
struct Entry
{
    const toml::key* key;
    const toml::node* node;
};

/// With a point, so that 2.0 is not taken for a whole number.
std::string shownReal(double number)
{
    const std::string text = fmt::format("{}", number);
    const bool plainDigits = text.find_first_not_of("-0123456789") == std::string::npos;
    return plainDigits ? text + ".0" : text;
}

std::string found(const toml::node& node)
{
    switch (node.type())
    {
    case toml::node_type::table:
        return "a table";
    case toml::node_type::array:
        return "an array";
    case toml::node_type::string:
        return quoted(**node.as_string());
    case toml::node_type::integer:
        return fmt::format("{}", **node.as_integer());
    case toml::node_type::floating_point:
        return shownReal(**node.as_floating_point());
    case toml::node_type::boolean:
        return fmt::format("{}", **node.as_boolean());
    default:
        return "a date or time";
    }
}

Value valueOf(const toml::node& node, const std::string& place)
{
    Value value{place, found(node), std::nullopt, std::nullopt, std::nullopt, std::nullopt};
    if (const auto* const whole = node.as_integer())
    {
        value.whole = **whole;
        value.number = static_cast<double>(**whole);
    }
    else if (const auto* const number = node.as_floating_point())
    {
        value.number = **number;
    }
    else if (const auto* const flag = node.as_boolean())
    {
        value.flag = **flag;
    }
    else if (const auto* const text = node.as_string())
    {
        value.text = **text;
    }
    return value;
}

/// The parser keeps a table by the alphabet; whoever reads the file expects its first mistake to be named.
std::vector<Entry> inOrderOfFile(const toml::table& table)
{
    std::vector<Entry> entries;
    for (const auto& [key, node] : table)
    {
        entries.push_back({&key, &node});
    }
    const auto before = [](const toml::source_position& a, const toml::source_position& b)
    { return a.line != b.line ? a.line < b.line : a.column < b.column; };
    std::sort(entries.begin(), entries.end(),
              [&](const Entry& a, const Entry& b) { return before(a.key->source().begin, b.key->source().begin); });
    return entries;
}

/// Reads one file.
class Reader
{
public:
    explicit Reader(const std::string& fileName) : m_fileName(fileName)
    {
    }

    Scenario read(const toml::table& root)
    {
        Heading heading;
        startup::Configuration& configuration = m_scenario.configuration;
        radio::LinkSetup& link = configuration.link;
        for (const Entry& entry : inOrderOfFile(root))
        {
            const std::string name(entry.key->str());
            if (name == "node")
            {
                readTable(entry, name, nodeKeys(), configuration);
            }
            else if (name == "broker")
            {
                readTable(entry, name, brokerKeys(), configuration);
            }
            else if (name == "hop")
            {
                readTable(entry, name, hopKeys(), link);
                finishHop(*entry.node->as_table());
            }
            else if (name == "weather")
            {
                readWeather(entry);
            }
            else if (name == "channel")
            {
                readChannels(entry);
            }
            else if (name == "fault")
            {
                readFaults(entry);
            }
            else
            {
                readKey(entry, "", headingKeys(), heading, {"node", "broker", "hop", "weather", "channel", "fault"});
            }
        }
        const toml::node* const secondChannel = root.at_path("channel.2").node();
        if (link.numberOfChannels == 1 && secondChannel != nullptr)
        {
            throw InputError(placeOf(*secondChannel, "channel.2"), "a second channel",
                             "none where node.radio_channels is 1");
        }
        const toml::node* const secondController = root.at_path("broker.IDpdControllerSplit_2").node();
        if (link.numberOfChannels == 1 && secondController != nullptr)
        {
            throw InputError(placeOf(*secondController, "broker.IDpdControllerSplit_2"),
                             "a second channel's controller", "none where node.radio_channels is 1");
        }
        m_scenario.description = heading.description;
        return m_scenario;
    }

private:
    std::string at(const toml::source_region& region) const
    {
        return fmt::format("{}:{}:{}", m_fileName, region.begin.line, region.begin.column);
    }

    std::string placeOf(const toml::node& node, const std::string& path) const
    {
        return fmt::format("{}: {}", at(node.source()), path);
    }

    /// Of the key; where the table does not have it, the table's own place stands for it.
    std::string placeIn(const toml::table& table, const std::string& path, const std::string& key) const
    {
        const toml::node* const node = table.get(key);
        return placeOf(node != nullptr ? *node : table, path + "." + key);
    }

    const toml::table& tableOf(const toml::node& node, const std::string& path, const std::string& expected) const
    {
        if (!node.is_table())
        {
            throw InputError(placeOf(node, path), found(node), expected);
        }
        return *node.as_table();
    }

    template <typename Target>
    void readKey(const Entry& entry, const std::string& path, const Keys<Target>& keys, Target& target,
                 const std::vector<std::string>& tables = {}) const
    {
        const std::string name(entry.key->str());
        const Key<Target>* const key = find(keys, name);
        if (key == nullptr)
        {
            std::vector<std::string> known = namesOf(keys);
            known.insert(known.end(), tables.begin(), tables.end());
            throw InputError(at(entry.key->source()), "an unknown key " + quoted(name),
                             (path.empty() ? "a key or table of a scenario" : "a key of " + path) +
                                 wording::didYouMean(name, known));
        }
        key->read(valueOf(*entry.node, placeOf(*entry.node, path.empty() ? name : path + "." + name)), target);
    }

    template <typename Target>
    void readTable(const toml::table& table, const std::string& path, const Keys<Target>& keys, Target& target) const
    {
        for (const Entry& entry : inOrderOfFile(table))
        {
            readKey(entry, path, keys, target);
        }
    }

    template <typename Target>
    void readTable(const Entry& entry, const std::string& path, const Keys<Target>& keys, Target& target) const
    {
        readTable(tableOf(*entry.node, path, "a table"), path, keys, target);
    }

    void finishHop(const toml::table& table)
    {
        radio::LinkSetup& link = m_scenario.configuration.link;
        const radio::FrequencyPlan& plan = *link.hop.plan;
        if (link.hop.frequencyNumber > plan.channels)
        {
            throw InputError(
                placeIn(table, "hop", "frequency_number"), std::to_string(link.hop.frequencyNumber),
                fmt::format("a whole number from 1 to {}, the channels of the {} plan", plan.channels, plan.name));
        }
        using enum radio::Polarisation;
        link.channels[1].polarisation = link.channels[0].polarisation == Vertical ? Horizontal : Vertical;
    }

    void readWeather(const Entry& entry)
    {
        radio::Weather& weather = m_scenario.configuration.link.weather;
        for (const Entry& inner : inOrderOfFile(tableOf(*entry.node, "weather", "a table")))
        {
            if (*inner.key == "rain")
            {
                weather.rain_mm_per_h = readProfile(*inner.node, "weather.rain", rainKeys());
            }
            else if (*inner.key == "fade")
            {
                weather.fade_dB = readProfile(*inner.node, "weather.fade", fadeKeys());
            }
            else
            {
                readKey(inner, "weather", weatherKeys(), weather, {"rain", "fade"});
            }
        }
    }

    radio::Profile readProfile(const toml::node& node, const std::string& path,
                               const Keys<radio::Profile::Point>& keys) const
    {
        std::vector<radio::Profile::Point> points;
        for (const toml::table* const table : tablesOf(node, path))
        {
            const std::string pointPath = fmt::format("{}[{}]", path, points.size() + 1);
            radio::Profile::Point point{};
            readTable(*table, pointPath, keys, point);
            if (!points.empty() && point.at_s <= points.back().at_s)
            {
                throw InputError(placeIn(*table, pointPath, "at_s"), fmt::format("{}", point.at_s),
                                 fmt::format("a time after {}, that of the point before", points.back().at_s));
            }
            points.push_back(point);
        }
        return radio::Profile(points);
    }

    std::vector<const toml::table*> tablesOf(const toml::node& node, const std::string& path) const
    {
        const std::string expected = "an array of tables";
        if (!node.is_array())
        {
            throw InputError(placeOf(node, path), found(node), expected);
        }
        std::vector<const toml::table*> tables;
        for (const toml::node& element : *node.as_array())
        {
            tables.push_back(&tableOf(element, fmt::format("{}[{}]", path, tables.size() + 1), "a table"));
        }
        return tables;
    }

    void readChannels(const Entry& entry)
    {
        for (const Entry& inner : inOrderOfFile(tableOf(*entry.node, "channel", "the tables channel.1 and channel.2")))
        {
            if (*inner.key != "1" && *inner.key != "2")
            {
                throw InputError(at(inner.key->source()), "an unknown key " + quoted(std::string(inner.key->str())),
                                 "the tables channel.1 and channel.2");
            }
            const std::string path = fmt::format("channel.{}", inner.key->str());
            radio::Channel& channel = m_scenario.configuration.link.channels.at(*inner.key == "1" ? 0 : 1);
            readTable(inner, path, channelKeys(), channel);
            finishChannel(*inner.node->as_table(), path, channel.modem);
        }
    }

    void finishChannel(const toml::table& table, const std::string& path, radio::Modem& modem) const
    {
        const auto name = [](radio::ModulationIndex index)
        { return quoted(services::nameOf(radio::modulations()[index])); };
        if (modem.highest < modem.lowest && table.contains("highest_modulation"))
        {
            throw InputError(placeIn(table, path, "highest_modulation"), name(modem.highest),
                             name(modem.lowest) + " or a higher one, for that is the lowest modulation");
        }
        if (modem.highest < modem.lowest)
        {
            throw InputError(placeIn(table, path, "lowest_modulation"), name(modem.lowest),
                             name(modem.highest) + " or a lower one, for that is the highest modulation");
        }
        modem.current = modem.highest;
    }

    void readFaults(const Entry& entry)
    {
        for (const toml::table* const table : tablesOf(*entry.node, "fault"))
        {
            auto& faults = m_scenario.configuration.faults;
            const std::string path = fmt::format("fault[{}]", faults.size() + 1);
            services::Fault fault;
            readTable(*table, path, faultKeys(), fault);
            checkFault(fault, [&](const std::string& key) { return placeIn(*table, path, key); });
            faults.push_back(fault);
        }
    }

    std::string m_fileName;
    Scenario m_scenario;
};

} // namespace

Scenario parse(const std::string& text, const std::string& fileName)
{
    toml::table root;
    try
    {
        root = toml::parse(text, fileName);
    }
    catch (const toml::parse_error& error)
    {
        const auto& position = error.source().begin;
        std::string reason(error.description());
        std::replace(reason.begin(), reason.end(), '\n', ' '); // it cites what it found
        throw InputError(fmt::format("{}:{}:{}", fileName, position.line, position.column),
                         fmt::format("a mistake in the TOML ({})", reason), "TOML 1.0");
    }
    Scenario scenario = Reader(fileName).read(root);
    scenario.file = fileName;
    scenario.text = text;
    return scenario;
}

} // namespace node::scenario
