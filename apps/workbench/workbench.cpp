// SPDX-License-Identifier: Apache-2.0
#include "workbench.h"

#include "simulateddevice.h"

#include <remoteclient/driverserviceregistry.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QSettings>

#include <utility>

namespace {

const QString readOnlyKey = QStringLiteral("readOnly");
const QString confirmedKey = QStringLiteral("confirm");

/// As in the settings file, in the order of CallConfirmation::Scope.
const QStringList scopeNames = {QStringLiteral("commands"), QStringLiteral("everything"),
                                QStringLiteral("nothing")};

/// The fields of a row of CSV that begins at a position, which is then behind the row.
QStringList csvRow(const QString &csv, int &position)
{
    QStringList fields;
    QString field;
    bool quoted = false;
    for (; position < csv.size(); ++position) {
        const QChar c = csv.at(position);
        if (c == QLatin1Char('"')) {
            const bool isDoubled =
                quoted && position + 1 < csv.size() && csv.at(position + 1) == QLatin1Char('"');
            if (isDoubled)
                field += csv.at(++position);
            else
                quoted = !quoted;
        } else if (!quoted && c == QLatin1Char(',')) {
            fields << std::exchange(field, {});
        } else if (!quoted && c == QLatin1Char('\n')) {
            ++position;
            break;
        } else if (quoted || c != QLatin1Char('\r')) {
            field += c;
        }
    }
    return fields << field;
}

} // namespace

const QString Workbench::demonstrationFile = QStringLiteral(":/workbench/demonstration.scd");

Workbench::Workbench(const Options &options, QObject *parent)
    : QObject(parent)
    , m_settingsFile(options.settingsFile)
    , m_lock(options.settingsFile + QStringLiteral(".in-use"))
    , m_store(options.settingsFile)
    , m_changes(options.journalFile)
    , m_waiting([this](long deviceNo) { m_driver.administration->cancelOperations(deviceNo); })
    , m_console(m_devices)
    , m_loader(options.import)
{
    QFileInfo(m_settingsFile).dir().mkpath(QStringLiteral("."));
    m_lock.setStaleLockTime(0); // only the end of its process frees it
    if (!m_lock.tryLock()) {
        m_store.freeze(m_lock.error() == QLockFile::LockFailedError
                           ? tr("Another workbench uses the list of devices in \"%1\": what is "
                                "changed in this one is not kept.")
                                 .arg(m_settingsFile)
                           : tr("The list of devices in \"%1\" cannot be locked: what is changed "
                                "is not kept.")
                                 .arg(m_settingsFile));
    } else {
        DeviceStore::makePrivate(m_settingsFile);
    }
    EmbeddedDriverOptions driver;
    driver.cacheFolder = options.cacheFolder;
    driver.journal = [this](const DeviceChange &change) { m_changes.write(change); };
    m_driver = options.driver(driver);
    subscribe();
    const QSettings settings(m_settingsFile, QSettings::IniFormat);
    m_driver.administration->setReadOnly(settings.value(readOnlyKey).toBool());
    const int scope = scopeNames.indexOf(settings.value(confirmedKey).toString());
    m_confirmation.setScope(scope < 0 ? CallConfirmation::Commands
                                      : CallConfirmation::Scope(scope));

    m_context.console = &m_console;
    connect(&m_loader, &DeviceLoader::finished, this, &Workbench::takeResult);
    connect(&m_loader, &DeviceLoader::idle, this, [this] {
        const QStringList failures = std::exchange(m_failures, {});
        if (std::exchange(m_cancelled, false))
            emit loadingCancelled();
        if (!failures.isEmpty())
            emit openFailed(failures);
    });
    const auto deviceName = [this](long deviceNo) {
        const DeviceListModel::Device *device = m_devices.device(static_cast<int>(deviceNo));
        return device ? tr("%1 (%2)").arg(device->record.name(), QString::number(deviceNo))
                      : QString::number(deviceNo);
    };
    m_journal.setDeviceNames(deviceName);
    m_confirmation.setDeviceName(deviceName);
    m_waiting.setDeviceName(deviceName);
    m_confirmation.setLookup([this](long deviceNo, const QStringList &references) {
        return knownValue(deviceNo, references);
    });
    DriverServiceRegistry::add(EmbeddedConsole::address, m_driver.service);
    ControllerCallObserver::install(&m_journal);
    ControllerCallGuard::install(&m_confirmation);
    ControllerCallRunner::install(&m_waiting);
}

Workbench::~Workbench()
{
    ControllerCallRunner::install(nullptr);
    ControllerCallGuard::install(nullptr);
    ControllerCallObserver::install(nullptr);
    DriverServiceRegistry::remove(EmbeddedConsole::address);
}

void Workbench::restoreDevices()
{
    for (const DeviceRecord &record : m_store.devices()) {
        m_devices.append(record);
        begin(record);
    }
    if (m_store.isFirstStart())
        openDemonstration();
}

