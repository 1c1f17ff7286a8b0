#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "node/radio/RadioLink.h"
#include "radio/IDpdControllerSplit.h"

/// What the node's operations answer, and what their reports are held against.
namespace fuzz
{

/// The whole report of a query that failed.
inline constexpr auto NoData = "Data could not be retrieved!";
inline constexpr auto Before = "what was there before";

/// What an operation answered.
struct Answered
{
    std::optional<int> result; ///< none: it threw
    std::string thrown;
    std::string report = Before;
    std::uint8_t preamble = 99;
    DpdCoeffs coefficients{};
};

/// @param begin  of the report of an operation that succeeded
/// @throws Finding where the report is not what the result says
void expectReport(const Answered& answered, const std::string& begin);

/// @throws Finding where the carrier-termination report lacks a line
void expectCtLines(const std::string& report);

/// @throws Finding where the carrier-termination report tells of another state than the channel's
void expectCtState(const std::string& report, const node::radio::Snapshot& now);

} // namespace fuzz
