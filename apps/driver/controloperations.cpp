// SPDX-License-Identifier: Apache-2.0
#include "driverruntime.h"

#include <QtCore/QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

OperationResult refused(QString &error)
{
    error = Texts::tr("This driver does not offer the operation.");
    return OperationFailed;
}

} // namespace

OperationResult IedDriver::selectObject(long, const QString &, const QString &, const QByteArray &,
                                        QString &error)
{
    return refused(error);
}

OperationResult IedDriver::controlObject(long, const QString &, const QString &, const QByteArray &,
                                         QString &error)
{
    return refused(error);
}

OperationResult IedDriver::cancelObject(long, const QString &, const QString &, const QByteArray &,
                                        QString &error)
{
    return refused(error);
}
