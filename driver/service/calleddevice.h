// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/device/deviceconnection.h"

#include <remoteclient/caller.h>

#include <memory>
#include <utility>

/// A device as an operation has it: the connection, and on whose behalf. Never null but for a null
/// connection.
class CalledDevice
{
public:
    /// On behalf of nobody but the driver, unless a caller is given.
    /// @param tool whose of the caller's tools it is (ControllerCaller); 0 where that is not known
    CalledDevice(std::shared_ptr<DeviceConnection> connection, Caller caller = {}, quint64 tool = 0)
        : m_connection(std::move(connection))
        , m_caller(std::move(caller))
        , m_tool(tool)
    {
    }

    const Caller &caller() const { return m_caller; }
    quint64 tool() const { return m_tool; }

    DeviceConnection *operator->() const { return m_connection.get(); }
    DeviceConnection &operator*() const { return *m_connection; }
    operator const std::shared_ptr<DeviceConnection> &() const { return m_connection; }

private:
    std::shared_ptr<DeviceConnection> m_connection;
    Caller m_caller;
    quint64 m_tool;
};
