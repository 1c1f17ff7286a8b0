#pragma once

#include <functional>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "framework/ModuleInterface.h"

namespace doubles
{

/// Behaviour of the recording framework: every call is logged, nothing else happens.
struct FrameworkBehaviour
{
    /// Runs inside CModuleManager::RegisterModule(); may throw.
    std::function<void(ModuleInterface*)> onRegister;
};

FrameworkBehaviour& framework();

} // namespace doubles
