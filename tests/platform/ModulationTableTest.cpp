#include <array>
#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "kel_top_api/ModulationAndCode.h"

using kel_top_api::ModulationAndCode;
using kel_top_api::modulationAndCodeName;

namespace
{

using Row = std::tuple<std::uint32_t, std::string, std::uint32_t, std::uint32_t, std::uint32_t>;

/// code, name, modulation, variant, strength
const std::vector<Row> Rows = {
    {10, "HALF_BPSK_STRONG", 2, 2, 0},     {11, "HALF_BPSK", 2, 2, 1},     {12, "HALF_BPSK_LIGHT", 2, 2, 2},
    {20, "BPSK_STRONG", 2, 0, 0},          {21, "BPSK", 2, 0, 1},          {22, "BPSK_LIGHT", 2, 0, 2},
    {30, "4QAM_STRONG", 4, 0, 0},          {31, "4QAM", 4, 0, 1},          {32, "4QAM_LIGHT", 4, 0, 2},
    {40, "16QAM_STRONG", 16, 0, 0},        {41, "16QAM", 16, 0, 1},        {42, "16QAM_LIGHT", 16, 0, 2},
    {50, "32QAM_STRONG", 32, 0, 0},        {51, "32QAM", 32, 0, 1},        {52, "32QAM_LIGHT", 32, 0, 2},
    {60, "64QAM_STRONG", 64, 0, 0},        {61, "64QAM", 64, 0, 1},        {62, "64QAM_LIGHT", 64, 0, 2},
    {70, "128QAM_STRONG", 128, 0, 0},      {71, "128QAM", 128, 0, 1},      {72, "128QAM_LIGHT", 128, 0, 2},
    {80, "256QAM_STRONG", 256, 0, 0},      {81, "256QAM", 256, 0, 1},      {82, "256QAM_LIGHT", 256, 0, 2},
    {90, "512QAM_STRONG", 512, 0, 0},      {91, "512QAM", 512, 0, 1},      {92, "512QAM_LIGHT", 512, 0, 2},
    {100, "1024QAM_STRONG", 1024, 0, 0},   {101, "1024QAM", 1024, 0, 1},   {102, "1024QAM_LIGHT", 1024, 0, 2},
    {110, "2048QAM_STRONG", 2048, 0, 0},   {111, "2048QAM", 2048, 0, 1},   {112, "2048QAM_LIGHT", 2048, 0, 2},
    {120, "4096QAM_STRONG", 4096, 0, 0},   {121, "4096QAM", 4096, 0, 1},   {122, "4096QAM_LIGHT", 4096, 0, 2},
    {130, "8192QAM_STRONG", 8192, 0, 0},   {131, "8192QAM", 8192, 0, 1},   {132, "8192QAM_LIGHT", 8192, 0, 2},
    {140, "16384QAM_STRONG", 16384, 0, 0}, {141, "16384QAM", 16384, 0, 1}, {142, "16384QAM_LIGHT", 16384, 0, 2},
    {143, "UNDEFINED", 16385, 5, 3},
};

std::vector<Row> rowsOf(const std::vector<ModulationAndCode>& table)
{
    std::vector<Row> rows;
    rows.reserve(table.size());
    for (const ModulationAndCode& row : table)
    {
        rows.emplace_back(row.code, row.name, row.modulation, row.variant, row.strength);
    }
    return rows;
}

TEST(ModulationTableTest, HasExactlyTheseRowsInThisOrder)
{
    EXPECT_EQ(Rows, rowsOf(getModulationAndCodeVector()));
}

TEST(ModulationTableTest, IsMadeToMeasure)
{
    EXPECT_EQ(43U, getModulationAndCodeVector().size());
    EXPECT_EQ(43U, getModulationAndCodeVector().capacity());
}

TEST(ModulationTableTest, EveryCallMakesATableOfTheCallersOwn)
{
    auto first = getModulationAndCodeVector();
    const auto second = getModulationAndCodeVector();
    EXPECT_EQ(rowsOf(first), rowsOf(second));
    EXPECT_NE(first.data(), second.data());

    first.front().name = "changed";
    first.pop_back();
    EXPECT_EQ(Rows, rowsOf(second));
    EXPECT_EQ(Rows, rowsOf(getModulationAndCodeVector()));
}

TEST(ModulationTableTest, CodesTellPositionAndStrength)
{
    const std::array<std::string, 14> modulations = {"HALF_BPSK", "BPSK",    "4QAM",    "16QAM",   "32QAM",
                                                     "64QAM",     "128QAM",  "256QAM",  "512QAM",  "1024QAM",
                                                     "2048QAM",   "4096QAM", "8192QAM", "16384QAM"};
    const std::array<std::string, 3> strengths = {"_STRONG", "", "_LIGHT"};
    for (std::uint32_t position = 1; position <= modulations.size(); ++position)
    {
        for (std::uint32_t strength = 0; strength < strengths.size(); ++strength)
        {
            EXPECT_EQ(modulations[position - 1] + strengths[strength], modulationAndCodeName(10 * position + strength));
        }
    }
}

TEST(ModulationTableTest, NamesEveryCodeThatHasARow)
{
    for (const auto& [code, name, modulation, variant, strength] : Rows)
    {
        EXPECT_EQ(name, modulationAndCodeName(code));
    }
}

TEST(ModulationTableTest, EveryOtherCodeIsUndefined)
{
    std::uint32_t others = 0;
    for (std::uint32_t code = 0; code <= 200; ++code)
    {
        const bool hasRow = code >= 10 && code <= 143 && code % 10 <= (code < 143 ? 2 : 3);
        if (!hasRow)
        {
            EXPECT_EQ("UNDEFINED", modulationAndCodeName(code)) << code;
            ++others;
        }
    }
    EXPECT_EQ(201U - 43U, others);
    EXPECT_EQ("UNDEFINED", modulationAndCodeName(0xFFFFFFFFU));
}

} // namespace
