// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/deviceconfiguration.h"

#include <QtCore/QString>
#include <QtCore/QVector>

/// A device of the workbench. One without an address that is not simulated is known only from its
/// SCL file.
struct DeviceRecord
{
    /// Number, name, SCL file and IED of every device, and how it is reached. The address of a
    /// simulated device is found anew whenever its simulation starts.
    DeviceConfiguration configuration;
    bool simulated = false; ///< by this program, from the SCL file
    bool connects = true;   ///< when the workbench starts

    int number() const { return configuration.number; }
    const QString &name() const { return configuration.name; }
    const QString &file() const { return configuration.sclFile; }
    const QString &ied() const { return configuration.ied; }
    /// Over the network, be it simulated or not.
    bool isReached() const { return simulated || !configuration.host.isEmpty(); }

    static DeviceRecord ofFile(const QString &file, const QString &ied, bool simulated = false);
};

/// The devices that are remembered between starts, in one settings file. Every change is written
/// at once. A number belongs to one device for good: it is not given out again after a removal.
/// The file may hold passwords, so that only its owner can read it, from its first octet.
class DeviceStore
{
public:
    /// @param settingsFile path of the settings file; it need not exist yet
    explicit DeviceStore(const QString &settingsFile);

    /// True until a device has been remembered, also when it was removed again later.
    bool isFirstStart() const { return m_firstStart; }

    const QVector<DeviceRecord> &devices() const { return m_devices; }

    /// Number of the device that is only known from the file, or simulated from it; 0 when it is
    /// not remembered. @p file may be written in any way that names the same file.
    int find(const QString &file, const QString &ied, bool simulated = false) const;

    /// Remember a device and return its number; one of a file that is remembered already keeps its
    /// own.
    int add(const QString &file, const QString &ied, bool simulated = false);

    /// Number that put() gives to the next new device.
    int nextNumber() const { return m_nextNumber; }

    /// Remember a device as it is now and return its number; a new one, of number 0, gets one.
    int put(DeviceRecord record);

    /// Remember a device again that was forgotten, under its number.
    void restore(const DeviceRecord &record);

    /// Forget a device; nothing happens when there is none of that number.
    void remove(int number);

    /// Write nothing from now on, for the reason given, one sentence.
    void freeze(const QString &reason);

    /// Why the last change may be forgotten at the next start, one sentence; empty when all is
    /// well.
    QString problem() const { return m_problem; }

    /// See to it that only its owner can read the file, made empty where there is none.
    static void makePrivate(const QString &settingsFile);

    /// The one spelling of a path by which files are compared.
    static QString canonicalFile(const QString &file);

private:
    void read();
    void write();

    QString m_settingsFile;
    QVector<DeviceRecord> m_devices;
    int m_nextNumber = 1;
    bool m_firstStart = true;
    bool m_isFrozen = false;
    QString m_problem;
};
