#pragma once

#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "kel_top_api/BaseResponse.h"
#include "kel_top_api/ModulationAndCode.h"
#include "kel_top_api/joined.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// What a radio channel can do.
struct CriGetRadioChannelCapability
{
    /// Callers choose the channel; the other members keep the API's defaults and are numbered by their place.
    struct Command
    {
        RadioChannel radioChannel = 0; ///< 1 or 2
        /// @{
        /// The API's own.
        std::uint32_t number2 = 0;
        std::uint32_t modulationAndCode3 = UndefinedModulationAndCode;
        std::uint32_t modulationAndCode4 = UndefinedModulationAndCode;
        std::uint32_t number5 = 1000;
        std::uint32_t number6 = 0;
        std::uint32_t number7 = 0;
        /// @}
    };

    /// Highest output power with one modulation and code.
    struct MaxRFOutputPower
    {
        std::uint32_t modulationAndCode = UndefinedModulationAndCode; ///< a code of getModulationAndCodeVector()
        std::int32_t power = 0;                                       ///< hundredths of a dBm
    };

    /// What the channel can do.
    class Response : public BaseResponse
    {
    public:
        /// The response as text. The line end stands before the last two members, where readers of it expect it.
        std::string printResponse() override
        {
            // clang-format off
            return joined({
                "NumberOfChannels: ", std::to_string(NumberOfChannels),
                ", MinTemp: ", std::to_string(MinTemp),
                ", MaxTemp: ", std::to_string(MaxTemp),
                ", AvailableMinRFOutputPower: ", std::to_string(AvailableMinRFOutputPower),
                ", AvailableMaxRFOutputPower: ", maxPowerItems(),
                ", MinTXFrequency: ", std::to_string(MinTXFrequency),
                ", MaxTXFrequency: ", std::to_string(MaxTXFrequency),
                ", MinRXFrequency: ", std::to_string(MinRXFrequency),
                ", MaxRXFrequency: ", std::to_string(MaxRXFrequency),
                ", FrequencyStepSize: ", std::to_string(FrequencyStepSize),
                ", MinTXFrequencyStep: ", std::to_string(MinTXFrequencyStep),
                ", MaxTXFrequencyStep: ", std::to_string(MaxTXFrequencyStep),
                ", MinRXFrequencyStep: ", std::to_string(MinRXFrequencyStep),
                ", MaxRXFrequencyStep: ", std::to_string(MaxRXFrequencyStep),
                ", TXBaseFrequency: ", std::to_string(TXBaseFrequency),
                ", RXBaseFrequency: ", std::to_string(RXBaseFrequency),
                ", FrequencyBand: ", std::to_string(FrequencyBand),
                ", FrequencySubBand: ", std::to_string(FrequencySubBand),
                ", DuplexType: ", DuplexType,
                ", AvailableRSECs: ", rsecItems(),
                "\n, TapsCapable: ", std::to_string(TapsCapable),
                ", RfLoopAvailable: ", std::to_string(RfLoopAvailable)
            });
            // clang-format on
        }

        std::uint32_t NumberOfChannels = 0;         ///< how many radio channels there are
        std::int32_t MinTemp = 0;                   ///< lowest temperature of operation, in the API's own unit
        std::int32_t MaxTemp = 0;                   ///< highest temperature of operation, likewise
        std::int32_t AvailableMinRFOutputPower = 0; ///< hundredths of a dBm
        std::vector<MaxRFOutputPower> AvailableMaxRFOutputPower; ///< an entry for each modulation and code
        std::uint32_t MinTXFrequency = 0;                        ///< kHz
        std::uint32_t MaxTXFrequency = 0;                        ///< kHz
        std::uint32_t MinRXFrequency = 0;                        ///< kHz
        std::uint32_t MaxRXFrequency = 0;                        ///< kHz
        std::uint32_t FrequencyStepSize = 0;                     ///< kHz
        /// @{
        /// Of the frequency plan, in the API's own units and coding.
        std::uint32_t MinTXFrequencyStep = 0;
        std::uint32_t MaxTXFrequencyStep = 0;
        std::uint32_t MinRXFrequencyStep = 0;
        std::uint32_t MaxRXFrequencyStep = 0;
        std::uint32_t TXBaseFrequency = 0;
        std::uint32_t RXBaseFrequency = 0;
        std::uint32_t FrequencyBand = 0;
        std::uint32_t FrequencySubBand = 0;
        /// @}
        std::string DuplexType;                    ///< duplex arrangement, in words
        std::vector<std::uint32_t> AvailableRSECs; ///< RSEC codes of the equipment classes
        /// @{
        /// A flag of the API's own.
        bool TapsCapable = false;
        bool RfLoopAvailable = false;
        /// @}

    private:
        std::string maxPowerItems() const
        {
            std::string items;
            for (const MaxRFOutputPower& entry : AvailableMaxRFOutputPower)
            {
                items.append("Modulation:").append(modulationAndCodeName(entry.modulationAndCode));
                items.append(" Pmax:").append(std::to_string(entry.power)).append("\t");
            }
            return items;
        }

        std::string rsecItems() const
        {
            static constexpr const char* names[] = {"2", "4L", "4H", "5B", "6B", "5LB", "5HB", "6LB", "6HB", "7B"};
            std::string items;
            for (const std::uint32_t code : AvailableRSECs)
            {
                items += code < std::size(names) ? names[code] : "UNDEFINED";
                items += "\t";
            }
            return items;
        }
    };
};

/// Asks what a channel can do.
CriGetRadioChannelCapability::Response
criGetRadioChannelCapability(const CriGetRadioChannelCapability::Command& command);

} // namespace kel_top_api
