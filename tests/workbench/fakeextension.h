// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/driverprotocolextentioninterface.h>

#include <QtCore/QObject>
#include <QtCore/QVariant>
#include <QtWidgets/QAction>

/// An extension that does as its compile definitions say. What it is told can be read back as
/// dynamic properties: "calls" (one text per call) and "context" (driver, device, parameter).
class FakeExtension : public QObject, public DriverProtocolExtentionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID FAKE_IID FILE FAKE_METADATA)
    Q_INTERFACES(DriverProtocolExtentionInterface)

public:
    bool isInitialized() override { return m_initialized; }

    void initialize() override
    {
        record(QStringLiteral("initialize"));
        m_initialized = true;
#if FAKE_HAS_ACTIONS
        auto *tool = new QAction(QStringLiteral("Fake Tool"), this);
        connect(tool, &QAction::triggered, this,
                [this] { record(QStringLiteral("tool on device %1").arg(m_deviceNo)); });
        m_actions << tool;
#endif
    }

    bool isAvailable() override
    {
        return FAKE_AVAILABLE;
    }

    void setTaskContext(int driverNo, int deviceNo, int taskParameter,
                        HostTaskContext *context) override
    {
        m_deviceNo = deviceNo;
        setProperty("context", QVariantList{driverNo, deviceNo, taskParameter, context != nullptr});
    }

    QList<QAction *> actions() override
    {
        return m_actions;
    }

    bool supportsProtocol(int protocolType) override
    {
        return protocolType == FAKE_PROTOCOL;
    }

private:
    void record(const QString &text)
    {
        setProperty("calls", property("calls").toStringList() << text);
    }

    bool m_initialized = false;
    int m_deviceNo = 0;
    QList<QAction *> m_actions;
};