void Workbench::begin(const DeviceRecord &record)
{
    if (record.simulated || !record.isReached())
        loadListed(record);
    else
        reach(record, {}, {});
}

void Workbench::open(const QString &file, const QString &ied)
{
    ImportRequest request;
    request.file = file;
    request.ied = ied;
    open(request);
}

void Workbench::simulate(const QString &file, const QString &ied)
{
    ImportRequest request;
    request.file = file;
    request.ied = ied;
    request.simulate = true;
    open(request);
}

void Workbench::open(const ImportRequest &wanted)
{
    ImportRequest request = wanted;
    request.file = DeviceStore::canonicalFile(wanted.file);
    const int known =
        request.ied.isEmpty() ? 0 : m_store.find(request.file, request.ied, request.simulate);
    if (known == 0) {
        m_pending.insert(m_loader.load(request), {request, {}});
        return;
    }
    const DeviceListModel::Device *device = m_devices.device(known);
    if (device && device->state == DeviceListModel::Stopped)
        startSimulation(known);
    else if (device && device->state == DeviceListModel::Failed)
        reload(known);
    emit deviceOpened(known);
}

void Workbench::openDemonstration()
{
    simulate(demonstrationFile);
}

QStringList Workbench::put(const DeviceRecord &record)
{
    DeviceRecord wanted = record;
    const bool isNew = record.number() == 0;
    if (isNew)
        wanted.configuration.number = m_store.nextNumber();
    QStringList faults = m_driver.administration->faults(wanted.configuration);
    if (!faults.isEmpty())
        return faults;
    const int number = m_store.put(wanted);
    if (isNew) {
        m_devices.append(wanted);
        begin(wanted);
        emit deviceOpened(number);
        return {};
    }
    const DeviceListModel::Device previous = *m_devices.device(number);
    m_devices.setRecord(wanted);
    if (wanted.simulated && previous.state == DeviceListModel::Ready) {
        reach(wanted, previous.content, previous.findings);
    } else if (previous.state != DeviceListModel::Stopped) {
        m_driver.administration->removeDevice(number);
        begin(wanted);
    }
    return {};
}

void Workbench::reload(int number)
{
    const DeviceListModel::Device *device = m_devices.device(number);
    if (!device || device->state == DeviceListModel::Loading)
        return;
    if (device->state == DeviceListModel::Stopped)
        startSimulation(number);
    else if (device->state == DeviceListModel::Ready && device->record.isReached())
        reach(device->record, device->content, device->findings);
    else
        begin(device->record);
}

void Workbench::loadListed(const DeviceRecord &record)
{
    const DeviceListModel::Device previous = *m_devices.device(record.number());
    m_devices.setLoading(record.number());
    ImportRequest request;
    request.file = record.file();
    request.ied = record.ied();
    request.simulate = record.simulated;
    request.port = record.configuration.host.isEmpty() ? 0 : record.configuration.port;
    m_pending.insert(m_loader.load(request), {request, previous});
}

const DeviceRecord *Workbench::lastRemoved() const
{
    return m_removed.isEmpty() ? nullptr : &m_removed.last();
}

void Workbench::undoRemove()
{
    if (m_removed.isEmpty())
        return;
    const DeviceRecord record = m_removed.takeLast();
    m_store.restore(record);
    m_devices.append(record);
    begin(record);
    emit deviceOpened(record.number());
}

void Workbench::remove(int number)
{
    if (const DeviceListModel::Device *device = m_devices.device(number))
        m_removed.append(device->record);
    m_store.remove(number);
    m_devices.remove(number);
    m_driver.administration->removeDevice(number);
    m_simulations.remove(number);
}

void Workbench::setConnects(int number, bool connects)
{
    const DeviceListModel::Device *device = m_devices.device(number);
    if (!device || device->record.connects == connects)
        return;
    DeviceRecord record = device->record;
    record.connects = connects;
    m_store.put(record);
    m_devices.setRecord(record);
}

void Workbench::connectDevice(int number)
{
    setConnects(number, true);
    m_driver.administration->connectDevice(number);
}

void Workbench::disconnectDevice(int number)
{
    setConnects(number, false);
    m_driver.administration->cancelReading(number);
    m_driver.administration->disconnectDevice(number);
}

void Workbench::startSimulation(int number)
{
    const DeviceListModel::Device *device = m_devices.device(number);
    if (device && device->record.simulated && !m_simulations.contains(number) &&
        device->state != DeviceListModel::Loading) {
        loadListed(device->record);
    }
}

void Workbench::stopSimulation(int number)
{
    const DeviceListModel::Device *device = m_devices.device(number);
    if (!device || !m_simulations.contains(number))
        return;
    m_driver.administration->removeDevice(number);
    m_simulations.remove(number);
    m_devices.setStopped(number);
}

