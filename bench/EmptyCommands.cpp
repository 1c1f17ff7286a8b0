#include "bench/EmptyCommands.h"

namespace bench
{

namespace
{

class Nothing : public EmptyCommands
{
    int command(RadioChannel /*channel*/) override
    {
        return 0;
    }

    int command(RadioChannel /*channel*/, DpdCoeffs /*coefficients*/) override
    {
        return 0;
    }

    int command(RadioChannel /*channel*/, DpdCoeffs* /*coefficients*/) override
    {
        return 0;
    }
};

} // namespace

std::unique_ptr<EmptyCommands> makeEmptyCommands()
{
    return std::make_unique<Nothing>();
}

} // namespace bench
