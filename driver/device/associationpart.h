// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <asio/awaitable.hpp>

#include <QtCore/QString>

/// Something that lives with the associations of a device, such as its report subscriptions. Made
/// by DeviceConnection::part() at its first use, which may be while an association stands, and
/// destroyed with the connection; everything is called in the connection's strand. Each coroutine
/// is awaited before the next one is called.
class AssociationPart
{
public:
    AssociationPart() = default;
    virtual ~AssociationPart();
    Q_DISABLE_COPY(AssociationPart)

    /// An association stands and the model is known.
    virtual asio::awaitable<void> opened();
    /// The association is about to be concluded: give back what was reserved on the device.
    virtual asio::awaitable<void> leaving();
    /// The association has ended, orderly or not.
    virtual void closed(const QString &reason);
};
