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

OperationResult IedDriver::getSGCB(long, const QString &, SGCB &, QString &error)
{
    return refused(error);
}

OperationResult IedDriver::getSGCBValue(long, const QString &, const QString &, QList<SGCBValue> &,
                                        QString &error)
{
    return refused(error);
}

OperationResult IedDriver::setSGCBValues(long, const QString &, const QList<SGCBValue> &,
                                         QString &error)
{
    return refused(error);
}

OperationResult IedDriver::selectEditSG(long, const QString &, int, QString &error)
{
    return refused(error);
}

OperationResult IedDriver::selectActiveSG(long, const QString &, int, QString &error)
{
    return refused(error);
}
