// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "keptfile.h"

#include <remoteclient/drivercall.h>

#include <deque>
#include <memory>
#include <variant>

/// A call with arguments and answers of its own, for what may go on after its caller has been told
/// that it took too long. One thread at a time.
class KeptCall
{
public:
    explicit KeptCall(const DriverCall &call);
    Q_DISABLE_COPY(KeptCall)

    /// The call, with what is kept here for arguments.
    const DriverCall &call() const { return m_call; }

    /// The caller waits no longer: his files are not used from now on. In his thread.
    void leave();
    /// Gives the answers to the caller, who called with @a call.
    void answer(const DriverCall &call);

private:
    using Value = std::variant<std::monostate, int, QString, QStringList, QByteArray, ReportBlock,
                               QList<SGCBValue>, QList<NameVaildValue>, QList<MMSFileEntry>, SGCB,
                               std::unique_ptr<KeptSink>, std::unique_ptr<KeptSource>>;

    std::deque<Value> m_values; ///< one for each argument; their places do not change
    QString m_error;
    DriverCall m_call;
};
