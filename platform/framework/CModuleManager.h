#pragma once

#include <vector>

#include "framework/ModuleInterface.h"

/// The framework's register of modules, through which it drives their life.
class CModuleManager
{
public:
    /// The framework's one manager.
    static CModuleManager& GetInstance();

    /// Enters a module, which the manager borrows. A refusal is thrown.
    void RegisterModule(ModuleInterface* module);

    // The framework's own; modules call none of these.

    /// Takes a module out again; a module that is not entered is ignored.
    void UnregisterModule(ModuleInterface* module);

    /// The entered modules, in the order in which they registered.
    const std::vector<ModuleInterface*>& modules() const;

private:
    CModuleManager() = default;

    std::vector<ModuleInterface*> m_modules;
};
