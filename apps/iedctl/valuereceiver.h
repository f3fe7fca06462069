// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <devicemodel/mmsvalue.h>

#include <QtCore/QList>

/// Receives the live values of the driver, from construction on, as a browser does. One thread.
class ValueReceiver
{
public:
    ValueReceiver();
    ~ValueReceiver();
    Q_DISABLE_COPY(ValueReceiver)

    /// Values that came, oldest first; waits for one at most @p waitMs milliseconds. Values of
    /// other devices are left out.
    QList<MMSValue> receive(long deviceNo, int waitMs);

private:
    unsigned int m_port = 0;
};
