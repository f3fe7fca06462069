// SPDX-License-Identifier: Apache-2.0
// The window of the workbench with a device that is reached over MMS on the loopback interface.
#include "driver/simulatedstation.h"

#include "workbench/devicedialog.h"
#include "workbench/fileimport.h"
#include "workbench/mainwindow.h"
#include "workbench/simulateddevice.h"
#include "workbench/tableview.h"
#include "workbench/tracedialog.h"
#include "workbench/workbench.h"

#include "driver/model/sclimport.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

class tst_DeviceWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theToolsAreOfferedOnceTheModelIsThere();
    void connectAndDisconnectAreOfferedInTurn();
    void readingAModelShowsProgressAndCanBeCancelled();
    void aSimulationIsStoppedAndStartedFromTheMenu();
    void aSimulatedDeviceIsStartedFromAFile();
    void severalIedsOfAFileAreSimulatedAsChosen();
    void aDeviceIsAddedByItsForm();
    void aDeviceIsEditedByItsForm();
    void readOnlyIsVisibleInTheWindow();
    void devicesThatAreAwayAreCountedInTheStatusStrip();
    void whatIsConfirmedIsChosenInTheMenu();
    void theTraceGrowsAndPauses();
    void aCaptureIsSavedForProtocolAnalysers();
    void theValuesAreExportedAsATable();
    void aFileThatCannotBeWrittenIsTold();

private:
    template <typename T>
    T *child(const char *name) const
    {
        T *found = m_window->findChild<T *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no %s", name);
        return found;
    }
    QAction *action(const char *name) const { return child<QAction>(name); }
    bool isOnline(int number = 1) const
    {
        const DeviceListModel::Device *device = m_workbench->devices().device(number);
        return device && device->isUsable();
    }
    void simulate();
    template <typename T>
    static T *dialog()
    {
        T *found = nullptr;
        [&] { QTRY_VERIFY((found = qobject_cast<T *>(QApplication::activeModalWidget()))); }();
        return found;
    }
    void saveAs(QAction *trigger, const QString &path);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<MainWindow> m_window;
};

void tst_DeviceWindow::init()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_folder = std::make_unique<QTemporaryDir>();
    Workbench::Options options;
    options.settingsFile = m_folder->filePath("workbench.ini");
    options.import = importFromFile;
    m_workbench = std::make_unique<Workbench>(options);
    m_window = std::make_unique<MainWindow>(*m_workbench, FAKE_PLUGIN_FOLDER "/good");
    m_window->show();
    m_window->loadExtension();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_DeviceWindow::cleanup()
{
    m_window.reset();
    m_workbench.reset();
}

void tst_DeviceWindow::simulate()
{
    m_workbench->simulate(":/workbench/unfinished.icd");
    QTRY_VERIFY(isOnline());
    QCOMPARE(m_window->selectedDevice(), 1);
}

void tst_DeviceWindow::theToolsAreOfferedOnceTheModelIsThere()
{
    QAction *tool = m_window->extensionActions().first();
    m_workbench->simulate(":/workbench/unfinished.icd");
    QTRY_VERIFY(m_workbench->devices().rowCount() == 1);
    QCOMPARE(tool->isEnabled(), isOnline());
    QTRY_VERIFY(isOnline());
    QVERIFY(tool->isEnabled());
    m_workbench->stopSimulation(1);
    QVERIFY(!tool->isEnabled());
}

void tst_DeviceWindow::connectAndDisconnectAreOfferedInTurn()
{
    QVERIFY(!action("actionConnect")->isEnabled());
    QVERIFY(!action("actionDisconnect")->isEnabled());
    simulate();
    QVERIFY(!action("actionConnect")->isEnabled());
    QVERIFY(action("actionDisconnect")->isEnabled());
    action("actionDisconnect")->trigger();
    QTRY_VERIFY(action("actionConnect")->isEnabled());
    QVERIFY(!action("actionDisconnect")->isEnabled());
    QVERIFY(!m_window->extensionActions().first()->isEnabled());
    action("actionConnect")->trigger();
    QTRY_VERIFY(isOnline());
    QVERIFY(m_window->extensionActions().first()->isEnabled());
}

void tst_DeviceWindow::readingAModelShowsProgressAndCanBeCancelled()
{
    drivertest::SimulatedIed ied(":/workbench/demonstration.scd", {},
                                 "delay 200ms on getVariableAccessAttributes\n");
    DeviceRecord record;
    record.configuration = drivertest::configurationFor(ied, 0);
    record.configuration.outstandingCalls = 1;
    QVERIFY(m_workbench->put(record).isEmpty());
    auto *bar = child<QProgressBar>("loadingProgress");
    QTRY_VERIFY(bar->isVisible());
    const auto state = [this] {
        return m_workbench->devices().index(0, DeviceListModel::StateColumn).data().toString();
    };
    QVERIFY2(state().startsWith("Reading the model"), qPrintable(state()));
    QVERIFY(!m_window->extensionActions().first()->isEnabled());
    const int before = bar->value();
    QTRY_VERIFY(bar->value() > before);
    child<QToolButton>("cancelLoading")->click();
    QTRY_COMPARE(m_workbench->devices().device(1)->status.state, DeviceState::Disconnected);
    QVERIFY2(state().contains("cancelled"), qPrintable(state()));
    QVERIFY(!bar->isVisible());
    QVERIFY(m_workbench->devices().device(1)->record.connects);
}

