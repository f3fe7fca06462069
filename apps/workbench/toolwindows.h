// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

/// Writes the device's name into the titles of the extension's windows, which leave that to the
/// host: those that a tool opens, and those that open above them. Message boxes and file dialogs
/// keep their titles. GUI thread.
class ToolWindows : public QObject
{
    Q_OBJECT

public:
    explicit ToolWindows(QObject *parent = nullptr);

    /// Run a tool; the windows that open meanwhile are those of the device.
    void run(const QString &device, const std::function<void()> &tool);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString m_device;
};
