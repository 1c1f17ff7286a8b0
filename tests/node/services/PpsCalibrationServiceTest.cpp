#include <cstdint>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"

using kel_top_api::CriCalibrateDspPps;
using kel_top_api::criCalibrateDspPps;
using kel_top_api::criGetCalibrationStatusDspPps;
using kel_top_api::criGetHopLengthTimeDspPps;
using kel_top_api::StandardResponse;
using node::radio::Channel;
using node::radio::Ticks;
using Mode = CriCalibrateDspPps::CalibrationMode;

namespace
{

constexpr Mode Coarse = Mode::Mode0;
constexpr Mode Fine = Mode::Mode1;
constexpr Mode Auto = Mode::Mode2;
constexpr Mode Manual = Mode::Mode3;

constexpr Ticks CoarseTime = std::chrono::seconds(10);
constexpr Ticks FineTime = std::chrono::seconds(30);

/// The hop of 10 km takes 33366.92 ns.
constexpr std::uint32_t Uncalibrated_ns = 33'000;
constexpr std::uint32_t ToASymbol_ns = 33'360;
constexpr std::uint32_t ToANanosecond_ns = 33'367;

class PpsCalibrationServiceTest : public ServiceTest
{
protected:
    void calibrate(Mode mode, std::uint16_t value = 0)
    {
        EXPECT_EQ(wholeOf(StandardResponse()), wholeOf(criCalibrateDspPps({channel, mode, value})));
    }

    static void expect(RadioChannel of, std::uint32_t status, std::uint32_t reason, std::uint32_t time_ns)
    {
        const auto state = criGetCalibrationStatusDspPps({of});
        expectDone(state);
        EXPECT_EQ(status, state.calibrationStatus);
        EXPECT_EQ(reason, state.calibrationFailureReason);
        const auto time = criGetHopLengthTimeDspPps({of});
        expectDone(time);
        EXPECT_EQ(time_ns, time.hopLengthTime);
    }

    /// Expects it of the channel; the other one is never calibrated.
    void expect(std::uint32_t status, std::uint32_t reason, std::uint32_t time_ns) const
    {
        expect(channel, status, reason, time_ns);
        expect(otherChannel, 0, 0, Uncalibrated_ns);
    }

    void expectAFailureOf(const std::function<void(Channel&)>& cause, Ticks after, std::uint32_t reason)
    {
        link.change(channel, cause);
        link.advance(after);
        const auto response = criGetCalibrationStatusDspPps({channel});
        EXPECT_EQ(5U, response.calibrationStatus);
        EXPECT_EQ(reason, response.calibrationFailureReason);
    }
};

TEST_P(PpsCalibrationServiceTest, BeforeAnyTheTimeIsKnownToAMicrosecond)
{
    expect(0, 0, Uncalibrated_ns);
}

TEST_P(PpsCalibrationServiceTest, ACoarseCalibrationResolvesASymbolIn10Seconds)
{
    calibrate(Coarse);
    expect(1, 0, Uncalibrated_ns);
    link.advance(CoarseTime - Ticks(1));
    expect(1, 0, Uncalibrated_ns);
    link.advance(Ticks(1));
    expect(2, 0, ToASymbol_ns);
    link.advance(2 * FineTime);
    expect(2, 0, ToASymbol_ns);
}

TEST_P(PpsCalibrationServiceTest, AFineCalibrationAfterACoarseOneResolvesANanosecondIn30Seconds)
{
    calibrate(Coarse);
    link.advance(CoarseTime);
    calibrate(Fine);
    expect(2, 0, ToASymbol_ns);
    link.advance(FineTime - Ticks(1));
    expect(2, 0, ToASymbol_ns);
    link.advance(Ticks(1));
    expect(4, 0, ToANanosecond_ns);
}

TEST_P(PpsCalibrationServiceTest, AnAutomaticCalibrationGoesThroughBothSteps)
{
    calibrate(Auto);
    expect(1, 0, Uncalibrated_ns);
    link.advance(CoarseTime);
    expect(2, 0, ToASymbol_ns);
    link.advance(FineTime - Ticks(1));
    expect(2, 0, ToASymbol_ns);
    link.advance(Ticks(1));
    expect(3, 0, ToANanosecond_ns);
}

TEST_P(PpsCalibrationServiceTest, AManualCalibrationTakesTheValue)
{
    for (const std::uint16_t value : {std::uint16_t{1}, std::uint16_t{65535}, std::uint16_t{0}})
    {
        calibrate(Manual, value);
        expect(4, 0, value);
    }
}

TEST_P(PpsCalibrationServiceTest, OnlyAManualCalibrationTakesTheValue)
{
    calibrate(Coarse, 17);
    link.advance(CoarseTime);
    expect(2, 0, ToASymbol_ns);
    calibrate(Fine, 17);
    link.advance(FineTime);
    expect(4, 0, ToANanosecond_ns);
}

TEST_P(PpsCalibrationServiceTest, AFineCalibrationBeforeACoarseOneFails)
{
    calibrate(Fine);
    expect(5, 4, Uncalibrated_ns);
    calibrate(Coarse);
    expect(1, 0, Uncalibrated_ns);
}

TEST_P(PpsCalibrationServiceTest, ACalibrationFailsAtOnceWithTheLock)
{
    calibrate(Auto);
    expectAFailureOf([](Channel& state) { state.transmitter.on = false; }, Ticks(0), 1);
    calibrate(Coarse);
    expectAFailureOf([](Channel&) {}, Ticks(0), 1);
}

TEST_P(PpsCalibrationServiceTest, ACalibrationFailsWhenItsMasterDoesNotAnswerFor5Seconds)
{
    calibrate(Coarse);
    link.change(channel, [](Channel& state) { state.ppsMasterAnswers = false; });
    link.advance(Ticks(49));
    expect(1, 0, Uncalibrated_ns);
    link.advance(Ticks(1));
    expect(5, 2, Uncalibrated_ns);
}

TEST_P(PpsCalibrationServiceTest, ACalibrationFailsWhenTheModulationChanges)
{
    calibrate(Coarse);
    expectAFailureOf([](Channel& state) { --state.modem.current; }, Ticks(0), 3);
}

TEST_P(PpsCalibrationServiceTest, TheTimeFollowsTheHopsLength)
{
    link.setDistance(1.0);
    EXPECT_EQ(3000U, criGetHopLengthTimeDspPps({channel}).hopLengthTime);
    calibrate(Auto);
    link.advance(CoarseTime);
    EXPECT_EQ(3320U, criGetHopLengthTimeDspPps({channel}).hopLengthTime);
    link.advance(FineTime);
    EXPECT_EQ(3337U, criGetHopLengthTimeDspPps({channel}).hopLengthTime);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, PpsCalibrationServiceTest, ::testing::Values(1, 2));

TEST(PpsCalibrationTest, ASymbolOfAFractionalLengthIsRoundedToNanoseconds)
{
    node::radio::LinkSetup setup;
    setup.hop.symbolRate_Bd = 30e6;
    ServiceBench bench(setup);
    expectDone(criCalibrateDspPps({1, Coarse, 0}));
    bench.link.advance(CoarseTime);
    EXPECT_EQ(33'367U, criGetHopLengthTimeDspPps({1}).hopLengthTime);
}

} // namespace
