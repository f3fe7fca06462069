// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "drivercall.h"

namespace ForwardingDriverServiceDetails {

/// What the operations of a ForwardingDriverService come down to.
class REMOTECLIENT_EXPORT Receiver : public DriverService
{
protected:
    virtual OperationResult call(const DriverCall &call) = 0;

    template <typename... Arguments>
    OperationResult forward(DriverOperation operation, long deviceNo, Arguments &...arguments)
    {
        DriverCall made(operation, deviceNo);
        (made.add(arguments), ...);
        return call(made);
    }
};

/// One operation, implemented on top of @a Base; its parameters are taken from its declaration.
template <DriverOperation operation, typename Base>
struct Forwarded;

#define DRIVER_OPERATION(name, effect)                                                             \
    template <typename Base, typename Method>                                                      \
    class Forwarding_##name;                                                                       \
    template <typename Base, typename... Parameters>                                               \
    class Forwarding_##name<Base, OperationResult (DriverService::*)(long, Parameters...)>         \
        : public Base                                                                              \
    {                                                                                              \
    public:                                                                                        \
        OperationResult name(long deviceNo, Parameters... parameters) override                     \
        {                                                                                          \
            return this->forward(DriverOperation::name, deviceNo, parameters...);                  \
        }                                                                                          \
    };                                                                                             \
    template <typename Base>                                                                       \
    struct Forwarded<DriverOperation::name, Base>                                                  \
    {                                                                                              \
        using Type = Forwarding_##name<Base, decltype(&DriverService::name)>;                      \
    };
DRIVER_OPERATIONS(DRIVER_OPERATION)
#undef DRIVER_OPERATION

/// The first @a count operations of the table, each on top of the one before it.
template <int count>
struct Operations
{
    using Type = typename Forwarded<static_cast<DriverOperation>(count - 1),
                                    typename Operations<count - 1>::Type>::Type;
};
template <>
struct Operations<0>
{
    using Type = Receiver;
};

using All = Operations<driverOperationCount>::Type;

} // namespace ForwardingDriverServiceDetails

/// A driver service whose operations all come down to one function:
///
///     OperationResult call(const DriverCall &call) override; // protected
///
/// It answers the call itself, refuses it, or has it carried out by another service with
/// DriverCall::carryOut(), before and after which it does what it is there for. It is called in the
/// thread of whoever called the operation. A service that answers some operations itself overrides
/// them beside it.
class REMOTECLIENT_EXPORT ForwardingDriverService : public ForwardingDriverServiceDetails::All
{
public:
    ForwardingDriverService();
    ~ForwardingDriverService() override;
};
