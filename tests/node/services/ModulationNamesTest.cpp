#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kel_top_api/ModulationAndCode.h"
#include "node/services/ModulationNames.h"

using node::radio::modulations;
using node::services::modulationNames;
using node::services::modulationOf;
using node::services::nameOf;
using ::testing::ElementsAreArray;

namespace
{

/// The names of the API's table, without the row that names no modulation.
std::vector<std::string> namesOfTheTable()
{
    std::vector<std::string> names;
    for (const auto& row : getModulationAndCodeVector())
    {
        if (row.code != kel_top_api::UndefinedModulationAndCode)
        {
            names.push_back(row.name);
        }
    }
    return names;
}

TEST(ModulationNamesTest, TheLinkHasTheTablesModulationsInTheTablesOrder)
{
    EXPECT_EQ(42U, namesOfTheTable().size());
    EXPECT_THAT(modulationNames(), ElementsAreArray(namesOfTheTable()));
}

TEST(ModulationNamesTest, AModulationIsFoundUnderItsRow)
{
    for (const auto& row : getModulationAndCodeVector())
    {
        if (row.code == kel_top_api::UndefinedModulationAndCode)
        {
            continue;
        }
        const auto index = modulationOf(row);
        ASSERT_TRUE(index.has_value()) << row.name;
        EXPECT_EQ(row.name, nameOf(modulations()[*index]));
    }
}

TEST(ModulationNamesTest, TwoPointsAreBpskAndItsHalfBandKind)
{
    EXPECT_EQ("BPSK_STRONG", nameOf({2, 0, false, 0.0}));
    EXPECT_EQ("BPSK", nameOf({2, 1, false, 0.0}));
    EXPECT_EQ("BPSK_LIGHT", nameOf({2, 2, false, 0.0}));
    EXPECT_EQ("HALF_BPSK_STRONG", nameOf({2, 0, true, 0.0}));
    EXPECT_EQ("HALF_BPSK", nameOf({2, 1, true, 0.0}));
    EXPECT_EQ("HALF_BPSK_LIGHT", nameOf({2, 2, true, 0.0}));
}

TEST(ModulationNamesTest, TheRequiredSnirIsNoPartOfAName)
{
    EXPECT_EQ("4096QAM", nameOf({4096, 1, false, -17.0}));
}

TEST(ModulationNamesTest, AModulationWithoutARowIsUndefined)
{
    EXPECT_EQ("UNDEFINED", nameOf({8, 1, false, 0.0}));
    EXPECT_EQ("UNDEFINED", nameOf({4, 3, false, 0.0}));
    EXPECT_EQ("UNDEFINED", nameOf({4, 1, true, 0.0}));
    EXPECT_EQ("UNDEFINED", nameOf({0, 0, false, 0.0}));
    EXPECT_EQ("UNDEFINED", nameOf({32768, 0, false, 0.0}));
}

TEST(ModulationNamesTest, TheRowThatNamesNoModulationIsNoneOfTheLinks)
{
    EXPECT_EQ(std::nullopt, modulationOf(getModulationAndCodeVector().back()));
}

} // namespace
