#pragma once

#include <string>
#include <vector>

#include "node/radio/RadioLink.h"
#include "node/report/Field.h"

/// The link as text.
namespace node::commands
{

/// "0:01:30.0": hours, minutes and seconds of node time.
std::string clockText(radio::Ticks time);

/// Everything that a person may want to know of the link: what is around it, then each channel in a column.
std::string linkText(const radio::RadioLink& link);

/// What linkText() says, as values; those of a channel stand under "Channel N".
std::vector<report::Field> linkFields(const radio::RadioLink& link);

/// The first line of a table in comma-separated values.
std::string csvHeader();

/// The link at this moment: a line for each channel.
std::string csvRows(const radio::RadioLink& link);

} // namespace node::commands
