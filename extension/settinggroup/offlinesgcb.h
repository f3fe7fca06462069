// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtWidgets/QDialog>

#include <memory>

namespace Ui {
class OfflineSGCB;
}

/// What the device model records of a setting group control block, for work without a connection.
/// Read-only; calls no service.
class OfflineSGCB : public QDialog
{
    Q_OBJECT

public:
    explicit OfflineSGCB(QWidget *parent);
    ~OfflineSGCB() override;

    /// Show the number of setting groups and the number of the active one.
    void setValues(int numOfSG, int activeGroup);

private:
    std::unique_ptr<Ui::OfflineSGCB> m_form;
};
