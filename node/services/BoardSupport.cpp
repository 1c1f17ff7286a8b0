#include "node/services/BoardSupport.h"

IRlbspKelApi::~IRlbspKelApi() = default;
IRlbspKelApi::KelDebugCmdCallback::~KelDebugCmdCallback() = default;

namespace node::services
{

void BoardSupport::installDebugCmdCallback(KelDebugCmdCallback* callback)
{
    m_callback = callback;
}

IRlbspKelApi::KelDebugCmdCallback* BoardSupport::installedCallback() const
{
    return m_callback;
}

} // namespace node::services
