#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "kel_top_api/ModulationAndCode.h"
#include "radio/RadioChannel.h"

/// Asks for the near end's information of a radio channel: 88 bytes, without padding.
///
/// Callers choose the channel alone. The other members hold the interface's own defaults and are named by where they
/// stand; the receiver ignores the two groups of six bytes.
struct RadioChannelInfoRequest
{
    std::uint32_t radioChannel = 0; ///< 1 or 2
    /// @{
    /// The interface's own, at the byte that the name tells.
    std::uint8_t byte4 = 1;
    std::array<std::uint8_t, 15> bytes5{};
    std::uint32_t modulationAndCode20 = kel_top_api::UndefinedModulationAndCode;
    std::uint32_t word24 = 0;
    std::uint32_t modulationAndCode28 = kel_top_api::UndefinedModulationAndCode;
    std::uint32_t word32 = 0;
    std::uint32_t word36 = 1000;
    std::array<std::uint8_t, 20> bytes40{};
    std::uint8_t byte60 = 1;
    std::uint8_t byte61 = 0;
    std::array<std::uint8_t, 6> ignored62{};
    std::uint8_t byte68 = 0;
    std::array<std::uint8_t, 6> ignored69{};
    std::uint8_t byte75 = 0;
    std::array<std::uint8_t, 12> bytes76{};
    /// @}
};

/// The near end's information of a radio channel. The numbered members belong to other users of the interface.
struct RadioChannelInfo
{
    std::int32_t radioChannelId = 0;  ///< identity of the channel
    std::uint8_t flag2 = 0;           ///< for other users
    std::int32_t radioFrameId = 0;    ///< identity of the radio frame
    std::string minModulationAndCode; ///< name of the lowest modulation and code that the channel may use
    std::string maxModulationAndCode; ///< name of the highest modulation and code that the channel may use
    /// @{
    /// For other users.
    std::string text6;
    std::uint32_t number7 = 0;
    std::uint32_t number8 = 0;
    std::uint8_t number9 = 0;
    std::uint32_t number10 = 0;
    /// @}
};

/// How a query of the near end ended.
struct RadioChannelInfoResult
{
    std::int32_t resultCode = 0; ///< below 0x8000, negative codes among them: success
    std::string errorText;       ///< describes a failure
};

/// Near-end radio channel information.
class ITiManageRadioChannelNearEnd
{
public:
    virtual ~ITiManageRadioChannelNearEnd();

    /// Asks for the information of a channel.
    /// @param request  names the channel
    /// @param info     filled in on success; not null
    virtual RadioChannelInfoResult getRadioChannelInfo(const RadioChannelInfoRequest& request,
                                                       RadioChannelInfo* info) = 0;
};
