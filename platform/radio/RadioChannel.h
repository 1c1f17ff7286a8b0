#pragma once

/// @file
/// Channels of the radio.

#include <cstdint>

/// A radio channel of the node, counted from 1. A node has one or two.
using RadioChannel = std::uint32_t;
