#include <stdexcept>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/CModuleManager.h"
#include "node/framework/Admission.h"

using node::framework::Admission;
using node::framework::setAdmission;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// Every test ends with the admission that it found.
class AdmissionTest : public ::testing::Test
{
protected:
    AdmissionTest() : m_before(setAdmission([this] { log += "asked "; }))
    {
    }

    ~AdmissionTest() override
    {
        setAdmission(std::move(m_before));
    }

    AdmissionTest(const AdmissionTest&) = delete;
    AdmissionTest& operator=(const AdmissionTest&) = delete;

    std::string log;
    CModuleManager& manager = CModuleManager::GetInstance();
    ModuleInterface fan{0, "Fan", 0, 0, nullptr, 0};

private:
    Admission m_before;
};

TEST_F(AdmissionTest, IsAskedOnceForEachModule)
{
    ModuleInterface pump(0, "Pump", 0, 0, nullptr, 0);
    manager.RegisterModule(&fan);
    EXPECT_EQ("asked ", log);
    manager.RegisterModule(&pump);
    EXPECT_EQ("asked asked ", log);
    manager.UnregisterModule(&fan);
    EXPECT_EQ("asked asked ", log);
    EXPECT_THAT(manager.modules(), ElementsAre(&pump));
}

TEST_F(AdmissionTest, IsAskedBeforeTheModuleIsEntered)
{
    setAdmission([&] { log += manager.modules().empty() ? "none there" : "there already"; });
    manager.RegisterModule(&fan);
    EXPECT_EQ("none there", log);
}

TEST_F(AdmissionTest, WhatItThrowsKeepsTheModuleOut)
{
    setAdmission([] { throw std::runtime_error("closed"); });
    try
    {
        manager.RegisterModule(&fan);
        ADD_FAILURE() << "nothing was thrown";
    }
    catch (const std::runtime_error& error)
    {
        EXPECT_STREQ("closed", error.what());
    }
    EXPECT_THAT(manager.modules(), IsEmpty());
}

TEST_F(AdmissionTest, ReplacingItGivesBackTheOneBefore)
{
    const Admission before = setAdmission([&] { log += "second "; });
    manager.RegisterModule(&fan);
    EXPECT_EQ("second ", log);
    before();
    EXPECT_EQ("second asked ", log);
}

TEST(FirstAdmissionTest, LetsEveryModuleIn)
{
    ModuleInterface fan(0, "Fan", 0, 0, nullptr, 0);
    CModuleManager::GetInstance().RegisterModule(&fan);
    EXPECT_THAT(CModuleManager::GetInstance().modules(), ElementsAre(&fan));
}

} // namespace
