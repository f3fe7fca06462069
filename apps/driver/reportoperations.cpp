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

OperationResult IedDriver::getBRCBValues(long, const QString &, const QString &, ReportBlock &,
                                         QString &error)
{
    return refused(error);
}

OperationResult IedDriver::writeValue(long, const QString &, const QString &, const QString &,
                                      const QByteArray &, QString &error)
{
    return refused(error);
}

OperationResult IedDriver::enableReportBlock(long, const QString &, const QString &,
                                             const QString &, const QString &, const ReportBlock &,
                                             QString &error)
{
    return refused(error);
}
