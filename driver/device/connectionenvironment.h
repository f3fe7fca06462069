// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/devicechange.h"
#include "driver/administration/reportevent.h"
#include "driver/core/associationlife.h"
#include "livevalues.h"
#include "pducapture.h"

#include "osi/hostlookup.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

class DeviceConnection;

/// What a connection needs of the driver. Called in the strands of connections, several at a time.
struct ConnectionEnvironment
{
    std::shared_ptr<LiveValues> values;
    /// The status of that connection is another one.
    std::function<void(const DeviceConnection &)> statusChanged;
    /// A PDU was sent or received, and is in the capture.
    std::function<void()> exchanged;
    std::function<void(const DeviceChange &)> changed;
    /// Whether anybody wants reports.
    std::function<bool()> wantsReports;
    /// Takes every report, in order for each device. Gives the number of older events of the device
    /// that had to be dropped for it.
    std::function<std::uint64_t(const ReportEvent &)> reportReceived;
    /// Claims the names of logical devices for the device that goes online; a sentence when another
    /// device has one of them, otherwise empty.
    std::function<QString(const QStringList &logicalDevices)> claim;
    std::function<void()> release;
    /// Whether nothing may be changed on devices at present.
    std::function<bool()> isReadOnly;
    /// Folder of what is remembered of devices between starts; empty for none.
    QString cacheFolder;
    std::size_t captureOctets = PduCapture::defaultLimit;
    /// Looks up hosts' names; without, the system does.
    osi::HostLookup::Function lookUp;
    /// What time it is, for everything that is decided about the device. Only how long a caller, or
    /// a call to the device, is waited for goes by the clock of the system in any case.
    std::function<std::chrono::steady_clock::time_point()> now = &std::chrono::steady_clock::now;
    /// By which devices that are lost together come back apart; without, from the system's source.
    AssociationLife::Random random;
};
