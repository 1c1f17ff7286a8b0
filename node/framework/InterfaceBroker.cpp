#include "framework/InterfaceBroker.h"

InterfaceBroker& InterfaceBroker::getInstance()
{
    static InterfaceBroker broker;
    return broker;
}

InterfaceBroker::Interfaces& InterfaceBroker::interfaces()
{
    return m_interfaces;
}
