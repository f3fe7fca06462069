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

OperationResult IedDriver::getFileDirectory(long, const QString &, const QString &,
                                            QList<MMSFileEntry> &, QString &error)
{
    return refused(error);
}

OperationResult IedDriver::getFile(long, const QString &, QByteArray &, QString &error)
{
    return refused(error);
}

OperationResult IedDriver::deleteFile(long, const QString &, QString &error)
{
    return refused(error);
}

OperationResult IedDriver::writeFile(long, const QString &, const QString &, QString &error)
{
    return refused(error);
}
