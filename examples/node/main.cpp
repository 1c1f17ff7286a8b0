// The start of a node, as far as its debug commands need it.
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include <KelDebugCmd.h>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "node.h"

int main()
{
    // What the module looks up has to be there before it is initialised.
    const auto boardSupport = std::make_shared<BoardSupport>();
    auto& interfaces = InterfaceBroker::getInstance().interfaces();
    interfaces["IRlbspKelApi"] = boardSupport;
    interfaces["IDpdControllerSplit_1"] = std::make_shared<DpdController>();

    // What it is handed has to outlive it. It enters itself with the module manager, whose pointer changes it later.
    NearEnd nearEnd;
    ModemStatus modemStatus;
    kel::device::kelDebugCmd::KelDebugCmd debugCommands(1, nearEnd, modemStatus);

    // The framework initialises its modules; this one installs itself with the board support.
    for (ModuleInterface* const module : CModuleManager::GetInstance().modules())
    {
        if (module->onModuleInit() != 0)
        {
            std::cerr << "A module does not start.\n";
            return EXIT_FAILURE;
        }
    }

    // The node's command line calls what was installed.
    std::string report;
    const int result = boardSupport->commands->getPpsHopLengthTime(1, report);
    std::cout << report;
    return result;
}
