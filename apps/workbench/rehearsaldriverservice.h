// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <devicemodel/physicaldevice.h>
#include <remoteclient/driverservice.h>

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QVariant>
#include <QtCore/QVector>

/// What the tour of pictures plays on: one device model in memory that answers as a connected
/// device would, so that the tools have something to show. Reads publish the model's values, writes
/// and settings are kept, a control sets the status value at once; what leaves nothing to be seen
/// merely succeeds. It is no simulator - nothing happens by itself, no report is sent, no access is
/// refused - and the workbench never offers it as a device. GUI thread.
class RehearsalDriverService : public DriverService
{
public:
    /// @param model a device in the form that PhysicalDevice::fromStream() reads; answers to every
    ///              device number
    explicit RehearsalDriverService(const QByteArray &model);

    OperationResult getIEDModel(long deviceNo, QByteArray &model, QString &error) override;
    OperationResult getServerDirectory(long deviceNo, QList<NameVaildValue> &list,
                                       QString &error) override;
    OperationResult getLogicalDeviceDirectory(long deviceNo, const QString &ldName,
                                              QList<NameVaildValue> &list, QString &error) override;
    OperationResult getLogicalNodeDirectory(long deviceNo, const QString &ldName,
                                            const QString &lnName, QList<NameVaildValue> &list,
                                            QString &error) override;
    OperationResult getDataDirectory(long deviceNo, const QString &ldName,
                                     const QString &dataReference, QList<NameVaildValue> &list,
                                     QString &error) override;
    OperationResult getDataSetList(long deviceNo, const QString &ldName,
                                   QList<NameVaildValue> &list, QString &error) override;
    OperationResult getDataSetDirectory(long deviceNo, const QString &ldName,
                                        const QString &dataSetReference,
                                        QList<NameVaildValue> &list, QString &error) override;
    OperationResult getXRCB(long deviceNo, const QString &ldName, const QString &lnName,
                            const QString &kind, QList<NameVaildValue> &list,
                            QString &error) override;
    OperationResult getSGCBBlock(long deviceNo, const QString &ldName, QList<NameVaildValue> &list,
                                 QString &error) override;
    OperationResult readVariable(long deviceNo, const QString &ldName,
                                 const QStringList &references, QString &error) override;
    OperationResult readDataSetValue(long deviceNo, const QString &ldName,
                                     const QString &dataSetReference, QString &error) override;
    OperationResult writeVariable(long deviceNo, const QString &ldName, const QString &reference,
                                  const QByteArray &value, QString &error) override;
    OperationResult writeValue(long deviceNo, const QString &ldName, const QString &blockReference,
                               const QString &attribute, const QByteArray &value,
                               QString &error) override;
    OperationResult selectObject(long deviceNo, const QString &ldName,
                                 const QString &objectReference, const QByteArray &controlBlock,
                                 QString &error) override;
    OperationResult controlObject(long deviceNo, const QString &ldName,
                                  const QString &objectReference, const QByteArray &controlBlock,
                                  QString &error) override;
    OperationResult cancelObject(long deviceNo, const QString &ldName,
                                 const QString &objectReference, const QByteArray &controlBlock,
                                 QString &error) override;
    OperationResult createDataSet(long deviceNo, const QString &ldName,
                                  const QString &dataSetReference, const QString &members,
                                  int nonPersistent, QString &error) override;
    OperationResult deleteDataSet(long deviceNo, const QString &ldName,
                                  const QString &dataSetReference, QString &error) override;
    OperationResult getFileDirectory(long deviceNo, const QString &pattern,
                                     const QString &directory, QList<MMSFileEntry> &entries,
                                     QString &error) override;
    OperationResult getFile(long deviceNo, const QString &fileName, QByteArray &content,
                            QString &error) override;
    OperationResult deleteFile(long deviceNo, const QString &fileName, QString &error) override;
    OperationResult writeFile(long deviceNo, const QString &localFile, const QString &fileName,
                              QString &error) override;
    OperationResult getBRCBValues(long deviceNo, const QString &ldName,
                                  const QString &blockReference, ReportBlock &block,
                                  QString &error) override;
    OperationResult enableReportBlock(long deviceNo, const QString &ldName,
                                      const QString &blockReference, const QString &rptId,
                                      const QString &dataSet, const ReportBlock &block,
                                      QString &error) override;
    OperationResult getSGCB(long deviceNo, const QString &sgcbReference, SGCB &block,
                            QString &error) override;
    OperationResult getSGCBValue(long deviceNo, const QString &sgcbReference, const QString &fc,
                                 QList<SGCBValue> &values, QString &error) override;
    OperationResult setSGCBValues(long deviceNo, const QString &sgcbReference,
                                  const QList<SGCBValue> &values, QString &error) override;
    OperationResult selectEditSG(long deviceNo, const QString &sgcbReference, int group,
                                 QString &error) override;
    OperationResult selectActiveSG(long deviceNo, const QString &sgcbReference, int group,
                                   QString &error) override;
    OperationResult abortClose(long deviceNo) override;

private:
    using Settings = QMap<QString, QVariant>; ///< value by reference

    struct SettingGroups
    {
        SGCB block;
        QVector<Settings> groups;
        QStringList references; ///< of the settings in the device's order
    };

    struct File
    {
        QByteArray content;
        quint32 modified = 0; ///< seconds since 1970-01-01 00:00 UTC
    };

    void takeSettingGroups(const LogicalDevice &logicalDevice);
    void takeReportBlocks(const LogicalDevice &logicalDevice);
    void fillFileStore();
    SettingGroups *settingGroups(const QString &logicalDevice, QString &error);
    ReportBlock *reportBlock(const QString &ldName, const QString &blockReference, QString &error);
    const LogicalDevice *logicalDevice(const QString &ldName) const;
    QList<const DataAttribute *> attributesBelow(const QString &reference) const;
    OperationResult store(DataAttribute *attribute, const QVariant &value, QString &error);
    OperationResult publish(long deviceNo, const QList<const DataAttribute *> &attributes,
                            QString &error) const;

    PhysicalDevice m_device;
    QHash<QString, SettingGroups> m_settingGroups; ///< by logical device
    QHash<QString, ReportBlock> m_reportBlocks;    ///< by logical device "/" reference
    QMap<QString, File> m_files;                   ///< by path, backslashes between directories
};
