#pragma once

#include <memory>
#include <stdexcept>
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

/// A recording platform of a node with two channels. Every service succeeds; there is no module yet.
class PlatformTest : public ::testing::Test
{
protected:
    PlatformTest()
    {
        interfaces().clear();
        interfaces()["IRlbspKelApi"] = boardSupport;
        interfaces()["IDpdControllerSplit_1"] = dpd1;
        interfaces()["IDpdControllerSplit_2"] = dpd2;
        doubles::topApi() = {};
        doubles::framework() = {};
        doubles::trace().reset();
        doubles::calls().clear();
    }

    ~PlatformTest() override
    {
        EXPECT_EQ("", doubles::trace().outsideOfAny);
        module.reset();
        interfaces().clear();
    }

    /// Puts a new module in the place of the one before. Of the calls, those of its construction remain.
    void construct(int numberOfRadioChannels)
    {
        module.reset();
        doubles::calls().clear();
        module = std::make_unique<kel::device::kelDebugCmd::KelDebugCmd>(numberOfRadioChannels, nearEnd, modemStatus);
    }

    /// Constructs a module and forgets the calls; then initialises it and answers what the module answers.
    std::int32_t start(int numberOfRadioChannels)
    {
        construct(numberOfRadioChannels);
        doubles::calls().clear();
        return module->onModuleInit();
    }

    static InterfaceBroker::Interfaces& interfaces()
    {
        return InterfaceBroker::getInstance().interfaces();
    }

    IRlbspKelApi::KelDebugCmdCallback& commands()
    {
        if (boardSupport->installed == nullptr)
        {
            throw std::logic_error("the module installed no callback");
        }
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
