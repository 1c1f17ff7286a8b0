#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

/// Every key that a scenario file may hold, written down a second time: a key that is new or other in the product
/// meets a test.
namespace key_list
{

enum class Takes
{
    Number,
    Whole,
    Flag,
    Text,
};

struct Row
{
    std::string table; ///< "hop"; "" for what stands before the first table
    std::string name;
    Takes takes;
    std::string form;        ///< as an error words it
    std::string defaultText; ///< as the reference shows it
    std::string lowest = {};
    std::string highest = {};
};

std::ostream& operator<<(std::ostream& stream, const Row& row);

/// Of both channels.
const std::vector<Row>& all();

std::vector<Row> taking(Takes takes);

/// "weather_rain_at_s", for the names of tests.
std::string identifier(const Row& row);

/// The line that begins the table: "[[weather.rain]]\n".
std::string header(const Row& row);

/// The least that must stand before the key so that it is accepted: the header, in a fault also the call.
std::string opening(const Row& row);

/// "weather.rain[1].at_s"
std::string path(const Row& row);

/// The error about the value of a key that stands on its own in the line after the header.
std::string refusal(const Row& row, const std::string& found, const std::string& expected);

} // namespace key_list
