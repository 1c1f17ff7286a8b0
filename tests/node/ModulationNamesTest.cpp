#include <gtest/gtest.h>

#include "kel_top_api/ModulationAndCode.h"
#include "node/services/ModulationNames.h"

using node::services::modulationOf;
using node::services::nameOf;

namespace
{

TEST(ModulationNamesTest, AModulationOfTheLinkHasTheNameOfItsRow)
{
    int named = 0;
    for (const auto& row : getModulationAndCodeVector())
    {
        if (row.variant == 0)
        {
            EXPECT_EQ(row.name, nameOf({row.modulation, row.strength}));
            ++named;
        }
    }
    EXPECT_EQ(39, named);
}

TEST(ModulationNamesTest, TwoPointsAreBpskAndNotItsHalfBandKind)
{
    EXPECT_EQ("BPSK_STRONG", nameOf({2, 0}));
    EXPECT_EQ("BPSK", nameOf({2, 1}));
    EXPECT_EQ("BPSK_LIGHT", nameOf({2, 2}));
}

TEST(ModulationNamesTest, AModulationWithoutARowIsUndefined)
{
    EXPECT_EQ("UNDEFINED", nameOf({8, 1}));
    EXPECT_EQ("UNDEFINED", nameOf({4, 3}));
    EXPECT_EQ("UNDEFINED", nameOf({0, 0}));
    EXPECT_EQ("UNDEFINED", nameOf({32768, 0}));
}

TEST(ModulationNamesTest, ARowsSizeAndStrengthAreItsModulation)
{
    const auto modulation = modulationOf({122, "4096QAM_LIGHT", 4096, 0, 2});
    EXPECT_EQ(4096U, modulation.constellationSize);
    EXPECT_EQ(2U, modulation.strength);
}

} // namespace
