// SPDX-License-Identifier: Apache-2.0
#include "devicestore.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QSettings>

#include <algorithm>
#include <limits>

namespace {

const QString arrayKey = QStringLiteral("devices");
const QString numberKey = QStringLiteral("number");
const QString fileKey = QStringLiteral("file");
const QString iedKey = QStringLiteral("ied");
const QString simulatedKey = QStringLiteral("simulated");
const QString connectsKey = QStringLiteral("connects");
const QString connectionKey = QStringLiteral("connection");
const QString nextNumberKey = QStringLiteral("nextDeviceNumber");

} // namespace

DeviceRecord DeviceRecord::ofFile(const QString &file, const QString &ied, bool simulated)
{
    DeviceRecord record;
    record.configuration.name = ied;
    record.configuration.sclFile = file;
    record.configuration.ied = ied;
    record.simulated = simulated;
    return record;
}

DeviceStore::DeviceStore(const QString &settingsFile)
    : m_settingsFile(settingsFile)
{
    read();
}

void DeviceStore::makePrivate(const QString &settingsFile)
{
    QFile file(settingsFile);
    if (!file.exists()) {
        QFileInfo(settingsFile).dir().mkpath(QStringLiteral("."));
        file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
        file.close();
    }
    // What is written into it later keeps them.
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

QString DeviceStore::canonicalFile(const QString &file)
{
    const QFileInfo info(file);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

int DeviceStore::find(const QString &file, const QString &ied, bool simulated) const
{
    const QString canonical = canonicalFile(file);
    for (const DeviceRecord &device : m_devices) {
        if (device.simulated == simulated && device.isReached() == simulated &&
            device.ied() == ied && canonicalFile(device.file()) == canonical) {
            return device.number();
        }
    }
    return 0;
}

int DeviceStore::add(const QString &file, const QString &ied, bool simulated)
{
    if (const int known = find(file, ied, simulated))
        return known;
    return put(DeviceRecord::ofFile(canonicalFile(file), ied, simulated));
}

int DeviceStore::put(DeviceRecord record)
{
    const auto known =
        std::find_if(m_devices.begin(), m_devices.end(), [&record](const DeviceRecord &device) {
            return device.number() == record.number();
        });
    if (known == m_devices.end()) {
        record.configuration.number = m_nextNumber++;
        m_devices.append(record);
    } else {
        *known = record;
    }
    m_firstStart = false;
    write();
    return record.number();
}

void DeviceStore::restore(const DeviceRecord &record)
{
    m_devices.append(record);
    put(record);
}

void DeviceStore::remove(int number)
{
    const auto last = std::remove_if(m_devices.begin(), m_devices.end(),
                                     [=](const DeviceRecord &d) { return d.number() == number; });
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

    bool isComplete = true;
    constexpr int highestNumber = std::numeric_limits<int>::max() / 2;
    const int count = settings.beginReadArray(arrayKey);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        DeviceRecord device;
        const QByteArray connection = settings.value(connectionKey).toByteArray();
        if (!connection.isEmpty()) {
            const QJsonDocument document = QJsonDocument::fromJson(connection);
            QString error;
            device.configuration = DeviceConfiguration::fromJson(document.object(), error);
            isComplete = isComplete && document.isObject() && error.isEmpty();
        }
        device.configuration.number = settings.value(numberKey).toInt();
        device.configuration.sclFile = settings.value(fileKey).toString();
        device.configuration.ied = settings.value(iedKey).toString();
        if (device.configuration.name.isEmpty())
            device.configuration.name = device.configuration.ied;
        device.simulated = settings.value(simulatedKey).toBool();
        device.connects = settings.value(connectsKey, true).toBool();
        const int number = device.number();
        const bool taken =
            std::any_of(m_devices.cbegin(), m_devices.cend(),
                        [number](const DeviceRecord &other) { return other.number() == number; });
        const bool isNowhere = device.file().isEmpty() && device.configuration.host.isEmpty();
        if (isNowhere || number < 1 || number > highestNumber || taken)
            continue;
        m_nextNumber = std::max(m_nextNumber, number + 1);
        m_devices.append(device);
    }
    settings.endArray();
    const int remembered = settings.value(nextNumberKey).toInt();
    if (remembered <= highestNumber)
        m_nextNumber = std::max(m_nextNumber, remembered);

    if (settings.status() != QSettings::NoError || !isComplete) {
        m_problem = QCoreApplication::translate(
                        "DeviceStore", "The list of devices in \"%1\" cannot be read completely.")
                        .arg(m_settingsFile);
    }
}

void DeviceStore::freeze(const QString &reason)
{
    m_isFrozen = true;
    m_problem = reason;
}

void DeviceStore::write()
{
    if (m_isFrozen)
        return;
    makePrivate(m_settingsFile);
    QSettings settings(m_settingsFile, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    settings.remove(arrayKey);
    settings.beginWriteArray(arrayKey, m_devices.size());
    for (int i = 0; i < m_devices.size(); ++i) {
        settings.setArrayIndex(i);
        const DeviceRecord &device = m_devices[i];
        settings.setValue(numberKey, device.number());
        settings.setValue(fileKey, device.file());
        settings.setValue(iedKey, device.ied());
        if (!device.isReached())
            continue;
        settings.setValue(simulatedKey, device.simulated);
        settings.setValue(connectsKey, device.connects);
        const QJsonDocument connection(device.configuration.toJson());
        settings.setValue(connectionKey, connection.toJson(QJsonDocument::Compact));
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
