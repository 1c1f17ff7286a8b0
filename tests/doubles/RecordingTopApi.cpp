#include "doubles/RecordingTopApi.h"

#include <type_traits>

#include "doubles/CallLog.h"
#include "doubles/LookAt.h"

namespace doubles
{

TopApiResponses& topApi()
{
    static TopApiResponses responses;
    return responses;
}

} // namespace doubles

namespace
{

using doubles::calls;
using doubles::topApi;

/// Writes the members of a record as "name(member=value, ...)".
class RecordText
{
public:
    explicit RecordText(const std::string& call) : m_text(call + "(")
    {
    }

    template <typename Number>
    RecordText& member(const char* name, const Number& number)
    {
        doubles::lookAt(number);
        if constexpr (std::is_enum_v<Number>)
        {
            return add(name, std::to_string(static_cast<std::underlying_type_t<Number>>(number)));
        }
        else
        {
            return add(name, std::to_string(number));
        }
    }

    template <typename Value>
    RecordText& optional(const char* name, const kel_top_api::Optional<Value>& value)
    {
        doubles::lookAt(value.present);
        doubles::lookAt(value.value); // what is left out is sent as well
        if (!value.present)
        {
            return *this;
        }
        if constexpr (std::is_same_v<Value, std::string>)
        {
            return add(name, value.value);
        }
        else
        {
            return member(name, value.value);
        }
    }

    void log() const
    {
        calls().push_back(m_text + ")");
    }

private:
    RecordText& add(const char* name, const std::string& value)
    {
        m_text += (m_text.back() == '(' ? "" : ", ") + std::string(name) + "=" + value;
        return *this;
    }

    std::string m_text;
};

} // namespace

namespace kel_top_api
{

TiManageXpic::Response tiManageXpic(const TiManageXpic::Command& command)
{
    RecordText("tiManageXpic")
        .optional("RadioChannelID", command.RadioChannelID)
        .optional("member2", command.member2)
        .optional("member3", command.member3)
        .optional("member4", command.member4)
        .optional("member5", command.member5)
        .optional("member6", command.member6)
        .optional("member7", command.member7)
        .optional("SlaveMute", command.SlaveMute)
        .optional("AcquireStart", command.AcquireStart)
        .optional("AcquireMode", command.AcquireMode)
        .optional("AcquireOption", command.AcquireOption)
        .optional("GetPreamble", command.GetPreamble)
        .optional("Preamble", command.Preamble)
        .optional("GetStatus", command.GetStatus)
        .log();
    return topApi().manageXpic;
}

StandardResponse criCalibrateDspPps(const CriCalibrateDspPps::Command& command)
{
    RecordText("criCalibrateDspPps")
        .member("radioChannel", command.radioChannel)
        .member("calibrationMode", command.calibrationMode)
        .member("calibrationValue", command.calibrationValue)
        .log();
    return topApi().calibrateDspPps;
}

StandardResponse criSetSourceDspPps(const CriSetSourceDspPps::Command& command)
{
    RecordText("criSetSourceDspPps")
        .member("radioChannel", command.radioChannel)
        .member("source", command.source)
        .member("sourceParameter", command.sourceParameter)
        .log();
    return topApi().setSourceDspPps;
}

StandardResponse criSetOutputModeDspPps(const CriSetOutputModeDspPps::Command& command)
{
    RecordText("criSetOutputModeDspPps")
        .member("radioChannel", command.radioChannel)
        .member("outputMode", command.outputMode)
        .log();
    return topApi().setOutputModeDspPps;
}

CriGetCalibrationStatusDspPps::Response
criGetCalibrationStatusDspPps(const CriGetCalibrationStatusDspPps::Command& command)
{
    RecordText("criGetCalibrationStatusDspPps").member("radioChannel", command.radioChannel).log();
    return topApi().calibrationStatusDspPps;
}

CriGetHopLengthTimeDspPps::Response criGetHopLengthTimeDspPps(const CriGetHopLengthTimeDspPps::Command& command)
{
    RecordText("criGetHopLengthTimeDspPps").member("radioChannel", command.radioChannel).log();
    return topApi().hopLengthTimeDspPps;
}

CriGetRadioChannelStatus::Response criGetRadioChannelStatus(const CriGetRadioChannelStatus::Command& command)
{
    RecordText("criGetRadioChannelStatus")
        .member("radioChannel", command.radioChannel)
        .member("flag2", command.flag2)
        .log();
    return topApi().radioChannelStatus;
}

CriGetRadioChannelCapability::Response
criGetRadioChannelCapability(const CriGetRadioChannelCapability::Command& command)
{
    RecordText("criGetRadioChannelCapability")
        .member("radioChannel", command.radioChannel)
        .member("number2", command.number2)
        .member("modulationAndCode3", command.modulationAndCode3)
        .member("modulationAndCode4", command.modulationAndCode4)
        .member("number5", command.number5)
        .member("number6", command.number6)
        .member("number7", command.number7)
        .log();
    return topApi().radioChannelCapability;
}

} // namespace kel_top_api