void tst_DeviceWindow::aSimulationIsStoppedAndStartedFromTheMenu()
{
    QVERIFY(!action("actionStopSimulation")->isVisible());
    simulate();
    QVERIFY(action("actionStopSimulation")->isVisible());
    QVERIFY(!action("actionStartSimulation")->isEnabled());
    action("actionStopSimulation")->trigger();
    QCOMPARE(m_workbench->devices().device(1)->state, DeviceListModel::Stopped);
    QVERIFY(!action("actionStopSimulation")->isEnabled());
    action("actionStartSimulation")->trigger();
    QTRY_VERIFY(isOnline());
}

void tst_DeviceWindow::aSimulatedDeviceIsStartedFromAFile()
{
    const QString path = m_folder->filePath("feeder.icd");
    QVERIFY(QFile::copy(":/workbench/unfinished.icd", path));
    action("actionSimulate")->trigger();
    auto *files = dialog<QFileDialog>();
    QVERIFY(files);
    emit files->filesSelected({path});
    files->reject();
    QTRY_VERIFY(isOnline());
    QVERIFY(m_workbench->devices().device(1)->record.simulated);
}

void tst_DeviceWindow::severalIedsOfAFileAreSimulatedAsChosen()
{
    QFile original(":/workbench/unfinished.icd");
    QVERIFY(original.open(QIODevice::ReadOnly));
    QByteArray content = original.readAll();
    const int begin = content.indexOf("  <IED ");
    const int end = content.indexOf("</IED>") + 6;
    QByteArray second = content.mid(begin, end - begin);
    second.replace("FEEDER2", "FEEDER3");
    content.insert(end, second);
    QFile file(m_folder->filePath("two.scd"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();

    m_workbench->simulate(file.fileName());
    auto *chooser = dialog<QDialog>();
    QVERIFY(chooser);
    chooser->findChild<QTreeWidget *>()->selectAll();
    chooser->accept();
    QTRY_VERIFY(isOnline(1) && isOnline(2));
    QVERIFY(m_workbench->devices().device(2)->record.simulated);
}

void tst_DeviceWindow::aDeviceIsAddedByItsForm()
{
    QString error;
    const scl::ReadResult file = SclImport::readFile(":/workbench/unfinished.icd");
    const auto simulated =
        SimulatedDevice::start(*SclImport::chooseIed(*file.document, {}, error), false, 0, error);
    QVERIFY2(simulated, qPrintable(error));
    action("actionAdd")->trigger();
    auto *form = dialog<DeviceDialog>();
    QVERIFY(form);
    form->findChild<QLineEdit *>("host")->setText("127.0.0.1");
    form->findChild<QSpinBox *>("port")->setValue(simulated->port());
    QTest::mouseClick(form->findChild<QPushButton *>("test"), Qt::LeftButton);
    auto *result = form->findChild<QLabel *>("testResult");
    QTRY_VERIFY2(result->text().contains("logical devices: 1"), qPrintable(result->text()));
    QCOMPARE(m_workbench->devices().rowCount(), 0);
    form->accept();
    QTRY_VERIFY(isOnline());
    // One logical device does not tell where the name of the IED ends.
    QCOMPARE(m_workbench->devices().device(1)->record.name(),
             QString("127.0.0.1:%1").arg(simulated->port()));
    QCOMPARE(m_window->selectedDevice(), 1);
}

void tst_DeviceWindow::aDeviceIsEditedByItsForm()
{
    simulate();
    action("actionEdit")->trigger();
    auto *form = dialog<DeviceDialog>();
    QVERIFY(form);
    QCOMPARE(form->windowTitle(), QString("Edit Device FEEDER2"));
    form->findChild<QLineEdit *>("name")->setText("Feeder two");
    form->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(m_workbench->devices().device(1)->record.name(), QString("Feeder two"));
    QTRY_VERIFY(isOnline());
}

void tst_DeviceWindow::readOnlyIsVisibleInTheWindow()
{
    auto *mark = child<QLabel>("readOnlyMark");
    QVERIFY(!mark->isVisible());
    action("actionReadOnly")->trigger();
    QVERIFY(mark->isVisible());
    QVERIFY(m_workbench->administration().isReadOnly());
    action("actionReadOnly")->trigger();
    QVERIFY(!mark->isVisible());
    QVERIFY(!m_workbench->administration().isReadOnly());
}

void tst_DeviceWindow::devicesThatAreAwayAreCountedInTheStatusStrip()
{
    auto *const mark = m_window->findChild<QLabel *>("awayMark");
    QVERIFY(mark->isHidden());
    DeviceListModel &devices = m_workbench->devices();
    DeviceStatus status;
    for (int number = 101; number <= 102; ++number) {
        DeviceRecord record;
        record.configuration.number = number;
        record.configuration.name = QString("IED%1").arg(number);
        record.configuration.host = "192.0.2.1";
        devices.append(record);
        devices.setReady(number, {}, {});
        status.number = number;
        status.state = DeviceState::Waiting;
        status.lostSince = QDateTime(QDate(2026, 3, 4), QTime(5, number - 100));
        devices.setStatus(status);
        QVERIFY(!mark->isHidden());
        const QString since =
            QLocale().toString(QDateTime(QDate(2026, 3, 4), QTime(5, 1)), QLocale::ShortFormat);
        QCOMPARE(mark->text(), number == 101
                                   ? QString("IED101 is away since %1").arg(since)
                                   : QString("Devices away: 2, the first since %1").arg(since));
    }
    devices.remove(101);
    devices.remove(102);
    QVERIFY(mark->isHidden());
}

void tst_DeviceWindow::whatIsConfirmedIsChosenInTheMenu()
{
    const QList<QAction *> choices = m_window->findChild<QMenu *>("menuConfirm")->actions();
    QCOMPARE(choices.size(), 3);
    QVERIFY(choices[0]->isChecked());
    choices[1]->trigger();
    QCOMPARE(m_workbench->confirmation().scope(), CallConfirmation::Everything);
    choices[2]->trigger();
    QCOMPARE(m_workbench->confirmation().scope(), CallConfirmation::Nothing);
    QVERIFY(!choices[1]->isChecked());
}

void tst_DeviceWindow::theTraceGrowsAndPauses()
{
    simulate();
    action("actionTrace")->trigger();
    auto *trace = m_window->findChild<TraceDialog *>();
    QVERIFY(trace && trace->isVisible());
    const QAbstractItemModel *lines = trace->findChild<TableView *>()->model();
    QTRY_VERIFY(lines->rowCount() > 2);
    const int before = lines->rowCount();
    const QString first = lines->index(0, TraceModel::TextColumn).data().toString();
    QVERIFY2(first.contains("initiate", Qt::CaseInsensitive), qPrintable(first));
    QTRY_VERIFY(lines->rowCount() > before);

    trace->findChild<QPushButton *>("clear")->click();
    QCOMPARE(lines->rowCount(), 0);
    trace->findChild<QCheckBox *>("pause")->setChecked(true);
    const auto exchanged = [this] {
        return m_workbench->administration().status(1).counters.sentPdus;
    };
    const auto sent = exchanged();
    QTRY_VERIFY(exchanged() > sent + 1);
    QCOMPARE(lines->rowCount(), 0);
    trace->findChild<QCheckBox *>("pause")->setChecked(false);
    QTRY_VERIFY(lines->rowCount() > 0);
}

void tst_DeviceWindow::saveAs(QAction *trigger, const QString &path)
{
    QVERIFY(trigger->isEnabled());
    trigger->trigger();
    auto *files = dialog<QFileDialog>();
    QVERIFY(files);
    emit files->fileSelected(path);
    files->reject();
}

void tst_DeviceWindow::aCaptureIsSavedForProtocolAnalysers()
{
    simulate();
    const QString path = m_folder->filePath("out.pcapng");
    saveAs(action("actionCapture"), path);
    QTRY_VERIFY(QFile::exists(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.read(4), QByteArray::fromHex("0a0d0d0a"));
    QVERIFY(file.size() > 1000);
}

void tst_DeviceWindow::theValuesAreExportedAsATable()
{
    simulate();
    const QString path = m_folder->filePath("out.csv");
    saveAs(action("actionExport"), path);
    QTRY_VERIFY(QFile::exists(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray table = file.readAll();
    QVERIFY2(table.contains("FEEDER2CTRL/XCBR1$ST$Pos$stVal,ST,"), table.left(300).constData());
}

void tst_DeviceWindow::aFileThatCannotBeWrittenIsTold()
{
    simulate();
    saveAs(action("actionExport"), m_folder->filePath("no/such/folder/out.csv"));
    auto *box = dialog<QMessageBox>();
    QVERIFY(box);
    QVERIFY2(box->text().contains("out.csv"), qPrintable(box->text()));
    box->accept();
}

QTEST_MAIN(tst_DeviceWindow)
#include "tst_devicewindow.moc"
