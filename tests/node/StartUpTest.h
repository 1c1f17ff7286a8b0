#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "node/TraceRecorder.h"
#include "node/startup/Node.h"

/// A module beside the node's own, which answers `result` to its initialisation.
class OtherModule : public ModuleInterface
{
public:
    explicit OtherModule(const std::string& name, std::int32_t answer = 0)
        : ModuleInterface(0, name, 0, 0, nullptr, 0), result(answer)
    {
        CModuleManager::GetInstance().RegisterModule(this);
    }

    std::int32_t onModuleInit() override
    {
        ++initialisations;
        return result;
    }

    std::int32_t result;
    int initialisations = 0;
};

/// Starts without a node and expects to end so, with nothing left behind.
class NodeStartUpTest : public ::testing::Test
{
protected:
    NodeStartUpTest()
    {
        expectNothingThere();
    }

    ~NodeStartUpTest() override
    {
        expectNothingThere();
    }

    static void expectNothingThere()
    {
        EXPECT_THAT(interfaces(), ::testing::IsEmpty());
        EXPECT_THAT(modules(), ::testing::IsEmpty());
        EXPECT_EQ("the node is not started", kel_top_api::criGetHopLengthTimeDspPps({1}).resultText);
    }

    static const std::vector<ModuleInterface*>& modules()
    {
        return CModuleManager::GetInstance().modules();
    }

    static InterfaceBroker::Interfaces& interfaces()
    {
        return InterfaceBroker::getInstance().interfaces();
    }

    /// What starting a node fails with.
    static std::string failure(const node::startup::Configuration& configuration)
    {
        try
        {
            const node::startup::Node running(configuration);
        }
        catch (const node::startup::StartUpError& error)
        {
            return error.what();
        }
        return "started";
    }

    static void expectANodeStarts()
    {
        node::startup::Node running;
        std::string report;
        EXPECT_EQ(0, running.commands().getPpsHopLengthTime(1, report));
        EXPECT_EQ("PPS hop length time[nsec]: 33367\n", report);
    }

    /// The module's complaint when it starts, without the number of its source line.
    void expectComplaint(const std::string& text) const
    {
        ASSERT_EQ(1U, recorder.messages.size());
        auto message = recorder.messages.front();
        EXPECT_LT(0, message.line);
        message.line = 1;
        EXPECT_EQ("[KEL.KDC.KelDebugCmd] level 1, src/Device/KelDebugCmd/private/KelDebugCmd:1 onModuleInit: " + text,
                  toLine(message));
    }

    TraceRecorder recorder;
};
