#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "framework/ModuleInterface.h"
#include "kel_top_api/ModulationAndCode.h"
#include "platform/Layout.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"
#include "radio/RadioChannel.h"
#include "trace/VemTrace.h"

namespace
{

// What travels as a plain number.
static_assert(std::is_same_v<RadioChannel, std::uint32_t>);
static_assert(std::is_same_v<VemTraceLevel, std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<EDPDResult>, std::int32_t>);
static_assert(static_cast<std::int32_t>(EDPDResult::Success) == 0);
static_assert(static_cast<std::int32_t>(EDPDResult::Failure) == 32768);

static_assert(std::is_same_v<std::underlying_type_t<ECallbackPriority>, std::int32_t>);
static_assert(static_cast<std::int32_t>(ECallbackPriority::Default) == 0);

// What travels by value, or is copied byte by byte.
static_assert(std::is_trivially_copyable_v<DpdCoeffs>);
static_assert(std::is_trivially_copyable_v<DspModemStatus>);
static_assert(std::is_trivially_copyable_v<RadioChannelInfoRequest>);
static_assert(std::has_unique_object_representations_v<DpdCoeffs>, "no padding");
static_assert(alignof(DpdCoeffs) == alignof(std::uint32_t), "controllers may work in words");
static_assert(std::has_unique_object_representations_v<DspModemStatus>, "no padding");
static_assert(std::has_unique_object_representations_v<RadioChannelInfoRequest>, "no padding");

template <std::size_t Size>
using Bytes = std::array<std::uint8_t, Size>;

TEST(RecordLayoutTest, RadioChannelInfoRequest)
{
    using R = RadioChannelInfoRequest;
    Layout<R>()
        .member<std::uint32_t>("radioChannel", &R::radioChannel, 0, 0)
        .member<std::uint8_t>("byte4", &R::byte4, 4, 4)
        .member<Bytes<15>>("bytes5", &R::bytes5, 5, 5)
        .member<std::uint32_t>("modulationAndCode20", &R::modulationAndCode20, 20, 20)
        .member<std::uint32_t>("word24", &R::word24, 24, 24)
        .member<std::uint32_t>("modulationAndCode28", &R::modulationAndCode28, 28, 28)
        .member<std::uint32_t>("word32", &R::word32, 32, 32)
        .member<std::uint32_t>("word36", &R::word36, 36, 36)
        .member<Bytes<20>>("bytes40", &R::bytes40, 40, 40)
        .member<std::uint8_t>("byte60", &R::byte60, 60, 60)
        .member<std::uint8_t>("byte61", &R::byte61, 61, 61)
        .member<Bytes<6>>("ignored62", &R::ignored62, 62, 62)
        .member<std::uint8_t>("byte68", &R::byte68, 68, 68)
        .member<Bytes<6>>("ignored69", &R::ignored69, 69, 69)
        .member<std::uint8_t>("byte75", &R::byte75, 75, 75)
        .member<Bytes<12>>("bytes76", &R::bytes76, 76, 76)
        .size(88, 88);
}

TEST(RecordLayoutTest, RadioChannelInfo)
{
    using R = RadioChannelInfo;
    Layout<R>()
        .member<std::int32_t>("radioChannelId", &R::radioChannelId, 0, 0)
        .member<std::uint8_t>("flag2", &R::flag2, 4, 4)
        .member<std::int32_t>("radioFrameId", &R::radioFrameId, 8, 8)
        .member<std::string>("minModulationAndCode", &R::minModulationAndCode, 16, 12)
        .member<std::string>("maxModulationAndCode", &R::maxModulationAndCode, 48, 36)
        .member<std::string>("text6", &R::text6, 80, 60)
        .member<std::uint32_t>("number7", &R::number7, 112, 84)
        .member<std::uint32_t>("number8", &R::number8, 116, 88)
        .member<std::uint8_t>("number9", &R::number9, 120, 92)
        .member<std::uint32_t>("number10", &R::number10, 124, 96)
        .size(128, 100);
}

TEST(RecordLayoutTest, RadioChannelInfoResult)
{
    using R = RadioChannelInfoResult;
    Layout<R>()
        .member<std::int32_t>("resultCode", &R::resultCode, 0, 0)
        .member<std::string>("errorText", &R::errorText, 8, 4)
        .size(40, 28);
}

TEST(RecordLayoutTest, DspModemStatus)
{
    using R = DspModemStatus;
    Layout<R>()
        .member<std::uint32_t>("request", &R::request, 0, 0)
        .member<std::array<std::uint32_t, 11>>("content", &R::content, 4, 4)
        .size(48, 48);
}

TEST(RecordLayoutTest, DspModemStatusResult)
{
    using R = DspModemStatusResult;
    Layout<R>()
        .member<std::int32_t>("resultCode", &R::resultCode, 0, 0)
        .member<std::string>("errorText", &R::errorText, 8, 4)
        .size(40, 28);
}

TEST(RecordLayoutTest, DpdCoeffs)
{
    Layout<DpdCoeffs>().member<Bytes<20>>("bytes", &DpdCoeffs::bytes, 0, 0).size(20, 20);
}

TEST(RecordLayoutTest, VemTraceHeader)
{
    using R = VemTraceHeader;
    Layout<R>()
        .member<const char*>("file", &R::file, 0, 0)
        .member<std::int32_t>("line", &R::line, 8, 4)
        .member<const char*>("function", &R::function, 16, 8)
        .size(24, 12);
}

TEST(RecordLayoutTest, ModulationAndCode)
{
    using R = kel_top_api::ModulationAndCode;
    Layout<R>()
        .member<std::uint32_t>("code", &R::code, 0, 0)
        .member<std::string>("name", &R::name, 8, 4)
        .member<std::uint32_t>("modulation", &R::modulation, 40, 28)
        .member<std::uint32_t>("variant", &R::variant, 44, 32)
        .member<std::uint32_t>("strength", &R::strength, 48, 36)
        .size(56, 40);
}

TEST(RecordLayoutTest, ModuleRegistration)
{
    using R = ModuleInterface::Registration;
    Layout<R>()
        .member<unsigned int>("number", &R::number, 0, 0)
        .member<std::string>("name", &R::name, 8, 4)
        .member<unsigned int>("secondNumber", &R::secondNumber, 40, 28)
        .member<unsigned int>("thirdNumber", &R::thirdNumber, 44, 32)
        .member<const unsigned long*>("list", &R::list, 48, 36)
        .member<unsigned int>("listLength", &R::listLength, 56, 40)
        .size(64, 44);
}

} // namespace
