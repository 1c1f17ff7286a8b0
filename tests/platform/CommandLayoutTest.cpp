#include <cstdint>
#include <initializer_list>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/Optional.h"
#include "kel_top_api/TiManageXpic.h"
#include "platform/Layout.h"

using namespace kel_top_api;

namespace
{

/// An enumeration of 32 bits whose named values are `values`, in their order.
template <typename Enumeration>
constexpr bool is32BitEnumerationOf(std::initializer_list<Enumeration> values)
{
    std::uint32_t expected = 0;
    for (const Enumeration value : values)
    {
        if (static_cast<std::uint32_t>(value) != expected++)
        {
            return false;
        }
    }
    return std::is_same_v<std::underlying_type_t<Enumeration>, std::uint32_t>;
}

using Preamble = TiManageXpic::PreambleType;
using AcquireMode = TiManageXpic::AcquireModeType;
using AcquireOption = TiManageXpic::AcquireOptionType;
using CalibrationMode = CriCalibrateDspPps::CalibrationMode;
using OutputMode = CriSetOutputModeDspPps::OutputMode;
using Source = CriSetSourceDspPps::Source;

static_assert(is32BitEnumerationOf({Preamble::Preamble0, Preamble::Preamble1, Preamble::Preamble2, Preamble::Preamble3,
                                    Preamble::OutOfRange}));
static_assert(is32BitEnumerationOf({AcquireMode::Mode0, AcquireMode::Mode1, AcquireMode::Mode2,
                                    AcquireMode::OutOfRange}));
static_assert(is32BitEnumerationOf({AcquireOption::Option0, AcquireOption::Option1, AcquireOption::Option2,
                                    AcquireOption::Option3, AcquireOption::OutOfRange}));
static_assert(is32BitEnumerationOf({CalibrationMode::Mode0, CalibrationMode::Mode1, CalibrationMode::Mode2,
                                    CalibrationMode::Mode3}));
static_assert(is32BitEnumerationOf({OutputMode::Mode0, OutputMode::Mode1, OutputMode::Mode2}));
static_assert(is32BitEnumerationOf({Source::Source0, Source::Source1, Source::Source2}));

TEST(CommandLayoutTest, OptionalHasItsFlagBeforeItsValue)
{
    using Flag = Optional<bool>;
    Layout<Flag>().member<bool>("present", &Flag::present, 0, 0).member<bool>("value", &Flag::value, 1, 1).size(2, 2);

    using Number = Optional<std::uint32_t>;
    Layout<Number>()
        .member<bool>("present", &Number::present, 0, 0)
        .member<std::uint32_t>("value", &Number::value, 4, 4)
        .size(8, 8);

    using Text = Optional<std::string>;
    Layout<Text>()
        .member<bool>("present", &Text::present, 0, 0)
        .member<std::string>("value", &Text::value, 8, 4)
        .size(40, 28);
}

TEST(CommandLayoutTest, TiManageXpic)
{
    using C = TiManageXpic::Command;
    Layout<C>()
        .member<Optional<std::uint32_t>>("RadioChannelID", &C::RadioChannelID, 0, 0)
        .member<Optional<bool>>("member2", &C::member2, 8, 8)
        .member<Optional<bool>>("member3", &C::member3, 10, 10)
        .member<Optional<std::uint32_t>>("member4", &C::member4, 12, 12)
        .member<Optional<std::string>>("member5", &C::member5, 24, 20)
        .member<Optional<bool>>("member6", &C::member6, 64, 48)
        .member<Optional<bool>>("member7", &C::member7, 66, 50)
        .member<Optional<bool>>("SlaveMute", &C::SlaveMute, 68, 52)
        .member<Optional<bool>>("AcquireStart", &C::AcquireStart, 70, 54)
        .member<Optional<AcquireMode>>("AcquireMode", &C::AcquireMode, 72, 56)
        .member<Optional<AcquireOption>>("AcquireOption", &C::AcquireOption, 80, 64)
        .member<Optional<bool>>("GetPreamble", &C::GetPreamble, 88, 72)
        .member<Optional<Preamble>>("Preamble", &C::Preamble, 92, 76)
        .member<Optional<bool>>("GetStatus", &C::GetStatus, 100, 84)
        .size(104, 88);
}

TEST(CommandLayoutTest, CriCalibrateDspPps)
{
    using C = CriCalibrateDspPps::Command;
    Layout<C>()
        .member<std::uint32_t>("radioChannel", &C::radioChannel, 0, 0)
        .member<CalibrationMode>("calibrationMode", &C::calibrationMode, 4, 4)
        .member<std::uint16_t>("calibrationValue", &C::calibrationValue, 8, 8)
        .size(12, 12);
}

TEST(CommandLayoutTest, CriSetOutputModeDspPps)
{
    using C = CriSetOutputModeDspPps::Command;
    Layout<C>()
        .member<std::uint32_t>("radioChannel", &C::radioChannel, 0, 0)
        .member<OutputMode>("outputMode", &C::outputMode, 4, 4)
        .size(8, 8);
}

TEST(CommandLayoutTest, CriSetSourceDspPps)
{
    using C = CriSetSourceDspPps::Command;
    Layout<C>()
        .member<std::uint32_t>("radioChannel", &C::radioChannel, 0, 0)
        .member<Source>("source", &C::source, 4, 4)
        .member<std::int32_t>("sourceParameter", &C::sourceParameter, 8, 8)
        .size(12, 12);
}

TEST(CommandLayoutTest, CriGetCalibrationStatusDspPps)
{
    using C = CriGetCalibrationStatusDspPps::Command;
    Layout<C>().member<std::uint32_t>("radioChannel", &C::radioChannel, 0, 0).size(4, 4);
}

TEST(CommandLayoutTest, CriGetHopLengthTimeDspPps)
{
    using C = CriGetHopLengthTimeDspPps::Command;
    Layout<C>().member<std::uint32_t>("radioChannel", &C::radioChannel, 0, 0).size(4, 4);
}

TEST(CommandLayoutTest, CriGetRadioChannelStatus)
{
    using C = CriGetRadioChannelStatus::Command;
    Layout<C>()
        .member<std::uint32_t>("radioChannel", &C::radioChannel, 0, 0)
        .member<bool>("flag2", &C::flag2, 4, 4)
        .size(8, 8);
}

TEST(CommandLayoutTest, CriGetRadioChannelCapability)
{
    using C = CriGetRadioChannelCapability::Command;
    Layout<C>()
        .member<std::uint32_t>("radioChannel", &C::radioChannel, 0, 0)
        .member<std::uint32_t>("number2", &C::number2, 4, 4)
        .member<std::uint32_t>("modulationAndCode3", &C::modulationAndCode3, 8, 8)
        .member<std::uint32_t>("modulationAndCode4", &C::modulationAndCode4, 12, 12)
        .member<std::uint32_t>("number5", &C::number5, 16, 16)
        .member<std::uint32_t>("number6", &C::number6, 20, 20)
        .member<std::uint32_t>("number7", &C::number7, 24, 24)
        .size(28, 28);
}

} // namespace
