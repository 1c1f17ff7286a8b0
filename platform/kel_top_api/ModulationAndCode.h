#pragma once

/// @file
/// Modulations with their coding strengths, and their codes.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace kel_top_api
{

/// Code of "no modulation and code"; also the default of command records.
inline constexpr std::uint32_t UndefinedModulationAndCode = 143;

/// A modulation with a coding strength.
struct ModulationAndCode
{
    std::uint32_t code = UndefinedModulationAndCode; ///< 10 x position of the modulation + strength
    std::string name;                                ///< such as "4QAM_STRONG"
    std::uint32_t modulation = 0;                    ///< constellation size; 16385 for UNDEFINED
    std::uint32_t variant = 0;                       ///< 2 for the HALF_BPSK kinds, 0 for the others, 5 for UNDEFINED
    std::uint32_t strength = 0;                      ///< 0 strong, 1 plain, 2 light, 3 UNDEFINED
};

} // namespace kel_top_api

/// Every known modulation and code, in the order of the codes: a new table with each call, the caller's own.
/// A function of its own in whatever has but one call of it, too: the library offers it to any reader of such codes.
[[gnu::noinline]] inline std::vector<kel_top_api::ModulationAndCode> getModulationAndCodeVector()
{
    using kel_top_api::UndefinedModulationAndCode;

    struct Row
    {
        constexpr Row(std::uint32_t code_, std::string_view name_, std::uint32_t modulation_, std::uint32_t variant_,
                      std::uint32_t strength_)
            : code(code_), modulation(modulation_), variant(variant_), strength(strength_), length(name_.size())
        {
            std::copy(name_.begin(), name_.end(), name);
        }

        explicit operator kel_top_api::ModulationAndCode() const
        {
            // A number of letters that the compiler knows is copied by two moves, any other one by a call.
            constexpr std::size_t Usual = 15;
            kel_top_api::ModulationAndCode row{code, std::string(name, Usual), modulation, variant, strength};
            if (length <= Usual)
            {
                row.name.resize(length);
            }
            else
            {
                row.name.assign(name, length);
            }
            return row;
        }

        std::uint32_t code;
        std::uint32_t modulation;
        std::uint32_t variant;
        std::uint32_t strength;
        std::size_t length;
        char name[16] = {}; ///< the longest has so many letters
    };
    // clang-format off
    static constexpr Row rows[] = {
        {10, "HALF_BPSK_STRONG", 2, 2, 0},
        {11, "HALF_BPSK", 2, 2, 1},
        {12, "HALF_BPSK_LIGHT", 2, 2, 2},
        {20, "BPSK_STRONG", 2, 0, 0},
        {21, "BPSK", 2, 0, 1},
        {22, "BPSK_LIGHT", 2, 0, 2},
        {30, "4QAM_STRONG", 4, 0, 0},
        {31, "4QAM", 4, 0, 1},
        {32, "4QAM_LIGHT", 4, 0, 2},
        {40, "16QAM_STRONG", 16, 0, 0},
        {41, "16QAM", 16, 0, 1},
        {42, "16QAM_LIGHT", 16, 0, 2},
        {50, "32QAM_STRONG", 32, 0, 0},
        {51, "32QAM", 32, 0, 1},
        {52, "32QAM_LIGHT", 32, 0, 2},
        {60, "64QAM_STRONG", 64, 0, 0},
        {61, "64QAM", 64, 0, 1},
        {62, "64QAM_LIGHT", 64, 0, 2},
        {70, "128QAM_STRONG", 128, 0, 0},
        {71, "128QAM", 128, 0, 1},
        {72, "128QAM_LIGHT", 128, 0, 2},
        {80, "256QAM_STRONG", 256, 0, 0},
        {81, "256QAM", 256, 0, 1},
        {82, "256QAM_LIGHT", 256, 0, 2},
        {90, "512QAM_STRONG", 512, 0, 0},
        {91, "512QAM", 512, 0, 1},
        {92, "512QAM_LIGHT", 512, 0, 2},
        {100, "1024QAM_STRONG", 1024, 0, 0},
        {101, "1024QAM", 1024, 0, 1},
        {102, "1024QAM_LIGHT", 1024, 0, 2},
        {110, "2048QAM_STRONG", 2048, 0, 0},
        {111, "2048QAM", 2048, 0, 1},
        {112, "2048QAM_LIGHT", 2048, 0, 2},
        {120, "4096QAM_STRONG", 4096, 0, 0},
        {121, "4096QAM", 4096, 0, 1},
        {122, "4096QAM_LIGHT", 4096, 0, 2},
        {130, "8192QAM_STRONG", 8192, 0, 0},
        {131, "8192QAM", 8192, 0, 1},
        {132, "8192QAM_LIGHT", 8192, 0, 2},
        {140, "16384QAM_STRONG", 16384, 0, 0},
        {141, "16384QAM", 16384, 0, 1},
        {142, "16384QAM_LIGHT", 16384, 0, 2},
        {UndefinedModulationAndCode, "UNDEFINED", 16385, 5, 3},
    };
    // clang-format on

    return {std::begin(rows), std::end(rows)};
}

namespace kel_top_api
{

/// The name that a fresh table gives to `code`, "UNDEFINED" where it has none.
inline std::string modulationAndCodeName(std::uint32_t code)
{
    for (const ModulationAndCode& row : getModulationAndCodeVector())
    {
        if (row.code == code)
        {
            return row.name;
        }
    }
    return "UNDEFINED";
}

} // namespace kel_top_api
