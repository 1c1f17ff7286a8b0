#pragma once

#include <cstdint>
#include <string>

#include "kel_top_api/BaseResponse.h"
#include "kel_top_api/Optional.h"
#include "kel_top_api/joined.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Management of a channel's cross-polarisation interference canceller (XPIC).
struct TiManageXpic
{
    enum class PreambleType : std::uint32_t
    {
        Preamble0 = 0,
        Preamble1 = 1,
        Preamble2 = 2,
        Preamble3 = 3,
        OutOfRange = 4,
    };

    enum class AcquireModeType : std::uint32_t
    {
        Mode0 = 0,
        Mode1 = 1,
        Mode2 = 2,
        OutOfRange = 3,
    };

    enum class AcquireOptionType : std::uint32_t
    {
        Option0 = 0,
        Option1 = 1,
        Option2 = 2,
        Option3 = 3,
        OutOfRange = 4,
    };

    enum class XpicEnableExtType : std::uint32_t
    {
        Disable = 0,
        Enable_A = 1,
        Enable_B = 2,
        Enable_C = 3,
        Enable_D = 4,
    };

    /// One request. Which members are present tells the API what to do; the numbered ones are for other users.
    struct Command
    {
        Optional<RadioChannel> RadioChannelID;
        Optional<bool> member2;
        Optional<bool> member3;
        Optional<std::uint32_t> member4;
        Optional<std::string> member5;
        Optional<bool> member6;
        Optional<bool> member7;
        Optional<bool> SlaveMute;
        Optional<bool> AcquireStart;
        Optional<AcquireModeType> AcquireMode;
        Optional<AcquireOptionType> AcquireOption;
        Optional<bool> GetPreamble;
        Optional<PreambleType> Preamble;
        Optional<bool> GetStatus;
    };

    class Response : public BaseResponse
    {
    public:
        /// One line without a line end, of the members up to SlaveDiffGain.
        std::string printResponse() override
        {
            // clang-format off
            return joined({
                "RadioChannelID: ", std::to_string(RadioChannelID),
                ", XpicControlBarOn: ", std::to_string(XpicControlBarOn),
                ", XpicEnable: ", std::to_string(XpicEnable),
                ", AverageI: ", std::to_string(AverageI),
                ", AverageQ: ", std::to_string(AverageQ),
                ", TxMessage: ", TxMessage,
                ", RxMessage: ", RxMessage,
                ", XpicLockStateMachine: ", std::to_string(XpicLockStateMachine),
                ", XpicState: ", XpicState,
                ", SlaveInternalAgc: ", std::to_string(SlaveInternalAgc),
                ", SlaveExternalAgc: ", std::to_string(SlaveExternalAgc),
                ", XpicCableConnected: ", std::to_string(XpicCableConnected),
                ", XpicTxEnable: ", std::to_string(XpicTxEnable),
                ", XpicEnableExt: ", nameOf(XpicEnableExt),
                ", SlaveDiffGain: ", std::to_string(SlaveDiffGain)
            });
            // clang-format on
        }

        std::uint32_t RadioChannelID = 0;
        bool XpicControlBarOn = false;
        bool XpicEnable = false;
        std::int32_t AverageI = 0;
        std::int32_t AverageQ = 0;
        std::string TxMessage;
        std::string RxMessage;
        bool XpicLockStateMachine = false;
        std::string XpicState;
        std::int32_t SlaveInternalAgc = 0;
        std::int32_t SlaveExternalAgc = 0;
        bool XpicCableConnected = false;
        bool XpicTxEnable = false;
        XpicEnableExtType XpicEnableExt = XpicEnableExtType::Disable;
        std::int32_t SlaveDiffGain = 0;
        PreambleType XpicPreamble = PreambleType::Preamble0;
        std::int32_t Xpd = 0;                ///< cross-polar discrimination, tenths of a dB
        std::int32_t SlaveCarrierOffset = 0; ///< Hz
        bool SlaveSweepOngoing = false;
        std::uint8_t CalibrationStatus = 0;

    private:
        static const char* nameOf(XpicEnableExtType mode)
        {
            switch (mode)
            {
            case XpicEnableExtType::Disable:
                return "Disable";
            case XpicEnableExtType::Enable_A:
                return "Enable_A";
            case XpicEnableExtType::Enable_B:
                return "Enable_B";
            case XpicEnableExtType::Enable_C:
                return "Enable_C";
            case XpicEnableExtType::Enable_D:
                return "Enable_D";
            }
            return "";
        }
    };
};

/// Carries out one XPIC request.
TiManageXpic::Response tiManageXpic(const TiManageXpic::Command& command);

} // namespace kel_top_api
