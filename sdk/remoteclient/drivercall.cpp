// SPDX-License-Identifier: Apache-2.0
#include "drivercall.h"

namespace {

template <typename... Parameters, std::size_t... index>
OperationResult invoke(OperationResult (DriverService::*method)(long, Parameters...),
                       DriverService &service, const DriverCall &call,
                       std::index_sequence<index...>)
{
    return (service.*method)(call.deviceNo(), call.argument<Parameters>(index)...);
}

template <typename... Parameters>
OperationResult invoke(OperationResult (DriverService::*method)(long, Parameters...),
                       DriverService &service, const DriverCall &call)
{
    return invoke(method, service, call, std::index_sequence_for<Parameters...>());
}

} // namespace

DriverCall::DriverCall(DriverOperation operation, long deviceNo)
    : m_operation(operation)
    , m_deviceNo(deviceNo)
{
}

const char *DriverCall::name() const
{
    static constexpr const char *names[] = {
#define DRIVER_OPERATION(name, effect) #name,
        DRIVER_OPERATIONS(DRIVER_OPERATION)
#undef DRIVER_OPERATION
    };
    return names[static_cast<std::size_t>(m_operation)];
}

DriverEffect DriverCall::effect() const
{
    static constexpr DriverEffect effects[] = {
#define DRIVER_OPERATION(name, effect) DriverEffect::effect,
        DRIVER_OPERATIONS(DRIVER_OPERATION)
#undef DRIVER_OPERATION
    };
    return effects[static_cast<std::size_t>(m_operation)];
}

OperationResult DriverCall::carryOut(DriverService &service) const
{
    switch (m_operation) {
#define DRIVER_OPERATION(name, effect)                                                             \
    case DriverOperation::name:                                                                    \
        return invoke(&DriverService::name, service, *this);
        DRIVER_OPERATIONS(DRIVER_OPERATION)
#undef DRIVER_OPERATION
    }
    Q_UNREACHABLE();
    return OperationFailed;
}
