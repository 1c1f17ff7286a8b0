#include "node/reference/PromptExamples.h"

#include <map>

namespace node::reference
{

namespace
{

using Lines = std::vector<std::string>;

const std::map<std::string, Lines> Examples = {
    {"calibratePps", {"calibratePps 1 3 33356", "getPpsCalibrationStatus 1", "getPpsHopLengthTime 1"}},
    {"setPpsSource", {"setPpsSource 1 1 0", "setPpsSource 1 3 0"}},
    {"setPpsOutputMode", {"setPpsOutputMode 1 2"}},
    {"startDpd", {"startDpd 1", "getBcmModemStatus 1", "advance 1min", "getBcmModemStatus 1"}},
    {"stopDpd", {"stopDpd 1", "getBcmModemStatus 1"}},
    {"setDpdCoefficients", {"setDpdCoefficients 1 000102030405060708090a0b0c0d0e0f10111213", "getDpdCoefficients 1"}},
    {"setXpicSlaveMute", {"setXpicSlaveMute 1 1", "getBcmModemStatus 1"}},
    {"xpicAcquireStart", {"xpicAcquireStart 1 2 0", "getXpicStatus 1", "xpicAcquireStart 1 3 0"}},
    {"setXpicPreamble", {"setXpicPreamble 1 2", "getXpicPreamble 1", "setXpicPreamble 1 4"}},
    {"showLink", {"showLink"}},
    {"advance", {"setRain 60 3min", "advance 3min", "getBcmModemStatus 1"}},
    {"setRain", {"setRain 60", "getBcmModemStatus 1"}},
    {"setFade", {"setFade 20", "getBcmModemStatus 1"}},
    {"setDistance", {"setDistance 20", "getPpsHopLengthTime 1", "getBcmModemStatus 1"}},
    {"setTransmitter", {"setTransmitter 1 off", "getBcmModemStatus 1"}},
    {"setXpicCable", {"setXpicCable 1 off", "getXpicStatus 1"}},
    {"setPpsMaster", {"setPpsMaster 1 off", "calibratePps 1 0 0", "advance 2min", "getPpsCalibrationStatus 1"}},
    {"sample", {"setRain 60 1min", "sample 1min 20s -"}},
    {"loadScenario", {"loadScenario rain-front", "advance 3min", "getBcmModemStatus 1"}},
    {"listScenarios", {"listScenarios"}},
    {"addFault", {"addFault tiManageXpic text=\"no answer\" calls=1", "getXpicPreamble 1", "getXpicPreamble 1"}},
    {"listFaults", {"addFault IDpdControllerSplit.start calls=2", "startDpd 1", "listFaults"}},
    {"clearFaults", {"addFault criGetHopLengthTimeDspPps", "clearFaults", "listFaults"}},
    {"listCalls", {"listCalls"}},
    {"setTraceLevel",
     {"addFault tiManageXpic text=refused", "setTraceLevel * 0", "setXpicPreamble 1 2", "setTraceLevel * 3",
      "setXpicPreamble 1 2"}},
    {"listTraceLevels", {"listTraceLevels"}},
    {"help", {"help setRain"}},
    {"watch", {"setRain 60 3min", "watch -n 60s -c 3 getPpsHopLengthTime 1"}},
    {"filterTrace", {"addFault tiManageXpic text=refused", "filterTrace *Ct* 1", "setXpicPreamble 1 2"}},
};

} // namespace

std::vector<std::string> promptExample(const commands::Command& command)
{
    const auto own = Examples.find(command.name);
    if (own != Examples.end())
    {
        return own->second;
    }
    const bool takesAChannel = command.arguments.size() == 1 && command.arguments[0].name == "channel";
    return takesAChannel ? Lines{command.name + " 1"} : Lines{};
}

} // namespace node::reference
