#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "node/framework/Admission.h"
#include "node/startup/Node.h"
#include "node/trace/TraceRecorder.h"

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
public:
    NodeStartUpTest(const NodeStartUpTest&) = delete;
    NodeStartUpTest& operator=(const NodeStartUpTest&) = delete;

protected:
    using Configuration = node::startup::Configuration;
    using Entry = node::startup::BrokerEntry;

    NodeStartUpTest() : m_before(node::framework::setAdmission([this] { ++admitted; }))
    {
        expectNothingThere();
    }

    ~NodeStartUpTest() override
    {
        expectNothingThere();
        node::framework::setAdmission(std::move(m_before));
    }

    /// Neither interfaces nor modules nor a link, and whoever registers is admitted as without a node.
    void expectNothingThere() const
    {
        EXPECT_THAT(interfaces(), ::testing::IsEmpty());
        EXPECT_THAT(modules(), ::testing::IsEmpty());
        EXPECT_EQ("the node is not started", kel_top_api::criGetHopLengthTimeDspPps({1}).resultText);
        const int before = admitted;
        {
            const OtherModule visitor("Visitor");
        }
        EXPECT_EQ(before + 1, admitted);
    }

    static const std::vector<ModuleInterface*>& modules()
    {
        return CModuleManager::GetInstance().modules();
    }

    static InterfaceBroker::Interfaces& interfaces()
    {
        return InterfaceBroker::getInstance().interfaces();
    }

    static Configuration withChannels(std::uint32_t number)
    {
        Configuration configuration;
        configuration.link.numberOfChannels = number;
        return configuration;
    }

    /// What starting a node fails with.
    static std::string failure(const Configuration& configuration)
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
        ASSERT_NE(nullptr, running.commands());
        EXPECT_EQ(0, running.commands()->getPpsHopLengthTime(1, report));
        EXPECT_EQ("PPS hop length time[nsec]: 33000\n", report);
    }

    /// The traced lines, with the numbers of the module's source lines taken out.
    std::vector<std::string> complaints() const
    {
        std::vector<std::string> lines;
        for (auto message : recorder.messages)
        {
            EXPECT_LT(0, message.line);
            message.line = 1;
            lines.push_back(toLine(message));
        }
        return lines;
    }

    static std::string complaint(const std::string& text)
    {
        return "[KEL.KDC.KelDebugCmd] level 1, src/Device/KelDebugCmd/private/KelDebugCmd:1 onModuleInit: "
               "onModuleInit(): " +
               text + "\n";
    }

    /// The module's complaint when it starts.
    void expectComplaint(const std::string& text) const
    {
        EXPECT_THAT(complaints(), ::testing::ElementsAre(complaint(text)));
    }

    int admitted = 0;
    TraceRecorder recorder;

private:
    node::framework::Admission m_before;
};
