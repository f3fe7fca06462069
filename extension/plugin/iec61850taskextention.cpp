// SPDX-License-Identifier: Apache-2.0
#include "iec61850taskextention.h"

#include "browser/iedmodelview.h"
#include "fileservice/fileservicedialog.h"
#include "report/reportcontrol.h"
#include "toolkit/modallife.h"

#include <devicemodel/mmsvalue.h>
#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>
#include <remoteclient/iec61850controllerinterface.h>
#include <tavrix/tavrix.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QLoggingCategory>
#include <QtCore/QMetaType>
#include <QtCore/QPointer>
#include <QtCore/QTranslator>
#include <QtWidgets/QAction>
#include <QtWidgets/QDialog>
#include <QtWidgets/QWidget>

namespace {

Q_LOGGING_CATEGORY(lcExtension, "iec61850ext.plugin", QtWarningMsg)

constexpr int iec61850Protocol = 4;

/// The host's window, which may be destroyed while a dialog is prepared or runs.
class HostWindow
{
public:
    explicit HostWindow(const HostTaskContext &context)
        : m_isThere(context.mainWindow)
        , m_window(context.mainWindow)
    {
    }

    /// Run a dialog, which ends when the window is destroyed.
    void run(QDialog &dialog) const
    {
        if (m_isThere && !m_window)
            return;
        ModalLife(&dialog, m_window, ModalLife::UntilItIsDestroyed).exec();
    }

private:
    const bool m_isThere;
    const QPointer<QWidget> m_window;
};

} // namespace

IEC61850TaskExtention::IEC61850TaskExtention() = default;

IEC61850TaskExtention::~IEC61850TaskExtention() = default;

bool IEC61850TaskExtention::isInitialized()
{
    return m_initialized;
}

void IEC61850TaskExtention::initialize()
{
    if (m_initialized)
        return;

    auto *translator = new QTranslator(this);
    const bool translated =
        translator->load(QStringLiteral("iec61850ext_") + QLocale::system().name(),
                         QCoreApplication::applicationDirPath() + QStringLiteral("/translation"));
    if (!translated)
        qCDebug(lcExtension) << "no translation for" << QLocale::system().name();
    QCoreApplication::installTranslator(translator);

    // Before any browser starts to listen for live values.
    Tavrix::ConnectMid(nullptr);
    m_initialized = true;

    // Live values reach the browsers from their listener threads in queued signals.
    qRegisterMetaType<MMSValue>("MMSValue&");
    qRegisterMetaType<QList<MMSValue>>("QList<MMSValue>&");
    qRegisterMetaType<QList<MMSValue>>();

    m_iedBrowserAction = createAction(tr("IED Browser"), &IEC61850TaskExtention::openIEDView);
    m_fileServiceAction =
        createAction(tr("IED File Service"), &IEC61850TaskExtention::openFileService);
    m_abortAction = createAction(tr("Abort"), &IEC61850TaskExtention::abort);
    m_reportAction = createAction(tr("Report Control"), &IEC61850TaskExtention::openReportService);
}

bool IEC61850TaskExtention::isAvailable()
{
    return true;
}

void IEC61850TaskExtention::setTaskContext(int driverNo, int deviceNo, int taskParameter,
                                           HostTaskContext *context)
{
    m_driverNo = driverNo;
    m_deviceNo = deviceNo;
    m_taskParameter = taskParameter;
    m_hostContext = context;
}

QList<QAction *> IEC61850TaskExtention::actions()
{
    if (!m_iedBrowserAction)
        return {};
    return {m_iedBrowserAction, m_fileServiceAction};
}

bool IEC61850TaskExtention::supportsProtocol(int protocolType)
{
    return protocolType == iec61850Protocol;
}

void IEC61850TaskExtention::openFileService()
{
    const HostWindow host(*m_hostContext);
    FileServiceDialog dialog(m_driverNo, m_deviceNo, m_hostContext, nullptr);
    host.run(dialog);
}

void IEC61850TaskExtention::openIEDView()
{
    // A child of the host's window, which may be destroyed while init() shows a box.
    const QPointer<IEDModelView> view(new IEDModelView(m_driverNo, m_deviceNo, m_taskParameter,
                                                       m_hostContext, m_hostContext->mainWindow));
    if (!view->init()) {
        delete view;
        return;
    }
    view->setAttribute(Qt::WA_DeleteOnClose);
    view->show();
}

void IEC61850TaskExtention::openReportService()
{
    IEC61850ControllerInterface controller;
    controller.setLocation(m_hostContext->console->currentAddress(), m_driverNo);
    const HostWindow host(*m_hostContext);
    ReportControl dialog(m_deviceNo, m_taskParameter, &controller, nullptr);
    host.run(dialog);
}

void IEC61850TaskExtention::abort()
{
    const QString controllerName =
        QStringLiteral("%1_%2").arg(QStringLiteral("IEC61850Controller")).arg(m_driverNo);
    qCDebug(lcExtension) << controllerName << "aborts the association with device" << m_deviceNo;

    IEC61850ControllerInterface controller;
    controller.setLocation(m_hostContext->console->currentAddress(), m_driverNo);
    controller.abortClose(m_deviceNo);
}

QAction *IEC61850TaskExtention::createAction(const QString &text,
                                             void (IEC61850TaskExtention::*slot)())
{
    auto *action = new QAction(text, this);
    connect(action, &QAction::triggered, this, slot);
    return action;
}
