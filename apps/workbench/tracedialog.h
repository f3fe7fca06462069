// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tracemodel.h"

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
    TraceDialog(DriverAdministration &driver, int deviceNo, const QString &deviceName,
                QWidget *parent = nullptr);
    ~TraceDialog() override;

signals:
    /// The operator wants the PDUs of the device in a file.
    void captureWanted(int deviceNo);

private:
    void refresh();

    const std::unique_ptr<Ui::TraceDialog> m_ui;
    TraceModel m_model;
};
