#include "node/services/BoardSupport.h"

IRlbspKelApi::~IRlbspKelApi() = default;
IRlbspKelApi::KelDebugCmdCallback::~KelDebugCmdCallback() = default;

namespace node::services
{

BoardSupport::BoardSupport(FaultPlan& faults) : m_faults(faults)
{
}

void BoardSupport::installDebugCmdCallback(KelDebugCmdCallback* callback)
{
    m_faults.pass("IRlbspKelApi.installDebugCmdCallback", 0);
    m_callback = callback;
}

IRlbspKelApi::KelDebugCmdCallback* BoardSupport::installedCallback() const
{
    return m_callback;
}

} // namespace node::services
