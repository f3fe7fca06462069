// SPDX-License-Identifier: Apache-2.0
#include "workbench.h"

#include <remoteclient/driverserviceregistry.h>

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>

const QString Workbench::demonstrationFile = QStringLiteral(":/workbench/demonstration.scd");

Workbench::Workbench(const QString &settingsFile, Driver driver, QObject *parent)
    : QObject(parent)
    , m_driver(std::move(driver))
    , m_store(settingsFile)
    , m_console(m_devices)
    , m_loader(m_driver.import)
{
    m_context.console = &m_console;
    connect(&m_loader, &DeviceLoader::finished, this, &Workbench::takeResult);
    connect(&m_loader, &DeviceLoader::idle, this, [this] {
        const QStringList failures = std::exchange(m_failures, {});
        if (std::exchange(m_cancelled, false))
            emit loadingCancelled();
        if (!failures.isEmpty())
            emit openFailed(failures);
    });
    m_journal.setDeviceNames([this](long deviceNo) {
        const DeviceListModel::Device *device = m_devices.device(static_cast<int>(deviceNo));
        return device ? tr("%1 (%2)").arg(device->record.ied, QString::number(deviceNo))
                      : QString::number(deviceNo);
    });
    DriverServiceRegistry::add(EmbeddedConsole::address, m_driver.service);
    ControllerCallObserver::install(&m_journal);
}

Workbench::~Workbench()
{
    ControllerCallObserver::install(nullptr);
    DriverServiceRegistry::remove(EmbeddedConsole::address);
}

void Workbench::restoreDevices()
{
    for (const DeviceRecord &record : m_store.devices()) {
        m_devices.append(record);
        loadListed(record);
    }
    if (m_store.isFirstStart())
        openDemonstration();
}

void Workbench::open(const QString &file, const QString &ied)
{
    const QString canonical = DeviceStore::canonicalFile(file);
    if (const int known = ied.isEmpty() ? 0 : m_store.find(canonical, ied)) {
        const DeviceListModel::Device *device = m_devices.device(known);
        if (device && device->state == DeviceListModel::Failed)
            reload(known);
        emit deviceOpened(known);
        return;
    }
    const ImportRequest request{canonical, ied};
    m_pending.insert(m_loader.load(request), {request, {}});
}

void Workbench::openDemonstration()
{
    open(demonstrationFile);
}

void Workbench::reload(int number)
{
    const DeviceListModel::Device *device = m_devices.device(number);
    if (device && device->state != DeviceListModel::Loading)
        loadListed(device->record);
}

void Workbench::loadListed(const DeviceRecord &record)
{
    const DeviceListModel::Device previous = *m_devices.device(record.number);
    m_devices.setLoading(record.number);
    const ImportRequest request{record.file, record.ied};
    m_pending.insert(m_loader.load(request), {request, previous});
}

void Workbench::remove(int number)
{
    m_store.remove(number);
    m_devices.remove(number);
    m_driver.release(number);
}

void Workbench::takeResult(int ticket, const ImportResult &result)
{
    const Pending pending = m_pending.take(ticket);
    if (result.status == ImportResult::Cancelled)
        m_cancelled = true;
    if (pending.previous.record.number == 0)
        takeOpened(pending.request, result);
    else
        takeListed(pending.previous, result);
}

void Workbench::takeOpened(const ImportRequest &request, const ImportResult &result)
{
    switch (result.status) {
    case ImportResult::Cancelled:
        return;
    case ImportResult::Failed:
        m_failures << tr("\"%1\" cannot be used: %2")
                          .arg(QFileInfo(request.file).fileName(), result.error);
        return;
    case ImportResult::ChoiceNeeded:
        emit choiceNeeded(request.file, result.ieds);
        return;
    case ImportResult::Imported:
        break;
    }
    const bool known = m_store.find(request.file, result.ied) != 0;
    const int number = m_store.add(request.file, result.ied);
    if (!known)
        m_devices.append({number, request.file, result.ied});
    DeviceListModel::Device device = *m_devices.device(number);
    takeListed(device, result);
    emit deviceOpened(number);
}

void Workbench::takeListed(const DeviceListModel::Device &previous, const ImportResult &result)
{
    const int number = previous.record.number;
    if (!m_devices.device(number))
        return;
    switch (result.status) {
    case ImportResult::Imported: {
        const QLocale locale;
        m_driver.hold(number, result.model);
        m_devices.setReady(number,
                           tr("Logical devices: %1, logical nodes: %2, data attributes: %3")
                               .arg(locale.toString(result.logicalDevices),
                                    locale.toString(result.logicalNodes),
                                    locale.toString(result.attributes)),
                           result.findings);
        break;
    }
    case ImportResult::Cancelled:
        if (previous.state == DeviceListModel::Ready)
            m_devices.setReady(number, previous.content, previous.findings);
        else
            m_devices.setFailed(number, previous.state == DeviceListModel::Failed
                                            ? previous.reason
                                            : tr("Loading was cancelled."));
        break;
    case ImportResult::ChoiceNeeded:
    case ImportResult::Failed:
        m_driver.release(number);
        m_devices.setFailed(number, result.error);
        break;
    }
}
