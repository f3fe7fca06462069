// SPDX-License-Identifier: Apache-2.0
// The workbench's own windows in every language: nothing clipped, nothing covered.
#include "looks/lookcheck.h"
#include "workbench/backgroundjobs.h"
#include "workbench/devicedialog.h"
#include "workbench/fileimport.h"
#include "workbench/iedchooser.h"
#include "workbench/mainwindow.h"
#include "workbench/tableview.h"
#include "workbench/tracedialog.h"
#include "workbench/waitingcalls.h"
#include "workbench/workbench.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

#include <chrono>
#include <future>

class tst_WorkbenchLooks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void initTestCase();
    void init();
    void cleanup();

    void theFormOfADeviceIsShownWhole();
    void theFormWithFaultsAndATestResultIsShownWhole();
    void theTraceIsShownWhole();
    void theWindowWithItsDocksIsShownWhole();
    void theWindowThatIsReadOnlyIsShownWhole();
    void theQuestionBeforeARemovalIsShownWhole();
    void theWaitForASlowDeviceIsShownWhole();

private:
    void expectNoFlaws(QWidget &window, const QString &state);
    std::unique_ptr<MainWindow> makeWindow();

    std::unique_ptr<QTemporaryDir> m_folder;
    QTranslator m_texts;
    QTranslator m_qtTexts;
    BackgroundJobs m_jobs;
    std::unique_ptr<Workbench> m_workbench;
};

void tst_WorkbenchLooks::initTestCase_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QString("en");
    const QStringList catalogues = QDir(TRANSLATION_FOLDER).entryList({"workbench_*.qm"});
    for (const QString &catalogue : catalogues) {
        const QString language = catalogue.section('_', 1).section('.', 0, 0);
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_WorkbenchLooks::initTestCase()
{
    QVERIFY(QFile::exists(TRANSLATION_FOLDER "/workbench_de.qm"));
    qApp->setStyle("Fusion");
    qApp->setFont(QFont("DejaVu Sans", 10));
}

void tst_WorkbenchLooks::init()
{
    QFETCH_GLOBAL(QString, language);
    if (language != "en") {
        QVERIFY(m_texts.load("workbench_" + language, TRANSLATION_FOLDER));
        QVERIFY(m_qtTexts.load("qtbase_" + language, TRANSLATION_FOLDER));
        QCoreApplication::installTranslator(&m_texts);
        QCoreApplication::installTranslator(&m_qtTexts);
    }
    Workbench::Options options;
    m_folder = std::make_unique<QTemporaryDir>();
    options.settingsFile = m_folder->filePath("workbench.ini");
    options.journalFile = m_folder->filePath("changes.csv");
    options.import = importFromFile;
    m_workbench = std::make_unique<Workbench>(options);
}

void tst_WorkbenchLooks::cleanup()
{
    m_workbench.reset();
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_qtTexts);
}

void tst_WorkbenchLooks::expectNoFlaws(QWidget &window, const QString &state)
{
    QFETCH_GLOBAL(QString, language);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    const QByteArray pictures = qgetenv("LOOKS_PICTURES");
    if (!pictures.isEmpty()) {
        const QString name = QStringLiteral("%1-%2-%3.png")
                                 .arg(QString(QTest::currentTestFunction()), language, state);
        window.grab().save(QDir(QString(pictures)).filePath(name));
    }
    const QStringList flaws = flawsOf(window);
    QVERIFY2(flaws.isEmpty(), qPrintable(state + ": " + flaws.join('\n')));
}

void tst_WorkbenchLooks::theFormOfADeviceIsShownWhole()
{
    DeviceDialog dialog({}, {}, {}, {}, m_jobs);
    dialog.show();
    auto *tabs = dialog.findChild<QTabWidget *>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        expectNoFlaws(dialog, QString::number(tab));
    }
    dialog.resize(dialog.minimumSizeHint());
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        expectNoFlaws(dialog, QString("small-%1").arg(tab));
    }
    dialog.findChild<QGroupBox *>("tls")->setChecked(true);
    dialog.findChild<QCheckBox *>("acceptsOtherNames")->setChecked(true);
    tabs->setCurrentWidget(dialog.findChild<QWidget *>("securityTab"));
    expectNoFlaws(dialog, "other names");
}

