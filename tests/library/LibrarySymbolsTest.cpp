#include <algorithm>
#include <cstddef>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <type_traits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "library/ElfFile.h"

using ::testing::AnyOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace
{

using Names = std::set<std::string>;

/// What the library offers: the module, the utilities, the records' members and the modulation table.
const Names Exported = {
    "kel::device::kelDebugCmd::KelDebugCmd::KelDebugCmd(int, ITiManageRadioChannelNearEnd&, ITiGetDspModemStatus&)",
    "kel::device::kelDebugCmd::KelDebugCmd::~KelDebugCmd()",
    "kel::device::kelDebugCmd::KelDebugCmd::onModuleInit()",
    "kel::device::kelDebugCmd::KelDebugCmd::getCtStatus(unsigned int, std::string&)",
    "kel::device::kelDebugCmd::KelDebugCmd::getBcmModemStatus(unsigned int, std::string&)",
    "kel::device::kelDebugCmd::KelDebugCmd::getPpsCalibrationStatus(unsigned int, std::string&)",
    "kel::device::kelDebugCmd::KelDebugCmd::getPpsHopLengthTime(unsigned int, std::string&)",
    "kel::device::kelDebugCmd::KelDebugCmd::calibratePps(unsigned int, int, unsigned short)",
    "kel::device::kelDebugCmd::KelDebugCmd::setPpsOutputMode(unsigned int, int)",
    "kel::device::kelDebugCmd::KelDebugCmd::setPpsSource(unsigned int, int, int)",
    "kel::device::kelDebugCmd::KelDebugCmd::startDpd(unsigned int)",
    "kel::device::kelDebugCmd::KelDebugCmd::stopDpd(unsigned int)",
    "kel::device::kelDebugCmd::KelDebugCmd::setDpdCoefficients(unsigned int, DpdCoeffs)",
    "kel::device::kelDebugCmd::KelDebugCmd::getDpdCoefficients(unsigned int, DpdCoeffs*)",
    "kel::device::kelDebugCmd::KelDebugCmd::setXpicSlaveMute(unsigned int, unsigned char)",
    "kel::device::kelDebugCmd::KelDebugCmd::xpicAcquireStart(unsigned int, unsigned char, unsigned char)",
    "kel::device::kelDebugCmd::KelDebugCmd::getXpicPreamble(unsigned int, unsigned char*)",
    "kel::device::kelDebugCmd::KelDebugCmd::setXpicPreamble(unsigned int, unsigned char)",
    "kel::device::kelDebugCmd::KelDebugCmd::getXpicStatus(unsigned int, std::string&)",
    "vtable for kel::device::kelDebugCmd::KelDebugCmd",
    "typeinfo for kel::device::kelDebugCmd::KelDebugCmd",
    "typeinfo name for kel::device::kelDebugCmd::KelDebugCmd",
    "kel::device::kelDebugCmd::util::makeDecibelString(int, std::string)",
    "kel::device::kelDebugCmd::util::makeDbString(int)",
    "kel::device::kelDebugCmd::util::makeDbmString(int)",
    "kel::device::kelDebugCmd::util::makeDecimalValString(int)",
    "kel::device::kelDebugCmd::util::validateParamValue(std::string const&, std::string const&, std::string const&)",
    "kel::device::kelDebugCmd::util::validateError(std::string const&, std::string const&)",
    "kel_top_api::BaseResponse::~BaseResponse()",
    "kel_top_api::BaseResponse::printResponse()",
    "kel_top_api::StandardResponse::~StandardResponse()",
    "kel_top_api::StandardResponse::printResponse()",
    "kel_top_api::TiManageXpic::Response::~Response()",
    "kel_top_api::TiManageXpic::Response::printResponse()",
    "kel_top_api::CriGetRadioChannelStatus::Response::~Response()",
    "kel_top_api::CriGetRadioChannelStatus::Response::printResponse()",
    "kel_top_api::CriGetRadioChannelCapability::Response::~Response()",
    "kel_top_api::CriGetRadioChannelCapability::Response::printResponse()",
    "getModulationAndCodeVector()",
};

const std::string Size = std::is_same_v<std::size_t, unsigned long> ? "unsigned long" : "unsigned int";

/// What the node's platform has to offer, and all that it has to offer.
const Names LeftToThePlatform = {
    "CModuleManager::GetInstance()",
    "CModuleManager::RegisterModule(ModuleInterface*)",
    "InterfaceBroker::getInstance()",
    "InterfaceBroker::interfaces()",
    ("ModuleInterface::ModuleInterface(unsigned int, std::string const&, unsigned int, unsigned int, "
     "unsigned long const*, unsigned int)"),
    "ModuleInterface::~ModuleInterface()",
    "ModuleInterface::onPhaseActivation(unsigned long, ECallbackPriority)",
    "ModuleInterface::onPhaseModuleStorageObjectsRetrieved()",
    "ModuleInterface::onPhasePostFrameformatLoad()",
    "ModuleInterface::onPhaseEndFrameformatLoad()",
    "ModuleInterface::onPhaseRestartTickScheduler()",
    "ModuleInterface::onWarmRestartWaitForHw()",
    "ModuleInterface::onWarmRestartInit()",
    "ModuleInterface::onWarmRestartWaitForSetInitCompleteRequest()",
    "ModuleInterface::onPhaseStart()",
    "ModuleInterface::onPhaseStop()",
    "ModuleInterface::onPhaseFrameformatLoad()",
    "ModuleInterface::onPhasePreFrameformatLoad()",
    "ModuleInterface::onPhaseSuppressErrors()",
    "ModuleInterface::onPhaseSetRadioChannelNearEndFinished()",
    "ModuleInterface::onPhasePreRadioRestartCold()",
    "ModuleInterface::onPhasePreRadioRestartWarm()",
    "ModuleInterface::onPhasePostRadioRestart()",
    "ModuleInterface::onPhaseDisableAlarmThread()",
    "ModuleInterface::onPhasePreDspRecovery()",
    "ModuleInterface::onPhaseDspRecoveryReloadFw()",
    "ModuleInterface::onPhaseDspRecoveryReloadFf()",
    "ModuleInterface::onPhaseDspRecoveryReconfig()",
    "ModuleInterface::onPhasePostDspRecovery()",
    "ModuleInterface::onPhaseEnableAlarmThread()",
    "IRlbspKelApi::KelDebugCmdCallback::~KelDebugCmdCallback()",
    "typeinfo for IDpdControllerSplit",
    "typeinfo for IInterface",
    "typeinfo for IRlbspKelApi",
    "typeinfo for IRlbspKelApi::KelDebugCmdCallback",
    "typeinfo for ModuleInterface",
    "VemTrace::VemTrace(std::string const&, int)",
    "VemTrace::~VemTrace()",
    "VemTrace::isActive() const",
    "VemTrace::beginLogMsg(int, VemTraceHeader const&)",
    "VemTrace::logMsgData(char const*, " + Size + ")",
    "VemTrace::endLogMsg()",
    "VemTrace::messageStream()",
    "VemTrace::discardingStream()",
    "kel_top_api::tiManageXpic(kel_top_api::TiManageXpic::Command const&)",
    "kel_top_api::criCalibrateDspPps(kel_top_api::CriCalibrateDspPps::Command const&)",
    "kel_top_api::criSetSourceDspPps(kel_top_api::CriSetSourceDspPps::Command const&)",
    "kel_top_api::criSetOutputModeDspPps(kel_top_api::CriSetOutputModeDspPps::Command const&)",
    "kel_top_api::criGetCalibrationStatusDspPps(kel_top_api::CriGetCalibrationStatusDspPps::Command const&)",
    "kel_top_api::criGetHopLengthTimeDspPps(kel_top_api::CriGetHopLengthTimeDspPps::Command const&)",
    "kel_top_api::criGetRadioChannelStatus(kel_top_api::CriGetRadioChannelStatus::Command const&)",
    "kel_top_api::criGetRadioChannelCapability(kel_top_api::CriGetRadioChannelCapability::Command const&)",
};

/// Set by the constructor of the callback interface, which only unoptimised code calls.
const std::string CallbackTable = "vtable for IRlbspKelApi::KelDebugCmdCallback";

Names without(const Names& names, const Names& others)
{
    Names rest;
    std::set_difference(names.begin(), names.end(), others.begin(), others.end(), std::inserter(rest, rest.end()));
    return rest;
}

class LibrarySymbolsTest : public ::testing::Test
{
protected:
    const ElfFile library{KEL_LIBRARY};
};

TEST_F(LibrarySymbolsTest, OffersExactlyTheModuleAndItsHelpers)
{
    EXPECT_THAT(without(library.defined(), Exported), IsEmpty()) << "offered, and not meant to be";
    EXPECT_THAT(without(Exported, library.defined()), IsEmpty()) << "meant to be offered, and missing";
}

TEST_F(LibrarySymbolsTest, LeavesExactlyThePlatformUndefined)
{
    if (library.isInstrumented())
    {
        GTEST_SKIP() << "the library wants its sanitizer's names as well";
    }
    const std::regex ofTheRuntime(".*@(GLIBC|GLIBCXX|CXXABI|GCC)_.*");
    Names wanted;
    for (const std::string& name : library.undefined())
    {
        if (!std::regex_match(name, ofTheRuntime) && name != CallbackTable)
        {
            wanted.insert(name);
        }
    }
    EXPECT_THAT(without(wanted, LeftToThePlatform), IsEmpty()) << "wanted, and not the platform's";
    EXPECT_THAT(without(LeftToThePlatform, wanted), IsEmpty()) << "the platform's, and no longer wanted";
}

TEST_F(LibrarySymbolsTest, NeedsTheLanguagesRuntimeAlone)
{
    if (library.isInstrumented())
    {
        GTEST_SKIP() << "the library needs its sanitizer's runtime as well";
    }
    EXPECT_THAT(library.dynamic("NEEDED"), Not(IsEmpty()));
    // On Arm the loader itself has what the guarded stack is compared with.
    EXPECT_THAT(library.dynamic("NEEDED"), Each(AnyOf("libstdc++.so.6", "libgcc_s.so.1", "libc.so.6", "libm.so.6",
                                                      "ld-linux-aarch64.so.1", "ld-linux-armhf.so.3")));
}

TEST_F(LibrarySymbolsTest, IsKnownByItsName)
{
    EXPECT_THAT(library.dynamic("SONAME"), ElementsAre(KEL_SONAME));
}

} // namespace
