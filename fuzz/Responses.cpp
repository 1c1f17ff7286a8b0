// Whatever the platform answers, the module asks, reports and traces what the second implementation in expected/ says.

#include "fuzz/Input.h"
#include "fuzz/ModuleOperations.h"
#include "fuzz/RecordedModule.h"
#include "fuzz/Target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int MostSteps = 64;
    fuzz::Input input(data, size);
    fuzz::RecordedModule module(input);
    fuzz::ModuleOperations operations(input, module);
    const bool installed = module.start();
    for (int step = 0; installed && !input.atEnd() && step < MostSteps; ++step)
    {
        operations.operate();
    }
    return 0;
}
