#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/TiManageXpic.h"

/// Where the debug commands' numbers meet the enumerations of the top-level API.
///
/// An XPIC number that the API does not know is sent as "out of range", for the API to answer. A PPS number that the
/// API does not know is none, and is not sent.
namespace kel::device::kelDebugCmd
{

inline kel_top_api::TiManageXpic::PreambleType preambleFrom(unsigned char preamble)
{
    using enum kel_top_api::TiManageXpic::PreambleType;
    switch (preamble)
    {
    case 0:
        return Preamble0;
    case 1:
        return Preamble1;
    case 2:
        return Preamble2;
    case 3:
        return Preamble3;
    default:
        return OutOfRange;
    }
}

/// The way back: a preamble that the command line does not know is 255.
inline unsigned char byteFrom(kel_top_api::TiManageXpic::PreambleType preamble)
{
    using enum kel_top_api::TiManageXpic::PreambleType;
    constexpr unsigned char Unknown = 255;
    return preamble <= Preamble3 ? static_cast<unsigned char>(preamble) : Unknown;
}

inline kel_top_api::TiManageXpic::AcquireModeType acquireModeFrom(unsigned char acquireMode)
{
    using enum kel_top_api::TiManageXpic::AcquireModeType;
    switch (acquireMode)
    {
    case 0:
        return Mode0;
    case 1:
        return Mode1;
    case 2:
        return Mode2;
    default:
        return OutOfRange;
    }
}

inline kel_top_api::TiManageXpic::AcquireOptionType acquireOptionFrom(unsigned char acquireOption)
{
    using enum kel_top_api::TiManageXpic::AcquireOptionType;
    switch (acquireOption)
    {
    case 0:
        return Option0;
    case 1:
        return Option1;
    case 2:
        return Option2;
    case 3:
        return Option3;
    default:
        return OutOfRange;
    }
}

inline std::optional<kel_top_api::CriCalibrateDspPps::CalibrationMode> calibrationModeFrom(int mode)
{
    using enum kel_top_api::CriCalibrateDspPps::CalibrationMode;
    switch (mode)
    {
    case 0:
        return Mode0;
    case 1:
        return Mode1;
    case 2:
        return Mode2;
    case 3:
        return Mode3;
    default:
        return std::nullopt;
    }
}

inline std::optional<kel_top_api::CriSetOutputModeDspPps::OutputMode> outputModeFrom(int mode)
{
    using enum kel_top_api::CriSetOutputModeDspPps::OutputMode;
    switch (mode)
    {
    case 0:
        return Mode0;
    case 1:
        return Mode1;
    case 2:
        return Mode2;
    default:
        return std::nullopt;
    }
}

inline std::optional<kel_top_api::CriSetSourceDspPps::Source> sourceFrom(int source)
{
    using enum kel_top_api::CriSetSourceDspPps::Source;
    switch (source)
    {
    case 0:
        return Source0;
    case 1:
        return Source1;
    case 2:
        return Source2;
    default:
        return std::nullopt;
    }
}

/// What the report prints for each number of the API; a number without an entry is printed as `other`.
template <std::size_t Size>
int printedNumber(const std::array<int, Size>& printed, std::uint32_t number, int other)
{
    return number < Size ? printed[number] : other;
}

/// The API counts auto mode as 3 and manual mode as 4; the legend has them the other way round.
inline int printedCalibrationStatus(std::uint32_t calibrationStatus)
{
    return printedNumber(std::array{0, 1, 2, 4, 3}, calibrationStatus, 5);
}

inline int printedFailureReason(std::uint32_t calibrationFailureReason)
{
    return printedNumber(std::array{0, 1, 2, 3, 4}, calibrationFailureReason, 5);
}

} // namespace kel::device::kelDebugCmd
