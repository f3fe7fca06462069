// SPDX-License-Identifier: Apache-2.0
#include "devicestore.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

#include <algorithm>
#include <limits>

namespace {

const QString arrayKey = QStringLiteral("devices");
const QString numberKey = QStringLiteral("number");
const QString fileKey = QStringLiteral("file");
const QString iedKey = QStringLiteral("ied");
const QString nextNumberKey = QStringLiteral("nextDeviceNumber");

} // namespace

DeviceStore::DeviceStore(const QString &settingsFile)
    : m_settingsFile(settingsFile)
{
    read();
}

QString DeviceStore::canonicalFile(const QString &file)
{
    const QFileInfo info(file);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

int DeviceStore::find(const QString &file, const QString &ied) const
{
    const QString canonical = canonicalFile(file);
    for (const DeviceRecord &device : m_devices) {
        if (device.ied == ied && canonicalFile(device.file) == canonical)
            return device.number;
    }
    return 0;
}

int DeviceStore::add(const QString &file, const QString &ied)
{
    if (const int known = find(file, ied))
        return known;
    const DeviceRecord device{m_nextNumber++, canonicalFile(file), ied};
    m_devices.append(device);
    m_firstStart = false;
    write();
    return device.number;
}

void DeviceStore::remove(int number)
{
    const auto last = std::remove_if(m_devices.begin(), m_devices.end(),
                                     [=](const DeviceRecord &d) { return d.number == number; });
    if (last == m_devices.end())
        return;
    m_devices.erase(last, m_devices.end());
    write();
}

void DeviceStore::read()
{
    QSettings settings(m_settingsFile, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    m_firstStart = !settings.contains(nextNumberKey);

    constexpr int highestNumber = std::numeric_limits<int>::max() / 2;
    const int count = settings.beginReadArray(arrayKey);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        DeviceRecord device{settings.value(numberKey).toInt(), settings.value(fileKey).toString(),
                            settings.value(iedKey).toString()};
        const bool taken =
            std::any_of(m_devices.cbegin(), m_devices.cend(),
                        [&](const DeviceRecord &other) { return other.number == device.number; });
        if (device.file.isEmpty() || device.number < 1 || device.number > highestNumber || taken)
            continue;
        m_nextNumber = std::max(m_nextNumber, device.number + 1);
        m_devices.append(device);
    }
    settings.endArray();
    const int remembered = settings.value(nextNumberKey).toInt();
    if (remembered <= highestNumber)
        m_nextNumber = std::max(m_nextNumber, remembered);

    if (settings.status() != QSettings::NoError) {
        m_problem = QCoreApplication::translate(
                        "DeviceStore", "The list of devices in \"%1\" cannot be read completely.")
                        .arg(m_settingsFile);
    }
}

void DeviceStore::write()
{
    QSettings settings(m_settingsFile, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    settings.remove(arrayKey);
    settings.beginWriteArray(arrayKey, m_devices.size());
    for (int i = 0; i < m_devices.size(); ++i) {
        settings.setArrayIndex(i);
        settings.setValue(numberKey, m_devices[i].number);
        settings.setValue(fileKey, m_devices[i].file);
        settings.setValue(iedKey, m_devices[i].ied);
    }
    settings.endArray();
    settings.setValue(nextNumberKey, m_nextNumber);
    settings.sync();

    m_problem.clear();
    if (settings.status() != QSettings::NoError) {
        m_problem = QCoreApplication::translate("DeviceStore",
                                                "The list of devices cannot be saved in \"%1\" and "
                                                "will be as before at the next start.")
                        .arg(m_settingsFile);
    }
}
