// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

/// A device that the operator has opened.
struct DeviceRecord
{
    int number = 0; ///< the device's number on the driver, 1 for the first
    QString file;   ///< absolute path of the SCL file, or a path of a resource
    QString ied;    ///< name of the IED in the file
};

/// The devices that are remembered between starts, in one settings file. Every change is written
/// at once. A number belongs to one device for good: it is not given out again after a removal.
class DeviceStore
{
public:
    /// @param settingsFile path of the settings file; it need not exist yet
    explicit DeviceStore(const QString &settingsFile);

    /// True until a device has been remembered, also when it was removed again later.
    bool isFirstStart() const { return m_firstStart; }

    const QVector<DeviceRecord> &devices() const { return m_devices; }

    /// Number of the device, or 0 when it is not remembered. @p file may be written in any way that
    /// names the same file.
    int find(const QString &file, const QString &ied) const;

    /// Remember a device and return its number; one that is remembered already keeps its own.
    int add(const QString &file, const QString &ied);

    /// Forget a device; nothing happens when there is none of that number.
    void remove(int number);

    /// Why the last change may be forgotten at the next start, one sentence; empty when all is
    /// well.
    QString problem() const { return m_problem; }

    /// The one spelling of a path by which files are compared.
    static QString canonicalFile(const QString &file);

private:
    void read();
    void write();

    QString m_settingsFile;
    QVector<DeviceRecord> m_devices;
    int m_nextNumber = 1;
    bool m_firstStart = true;
    QString m_problem;
};
