// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/controllercallrunner.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <chrono>
#include <functional>

/// Lets the operator cancel what a slow device is waited for. A call from the GUI thread is carried
/// out in another one; for a moment nothing else happens, as if the GUI thread did it itself, and
/// then a window says what is waited for and offers to cancel it. Nothing else of the program can
/// be used meanwhile. Calls from other threads are not touched.
class WaitingCalls : public ControllerCallRunner
{
    Q_DECLARE_TR_FUNCTIONS(WaitingCalls)

public:
    /// Before an operator wonders what is going on.
    static constexpr std::chrono::milliseconds defaultPatience{1000};

    /// @param cancel ends what is under way on a device; called in the GUI thread
    explicit WaitingCalls(std::function<void(long deviceNo)> cancel,
                          std::chrono::milliseconds patience = defaultPatience);

    /// After which the window appears.
    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }
    /// How a device is called; its number unless given.
    void setDeviceName(std::function<QString(long)> deviceName);
    /// Above which the window appears; not owned.
    void setWindow(QWidget *window) { m_window = window; }

    void run(const ControllerCall &call, const std::function<void()> &work) override;

private:
    const std::function<void(long)> m_cancel;
    std::chrono::milliseconds m_patience;
    std::function<QString(long)> m_deviceName;
    QPointer<QWidget> m_window;
};
