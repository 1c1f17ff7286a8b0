#pragma once

#include <array>
#include <cstdint>

#include "fuzz/expected/Platform.h"

namespace expected
{

/// What the broker holds under the keys that the module looks up.
struct Broker
{
    bool boardSupport; ///< of the right type, as the others
    std::array<bool, 2> dpd;
};

/// The module's initialisation.
struct StartUp
{
    std::int32_t result = 0;
    bool installed = false;      ///< the callback
    std::array<bool, 2> found{}; ///< DPD controllers
    Outcome seen;                ///< calls and trace of it
};

StartUp onModuleInit(int numberOfRadioChannels, const Broker& broker, bool traced);

} // namespace expected
