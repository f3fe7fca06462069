// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "eventreceiver.h"
#include "exitstatus.h"
#include "output.h"
#include "valuereceiver.h"

#include <devicemodel/physicaldevice.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class DeviceObserver;

/// One device behind a driver, and what the commands have learnt about it. One thread.
class Session
{
public:
    /// @param output outlives the session
    /// @param observer of the device, outlives the session; null when nobody tells its state
    Session(const QString &driverAddress, long deviceNo, Output &output,
            DeviceObserver *observer = nullptr);

    IEC61850ControllerInterface &controller() { return m_controller; }
    long deviceNo() const { return m_deviceNo; }
    Output &output() { return m_output; }
    DeviceObserver *observer() { return m_observer; }

    /// The model, fetched at the first call; null when it cannot be had, which was complained
    /// about.
    PhysicalDevice *model();

    /// Complains with the operation's error; what the command ends with.
    ExitStatus failed(OperationResult result, const QString &error);
    ExitStatus failed(const QString &sentence);
    /// What the command ends with after @p result; complains unless it is a success.
    ExitStatus ended(OperationResult result, const QString &error);
    /// The status of the last failed().
    ExitStatus lastFailure() const { return m_lastFailure; }

    /// Asks the operator whether something is wanted.
    using Question = std::function<bool(const QString &sentence)>;
    /// Empty when nobody is there to answer.
    void setQuestion(Question question) { m_question = std::move(question); }
    const Question &question() const { return m_question; }

    /// Where the driver's report events go; null when nobody takes them.
    void setEvents(std::shared_ptr<EventReceiver> events) { m_events = std::move(events); }
    EventReceiver *events() const { return m_events.get(); }

    /// Starts to listen; values that come from now on are kept for receive().
    void listen();
    enum class Origin {
        Any,
        Wanted, ///< an answer or a report, not what the driver reads of its own accord
    };
    QList<MMSValue> receive(int waitMs, Origin origin);

    /// Calls @p request, which makes the driver publish values, and gathers those of
    /// @p references; ends when all came or after a while of silence. Nothing when the request
    /// failed, which was complained about.
    std::optional<QHash<QString, MMSValue>>
    gather(const QStringList &references,
           const std::function<OperationResult(QString &error)> &request);

    /// What was selected in this session, by object, as it was asked for.
    QHash<QString, ControlBlock> &selections() { return m_selections; }

    /// True once the operator wants the program to end: streams end, and no further command of a
    /// batch is begun. Safe to set from a signal handler.
    static std::atomic<bool> &interrupted();
    /// True while a stream runs, which sees by itself that it is to end. Safe to read from a signal
    /// handler.
    static std::atomic<bool> &streaming();

private:
    IEC61850ControllerInterface m_controller;
    long m_deviceNo;
    Output &m_output;
    DeviceObserver *m_observer;
    std::unique_ptr<PhysicalDevice> m_model;
    std::unique_ptr<ValueReceiver> m_receiver;
    std::shared_ptr<EventReceiver> m_events;
    QHash<QString, ControlBlock> m_selections;
    Question m_question;
    ExitStatus m_lastFailure = ExitStatus::Done;
};
