// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "commands.h"
#include "session.h"

#include <devicemodel/mmsvalue.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

class PhysicalDevice;

/// A live value with what the model knows about it.
QJsonObject valueRow(const PhysicalDevice &device, const MMSValue &value);
void showValues(Output &output, const QJsonArray &rows);

/// One line for each time that the association was lost or stands again.
void showTurns(Session &session);

/// Marks that a stream runs as long as it lives.
class StreamScope
{
public:
    StreamScope() { Session::streaming() = true; }
    ~StreamScope() { Session::streaming() = false; }
    Q_DISABLE_COPY(StreamScope)
};

/// Shows the values that come until the limit or the operator ends it.
/// @param references of attributes; empty: all
ExitStatus streamValues(Session &session, const PhysicalDevice &device,
                        const QStringList &references, Session::Origin origin,
                        Commands::StreamLimit limit);
