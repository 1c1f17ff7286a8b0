#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "KelDebugCmd.h"
#include "framework/ModuleInterface.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/StandardResponse.h"
#include "kel_top_api/TiManageXpic.h"
#include "platform/VirtualTable.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/IRlbspKelApi.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"

using namespace kel_top_api;
using kel::device::kelDebugCmd::KelDebugCmd;

namespace
{

using Hook = std::int32_t();
using Report = int(RadioChannel, std::string&);

// The module manager and the board-support interface delete and call through the bases; the broker hands out
// IInterface.
static_assert(std::has_virtual_destructor_v<IInterface>);
static_assert(!std::is_polymorphic_v<DpdCoeffs> && !std::is_polymorphic_v<TiManageXpic::Command>);
static_assert(!std::is_convertible_v<IInterface*, IRlbspKelApi*>);
static_assert(std::is_convertible_v<IRlbspKelApi*, IInterface*>);
static_assert(std::is_convertible_v<IDpdControllerSplit*, IInterface*>);
static_assert(!std::is_convertible_v<IRlbspKelApi::KelDebugCmdCallback*, IInterface*>);

template <typename Base, typename Derived>
concept NonVirtualBaseOf = std::is_base_of_v<Base, Derived> && requires(Base* base)
{
    static_cast<Derived*>(base);
};

static_assert(!NonVirtualBaseOf<IInterface, IRlbspKelApi>, "reached by dynamic_cast only");
static_assert(!NonVirtualBaseOf<IInterface, IDpdControllerSplit>, "reached by dynamic_cast only");
static_assert(NonVirtualBaseOf<ModuleInterface, KelDebugCmd>);
static_assert(NonVirtualBaseOf<IRlbspKelApi::KelDebugCmdCallback, KelDebugCmd>);

TEST(VirtualTableTest, DebugCommandCallback)
{
    using Callback = IRlbspKelApi::KelDebugCmdCallback;
    static_assert(std::has_virtual_destructor_v<Callback> && std::is_abstract_v<Callback>);
    EXPECT_EQ(2U, slotOf<Report>(&Callback::getCtStatus));
    EXPECT_EQ(3U, slotOf<Report>(&Callback::getBcmModemStatus));
    EXPECT_EQ(4U, slotOf<Report>(&Callback::getPpsCalibrationStatus));
    EXPECT_EQ(5U, slotOf<Report>(&Callback::getPpsHopLengthTime));
    EXPECT_EQ(6U, (slotOf<int(RadioChannel, int, unsigned short)>(&Callback::calibratePps)));
    EXPECT_EQ(7U, (slotOf<int(RadioChannel, int, int)>(&Callback::setPpsSource)));
    EXPECT_EQ(8U, (slotOf<int(RadioChannel, int)>(&Callback::setPpsOutputMode)));
    EXPECT_EQ(9U, slotOf<int(RadioChannel)>(&Callback::startDpd));
    EXPECT_EQ(10U, slotOf<int(RadioChannel)>(&Callback::stopDpd));
    EXPECT_EQ(11U, (slotOf<int(RadioChannel, DpdCoeffs)>(&Callback::setDpdCoefficients)));
    EXPECT_EQ(12U, (slotOf<int(RadioChannel, DpdCoeffs*)>(&Callback::getDpdCoefficients)));
    EXPECT_EQ(13U, (slotOf<int(RadioChannel, unsigned char)>(&Callback::setXpicSlaveMute)));
    EXPECT_EQ(14U, (slotOf<int(RadioChannel, unsigned char, unsigned char)>(&Callback::xpicAcquireStart)));
    EXPECT_EQ(15U, (slotOf<int(RadioChannel, unsigned char*)>(&Callback::getXpicPreamble)));
    EXPECT_EQ(16U, (slotOf<int(RadioChannel, unsigned char)>(&Callback::setXpicPreamble)));
    EXPECT_EQ(17U, slotOf<Report>(&Callback::getXpicStatus));
    EXPECT_EQ(18U, slotsOf<Callback>());
}

TEST(VirtualTableTest, BoardSupportInterface)
{
    EXPECT_EQ(2U, slotOf<void(IRlbspKelApi::KelDebugCmdCallback*)>(&IRlbspKelApi::installDebugCmdCallback));
    EXPECT_EQ(3U, slotsOf<IRlbspKelApi>());
}

TEST(VirtualTableTest, DpdController)
{
    EXPECT_EQ(2U, slotOf<EDPDResult(std::uint32_t)>(&IDpdControllerSplit::start));
    EXPECT_EQ(3U, slotOf<EDPDResult()>(&IDpdControllerSplit::stop));
    EXPECT_EQ(4U, slotOf<std::uint32_t()>(&IDpdControllerSplit::getStartParameter));
    EXPECT_EQ(5U, slotOf<EDPDResult(DpdCoeffs*)>(&IDpdControllerSplit::getCoeffs));
    EXPECT_EQ(6U, slotOf<EDPDResult(DpdCoeffs)>(&IDpdControllerSplit::setCoeffs));
    EXPECT_EQ(7U, slotsOf<IDpdControllerSplit>());
}

TEST(VirtualTableTest, ModemStatus)
{
    using Query = DspModemStatusResult(RadioChannel, DspModemStatus*);
    static_assert(std::has_virtual_destructor_v<ITiGetDspModemStatus>);
    EXPECT_EQ(2U, slotOf<Query>(&ITiGetDspModemStatus::getDspModemStatus));
    EXPECT_EQ(3U, slotOf<std::string(DspModemStatus)>(&ITiGetDspModemStatus::toString));
    EXPECT_EQ(4U, slotsOf<ITiGetDspModemStatus>());
}

TEST(VirtualTableTest, NearEnd)
{
    using Query = RadioChannelInfoResult(const RadioChannelInfoRequest&, RadioChannelInfo*);
    static_assert(std::has_virtual_destructor_v<ITiManageRadioChannelNearEnd>);
    EXPECT_EQ(2U, slotOf<Query>(&ITiManageRadioChannelNearEnd::getRadioChannelInfo));
    EXPECT_EQ(3U, slotsOf<ITiManageRadioChannelNearEnd>());
}

TEST(VirtualTableTest, ModuleInterface)
{
    static_assert(std::has_virtual_destructor_v<ModuleInterface>);
    EXPECT_EQ(2U, (slotOf<std::int32_t(unsigned long, ECallbackPriority)>(&ModuleInterface::onPhaseActivation)));
    EXPECT_EQ(3U, slotOf<Hook>(&ModuleInterface::onModuleInit));
    EXPECT_EQ(4U, slotOf<Hook>(&ModuleInterface::onPhaseModuleStorageObjectsRetrieved));
    EXPECT_EQ(5U, slotOf<Hook>(&ModuleInterface::onPhasePostFrameformatLoad));
    EXPECT_EQ(6U, slotOf<Hook>(&ModuleInterface::onPhaseEndFrameformatLoad));
    EXPECT_EQ(7U, slotOf<Hook>(&ModuleInterface::onPhaseRestartTickScheduler));
    EXPECT_EQ(8U, slotOf<Hook>(&ModuleInterface::onWarmRestartWaitForHw));
    EXPECT_EQ(9U, slotOf<Hook>(&ModuleInterface::onWarmRestartInit));
    EXPECT_EQ(10U, slotOf<Hook>(&ModuleInterface::onWarmRestartWaitForSetInitCompleteRequest));
    EXPECT_EQ(11U, slotOf<Hook>(&ModuleInterface::onPhaseStart));
    EXPECT_EQ(12U, slotOf<Hook>(&ModuleInterface::onPhaseStop));
    EXPECT_EQ(13U, slotOf<Hook>(&ModuleInterface::onPhaseFrameformatLoad));
    EXPECT_EQ(14U, slotOf<Hook>(&ModuleInterface::onPhasePreFrameformatLoad));
    EXPECT_EQ(15U, slotOf<Hook>(&ModuleInterface::onPhaseSuppressErrors));
    EXPECT_EQ(16U, slotOf<Hook>(&ModuleInterface::onPhaseSetRadioChannelNearEndFinished));
    EXPECT_EQ(17U, slotOf<Hook>(&ModuleInterface::onPhasePreRadioRestartCold));
    EXPECT_EQ(18U, slotOf<Hook>(&ModuleInterface::onPhasePreRadioRestartWarm));
    EXPECT_EQ(19U, slotOf<Hook>(&ModuleInterface::onPhasePostRadioRestart));
    EXPECT_EQ(20U, slotOf<Hook>(&ModuleInterface::onPhaseDisableAlarmThread));
    EXPECT_EQ(21U, slotOf<Hook>(&ModuleInterface::onPhasePreDspRecovery));
    EXPECT_EQ(22U, slotOf<Hook>(&ModuleInterface::onPhaseDspRecoveryReloadFw));
    EXPECT_EQ(23U, slotOf<Hook>(&ModuleInterface::onPhaseDspRecoveryReloadFf));
    EXPECT_EQ(24U, slotOf<Hook>(&ModuleInterface::onPhaseDspRecoveryReconfig));
    EXPECT_EQ(25U, slotOf<Hook>(&ModuleInterface::onPhasePostDspRecovery));
    EXPECT_EQ(26U, slotOf<Hook>(&ModuleInterface::onPhaseEnableAlarmThread));
    EXPECT_EQ(27U, slotsOf<ModuleInterface>());
}

TEST(VirtualTableTest, TheModuleAddsItsCommandsInItsOwnOrder)
{
    EXPECT_EQ(3U, slotOf<Hook>(&KelDebugCmd::onModuleInit));
    EXPECT_EQ(27U, slotOf<Report>(&KelDebugCmd::getCtStatus));
    EXPECT_EQ(28U, slotOf<Report>(&KelDebugCmd::getBcmModemStatus));
    EXPECT_EQ(29U, slotOf<Report>(&KelDebugCmd::getPpsCalibrationStatus));
    EXPECT_EQ(30U, slotOf<Report>(&KelDebugCmd::getPpsHopLengthTime));
    EXPECT_EQ(31U, (slotOf<int(RadioChannel, int, unsigned short)>(&KelDebugCmd::calibratePps)));
    EXPECT_EQ(32U, (slotOf<int(RadioChannel, int)>(&KelDebugCmd::setPpsOutputMode)));
    EXPECT_EQ(33U, (slotOf<int(RadioChannel, int, int)>(&KelDebugCmd::setPpsSource)));
    EXPECT_EQ(34U, slotOf<int(RadioChannel)>(&KelDebugCmd::startDpd));
    EXPECT_EQ(35U, slotOf<int(RadioChannel)>(&KelDebugCmd::stopDpd));
    EXPECT_EQ(36U, (slotOf<int(RadioChannel, DpdCoeffs)>(&KelDebugCmd::setDpdCoefficients)));
    EXPECT_EQ(37U, (slotOf<int(RadioChannel, DpdCoeffs*)>(&KelDebugCmd::getDpdCoefficients)));
    EXPECT_EQ(38U, (slotOf<int(RadioChannel, unsigned char)>(&KelDebugCmd::setXpicSlaveMute)));
    EXPECT_EQ(39U, (slotOf<int(RadioChannel, unsigned char, unsigned char)>(&KelDebugCmd::xpicAcquireStart)));
    EXPECT_EQ(40U, (slotOf<int(RadioChannel, unsigned char*)>(&KelDebugCmd::getXpicPreamble)));
    EXPECT_EQ(41U, (slotOf<int(RadioChannel, unsigned char)>(&KelDebugCmd::setXpicPreamble)));
    EXPECT_EQ(42U, slotOf<Report>(&KelDebugCmd::getXpicStatus));
    EXPECT_EQ(43U, slotsOf<KelDebugCmd>());
}

TEST(VirtualTableTest, TheModuleStandsFirstAndTheCallbackBehindIt)
{
    alignas(KelDebugCmd) std::array<std::byte, sizeof(KelDebugCmd)> room{};
    auto* const module = reinterpret_cast<KelDebugCmd*>(room.data());
    const auto placeOf = [&room](void* base) { return static_cast<std::byte*>(base) - room.data(); };
    EXPECT_EQ(0, placeOf(static_cast<ModuleInterface*>(module)));
    EXPECT_EQ(static_cast<std::ptrdiff_t>(sizeof(ModuleInterface)),
              placeOf(static_cast<IRlbspKelApi::KelDebugCmdCallback*>(module)));
    // the callback's table, the number of channels, two interfaces, the report object, two controllers
    EXPECT_EQ(sizeof(ModuleInterface) + 7 * sizeof(void*), sizeof(KelDebugCmd));
}

template <typename Response>
void expectResponseTable()
{
    static_assert(std::has_virtual_destructor_v<Response>);
    EXPECT_EQ(2U, slotOf<std::string()>(&Response::printResponse));
    EXPECT_EQ(3U, slotsOf<Response>());
}

TEST(VirtualTableTest, Responses)
{
    expectResponseTable<BaseResponse>();
    expectResponseTable<StandardResponse>();
    expectResponseTable<TiManageXpic::Response>();
    expectResponseTable<CriGetRadioChannelStatus::Response>();
    expectResponseTable<CriGetRadioChannelCapability::Response>();
    expectResponseTable<CriGetCalibrationStatusDspPps::Response>();
    expectResponseTable<CriGetHopLengthTimeDspPps::Response>();
}

} // namespace
