// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/controllercallguard.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>

#include <functional>

/// Lets somebody confirm what the tools are about to send to a device, told in words. To cancel a
/// command needs no consent.
///
/// Calls of other threads wait for the GUI thread.
class CallConfirmation : public ControllerCallGuard
{
    Q_DECLARE_TR_FUNCTIONS(CallConfirmation)

public:
    enum Scope { Commands, Everything, Nothing };

    /// A call in words.
    struct Question
    {
        QString operation;                   ///< what is to be done
        QList<QPair<QString, QString>> rows; ///< label and text, plain
    };

    /// An attribute as the driver knows it.
    struct KnownValue
    {
        QString basicType;
        QString value; ///< empty when it is not known
    };

    /// Shows a question and answers whether it was confirmed; without one nothing is.
    using Ask = std::function<bool(const Question &)>;
    /// How a device is called.
    using DeviceName = std::function<QString(long deviceNo)>;
    /// The attribute of a reference, logical device "/" logical node "$" FC "$" path.
    using Lookup = std::function<KnownValue(long deviceNo, const QStringList &references)>;

    void setAsk(Ask ask) { m_ask = std::move(ask); }
    void setDeviceName(DeviceName name) { m_deviceName = std::move(name); }
    void setLookup(Lookup lookup) { m_lookup = std::move(lookup); }

    Scope scope() const { return m_scope; }
    void setScope(Scope scope) { m_scope = scope; }

    Question question(const GuardedCall &call) const;
    QString refusal(const GuardedCall &call) override;

private:
    Ask m_ask;
    DeviceName m_deviceName;
    Lookup m_lookup;
    Scope m_scope = Commands;
};