void tst_WorkbenchLooks::theFormWithFaultsAndATestResultIsShownWhole()
{
    const auto test = [](const DeviceConfiguration &) {
        DeviceTestResult result;
        result.vendor = "A vendor with a long name";
        result.model = "Bay unit 4000";
        result.revision = "12.3.4567";
        result.roundTrip = std::chrono::microseconds(1234567);
        result.logicalDevices = 12;
        return result;
    };
    DeviceDialog dialog(
        {}, [](const DeviceRecord &record) { return record.configuration.faults(); },
        [](const DeviceConfiguration &configuration) { return configuration.faults(); }, test,
        m_jobs);
    dialog.show();
    dialog.findChild<QLineEdit *>("host")->setText("bay-unit-17.substation.example");
    QTest::mouseClick(dialog.findChild<QPushButton *>("test"), Qt::LeftButton);
    QTRY_VERIFY(dialog.findChild<QPushButton *>("test")->isEnabled());
    dialog.findChild<QLineEdit *>("host")->clear();
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    QVERIFY(dialog.findChild<QLabel *>("faults")->isVisible());
    expectNoFlaws(dialog, "faults");
}

void tst_WorkbenchLooks::theTraceIsShownWhole()
{
    m_workbench->simulate(":/workbench/unfinished.icd");
    QTRY_VERIFY(m_workbench->devices().device(1) && m_workbench->devices().device(1)->isUsable());
    TraceDialog dialog(m_workbench->administration(), 1, "FEEDER2");
    dialog.show();
    QTRY_VERIFY(dialog.findChild<TableView *>()->model()->rowCount() > 0);
    expectNoFlaws(dialog, "trace");
}

std::unique_ptr<MainWindow> tst_WorkbenchLooks::makeWindow()
{
    auto window = std::make_unique<MainWindow>(*m_workbench, PLUGIN_FOLDER);
    window->show();
    window->loadExtension();
    return window;
}

void tst_WorkbenchLooks::theWindowWithItsDocksIsShownWhole()
{
    const auto window = makeWindow();
    DeviceRecord away;
    away.configuration.name = "BAY7";
    away.configuration.host = "127.0.0.1";
    away.configuration.port = 1;
    QVERIFY(m_workbench->put(away).isEmpty());
    m_workbench->openDemonstration();
    QTRY_VERIFY(m_workbench->devices().rowCount() == 2);
    QTRY_COMPARE(m_workbench->devices().device(1)->status.state, DeviceState::Waiting);
    QTRY_VERIFY(m_workbench->devices().device(2)->isUsable());
    const QList<QDockWidget *> docks = window->findChildren<QDockWidget *>();
    QCOMPARE(docks.size(), 3);
    for (QDockWidget *dock : docks) {
        dock->raise();
        QTRY_VERIFY(!dock->visibleRegion().isEmpty());
        expectNoFlaws(*window, dock->objectName());
    }
}

void tst_WorkbenchLooks::theQuestionBeforeARemovalIsShownWhole()
{
    const auto window = makeWindow();
    m_workbench->simulate(":/workbench/unfinished.icd");
    QTRY_VERIFY(m_workbench->devices().device(1) && m_workbench->devices().device(1)->isUsable());
    QTRY_COMPARE(window->selectedDevice(), 1);
    window->findChild<QAction *>("actionRemove")->trigger();
    auto *const box = window->findChild<QMessageBox *>("removeQuestion");
    QVERIFY(box);
    expectNoFlaws(*box, "question");
}

void tst_WorkbenchLooks::theWaitForASlowDeviceIsShownWhole()
{
    std::promise<void> answered;
    std::future<void> isAnswered = answered.get_future();
    WaitingCalls calls([](long) {}, std::chrono::milliseconds(0));
    calls.setDeviceName([](long) { return QStringLiteral("BAY1E1 (3)"); });
    bool wasShown = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        QWidget *const modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        poll.stop();
        wasShown = true;
        expectNoFlaws(*modal, "waiting");
        answered.set_value();
    });
    poll.start(10);
    ControllerCall call;
    call.operation = QStringLiteral("getFileDirectory");
    calls.run(call, [&] { isAnswered.wait(); });
    QVERIFY(wasShown);
}

void tst_WorkbenchLooks::theWindowThatIsReadOnlyIsShownWhole()
{
    m_workbench->setReadOnly(true);
    const auto window = makeWindow();
    QVERIFY(window->findChild<QLabel *>("readOnlyMark")->isVisible());
    expectNoFlaws(*window, "read-only");
}

QTEST_MAIN(tst_WorkbenchLooks)
#include "tst_workbenchlooks.moc"
