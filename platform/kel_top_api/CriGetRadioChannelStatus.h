#pragma once

#include <cstdint>
#include <string>

#include "kel_top_api/BaseResponse.h"
#include "kel_top_api/joined.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Live status of a radio channel.
struct CriGetRadioChannelStatus
{
    /// Whose status is wanted.
    struct Command
    {
        RadioChannel radioChannel = 0; ///< 1 or 2
        bool flag2 = false;            ///< the API's own
    };

    /// How the channel is.
    class Response : public BaseResponse
    {
    public:
        /// One line with its line end, of the members up to KelState.
        std::string printResponse() override
        {
            // clang-format off
            return joined({
                "TXActualStatus: ", TXActualStatus,
                ", RadioChannelStatus: ", RadioChannelStatus,
                ", ActualModulation: ", ActualModulation,
                ", ActualTxModulation: ", ActualTxModulation,
                ", ActualRxModulation:", ActualRxModulation, // no blank: readers of these lines know it so
                ", ActualRFInputPower: ", std::to_string(ActualRFInputPower),
                ", ReportedRFOutputPower: ", std::to_string(ReportedRFOutputPower),
                ", ClockStatus: ", std::to_string(ClockStatus),
                ", ActualSNIR: ", std::to_string(ActualSNIR),
                ", ErroredBlocks: ", std::to_string(ErroredBlocks),
                ", BackgroundBlocks: ", std::to_string(BackgroundBlocks),
                ", TxFrequency: ", std::to_string(TxFrequency),
                ", RxFrequency: ", std::to_string(RxFrequency),
                ", KelState: ", KelState, "\n"
            });
            // clang-format on
        }

        std::string TXActualStatus;             ///< state of the transmitter, in words
        std::string RadioChannelStatus;         ///< "Up" and "Down" tell the lock of the DSP
        std::string ActualModulation;           ///< modulation at the moment
        std::string ActualTxModulation;         ///< name of the modulation and code that is sent
        std::string ActualRxModulation;         ///< name of the modulation and code that is received
        std::int32_t ActualRFInputPower = 0;    ///< hundredths of a dBm
        std::int32_t ReportedRFOutputPower = 0; ///< hundredths of a dBm
        std::int32_t ClockStatus = 0;           ///< state of the clock, in the API's own coding
        std::int32_t ActualSNIR = 0;            ///< signal to noise and interference, hundredths of a dB
        std::int32_t ErroredBlocks = 0;         ///< how many
        std::int32_t BackgroundBlocks = 0;      ///< how many
        std::int32_t TxFrequency = 0;           ///< kHz
        std::int32_t RxFrequency = 0;           ///< kHz
        std::string KelState;                   ///< state of the carrier termination, in words
        bool XpicIsStarted = false;             ///< whether the canceller runs
        std::int32_t ActualXpi = 0;             ///< meaningful while XpicIsStarted
        std::string XpicState;                  ///< meaningful while XpicIsStarted
    };
};

/// Asks how a channel is.
CriGetRadioChannelStatus::Response criGetRadioChannelStatus(const CriGetRadioChannelStatus::Command& command);

} // namespace kel_top_api
