#pragma once

#include <array>

#include "radio/RadioChannel.h"

namespace fuzz
{

/// The operations of a class that has a member of each one's name. Inputs choose by the place in this list: the
/// seeds and findings mean something else in another order.
template <typename Operations>
inline constexpr std::array EveryOperation = {
    &Operations::getCtStatus,         &Operations::getBcmModemStatus,  &Operations::getPpsCalibrationStatus,
    &Operations::getPpsHopLengthTime, &Operations::calibratePps,       &Operations::setPpsSource,
    &Operations::setPpsOutputMode,    &Operations::startDpd,           &Operations::stopDpd,
    &Operations::setDpdCoefficients,  &Operations::getDpdCoefficients, &Operations::setXpicSlaveMute,
    &Operations::xpicAcquireStart,    &Operations::getXpicPreamble,    &Operations::setXpicPreamble,
    &Operations::getXpicStatus};

} // namespace fuzz