void Workbench::setReadOnly(bool readOnly)
{
    if (readOnly == isReadOnly())
        return;
    m_driver.administration->setReadOnly(readOnly);
    if (keepsSettings())
        QSettings(m_settingsFile, QSettings::IniFormat).setValue(readOnlyKey, readOnly);
    emit readOnlyChanged(readOnly);
}

void Workbench::setConfirmed(CallConfirmation::Scope scope)
{
    m_confirmation.setScope(scope);
    if (keepsSettings())
        QSettings(m_settingsFile, QSettings::IniFormat).setValue(confirmedKey, scopeNames[scope]);
}

CallConfirmation::KnownValue Workbench::knownValue(long deviceNo, const QStringList &references)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!m_driver.administration->exportValues(deviceNo, buffer).isEmpty())
        return {};
    const QString csv = QString::fromUtf8(buffer.data());
    for (const QString &reference : references) {
        int position = csv.indexOf(QLatin1Char('\n') + reference + QLatin1Char(','));
        if (position < 0)
            continue;
        const QStringList row = csvRow(csv, ++position);
        if (row.size() == 4)
            return {row[2], row[3]};
    }
    return {};
}

void Workbench::subscribe()
{
    const auto keep = [this](const DeviceStatus &status) {
        {
            const std::lock_guard<std::mutex> lock(m_statusMutex);
            m_statuses.insert(status.number, status);
        }
        m_statusBell.ring();
    };
    DriverObserver observer;
    observer.statusChanged = keep;
    observer.deviceRemoved = [keep](int number) {
        DeviceStatus none;
        none.number = number;
        keep(none);
    };
    observer.changed = [this](const DeviceChange &change) { m_changes.add(change); };
    connect(&m_statusBell, &Doorbell::rung, this, &Workbench::takeStatuses);
    m_subscription = m_driver.administration->subscribe(std::move(observer));
}

void Workbench::takeStatuses()
{
    QHash<int, DeviceStatus> statuses;
    {
        const std::lock_guard<std::mutex> lock(m_statusMutex);
        statuses.swap(m_statuses);
    }
    for (const DeviceStatus &status : qAsConst(statuses))
        m_devices.setStatus(status);
}

void Workbench::takeResult(int ticket, const ImportResult &result)
{
    const Pending pending = m_pending.take(ticket);
    if (result.status == ImportResult::Cancelled)
        m_cancelled = true;
    if (pending.previous.record.number() == 0)
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
        emit choiceNeeded(request.file, result.ieds, request.simulate);
        return;
    case ImportResult::Imported:
        break;
    }
    const bool known = m_store.find(request.file, result.ied, request.simulate) != 0;
    const int number = m_store.add(request.file, result.ied, request.simulate);
    if (!known) {
        DeviceRecord record = DeviceRecord::ofFile(request.file, result.ied, request.simulate);
        record.configuration.number = number;
        m_devices.append(record);
    }
    // A simulation that runs already is not begun anew.
    if (!m_simulations.contains(number)) {
        const DeviceListModel::Device device = *m_devices.device(number);
        takeListed(device, result);
    }
    emit deviceOpened(number);
}

void Workbench::takeListed(const DeviceListModel::Device &previous, const ImportResult &result)
{
    const int number = previous.record.number();
    const DeviceListModel::Device *device = m_devices.device(number);
    if (!device)
        return;
    switch (result.status) {
    case ImportResult::Imported: {
        const QLocale locale;
        const QString content =
            tr("Logical devices: %1, logical nodes: %2, data attributes: %3")
                .arg(locale.toString(result.logicalDevices), locale.toString(result.logicalNodes),
                     locale.toString(result.attributes));
        if (result.simulation) {
            DeviceRecord record = device->record;
            record.configuration.host = QStringLiteral("127.0.0.1");
            record.configuration.port = result.simulation->port();
            m_simulations[number] = result.simulation;
            m_devices.setRecord(record);
            m_store.put(record);
            reach(record, content, result.findings);
        } else {
            m_driver.administration->holdModel(number, result.model);
            m_devices.setReady(number, content, result.findings);
        }
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
        m_driver.administration->removeDevice(number);
        m_devices.setFailed(number, result.error);
        break;
    }
}

/// Gives a device with an address to the driver.
void Workbench::reach(const DeviceRecord &record, const QString &content,
                      const QVector<scl::Finding> &findings)
{
    const QStringList faults = m_driver.administration->setDevice(record.configuration);
    if (!faults.isEmpty()) {
        m_devices.setFailed(record.number(), faults.first());
        return;
    }
    m_devices.setReady(record.number(), content, findings);
    // What was told of it before is of another association.
    m_devices.setStatus(m_driver.administration->status(record.number()));
    if (record.connects)
        m_driver.administration->connectDevice(record.number());
}
