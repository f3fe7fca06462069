// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/driverprotocolextentioninterface.h>

#include <QtCore/QObject>

class QAction;

/// The plug-in object: all that a host sees of this library. It opens the client tools for the
/// device that the host's operator has selected.
///
/// The host calls setTaskContext() before it triggers an action and initialize() before it asks for
/// actions(). Windows that are open keep the numbers they were opened with.
class IEC61850TaskExtention : public QObject, public DriverProtocolExtentionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.brimwell.kestrelon.protocolExtention" FILE "iec61850ext.json")
    Q_INTERFACES(DriverProtocolExtentionInterface)

public:
    IEC61850TaskExtention();
    ~IEC61850TaskExtention() override;

    bool isInitialized() override;
    void initialize() override;
    bool isAvailable() override;
    void setTaskContext(int driverNo, int deviceNo, int taskParameter,
                        HostTaskContext *context) override;
    QList<QAction *> actions() override;
    bool supportsProtocol(int protocolType) override;

public slots:
    void openFileService();
    void openIEDView();
    void openReportService();
    void abort();

private:
    QAction *createAction(const QString &text, void (IEC61850TaskExtention::*slot)());

    QAction *m_fileServiceAction = nullptr;
    QAction *m_abortAction = nullptr;
    QAction *m_reportAction = nullptr;
    QAction *m_iedBrowserAction = nullptr;
    HostTaskContext *m_hostContext = nullptr;
    bool m_initialized = false;
    int m_deviceNo = 0;
    int m_taskParameter = 0;
    int m_driverNo = 0;
};
