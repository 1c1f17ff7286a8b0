// Everything of the platform that the module meets, as variables of a library: what the module only calls, or is only
// handed, is in none of its own exported functions, and a comparison of those does not reach it.
#include "framework/CModuleManager.h"
#include "framework/IInterface.h"
#include "framework/InterfaceBroker.h"
#include "framework/ModuleInterface.h"
#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/ModulationAndCode.h"
#include "kel_top_api/TiManageXpic.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/IRlbspKelApi.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"
#include "trace/VemTrace.h"

/// A member function's type as that of a plain one, which the comparison can read.
template <typename Class, typename Result, typename... Arguments>
auto plain(Result (Class::*)(Arguments...)) -> Result (*)(Class&, Arguments...);
template <typename Class, typename Result, typename... Arguments>
auto plain(Result (Class::*)(Arguments...) const) -> Result (*)(const Class&, Arguments...);

// Interfaces, with their tables of virtual functions and the records that these take.
IInterface* interfaceOfTheBroker;
IRlbspKelApi* boardSupport;
IRlbspKelApi::KelDebugCmdCallback* callback;
IDpdControllerSplit* dpdController;
ITiGetDspModemStatus* modemStatus;
ITiManageRadioChannelNearEnd* nearEnd;
ModuleInterface* module;

// Functions of the top-level API, with their commands and responses.
decltype(&kel_top_api::tiManageXpic) tiManageXpic;
decltype(&kel_top_api::criCalibrateDspPps) criCalibrateDspPps;
decltype(&kel_top_api::criSetSourceDspPps) criSetSourceDspPps;
decltype(&kel_top_api::criSetOutputModeDspPps) criSetOutputModeDspPps;
decltype(&kel_top_api::criGetCalibrationStatusDspPps) criGetCalibrationStatusDspPps;
decltype(&kel_top_api::criGetHopLengthTimeDspPps) criGetHopLengthTimeDspPps;
decltype(&kel_top_api::criGetRadioChannelStatus) criGetRadioChannelStatus;
decltype(&kel_top_api::criGetRadioChannelCapability) criGetRadioChannelCapability;
kel_top_api::ModulationAndCode* modulationAndCode;

// What the module calls by name.
decltype(&CModuleManager::GetInstance) moduleManager;
decltype(plain(&CModuleManager::RegisterModule)) registerModule;
decltype(&InterfaceBroker::getInstance) broker;
decltype(plain(&InterfaceBroker::interfaces)) interfacesOfTheBroker;
VemTrace* trace;
decltype(plain(&VemTrace::isActive)) traceIsActive;
decltype(plain(&VemTrace::beginLogMsg)) traceBegin;
decltype(plain(&VemTrace::logMsgData)) traceData;
decltype(plain(&VemTrace::endLogMsg)) traceEnd;
decltype(plain(&VemTrace::messageStream)) traceMessageStream;
decltype(plain(&VemTrace::discardingStream)) traceDiscardingStream;
