// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicestore.h"

#include "driver/administration/devicetestresult.h"

#include <QtWidgets/QDialog>

#include <functional>
#include <memory>

namespace Ui {
class DeviceDialog;
}
class BackgroundJobs;
class QLineEdit;

/// Asks for everything that the driver has to know about a device. Faults are shown in the form,
/// one sentence each, and follow the fields from the first try to accept; the dialog stays until
/// there are none. GUI thread.
class DeviceDialog : public QDialog
{
    Q_OBJECT

public:
    /// Takes the device; its faults, in which case nothing has happened.
    using Save = std::function<QStringList(const DeviceRecord &record)>;
    /// What is wrong with a configuration, one sentence each.
    using Check = std::function<QStringList(const DeviceConfiguration &configuration)>;
    /// Tries to reach the device; called in another thread.
    using Test = std::function<DeviceTestResult(const DeviceConfiguration &configuration)>;

    /// @param record what the fields begin with; number 0 for a new device
    /// @param jobs not owned; must outlive the dialog
    DeviceDialog(const DeviceRecord &record, Save save, Check check, Test test,
                 BackgroundJobs &jobs, QWidget *parent = nullptr);
    ~DeviceDialog() override;

    /// The device as the fields describe it. @param faults gets a sentence for each field that
    /// cannot be understood
    DeviceRecord record(QStringList &faults) const;

public slots:
    void accept() override;

private:
    void fill();
    void fillAddress(const AssociationAddress &address, const QString &side);
    AssociationAddress addressOf(const QString &side, const QString &who,
                                 QStringList &faults) const;
    void setUpBrowse(QLineEdit *field, const QString &title, bool several);
    QLineEdit *field(const QString &name) const;
    QStringList currentFaults() const;
    void showFaults(const QStringList &faults);
    void makeRoom();
    /// What the device is called unless it gets a name: the IED of the file, or what the device
    /// answered to a test, or where it is.
    void suggestName();
    QString placeText() const;
    void testConnection();
    void showTestResult(const DeviceTestResult &result);

    const std::unique_ptr<Ui::DeviceDialog> m_ui;
    const DeviceRecord m_original;
    const Save m_save;
    const Check m_check;
    const Test m_test;
    BackgroundJobs &m_jobs;
    QString m_iedName; ///< as the device itself says
    bool m_faultsFollow = false;
};
