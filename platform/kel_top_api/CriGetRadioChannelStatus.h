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
    struct Command
    {
        RadioChannel radioChannel = 0;
        bool flag2 = false; ///< the API's own
    };

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

        std::string TXActualStatus;
        std::string RadioChannelStatus; ///< "Up" and "Down" tell the lock of the DSP
        std::string ActualModulation;
        std::string ActualTxModulation;
        std::string ActualRxModulation;
        std::int32_t ActualRFInputPower = 0;    ///< hundredths of a dBm
        std::int32_t ReportedRFOutputPower = 0; ///< hundredths of a dBm
        std::int32_t ClockStatus = 0;
        std::int32_t ActualSNIR = 0; ///< hundredths of a dB
        std::int32_t ErroredBlocks = 0;
        std::int32_t BackgroundBlocks = 0;
        std::int32_t TxFrequency = 0; ///< kHz
        std::int32_t RxFrequency = 0; ///< kHz
        std::string KelState;
        bool XpicIsStarted = false;
        std::int32_t ActualXpi = 0; ///< meaningful while XpicIsStarted
        std::string XpicState;      ///< meaningful while XpicIsStarted
    };
};

CriGetRadioChannelStatus::Response criGetRadioChannelStatus(const CriGetRadioChannelStatus::Command& command);

} // namespace kel_top_api
