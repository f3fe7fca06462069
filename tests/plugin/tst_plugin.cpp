// SPDX-License-Identifier: Apache-2.0
#include "support/generateddevice.h"
#include "support/modaldriver.h"
#include "support/recordingdriverservice.h"

#include <devicemodel/mmsvalue.h>
#include <host/driverprotocolextentioninterface.h>
#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>
#include <QtCore/QPointer>
#include <QtCore/QSequentialIterable>
#include <QtCore/QTranslator>
#include <QtTest/QTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace {

const char iid[] = "com.brimwell.kestrelon.protocolExtention";

class Console : public DriverConsolInterface
{
public:
    QString currentAddress() override { return QStringLiteral("plugin-test"); }
    OperationResult getLoc(long, long, QString &) override { return OperationSucceeded; }
};

} // namespace

/// Loads the plug-in as a host does and keeps to the host interface.
class tst_Plugin : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void metaDataNamesInterfaceClassAndKey();
    void castsAnswerToClassInterfaceAndIdentifier();
    void loaderKeepsOneInstance();
    void anotherInstanceFollowsADestroyedOne();
    void metaObjectListsTheSlotsInTheirOrder();
    void actionsAreEmptyBeforeInitialize();
    void initializeOffersBrowserAndFileService();
    void secondInitializeChangesNothing();
    void initializeInstallsATranslatorOfItsOwn();
    void initializeRegistersTheLiveValueTypes();
    void onlyProtocolFourIsSupported();
    void extensionIsAlwaysAvailable();
    void everyTriggerOpensABrowserOfItsOwn();
    void closedBrowserIsDeleted();
    void openBrowserKeepsTheNumbersItWasOpenedWith();
    void failedModelFetchLeavesNoBrowser();
    void fileServiceOpensForTheSelectedDevice();
    void reportServiceOpensAndCloses();
    void toolsEndWithTheWindowOfTheHost_data();
    void toolsEndWithTheWindowOfTheHost();
    void abortReachesTheDriver();

private:
    QList<QPointer<QDialog>> browsers() const;

    QPluginLoader m_loader{QStringLiteral(PLUGIN_FILE)};
    DriverProtocolExtentionInterface *m_extension = nullptr;
    std::shared_ptr<RecordingDriverService> m_service;
    std::unique_ptr<DriverServiceRegistration> m_registration;
    Console m_console;
    std::unique_ptr<QWidget> m_mainWindow;
    HostTaskContext m_context;
};

void tst_Plugin::init()
{
    QObject *instance = m_loader.instance();
    QVERIFY2(instance, qPrintable(m_loader.errorString()));
    m_extension = qobject_cast<DriverProtocolExtentionInterface *>(instance);
    QVERIFY(m_extension);

    m_service = std::make_shared<RecordingDriverService>();
    m_service->model = GeneratedDevice().bytes();
    m_registration = std::make_unique<DriverServiceRegistration>("plugin-test", m_service);
    m_mainWindow = std::make_unique<QWidget>();
    m_context.console = &m_console;
    m_context.mainWindow = m_mainWindow.get();
    m_extension->setTaskContext(2, 17, 5, &m_context);
}

void tst_Plugin::cleanup()
{
    m_mainWindow.reset();
    // The loader gives a fresh object to the next test.
    delete m_loader.instance();
    m_registration.reset();
}

QList<QPointer<QDialog>> tst_Plugin::browsers() const
{
    QList<QPointer<QDialog>> found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "IEDModelView")
            found << qobject_cast<QDialog *>(window);
    }
    return found;
}

void tst_Plugin::metaDataNamesInterfaceClassAndKey()
{
    const QJsonObject metaData = m_loader.metaData();
    QCOMPARE(metaData["IID"].toString(), QString(iid));
    QCOMPARE(metaData["className"].toString(), QString("IEC61850TaskExtention"));
    QCOMPARE(metaData["MetaData"].toObject(), (QJsonObject{{"Keys", QJsonArray{"IEC61850Ext"}}}));
#ifdef QT_NO_DEBUG
    QVERIFY(!metaData["debug"].toBool());
#endif
    QCOMPARE(metaData["version"].toInt() >> 16, 5);
}

