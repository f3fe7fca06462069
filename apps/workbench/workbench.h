// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicelistmodel.h"
#include "deviceloader.h"
#include "devicestore.h"
#include "embeddedconsole.h"
#include "journalmodel.h"

#include <host/hosttaskcontext.h>

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <functional>
#include <memory>

class DriverService;

/// The workbench without its windows: the devices, the embedded driver, the journal. It registers
/// the driver's service and observes the controller calls as long as it lives, and must outlive
/// every window, those of the plug-in included. GUI thread.
class Workbench : public QObject
{
    Q_OBJECT

public:
    /// The driver that the workbench embeds.
    struct Driver
    {
        std::shared_ptr<DriverService> service;
        ImportFunction import;
        /// Answer for the device with this serialised model from now on.
        std::function<void(int number, const QByteArray &model)> hold;
        /// Answer for the device no longer.
        std::function<void(int number)> release;
    };

    static const QString demonstrationFile;

    Workbench(const QString &settingsFile, Driver driver, QObject *parent = nullptr);
    ~Workbench() override;

    DeviceListModel &devices() { return m_devices; }
    JournalModel &journal() { return m_journal; }
    /// What the extension gets; the main window enters itself.
    HostTaskContext &context() { return m_context; }
    DeviceLoader &loader() { return m_loader; }

    /// Show the remembered devices and read their models; at the very first start show the
    /// demonstration device.
    void restoreDevices();

    /// Open an IED of a file. Without a name the only one is taken; when the file holds several,
    /// choiceNeeded() asks.
    void open(const QString &file, const QString &ied = {});

    void openDemonstration();

    /// Read the model of a device in the list again.
    void reload(int number);

    /// Take a device off the list; its file stays.
    void remove(int number);

    /// Why the list of devices is not safe, one sentence; empty when all is well.
    QString storeProblem() const { return m_store.problem(); }

signals:
    /// Answer with open(file, name) for each IED that is wanted.
    void choiceNeeded(const QString &file, const QVector<IedSummary> &ieds);
    /// A device that the operator opened is in the list, be it new or not.
    void deviceOpened(int number);
    /// Files that could not be opened; one sentence each. The list is as before.
    void openFailed(const QStringList &sentences);
    void loadingCancelled();

private:
    struct Pending
    {
        ImportRequest request;
        DeviceListModel::Device previous; ///< number 0: a device that is being opened
    };

    void loadListed(const DeviceRecord &record);
    void takeResult(int ticket, const ImportResult &result);
    void takeOpened(const ImportRequest &request, const ImportResult &result);
    void takeListed(const DeviceListModel::Device &previous, const ImportResult &result);

    Driver m_driver;
    DeviceStore m_store;
    DeviceListModel m_devices;
    JournalModel m_journal;
    EmbeddedConsole m_console;
    HostTaskContext m_context;
    QHash<int, Pending> m_pending; ///< by ticket
    QStringList m_failures;
    bool m_cancelled = false;
    DeviceLoader m_loader; ///< last, so that its thread ends first
};
