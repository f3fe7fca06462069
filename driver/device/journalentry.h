// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deviceconnection.h"

#include <QtCore/QCoreApplication>

#include <memory>
#include <utility>

/// A change under way on a device. It reaches the journal once, whatever becomes of the operation:
/// one that is cancelled in the middle may have changed the device. In the connection's strand.
class JournalEntry
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)

public:
    JournalEntry(std::shared_ptr<DeviceConnection> device, const QString &operation,
                 const QString &reference)
        : m_device(std::move(device))
    {
        m_change.operation = operation;
        m_change.reference = reference;
        m_change.error = tr("The driver has not waited for the end of the operation.");
    }
    ~JournalEntry() { m_device->journal(std::move(m_change)); }
    Q_DISABLE_COPY(JournalEntry)

    void setValues(const QString &oldValue, const QString &newValue)
    {
        m_change.oldValue = oldValue;
        m_change.newValue = newValue;
    }
    void setAdditionalCause(const QString &cause) { m_change.additionalCause = cause; }
    void setOutcome(const Outcome &outcome) { m_change.error = outcome.error; }

private:
    std::shared_ptr<DeviceConnection> m_device;
    DeviceChange m_change;
};
