// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// By what a device is known again: what answers at its address may be another one tomorrow. A
/// value type.
struct DeviceIdentity
{
    QString address; ///< host and port; empty while nothing is known
    QString vendor;
    QString model;
    QStringList logicalDevices;
    QHash<QString, QString> revisions; ///< of the configuration, by logical device
    QString certificate;               ///< its fingerprint; empty without TLS

    bool isKnown() const { return !address.isEmpty(); }
    /// Whether it may be the device of that identity. A vendor or model that is not known on one
    /// side speaks for nothing: some devices do not always say it.
    bool fits(const DeviceIdentity &other) const;
};
