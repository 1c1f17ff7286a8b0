#include "node/radio/Modulation.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace node::radio
{

namespace
{

// clang-format off
constexpr Modulation Rows[] = {
    {2, 0, true, -0.14},      {2, 1, true, 0.33},       {2, 2, true, 0.85},
    {2, 0, false, 2.87},      {2, 1, false, 3.34},      {2, 2, false, 3.86},
    {4, 0, false, 5.88},      {4, 1, false, 6.35},      {4, 2, false, 6.87},
    {16, 0, false, 12.01},    {16, 1, false, 12.57},    {16, 2, false, 13.18},
    {32, 0, false, 14.68},    {32, 1, false, 15.29},    {32, 2, false, 15.95},
    {64, 0, false, 17.35},    {64, 1, false, 18.02},    {64, 2, false, 18.72},
    {128, 0, false, 19.93},   {128, 1, false, 20.65},   {128, 2, false, 21.41},
    {256, 0, false, 22.50},   {256, 1, false, 23.28},   {256, 2, false, 24.10},
    {512, 0, false, 25.04},   {512, 1, false, 25.89},   {512, 2, false, 26.78},
    {1024, 0, false, 27.58},  {1024, 1, false, 28.50},  {1024, 2, false, 29.45},
    {2048, 0, false, 30.11},  {2048, 1, false, 31.09},  {2048, 2, false, 32.11},
    {4096, 0, false, 32.64},  {4096, 1, false, 33.69},  {4096, 2, false, 34.78},
    {8192, 0, false, 35.17},  {8192, 1, false, 36.29},  {8192, 2, false, 37.44},
    {16384, 0, false, 37.70}, {16384, 1, false, 38.89}, {16384, 2, false, 40.11},
};
// clang-format on

} // namespace

std::span<const Modulation> modulations()
{
    return Rows;
}

ModulationIndex indexOf(std::uint32_t constellationSize, std::uint32_t strength)
{
    const auto* const row = std::find_if(std::begin(Rows), std::end(Rows),
                                         [&](const Modulation& modulation)
                                         {
                                             return modulation.constellationSize == constellationSize &&
                                                    modulation.strength == strength && !modulation.halfBand;
                                         });
    return static_cast<ModulationIndex>(std::distance(std::begin(Rows), row));
}

double backOff_dB(const Modulation& modulation)
{
    const int bitsAbove4Qam = std::max(0, static_cast<int>(std::bit_width(modulation.constellationSize)) - 3);
    return 0.6 * bitsAbove4Qam + 0.2 * modulation.strength;
}

} // namespace node::radio
