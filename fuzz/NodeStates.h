#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "node/radio/RadioLink.h"

namespace fuzz
{

/// What a channel was told and must still know.
struct Told
{
    explicit Told(const node::radio::Channel& channel);

    std::array<std::uint8_t, 20> coefficients;
    bool slaveMuted;
    std::uint32_t preamble;
    std::uint32_t ppsSource;
    std::int32_t ppsSourceParameter;
    std::uint32_t ppsOutputMode;
};

/// @throws Finding where a channel has forgotten what it was told
void expectKnown(const Told& told, const node::radio::Channel& channel);

/// Whether readings, modem, canceller and PPS output agree with each other and with what the link can be.
/// @throws Finding where they do not
void expectConsistent(const node::radio::Snapshot& now);

/// A line of what a channel is and measures.
std::string textOf(const node::radio::Snapshot& now);

} // namespace fuzz
