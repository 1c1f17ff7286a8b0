#include "framework/CModuleManager.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "node/framework/Admission.h"

namespace
{

node::framework::Admission& theAdmission()
{
    static node::framework::Admission admission = [] {};
    return admission;
}

} // namespace

namespace node::framework
{

Admission setAdmission(Admission admission)
{
    return std::exchange(theAdmission(), std::move(admission));
}

} // namespace node::framework

CModuleManager& CModuleManager::GetInstance()
{
    static CModuleManager manager;
    return manager;
}

void CModuleManager::RegisterModule(ModuleInterface* module)
{
    theAdmission()();
    // A name is a module's identity here: neither the same module nor one of the same name is entered twice.
    const std::string& name = module->registration().name;
    const bool known = std::any_of(m_modules.begin(), m_modules.end(),
                                   [&](const ModuleInterface* other) { return other->registration().name == name; });
    if (known)
    {
        throw std::invalid_argument("module " + name + ": found registered already, expected a name of its own");
    }
    m_modules.push_back(module);
}

void CModuleManager::UnregisterModule(ModuleInterface* module)
{
    std::erase(m_modules, module);
}

const std::vector<ModuleInterface*>& CModuleManager::modules() const
{
    return m_modules;
}
