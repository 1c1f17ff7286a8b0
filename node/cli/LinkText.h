#pragma once

#include <string>

#include "node/radio/RadioLink.h"

/// The link as text.
namespace node::cli
{

/// "0:01:30.0": hours, minutes and seconds of node time.
std::string clockText(radio::Ticks time);

/// Everything that a person may want to know of the link: what is around it, then each channel in a column.
std::string linkText(const radio::RadioLink& link);

/// The first line of a table in comma-separated values.
std::string csvHeader();

/// The link at this moment: a line for each channel.
std::string csvRows(const radio::RadioLink& link);

} // namespace node::cli
