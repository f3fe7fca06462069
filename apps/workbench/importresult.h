// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/findings.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <atomic>
#include <functional>
#include <memory>

class SimulatedDevice;

/// An IED of an SCL file, as the operator chooses it.
struct IedSummary
{
    QString name;
    QString description;    ///< manufacturer, type and description, as far as the file gives them
    int logicalDevices = 0; ///< 0: the IED has no server and nothing to browse
};

struct ImportRequest
{
    QString file;
    QString ied; ///< empty: the only one of the file
    /// Start a simulated device instead of making a model.
    bool simulate = false;
    int port = 0; ///< that the simulated device had before; 0: none
};

struct ImportResult
{
    enum Status {
        Imported,
        ChoiceNeeded, ///< the request named no IED and the file holds several, listed in `ieds`
        Failed,
        Cancelled
    };

    Status status = Failed;
    QString error;                  ///< one sentence when the import failed or a choice is needed
    QString ied;                    ///< name of the IED that was imported
    QVector<IedSummary> ieds;       ///< in the order of the file
    QVector<scl::Finding> findings; ///< of the whole file
    QByteArray model; ///< the device as PhysicalDevice::fromStream() reads it; none of a simulation
    std::shared_ptr<SimulatedDevice> simulation;
    quint64 logicalDevices = 0;
    quint64 logicalNodes = 0;
    quint64 attributes = 0; ///< leaf attributes, array elements one by one
};

/// Does one import. Runs in a worker thread, looks at the flag often and tells how far it is (0 …
/// 1).
using ImportFunction =
    std::function<ImportResult(const ImportRequest &request, const std::atomic<bool> &cancelled,
                               const std::function<void(double)> &progress)>;
