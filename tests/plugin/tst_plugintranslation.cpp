// SPDX-License-Identifier: Apache-2.0
#include "support/generateddevice.h"
#include "support/recordingdriverservice.h"

#include <host/driverprotocolextentioninterface.h>
#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>
#include <remoteclient/driverserviceregistry.h>

#include <QtCore/QPluginLoader>
#include <QtCore/QTranslator>
#include <QtGui/QHelpEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeView>

namespace {

class Console : public DriverConsolInterface
{
public:
    QString currentAddress() override { return QStringLiteral("translation-test"); }
    OperationResult getLoc(long, long, QString &) override { return OperationSucceeded; }
};

QString tipOf(QTreeView &tree, const QModelIndex &index)
{
    tree.scrollTo(index);
    const QPoint position = tree.visualRect(index).center();
    QHelpEvent event(QEvent::ToolTip, position, tree.viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(tree.viewport(), &event);
    return QToolTip::text();
}

} // namespace

/// Run with a German locale.
class tst_PluginTranslation : public QObject
{
    Q_OBJECT

private slots:
    void textsComeFromTheTranslationFolderBesideTheProgram();
    void tipsExplainInTheSameLanguage();
};

void tst_PluginTranslation::textsComeFromTheTranslationFolderBesideTheProgram()
{
    QCOMPARE(QLocale::system().name(), QString("de_DE"));
    QPluginLoader loader(PLUGIN_FILE);
    auto *extension = qobject_cast<DriverProtocolExtentionInterface *>(loader.instance());
    QVERIFY2(extension, qPrintable(loader.errorString()));
    extension->initialize();
    const auto *translator = loader.instance()->findChild<QTranslator *>();
    QVERIFY(translator);
    QVERIFY(!translator->isEmpty());
    QCOMPARE(extension->actions().first()->text(), QString("IED-Browser"));
}

void tst_PluginTranslation::tipsExplainInTheSameLanguage()
{
    Console console;
    QWidget mainWindow;
    HostTaskContext context;
    context.console = &console;
    context.mainWindow = &mainWindow;
    const auto service = std::make_shared<RecordingDriverService>();
    service->model = GeneratedDevice().bytes();
    const DriverServiceRegistration registration(console.currentAddress(), service);

    QPluginLoader loader(PLUGIN_FILE);
    auto *extension = qobject_cast<DriverProtocolExtentionInterface *>(loader.instance());
    QVERIFY2(extension, qPrintable(loader.errorString()));
    extension->initialize();
    extension->setTaskContext(1, 1, 0, &context);
    extension->actions().first()->trigger();
    const std::unique_ptr<QDialog> browser(mainWindow.findChild<QDialog *>("IEDModelView"));
    QVERIFY(browser);
    auto *tree = browser->findChild<QTreeView *>("modelView");
    QAbstractItemModel *model = tree->model();
    const auto found = [&](int column, const QString &text) {
        const QModelIndexList all = model->match(model->index(0, column), Qt::DisplayRole, text, 1,
                                                 Qt::MatchExactly | Qt::MatchRecursive);
        return all.isEmpty() ? QModelIndex() : all.first().siblingAtColumn(0);
    };
    const QString breaker = tipOf(*tree, found(2, "XCBR"));
    QVERIFY2(breaker.contains("Leistungsschalter"), qPrintable(breaker));
    const QString position = tipOf(*tree, found(0, "ctlModel"));
    QVERIFY2(position.contains("Datentyp:"), qPrintable(position));
    QVERIFY2(position.contains(QString::fromUtf8("mit normaler oder erhöhter Sicherheit")),
             qPrintable(position));
}

QTEST_MAIN(tst_PluginTranslation)
#include "tst_plugintranslation.moc"
