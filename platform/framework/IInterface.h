#pragma once

/// Root of every interface that the broker hands out.
///
/// Interfaces derive from it as a public virtual base, so a holder of an `IInterface` reaches the derived
/// interface by `dynamic_cast` only. The destructors of the platform's interfaces are defined in the library that
/// offers the interface: the type's identity lives there, and a cast between libraries meets one and the same type.
class IInterface
{
public:
    virtual ~IInterface();

protected:
    IInterface() = default;
    /// @{
    /// For what implements an interface; who holds one does not copy it.
    IInterface(const IInterface&) = default;
    IInterface& operator=(const IInterface&) = default;
    /// @}
};
