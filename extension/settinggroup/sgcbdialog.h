// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/operationresult.h>

#include <QtCore/QString>
#include <QtWidgets/QDialog>

#include <memory>

class IEC61850ControllerInterface;
class QtVariantEditorFactory;
class QtVariantPropertyManager;

namespace Ui {
class SGCBDialog;
}

/// Works with the setting group control block of a logical device: active group, edit group, and
/// the settings of either, which can be changed and sent back.
///
/// Modal: construct, initSGCB(), and when that answers true exec(). The controller is not owned and
/// must outlive the dialog. Every failed call is reported in a warning box.
class SGCBDialog : public QDialog
{
    Q_OBJECT

public:
    SGCBDialog(IEC61850ControllerInterface *controller, QWidget *parent);
    ~SGCBDialog() override;

    /// Choose the device and the control block, and see that it can be read. Its settings are read
    /// half a second later, when the dialog is on the screen.
    /// \return whether there is anything to show
    bool initSGCB(int deviceNo, const QString &sgcbRef);

public slots:
    /// Make the group chosen in the list of active groups the active one and read its settings.
    void setActiveSettingGroup();
    /// Select a group for editing and read its settings. The group is the position in the list of
    /// active groups, counted from 0.
    void setEditSettingGroup();
    /// Read the control block, fill both lists from it, and read the settings of the active group.
    /// When the control block cannot be read the dialog is rejected.
    void refreshSettingValue();
    /// Show the settings under a functional constraint, "SG" (active group) or "SE" (edit group).
    void readSGCB(const QString &fc);
    /// Send every setting that is shown, changed or not.
    void execute();
    /// Start the list of settings afresh, with a manager and editors of its own.
    void setup();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool report(OperationResult result, const QString &error);
    void disableServices();

    std::unique_ptr<Ui::SGCBDialog> m_form;
    int m_deviceNo = 0;
    QString m_sgcbRef;
    QtVariantPropertyManager *m_manager = nullptr;
    QtVariantEditorFactory *m_factory = nullptr;
    IEC61850ControllerInterface *m_controller;
};
