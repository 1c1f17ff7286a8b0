#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "node/plot/Plot.h"

/// Runs of the link that are small enough to read.
namespace small_run
{

inline const std::vector<std::string> Modulations = {
    "4QAM_STRONG", "4QAM", "4QAM_LIGHT", "16QAM_STRONG", "16QAM", "16QAM_LIGHT",
};

/// Four minutes of rain. The first channel loses lock in them, the second one gets less of it.
inline node::plot::Run rain()
{
    return {
        "rain",
        Modulations,
        {0, 60, 120, 180, 240},
        {
            {{-43, 20, 4, true}, {-50.25, 12.5, 3, true}, {-85, -3, 0, false}, {-60, 6, 1, true}, {-43, 20, 4, true}},
            {{-43, 20, 4, true}, {-46, 17, 4, true}, {-60, 6, 1, true}, {-46, 17, 4, true}, {-43, 20, 4, true}},
        },
    };
}

/// The sample again and again, on one channel.
inline node::plot::Run always(const node::plot::Sample& sample, const std::vector<double>& times_s)
{
    return {"always", Modulations, times_s, {std::vector<node::plot::Sample>(times_s.size(), sample)}};
}

} // namespace small_run
