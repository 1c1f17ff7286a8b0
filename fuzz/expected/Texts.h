#pragma once

#include <cstdint>
#include <string>

#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/TiManageXpic.h"

/// The module's texts a second time, written from what readers expect of them and not from the module's sources. Plain
/// where the module is quick: streams, printf, a statement for each line.
namespace expected
{

/// A level in hundredths of a decibel, six digits long at most, with its unit.
std::string level(std::int32_t hundredths, const std::string& unit);

/// The name of a modulation and code, made of what the digits of its code say.
std::string modulationName(std::uint32_t code);

std::string ppsCalibrationStatus(std::uint32_t status, std::uint32_t reason);
std::string ppsHopLengthTime(std::uint32_t time_ns);
std::string xpicStatus(const kel_top_api::TiManageXpic::Response& response);

/// What the responses print of themselves.
std::string printed(const kel_top_api::TiManageXpic::Response& response);
std::string printed(const kel_top_api::CriGetRadioChannelStatus::Response& response);
std::string printed(const kel_top_api::CriGetRadioChannelCapability::Response& response);

} // namespace expected
