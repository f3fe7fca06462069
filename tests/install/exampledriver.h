// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/forwardingdriverservice.h>

/// A driver with one device that has one value. A read posts it; every other service is refused
/// with a sentence for the operator. Device number 7.
class ExampleDriver : public ForwardingDriverService
{
public:
    OperationResult getIEDModel(long deviceNo, QByteArray &model, QString &error) override;
    OperationResult readVariable(long deviceNo, const QString &ldName,
                                 const QStringList &references, QString &error) override;

protected:
    OperationResult call(const DriverCall &call) override;
};
