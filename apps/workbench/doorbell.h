// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <atomic>
#include <chrono>

/// Lets other threads say that there is something to fetch, however often, without flooding the GUI
/// thread: the first ring is answered as soon as the event loop runs, those that follow are
/// answered together once the pause after it is over. Belongs to the GUI thread.
class Doorbell : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds defaultPause{100};

    explicit Doorbell(std::chrono::milliseconds pause = defaultPause, QObject *parent = nullptr);

    /// Any thread.
    void ring();

signals:
    /// In the GUI thread.
    void rung();

private:
    // By name, so that nothing but the call passes from thread to thread.
    Q_INVOKABLE void answer();

    std::atomic<bool> m_isRung{false}; ///< and not answered yet
    QTimer m_pause;
};
