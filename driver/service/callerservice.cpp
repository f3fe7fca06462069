// SPDX-License-Identifier: Apache-2.0
#include "callerservice.h"

#include "deviceoperations.h"
#include "driverruntime.h"
#include "keptcall.h"

#include <remoteclient/controllercaller.h>

#include <QtCore/QCoreApplication>

#include <utility>

namespace {

using DeviceOperations::ChangeOrder;
using DeviceOperations::Result;
using DeviceOperations::Tool;
using Need = DeviceConnection::Need;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// What an operation needs, and how long it may take; zero for the device's own time-out.
struct Terms
{
    Need need = Need::Model;
    std::chrono::milliseconds limit{0};
};

/// Whatever a device does, a transfer that goes on block by block ends after that.
constexpr std::chrono::hours longestTransfer{1};

Terms termsOf(DriverOperation operation)
{
    switch (operation) {
    case DriverOperation::getServerDirectory:
    case DriverOperation::getLogicalDeviceDirectory:
    case DriverOperation::getLogicalNodeDirectory:
    case DriverOperation::getDataDirectory:
    case DriverOperation::getDataSetList:
    case DriverOperation::getDataSetDirectory:
    case DriverOperation::getXRCB:
    case DriverOperation::createDataSet:
    case DriverOperation::deleteDataSet:
    case DriverOperation::getFileDirectory:
    case DriverOperation::deleteFile:
        return {Need::Association, {}};
    case DriverOperation::getFile:
    case DriverOperation::writeFile:
        return {Need::Association, longestTransfer};
    default:
        return {};
    }
}

template <typename... Parameters>
using OnDevice = Result (*)(CalledDevice, Parameters...);

template <typename... Parameters, std::size_t... index>
Result begin(OnDevice<Parameters...> operation, CalledDevice device, const DriverCall &call,
             std::index_sequence<index...>)
{
    return operation(std::move(device), call.argument<Parameters>(index)...);
}

/// In the connection's strand. Keeps the arguments until the end.
template <typename... Parameters>
Result carryOut(OnDevice<Parameters...> operation, CalledDevice device,
                std::shared_ptr<KeptCall> kept, std::shared_ptr<DeviceIdentity> identity)
{
    Result begun = begin(operation, device, kept->call(), std::index_sequence_for<Parameters...>());
    const Outcome outcome = co_await std::move(begun);
    *identity = device->identity();
    co_return outcome;
}

template <typename... Parameters>
OperationResult perform(OnDevice<Parameters...> operation, DriverRuntime &runtime,
                        const CalledDevice &device, const DriverCall &call)
{
    const auto kept = std::make_shared<KeptCall>(call);
    const auto identity = std::make_shared<DeviceIdentity>();
    const Terms terms = termsOf(call.operation());
    const OperationResult result = DriverRuntime::run(
        device, call.error(),
        [operation, device, kept, identity](const std::shared_ptr<DeviceConnection> &) {
            return carryOut(operation, device, kept, identity);
        },
        terms.need, terms.limit);
    kept->leave();
    if (result == OperationSucceeded) {
        kept->answer(call);
        if (call.operation() == DriverOperation::getIEDModel && identity->isKnown())
            runtime.bind(device, *identity);
    }
    return result;
}

template <typename... Parameters>
using Ordering = ChangeOrder (*)(Tool, Parameters...);

template <typename... Parameters, std::size_t... index>
ChangeOrder orderOf(Ordering<Parameters...> operation, Tool tool, const DriverCall &call,
                    std::index_sequence<index...>)
{
    return operation(tool, call.argument<Parameters>(index)...);
}

template <typename... Parameters>
OperationResult perform(Ordering<Parameters...> operation, DriverRuntime &runtime,
                        const CalledDevice &device, const DriverCall &call)
{
    const auto kept = std::make_shared<KeptCall>(call);
    ChangeOrder order =
        orderOf(operation, device.tool(), kept->call(), std::index_sequence_for<Parameters...>());
    if (!order.refusal) {
        call.error() = order.refusal.error;
        return order.refusal.result;
    }
    const Terms terms = termsOf(call.operation());
    const OperationResult result = runtime.change(
        device, std::move(order.intent), call.error(),
        [kept, work = std::move(order.work)](ChangePointer change) {
            return work(std::move(change));
        },
        terms.need, terms.limit);
    kept->leave();
    return result;
}

template <typename... Parameters>
using InThread = OperationResult (*)(DriverRuntime &, const CalledDevice &, Parameters...);

template <typename... Parameters, std::size_t... index>
OperationResult perform(InThread<Parameters...> operation, DriverRuntime &runtime,
                        const CalledDevice &device, const DriverCall &call,
                        std::index_sequence<index...>)
{
    return operation(runtime, device, call.argument<Parameters>(index)...);
}

template <typename... Parameters>
OperationResult perform(InThread<Parameters...> operation, DriverRuntime &runtime,
                        const CalledDevice &device, const DriverCall &call)
{
    return perform(operation, runtime, device, call, std::index_sequence_for<Parameters...>());
}

} // namespace

CallerService::CallerService(std::weak_ptr<DriverRuntime> runtime, Caller caller)
    : m_runtime(std::move(runtime))
    , m_caller(std::move(caller))
{
}

OperationResult CallerService::call(const DriverCall &call)
{
    const std::shared_ptr<DriverRuntime> runtime = m_runtime.lock();
    if (!runtime) {
        call.error() = Texts::tr("Not connected to the device");
        return OperationDriverUnreachable;
    }
    const auto connection = runtime->connection(call.deviceNo());
    if (!connection)
        return call.carryOut(runtime->offline());
    const CalledDevice device(connection, m_caller, ControllerCaller::current());
    switch (call.operation()) {
#define DRIVER_OPERATION(name, effect)                                                             \
    case DriverOperation::name:                                                                    \
        return perform(&DeviceOperations::name, *runtime, device, call);
        DRIVER_OPERATIONS(DRIVER_OPERATION)
#undef DRIVER_OPERATION
    }
    Q_UNREACHABLE();
    return OperationFailed;
}