void tst_Plugin::castsAnswerToClassInterfaceAndIdentifier()
{
    QObject *instance = m_loader.instance();
    QCOMPARE(instance->qt_metacast("IEC61850TaskExtention"), static_cast<void *>(instance));
    QCOMPARE(instance->qt_metacast("DriverProtocolExtentionInterface"),
             static_cast<void *>(m_extension));
    QCOMPARE(instance->qt_metacast(iid), static_cast<void *>(m_extension));
    QCOMPARE(instance->qt_metacast("QObject"), static_cast<void *>(instance));
    QVERIFY(!instance->qt_metacast("QWidget"));
}

void tst_Plugin::loaderKeepsOneInstance()
{
    QCOMPARE(QPluginLoader(PLUGIN_FILE).instance(), m_loader.instance());
}

void tst_Plugin::anotherInstanceFollowsADestroyedOne()
{
    m_extension->initialize();
    delete m_loader.instance();
    auto *next = qobject_cast<DriverProtocolExtentionInterface *>(m_loader.instance());
    QVERIFY(next);
    QVERIFY(!next->isInitialized());
    QVERIFY(!m_loader.instance()->parent());
}

void tst_Plugin::metaObjectListsTheSlotsInTheirOrder()
{
    const QMetaObject *meta = m_loader.instance()->metaObject();
    QStringList methods;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        QCOMPARE(meta->method(i).methodType(), QMetaMethod::Slot);
        methods << QString::fromLatin1(meta->method(i).methodSignature());
    }
    QCOMPARE(methods,
             (QStringList{"openFileService()", "openIEDView()", "openReportService()", "abort()"}));
    QCOMPARE(meta->propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_Plugin::actionsAreEmptyBeforeInitialize()
{
    QVERIFY(!m_extension->isInitialized());
    QVERIFY(m_extension->actions().isEmpty());
}

void tst_Plugin::initializeOffersBrowserAndFileService()
{
    m_extension->initialize();
    QVERIFY(m_extension->isInitialized());
    QStringList texts;
    for (const QAction *action : m_extension->actions()) {
        texts << action->text();
        QCOMPARE(action->parent(), m_loader.instance());
    }
    QCOMPARE(texts, (QStringList{"IED Browser", "IED File Service"}));

    QStringList all;
    for (const QAction *action : m_loader.instance()->findChildren<QAction *>())
        all << action->text();
    QCOMPARE(all, (QStringList{"IED Browser", "IED File Service", "Abort", "Report Control"}));
}

void tst_Plugin::secondInitializeChangesNothing()
{
    m_extension->initialize();
    const QObjectList children = m_loader.instance()->children();
    const QList<QAction *> actions = m_extension->actions();
    m_extension->initialize();
    QCOMPARE(m_loader.instance()->children(), children);
    QCOMPARE(m_extension->actions(), actions);
}

void tst_Plugin::initializeInstallsATranslatorOfItsOwn()
{
    QVERIFY(!m_loader.instance()->findChild<QTranslator *>());
    m_extension->initialize();
    auto *translator = m_loader.instance()->findChild<QTranslator *>();
    QVERIFY(translator);
    // There is nothing for the C locale, and yet it is installed.
    QVERIFY(translator->isEmpty());
    QVERIFY(QCoreApplication::removeTranslator(translator));
}

void tst_Plugin::initializeRegistersTheLiveValueTypes()
{
    m_extension->initialize();
    QCOMPARE(QMetaType::type("MMSValue&"), qMetaTypeId<MMSValue>());
    QCOMPARE(QMetaType::type("QList<MMSValue>&"), qMetaTypeId<QList<MMSValue>>());
    MMSValue value;
    value.reference = "LD/LN$ST$Pos$stVal";
    const QVariant list = QVariant::fromValue(QList<MMSValue>{value, value});
    QVERIFY(list.canConvert<QVariantList>());
    QCOMPARE(list.value<QSequentialIterable>().size(), 2);
}

void tst_Plugin::onlyProtocolFourIsSupported()
{
    QVERIFY(m_extension->supportsProtocol(4));
    for (int other : {-4, 0, 1, 3, 5, 104, 260})
        QVERIFY2(!m_extension->supportsProtocol(other), qPrintable(QString::number(other)));
}

void tst_Plugin::extensionIsAlwaysAvailable()
{
    QVERIFY(m_extension->isAvailable());
    m_extension->initialize();
    QVERIFY(m_extension->isAvailable());
}

void tst_Plugin::everyTriggerOpensABrowserOfItsOwn()
{
    m_extension->initialize();
    m_extension->actions().first()->trigger();
    m_extension->actions().first()->trigger();
    const auto open = browsers();
    QCOMPARE(open.size(), 2);
    for (const QDialog *browser : open) {
        QVERIFY(browser->isVisible());
        QVERIFY(!browser->isModal());
        QVERIFY(browser->testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(browser->parentWidget(), m_mainWindow.get());
    }
}

void tst_Plugin::closedBrowserIsDeleted()
{
    m_extension->initialize();
    m_extension->actions().first()->trigger();
    m_extension->actions().first()->trigger();
    const auto open = browsers();
    QTest::mouseClick(open[0]->findChild<QPushButton *>("pushButton"), Qt::LeftButton);
    QTRY_VERIFY(open[0].isNull());
    QVERIFY(!open[1].isNull());
}

void tst_Plugin::openBrowserKeepsTheNumbersItWasOpenedWith()
{
    m_extension->initialize();
    m_extension->actions().first()->trigger();
    m_extension->setTaskContext(2, 18, 5, &m_context);
    m_extension->actions().first()->trigger();
    QCOMPARE(m_service->calls().size(), 2);
    QCOMPARE(m_service->calls()[0].deviceNo, 17L);
    QCOMPARE(m_service->calls()[1].deviceNo, 18L);
}

void tst_Plugin::failedModelFetchLeavesNoBrowser()
{
    m_service->setAnswer("getIEDModel", OperationFailed, "No such device");
    m_extension->initialize();
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    m_extension->actions().first()->trigger();
    QVERIFY(driver.finished());
    QCOMPARE(message.text, QString("Cannot connect to driver"));
    QVERIFY(browsers().isEmpty());
}

void tst_Plugin::fileServiceOpensForTheSelectedDevice()
{
    m_extension->initialize();
    ModalDriver driver({[](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("FileServiceDialog"));
        QVERIFY(!dialog->parentWidget());
        QTest::mouseClick(dialog->findChild<QPushButton *>("close"), Qt::LeftButton);
    }});
    m_extension->actions().at(1)->trigger();
    QVERIFY(driver.finished());
    QCOMPARE(m_service->calls().size(), 1);
    QCOMPARE(m_service->calls()[0].operation, QString("getFileDirectory"));
    QCOMPARE(m_service->calls()[0].deviceNo, 17L);
}

void tst_Plugin::reportServiceOpensAndCloses()
{
    m_extension->initialize();
    ModalDriver driver({[](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("ReportControl"));
        QTest::mouseClick(dialog->findChild<QPushButton *>("close"), Qt::LeftButton);
    }});
    QVERIFY(QMetaObject::invokeMethod(m_loader.instance(), "openReportService"));
    QVERIFY(driver.finished());
    QVERIFY(m_service->calls().isEmpty());
}

