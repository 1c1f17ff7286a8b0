#pragma once

#include <array>

#include "module/PlatformTest.h"

/// The module on a recording platform: started on a node with two channels, its start-up calls forgotten.
/// Commands are called as the node's command line calls them, through the callback that the module installed.
class ModuleTest : public PlatformTest
{
protected:
    ModuleTest()
    {
        start(2);
        doubles::calls().clear();
    }

    /// What each call of the top-level API answers.
    static std::array<kel_top_api::BaseResponse*, 8> apiResponses()
    {
        auto& api = doubles::topApi();
        return {&api.manageXpic,          &api.calibrateDspPps,         &api.setSourceDspPps,
                &api.setOutputModeDspPps, &api.calibrationStatusDspPps, &api.hopLengthTimeDspPps,
                &api.radioChannelStatus,  &api.radioChannelCapability};
    }

    /// Makes every service refuse, for that reason.
    void failAllServices(const std::string& reason = "no answer")
    {
        for (auto* const response : apiResponses())
        {
            doubles::answer(*response, 1, reason);
        }
        dpd1->result = dpd2->result = EDPDResult::Failure;
        modemStatus.result = {0x8000, reason};
        nearEnd.result = {0x8000, reason};
    }
};
