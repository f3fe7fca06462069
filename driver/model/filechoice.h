// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/model.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Which of an IED's servers in a file a device is, and how the device calls what is in it.
struct FileChoice
{
    QStringList accessPoints;      ///< with a server; empty for all
    QHash<QString, QString> names; ///< of the device, by the file's; where they differ

    QString nameOf(const QString &logicalDevice) const
    {
        return names.value(logicalDevice, logicalDevice);
    }

    /// Calls @p visit with every logical device that is meant; shared servers count once.
    template <typename Visitor>
    void forEachDevice(const scl::Ied &ied, Visitor &&visit) const
    {
        if (accessPoints.isEmpty()) {
            ied.forEachDevice(visit);
            return;
        }
        QVector<const scl::Server *> done;
        for (const scl::AccessPoint &point : ied.accessPoints) {
            const QString name =
                QString::fromUtf8(point.name.data(), static_cast<int>(point.name.size()));
            if (!point.server || !accessPoints.contains(name) || done.contains(point.server))
                continue;
            done.append(point.server);
            for (const scl::LogicalDevice &device : point.server->devices)
                visit(device);
        }
    }
};

/// What is known of a device before it is compared with a file.
struct KnownDevice
{
    QString accessPoint; ///< wanted; empty for none in particular
    QString host;
    QStringList logicalDevices; ///< MMS domains
};

/// The access point that is wanted, else the one of that address, else those that have any of the
/// device's logical devices. Where a file calls the IED otherwise (a template does), its logical
/// devices are found by their instances. @p error gets one sentence when nothing fits.
FileChoice chooseServer(const scl::Document &document, const scl::Ied &ied,
                        const KnownDevice &device, QString &error);
