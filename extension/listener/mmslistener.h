// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <devicemodel/mmsvalue.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QThread>

/// The thread that receives one browser's live values from the event middleware.
///
/// It makes an event box of its own, named "MMS_DATACHANGE:" and a fresh UUID, receives from it
/// until stop(), and connects again after whatever error: it never ends by itself and reports
/// nothing. Tavrix::ConnectMid() has to come before start().
///
/// The object belongs to the thread that made it; that thread starts and stops it, as often as it
/// likes.
class MMSListener : public QThread
{
    Q_OBJECT

public:
    /// Neither starts the thread nor touches the middleware.
    explicit MMSListener(QObject *parent);
    /// Stops the thread if it runs.
    ~MMSListener() override;

    /// The same for the object's whole life.
    QString eventBoxName() const { return m_eventBoxName; }

protected:
    void run() override;

public:
    /// Ask the thread to end and wait until it has: at most about 555 ms, the length of one receive
    /// and of the pauses, and no time at all when it does not run.
    virtual void stop();

signals:
    /// One received event, its values in the order of its records; empty when it has none. Emitted
    /// from the listener's thread, at most about 20 times a second. A queued connection needs
    /// `QList<MMSValue>` to be a registered meta-type.
    void processMMSMessage(const QList<MMSValue> &values);

private:
    void receiveFrom(unsigned int port);
    bool stopRequested() const;

    int m_stopRequest = 0;
    const QString m_eventBoxName;
};
