#include "doubles/CallLog.h"

namespace doubles
{

CallLog& calls()
{
    static CallLog log;
    return log;
}

} // namespace doubles
