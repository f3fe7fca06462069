// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/driverservice.h>

/// A driver with one device that has one value. A read posts it; every other service is refused
/// with a sentence for the operator. Device number 7.
class ExampleDriver : public DriverService
{
public:
    OperationResult getIEDModel(long deviceNo, QByteArray &model, QString &error) override;
    OperationResult readVariable(long deviceNo, const QString &ldName,
                                 const QStringList &references, QString &error) override;

    OperationResult getServerDirectory(long, QList<NameVaildValue> &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getLogicalDeviceDirectory(long, const QString &, QList<NameVaildValue> &,
                                              QString &error) override
    {
        return refuse(error);
    }
    OperationResult getLogicalNodeDirectory(long, const QString &, const QString &,
                                            QList<NameVaildValue> &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getDataDirectory(long, const QString &, const QString &,
                                     QList<NameVaildValue> &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getDataSetList(long, const QString &, QList<NameVaildValue> &,
                                   QString &error) override
    {
        return refuse(error);
    }
    OperationResult getDataSetDirectory(long, const QString &, const QString &,
                                        QList<NameVaildValue> &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getXRCB(long, const QString &, const QString &, const QString &,
                            QList<NameVaildValue> &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getSGCBBlock(long, const QString &, QList<NameVaildValue> &,
                                 QString &error) override
    {
        return refuse(error);
    }
    OperationResult readDataSetValue(long, const QString &, const QString &,
                                     QString &error) override
    {
        return refuse(error);
    }
    OperationResult writeVariable(long, const QString &, const QString &, const QByteArray &,
                                  QString &error) override
    {
        return refuse(error);
    }
    OperationResult writeValue(long, const QString &, const QString &, const QString &,
                               const QByteArray &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult selectObject(long, const QString &, const QString &, const QByteArray &,
                                 QString &error) override
    {
        return refuse(error);
    }
    OperationResult controlObject(long, const QString &, const QString &, const QByteArray &,
                                  QString &error) override
    {
        return refuse(error);
    }
    OperationResult cancelObject(long, const QString &, const QString &, const QByteArray &,
                                 QString &error) override
    {
        return refuse(error);
    }
    OperationResult createDataSet(long, const QString &, const QString &, const QString &, int,
                                  QString &error) override
    {
        return refuse(error);
    }
    OperationResult deleteDataSet(long, const QString &, const QString &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getFileDirectory(long, const QString &, const QString &, QList<MMSFileEntry> &,
                                     QString &error) override
    {
        return refuse(error);
    }
    OperationResult getFile(long, const QString &, QByteArray &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult deleteFile(long, const QString &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult writeFile(long, const QString &, const QString &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getBRCBValues(long, const QString &, const QString &, ReportBlock &,
                                  QString &error) override
    {
        return refuse(error);
    }
    OperationResult enableReportBlock(long, const QString &, const QString &, const QString &,
                                      const QString &, const ReportBlock &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getSGCB(long, const QString &, SGCB &, QString &error) override
    {
        return refuse(error);
    }
    OperationResult getSGCBValue(long, const QString &, const QString &, QList<SGCBValue> &,
                                 QString &error) override
    {
        return refuse(error);
    }
    OperationResult setSGCBValues(long, const QString &, const QList<SGCBValue> &,
                                  QString &error) override
    {
        return refuse(error);
    }
    OperationResult selectEditSG(long, const QString &, int, QString &error) override
    {
        return refuse(error);
    }
    OperationResult selectActiveSG(long, const QString &, int, QString &error) override
    {
        return refuse(error);
    }
    OperationResult abortClose(long) override { return OperationNotConnected; }

private:
    static OperationResult refuse(QString &error);
};
