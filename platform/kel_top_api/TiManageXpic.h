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
    /// @{
    /// What each number means is the API's affair. The last one stands for all that a caller may not choose; the API
    /// answers that, too.
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
    /// @}

    /// How the canceller is enabled; what the letters mean is the API's affair.
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
        Optional<RadioChannel> RadioChannelID; ///< whose canceller, 1 or 2: part of every request
        /// @{
        /// For other users.
        Optional<bool> member2;
        Optional<bool> member3;
        Optional<std::uint32_t> member4;
        Optional<std::string> member5;
        Optional<bool> member6;
        Optional<bool> member7;
        /// @}
        Optional<bool> SlaveMute;                  ///< mutes or unmutes the slave
        Optional<bool> AcquireStart;               ///< begins an acquisition, with the two members below
        Optional<AcquireModeType> AcquireMode;     ///< of the acquisition
        Optional<AcquireOptionType> AcquireOption; ///< of the acquisition
        Optional<bool> GetPreamble;                ///< asks for Response::XpicPreamble
        Optional<PreambleType> Preamble;           ///< chooses the preamble
        Optional<bool> GetStatus;                  ///< asks for the members of the response that tell the status
    };

    /// What came of a request.
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

        std::uint32_t RadioChannelID = 0;  ///< whose canceller answers
        bool XpicControlBarOn = false;     ///< the canceller's control flag
        bool XpicEnable = false;           ///< whether the canceller is enabled
        std::int32_t AverageI = 0;         ///< average of the I component
        std::int32_t AverageQ = 0;         ///< average of the Q component
        std::string TxMessage;             ///< the API's own
        std::string RxMessage;             ///< the API's own
        bool XpicLockStateMachine = false; ///< flag of the state machine of the lock
        std::string XpicState;             ///< state of the canceller, in words
        std::int32_t SlaveInternalAgc = 0; ///< the slave's internal gain control, in its own unit
        std::int32_t SlaveExternalAgc = 0; ///< the slave's external gain control, likewise
        bool XpicCableConnected = false;   ///< whether the canceller's cable is plugged in
        bool XpicTxEnable = false;         ///< whether transmission for the canceller is enabled
        XpicEnableExtType XpicEnableExt = XpicEnableExtType::Disable; ///< how the canceller is enabled
        std::int32_t SlaveDiffGain = 0;                               ///< differential gain of the slave
        PreambleType XpicPreamble = PreambleType::Preamble0;          ///< preamble in use
        std::int32_t Xpd = 0;                                         ///< cross-polar discrimination, tenths of a dB
        std::int32_t SlaveCarrierOffset = 0;                          ///< Hz
        bool SlaveSweepOngoing = false;                               ///< whether the slave is sweeping
        std::uint8_t CalibrationStatus = 0;                           ///< in the API's own coding

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
