// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/records.h>

#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

#include <memory>

class IEC61850ControllerInterface;
struct FailureTexts;
struct OptionalFields;
struct TriggerOptions;
struct stReportControlBlock;

namespace Ui {
class ReportControl;
}

/// The dialog for one report control block: shows its settings, changes them one by one, enables,
/// disables, purges and interrogates it.
///
/// The online form works on the block of the device: construct it, call setReportName() and init(),
/// and run it only when init() returned true. The form always shows the block as last read from the
/// device; a failed call changes nothing. The offline form shows a block as the device model
/// configures it and calls no service. GUI thread; every service is a controller call that blocks
/// the dialog until the driver has answered.
class ReportControl : public QDialog
{
    Q_OBJECT

public:
    /// The online form. `controller` is not owned and must outlive the dialog; the second argument
    /// is not used.
    ReportControl(int deviceNo, int, IEC61850ControllerInterface *controller, QWidget *parent);
    /// The offline form.
    ReportControl(const stReportControlBlock &block, QWidget *parent);
    ~ReportControl() override;

signals:
    /// Emitted whenever the form is filled from a block of the device.
    void reportEnableStateChanged(const QString &ld, const QString &rptName, bool enable);

public slots:
    /// Read the block and show it.
    /// \return false when it could not be read and the operator has been told, and in the offline
    /// form
    bool init();

private slots:
    void initUi();

public slots:
    /// Which block to work on: its logical device and its reference there, and the data sets that
    /// the operator may choose from.
    void setReportName(const QString &ld, const QString &rptName, const QStringList &dataSetName);

private slots:
    /// Make the service call of the button that was released.
    void changeValue();

public slots:
    /// Does nothing.
    void getList();
    /// Show a block as read from the device.
    void updateBlock(const ReportBlock &block);
    /// Does nothing.
    void selectReportControl(int index);
    /// Whether the block was enabled when it was last read from the device.
    bool reportEnabled();
    /// Show a block as configured in the device model and disable everything that changes a device.
    void updateOffline(const stReportControlBlock &block);

private:
    void buildForm();
    FailureTexts failureTexts() const;

    /// Write an attribute of the block and read the block again.
    void writeAttribute(const QString &attribute, const QByteArray &value);
    void enableBlock();
    void readAgain();

    ReportBlock editedBlock() const;
    TriggerOptions shownTriggerOptions() const;
    OptionalFields shownOptionalFields() const;
    void showTriggerOptions(const TriggerOptions &options);

    std::unique_ptr<Ui::ReportControl> m_form;
    const int m_deviceNo;
    ReportBlock m_block;
    QString m_rptName;
    QString m_ld;
    IEC61850ControllerInterface *const m_controller; ///< null in the offline form
};