void tst_Plugin::toolsEndWithTheWindowOfTheHost_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("failing");
    QTest::newRow("file service") << "openFileService"
                                  << "";
    QTest::newRow("box of the file service") << "openFileService"
                                             << "getFileDirectory";
    QTest::newRow("report control") << "openReportService"
                                    << "";
    QTest::newRow("box of the browser") << "openIEDView"
                                        << "getIEDModel";
}

void tst_Plugin::toolsEndWithTheWindowOfTheHost()
{
    QFETCH(QString, slot);
    QFETCH(QString, failing);
    m_extension->initialize();
    if (!failing.isEmpty())
        m_service->setAnswer(failing, OperationFailed, "No.");
    m_mainWindow->show();
    ModalDriver driver({[this](QWidget *window) {
        m_mainWindow.reset();
        // A box without a window below it is for the operator to close.
        if (auto *const box = qobject_cast<QMessageBox *>(window); box && box->isVisible())
            box->button(QMessageBox::Ok)->click();
    }});
    QVERIFY(QMetaObject::invokeMethod(m_loader.instance(), qPrintable(slot)));
    QVERIFY(driver.finished());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(browsers().isEmpty());
}

void tst_Plugin::abortReachesTheDriver()
{
    m_extension->initialize();
    m_service->setAnswer("abortClose", OperationFailed);
    // A failure is not shown: a message box would block here.
    QVERIFY(QMetaObject::invokeMethod(m_loader.instance(), "abort"));
    QCOMPARE(m_service->operations(), QStringList{"abortClose"});
    QCOMPARE(m_service->calls()[0].deviceNo, 17L);
}

QTEST_MAIN(tst_Plugin)
#include "tst_plugin.moc"
