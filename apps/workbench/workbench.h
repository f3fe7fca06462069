// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "callconfirmation.h"
#include "changejournal.h"
#include "devicelistmodel.h"
#include "deviceloader.h"
#include "devicestore.h"
#include "doorbell.h"
#include "embeddedconsole.h"
#include "journalmodel.h"
#include "waitingcalls.h"

#include "driver/service/embeddeddriver.h"

#include <host/hosttaskcontext.h>

#include <QtCore/QHash>
#include <QtCore/QLockFile>
#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <mutex>

/// The workbench without its windows: the devices, the embedded driver, simulated devices, the
/// journals. It registers the driver's service, observes the controller calls and lets them be
/// confirmed as long as it lives, and must outlive every window, those of the plug-in included. One
/// workbench at a time keeps what is changed in a settings file. GUI thread.
class Workbench : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        QString settingsFile;
        QString journalFile; ///< of changes; empty for none
        QString cacheFolder; ///< of what is remembered of devices between starts; empty for none
        ImportFunction import;
        std::function<EmbeddedDriver(const EmbeddedDriverOptions &)> driver = startEmbeddedDriver;
    };

    static const QString demonstrationFile;

    explicit Workbench(const Options &options, QObject *parent = nullptr);
    ~Workbench() override;

    DriverAdministration &administration() { return *m_driver.administration; }
    DeviceListModel &devices() { return m_devices; }
    JournalModel &journal() { return m_journal; }
    ChangeJournal &changes() { return m_changes; }
    /// What the extension gets; the main window enters itself.
    HostTaskContext &context() { return m_context; }
    DeviceLoader &loader() { return m_loader; }

    /// Show the remembered devices, read their models, start their simulations and connect them; at
    /// the very first start show the demonstration device.
    void restoreDevices();

    /// Open an IED of a file. Without a name the only one is taken; when the file holds several,
    /// choiceNeeded() asks.
    void open(const QString &file, const QString &ied = {});

    /// Simulate an IED of a file and connect to it; otherwise as open().
    void simulate(const QString &file, const QString &ied = {});

    /// Simulate the demonstration device.
    void openDemonstration();

    /// Add a device, of number 0, or give a device of the list another configuration, with which it
    /// is connected where it was before. The faults of the configuration, in which case nothing is
    /// changed.
    QStringList put(const DeviceRecord &record);

    /// Read the model of a device in the list again.
    void reload(int number);

    /// Take a device off the list; its file stays.
    void remove(int number);
    /// The device that was taken off last and can be put back; null when there is none.
    const DeviceRecord *lastRemoved() const;
    /// Put it back under its number, at the end of the list.
    void undoRemove();

    /// Want an association with the device, now and at the next start, or none.
    void connectDevice(int number);
    void disconnectDevice(int number);

    void startSimulation(int number);
    /// End the simulated device, as if it had lost its power; it stays in the list.
    void stopSimulation(int number);

    /// Let the driver refuse whatever changes something on a device; remembered between starts.
    void setReadOnly(bool readOnly);
    bool isReadOnly() const { return m_driver.administration->isReadOnly(); }

    /// Who confirms what the tools are about to send; the main window enters its question.
    CallConfirmation &confirmation() { return m_confirmation; }
    /// What a device is waited for; the main window enters itself.
    WaitingCalls &waiting() { return m_waiting; }
    /// What is asked for; remembered between starts.
    void setConfirmed(CallConfirmation::Scope scope);

    /// Whether this is the workbench that may write the settings file.
    bool keepsSettings() const { return m_lock.isLocked(); }

    /// Why the list of devices is not safe, one sentence; empty when all is well.
    QString storeProblem() const { return m_store.problem(); }

signals:
    /// Answer with open(file, name), or simulate(file, name), for each IED that is wanted.
    void choiceNeeded(const QString &file, const QVector<IedSummary> &ieds, bool simulated);
    /// A device that the operator opened is in the list, be it new or not.
    void deviceOpened(int number);
    /// Files that could not be opened; one sentence each. The list is as before.
    void openFailed(const QStringList &sentences);
    void loadingCancelled();
    void readOnlyChanged(bool readOnly);

private:
    struct Pending
    {
        ImportRequest request;
        DeviceListModel::Device previous; ///< number 0: a device that is being opened
    };

    void subscribe();
    /// What the driver has told since the last time.
    void takeStatuses();
    void open(const ImportRequest &request);
    void begin(const DeviceRecord &record);
    void loadListed(const DeviceRecord &record);
    void takeResult(int ticket, const ImportResult &result);
    void takeOpened(const ImportRequest &request, const ImportResult &result);
    void takeListed(const DeviceListModel::Device &previous, const ImportResult &result);
    void reach(const DeviceRecord &record, const QString &content,
               const QVector<scl::Finding> &findings);
    void setConnects(int number, bool connects);

    CallConfirmation::KnownValue knownValue(long deviceNo, const QStringList &references);

    const QString m_settingsFile;
    QLockFile m_lock;
    DeviceStore m_store;
    DeviceListModel m_devices;
    JournalModel m_journal;
    ChangeJournal m_changes;
    CallConfirmation m_confirmation;
    WaitingCalls m_waiting;
    EmbeddedConsole m_console;
    HostTaskContext m_context;
    QHash<int, std::shared_ptr<SimulatedDevice>> m_simulations; ///< by device number
    std::mutex m_statusMutex;
    QHash<int, DeviceStatus> m_statuses; ///< under the mutex; told and not taken yet, by number
    Doorbell m_statusBell;
    /// Ends before the simulated devices, so that it can leave them in an orderly way.
    EmbeddedDriver m_driver;
    std::unique_ptr<DriverSubscription> m_subscription;
    QHash<int, Pending> m_pending; ///< by ticket
    QVector<DeviceRecord> m_removed;
    QStringList m_failures;
    bool m_cancelled = false;
    DeviceLoader m_loader; ///< last, so that its thread ends first
};
