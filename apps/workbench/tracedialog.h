// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tracemodel.h"

#include <QtCore/QTimer>
#include <QtWidgets/QDialog>

#include <memory>

namespace Ui {
class TraceDialog;
}

/// Shows what is exchanged with a device while it is exchanged. GUI thread.
class TraceDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param driver not owned; must outlive the dialog
    TraceDialog(const IedDriver &driver, int deviceNo, const QString &deviceName,
                QWidget *parent = nullptr);
    ~TraceDialog() override;

signals:
    /// The operator wants the PDUs of the device in a file.
    void captureWanted(int deviceNo);

private:
    const std::unique_ptr<Ui::TraceDialog> m_ui;
    TraceModel m_model;
    QTimer m_timer;
};
