#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KelDebugCmd.h"
#include "doubles/CallLog.h"
#include "doubles/RecordingFramework.h"
#include "doubles/RecordingServices.h"
#include "doubles/RecordingTopApi.h"
#include "doubles/RecordingTrace.h"

/// The module on a recording platform: started on a node with two channels, its start-up calls forgotten.
/// Commands are called as the node's command line calls them, through the callback that the module installed.
class ModuleTest : public ::testing::Test
{
protected:
    ModuleTest()
    {
        interfaces().clear();
        interfaces()["IRlbspKelApi"] = boardSupport;
        interfaces()["IDpdControllerSplit_1"] = dpd1;
        interfaces()["IDpdControllerSplit_2"] = dpd2;
        doubles::topApi() = {};
        doubles::framework() = {};
        doubles::trace().reset();
        module = std::make_unique<kel::device::kelDebugCmd::KelDebugCmd>(2, nearEnd, modemStatus);
        module->onModuleInit();
        doubles::calls().clear();
    }

    ~ModuleTest() override
    {
        EXPECT_EQ("", doubles::trace().outsideOfAny);
        module.reset();
        interfaces().clear();
    }

    static InterfaceBroker::Interfaces& interfaces()
    {
        return InterfaceBroker::getInstance().interfaces();
    }

    IRlbspKelApi::KelDebugCmdCallback& commands()
    {
        return *boardSupport->installed;
    }

    static const doubles::CallLog& calls()
    {
        return doubles::calls();
    }

    static const std::vector<doubles::TraceMessage>& messages()
    {
        return doubles::trace().messages;
    }

    /// Sets the module's trace channels to level 0.
    static void silenceTrace()
    {
        for (auto& [channel, level] : doubles::trace().levels)
        {
            level = 0;
        }
    }

    std::shared_ptr<doubles::RecordingBoardSupport> boardSupport = std::make_shared<doubles::RecordingBoardSupport>();
    std::shared_ptr<doubles::RecordingDpdController> dpd1 =
        std::make_shared<doubles::RecordingDpdController>("IDpdControllerSplit_1");
    std::shared_ptr<doubles::RecordingDpdController> dpd2 =
        std::make_shared<doubles::RecordingDpdController>("IDpdControllerSplit_2");
    doubles::RecordingNearEnd nearEnd;
    doubles::RecordingModemStatus modemStatus;
    std::unique_ptr<kel::device::kelDebugCmd::KelDebugCmd> module;
    std::string report = "what was there before";
};
