#pragma once

#include <map>
#include <memory>
#include <string>

#include "framework/IInterface.h"

/// The node's register of interfaces: name -> shared interface object.
///
/// The broker keeps the objects alive; who looks one up borrows it. Entries are made during start-up and read
/// without a lock afterwards.
class InterfaceBroker
{
public:
    /// Names, and the objects that offer the interfaces of these names.
    using Interfaces = std::map<std::string, std::shared_ptr<IInterface>>;

    /// The node's one broker.
    static InterfaceBroker& getInstance();

    /// The register itself. A name may be absent, and an entry may be empty.
    Interfaces& interfaces();

private:
    InterfaceBroker() = default;

    Interfaces m_interfaces;
};
