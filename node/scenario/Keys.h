#pragma once

#include <string>

#include "node/radio/Channel.h"
#include "node/radio/RadioLink.h"
#include "node/radio/Weather.h"
#include "node/scenario/Key.h"
#include "node/services/FaultPlan.h"
#include "node/startup/Configuration.h"

/// The rows of every table of a scenario file.
namespace node::scenario
{

/// What a file says before its first table.
struct Heading
{
    std::string description;
};

const Keys<Heading>& headingKeys();
const Keys<startup::Configuration>& nodeKeys();
const Keys<startup::Configuration>& brokerKeys();
const Keys<radio::LinkSetup>& hopKeys();
const Keys<radio::Weather>& weatherKeys();
const Keys<radio::Profile::Point>& rainKeys();
const Keys<radio::Profile::Point>& fadeKeys();
const Keys<radio::Channel>& channelKeys();
const Keys<services::Fault>& faultKeys();

} // namespace node::scenario
