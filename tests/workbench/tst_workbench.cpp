// SPDX-License-Identifier: Apache-2.0
#include "workbench/workbench.h"

#include <remoteclient/driverserviceregistry.h>

#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QSemaphore>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

namespace {

/// What the import finds in the files of a test.
struct World
{
    QMap<QString, QStringList> ieds; ///< by file name; a file that is not listed cannot be read
    QSemaphore mayEnd;
    std::atomic<bool> slow{false}; ///< the import waits for `mayEnd` or the cancel flag

    Workbench::Options options(const QString &settingsFile)
    {
        Workbench::Options options;
        options.settingsFile = settingsFile;
        options.import = [this](const ImportRequest &request, const std::atomic<bool> &cancelled,
                                const auto &) {
            while (slow && !cancelled && !mayEnd.tryAcquire())
                QThread::yieldCurrentThread();
            return import(request);
        };
        return options;
    }

    ImportResult import(const ImportRequest &request) const
    {
        ImportResult result;
        const QStringList names = ieds.value(QFileInfo(request.file).fileName());
        for (const QString &name : names)
            result.ieds.append({name, {}, 1});
        if (names.isEmpty()) {
            result.error = QStringLiteral("The file is not an SCL file.");
        } else if (request.ied.isEmpty() && names.size() > 1) {
            result.status = ImportResult::ChoiceNeeded;
            result.error = QStringLiteral("The file describes several IEDs.");
        } else if (!request.ied.isEmpty() && !names.contains(request.ied)) {
            result.error = QStringLiteral("The file holds no IED \"%1\".").arg(request.ied);
        } else {
            result.status = ImportResult::Imported;
            result.ied = request.ied.isEmpty() ? names.first() : request.ied;
            result.model = request.file.toUtf8() + '#' + result.ied.toUtf8();
            result.findings.append(
                {scl::Severity::Warning, 1, "SCL", wording::verbatim("A finding.")});
        }
        return result;
    }
};

/// The model that the driver answers with for the device; empty when it refuses.
QByteArray held(int number)
{
    QByteArray model;
    QString error;
    DriverServiceRegistry::find(EmbeddedConsole::address)->getIEDModel(number, model, error);
    return model;
}

} // namespace

class tst_Workbench : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFirstStartShowsTheDemonstrationDevice();
    void aSecondWorkbenchDoesNotOverwriteTheList();
    void theSettingsAreForTheirOwnerOnly();
    void whatIsConfirmedIsRemembered();
    void aListThatWasEmptiedStaysEmpty();
    void openingAFileAddsItsDevice();
    void rememberedDevicesAreReadAtTheNextStart();
    void aFileThatCannotBeUsedLeavesTheListAsItWas();
    void severalBadFilesAreReportedTogether();
    void aFileWithSeveralIedsAsksWhichOne();
    void aDeviceOfAFormThatNamesNoneOfSeveralIedsSaysSo();
    void openingTheSameIedAgainSelectsIt();
    void aVanishedFileStaysInTheListWithItsReason();
    void aVanishedFileCanBeReadAgainWhenItIsBack();
    void cancellingAnOpenLeavesTheListAsItWas();
    void cancellingAReloadKeepsTheModel();
    void aDeviceRemovedWhileItLoadsStaysRemoved();
    void theDriverAnswersAtTheEmbeddedAddress();
    void theConsoleKnowsWhereADeviceIs();

private:
    std::unique_ptr<Workbench> make()
    {
        return std::make_unique<Workbench>(m_world->options(m_settings));
    }
    /// A workbench that is not at its first start.
    std::unique_ptr<Workbench> makeUsed();
    QString file(const QString &name, const QStringList &ieds);
    static bool settled(Workbench &workbench) { return !workbench.loader().isBusy(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<World> m_world;
    QString m_settings;
};

void tst_Workbench::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_world = std::make_unique<World>();
    m_settings = m_folder->filePath(QStringLiteral("workbench.ini"));
    m_world->ieds[QFileInfo(Workbench::demonstrationFile).fileName()] =
        QStringList{QStringLiteral("DEMO")};
}

void tst_Workbench::cleanup()
{
    m_world->slow = false;
}

std::unique_ptr<Workbench> tst_Workbench::makeUsed()
{
    DeviceStore store(m_settings);
    store.remove(store.add(QStringLiteral("/x"), QStringLiteral("X")));
    return make();
}

QString tst_Workbench::file(const QString &name, const QStringList &ieds)
{
    m_world->ieds[name] = ieds;
    QFile made(m_folder->filePath(name));
    return made.open(QIODevice::WriteOnly) ? QFileInfo(made).canonicalFilePath() : QString();
}

void tst_Workbench::theFirstStartShowsTheDemonstrationDevice()
{
    const auto workbench = make();
    const QAbstractItemModelTester tester(&workbench->devices(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    workbench->restoreDevices();
    QTRY_COMPARE(workbench->devices().rowCount(), 1);
    QCOMPARE(workbench->devices().deviceAt(0)->record.ied(), QStringLiteral("DEMO"));
    QCOMPARE(workbench->devices().deviceAt(0)->state, DeviceListModel::Ready);
}

void tst_Workbench::aSecondWorkbenchDoesNotOverwriteTheList()
{
    auto first = makeUsed();
    QVERIFY(first->keepsSettings());
    QCOMPARE(first->storeProblem(), QString());
    const QString a = file(QStringLiteral("a.icd"), {QStringLiteral("A")});
    const QString b = file(QStringLiteral("b.icd"), {QStringLiteral("B")});

    auto second = make();
    QVERIFY(!second->keepsSettings());
    QCOMPARE(second->storeProblem(),
             QStringLiteral("Another workbench uses the list of devices in \"%1\": what is changed "
                            "in this one is not kept.")
                 .arg(m_settings));
    second->open(b);
    QTRY_VERIFY(settled(*second));
    second->setReadOnly(true);
    second->setConfirmed(CallConfirmation::Nothing);
    first->open(a);
    QTRY_VERIFY(settled(*first));
    QTRY_COMPARE(first->devices().rowCount(), 1);
    second.reset();
    first.reset();

    const auto next = make();
    QVERIFY(next->keepsSettings());
    QVERIFY(!next->isReadOnly());
    QCOMPARE(next->confirmation().scope(), CallConfirmation::Commands);
    next->restoreDevices();
    QCOMPARE(next->devices().rowCount(), 1);
    QCOMPARE(next->devices().deviceAt(0)->record.ied(), QStringLiteral("A"));
}

void tst_Workbench::theSettingsAreForTheirOwnerOnly()
{
    const auto workbench = make();
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    const QFileInfo info(m_settings);
    QVERIFY(info.exists());
    QCOMPARE(info.size(), 0);
    QVERIFY(!(info.permissions() & others));
    workbench->setReadOnly(true);
    QVERIFY(QFileInfo(m_settings).size() > 0);
    QVERIFY(!(QFileInfo(m_settings).permissions() & others));
}

void tst_Workbench::whatIsConfirmedIsRemembered()
{
    make()->setConfirmed(CallConfirmation::Everything);
    QCOMPARE(make()->confirmation().scope(), CallConfirmation::Everything);
    make()->setConfirmed(CallConfirmation::Nothing);
    QCOMPARE(make()->confirmation().scope(), CallConfirmation::Nothing);
}

void tst_Workbench::aListThatWasEmptiedStaysEmpty()
{
    {
        const auto workbench = make();
        workbench->restoreDevices();
        QTRY_COMPARE(workbench->devices().rowCount(), 1);
        workbench->remove(1);
        QCOMPARE(workbench->devices().rowCount(), 0);
        QVERIFY(held(1).isEmpty());
    }
    const auto workbench = make();
    workbench->restoreDevices();
    QVERIFY(settled(*workbench));
    QCOMPARE(workbench->devices().rowCount(), 0);
}

void tst_Workbench::openingAFileAddsItsDevice()
{
    const auto workbench = makeUsed();
    const QString path = file(QStringLiteral("a.icd"), {QStringLiteral("A")});
    QSignalSpy opened(workbench.get(), &Workbench::deviceOpened);
    workbench->open(path);
    QVERIFY(opened.wait());
    const int number = opened.first().first().toInt();
    const DeviceListModel::Device *device = workbench->devices().device(number);
    QVERIFY(device);
    QCOMPARE(device->state, DeviceListModel::Ready);
    QCOMPARE(device->record.file(), path);
    QCOMPARE(device->findings.size(), 1);
    QCOMPARE(held(number), path.toUtf8() + "#A");
    const QModelIndex state = workbench->devices().index(0, DeviceListModel::StateColumn);
    QCOMPARE(state.data().toString(), QStringLiteral("Offline model"));
}

void tst_Workbench::rememberedDevicesAreReadAtTheNextStart()
{
    const QString path = file(QStringLiteral("a.scd"), {QStringLiteral("A"), QStringLiteral("B")});
    {
        const auto workbench = makeUsed();
        workbench->open(path, QStringLiteral("B"));
        workbench->open(path, QStringLiteral("A"));
        QTRY_COMPARE(workbench->devices().rowCount(), 2);
    }
    const auto workbench = make();
    workbench->restoreDevices();
    QCOMPARE(workbench->devices().rowCount(), 2);
    QTRY_VERIFY(settled(*workbench));
    QCOMPARE(workbench->devices().deviceAt(0)->record.ied(), QStringLiteral("B"));
    QCOMPARE(workbench->devices().deviceAt(0)->record.number(), 2);
    QCOMPARE(workbench->devices().deviceAt(1)->state, DeviceListModel::Ready);
    QCOMPARE(held(2), path.toUtf8() + "#B");
    QCOMPARE(held(3), path.toUtf8() + "#A");
}

void tst_Workbench::aFileThatCannotBeUsedLeavesTheListAsItWas()
{
    const auto workbench = makeUsed();
    QSignalSpy failed(workbench.get(), &Workbench::openFailed);
    workbench->open(file(QStringLiteral("holiday.jpg"), {}));
    QVERIFY(failed.wait());
    const QStringList sentences = failed.first().first().toStringList();
    QCOMPARE(sentences.size(), 1);
    QVERIFY(sentences[0].contains(QStringLiteral("holiday.jpg")));
    QVERIFY(sentences[0].contains(QStringLiteral("The file is not an SCL file.")));
    QCOMPARE(workbench->devices().rowCount(), 0);
    QVERIFY(DeviceStore(m_settings).devices().isEmpty());
}

void tst_Workbench::severalBadFilesAreReportedTogether()
{
    const auto workbench = makeUsed();
    QSignalSpy failed(workbench.get(), &Workbench::openFailed);
    workbench->open(file(QStringLiteral("1.txt"), {}));
    workbench->open(file(QStringLiteral("2.icd"), {QStringLiteral("A")}));
    workbench->open(file(QStringLiteral("3.txt"), {}));
    QVERIFY(failed.wait());
    QVERIFY(settled(*workbench));
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.first().first().toStringList().size(), 2);
    QCOMPARE(workbench->devices().rowCount(), 1);
}

void tst_Workbench::aFileWithSeveralIedsAsksWhichOne()
{
    const auto workbench = makeUsed();
    const QString path = file(QStringLiteral("a.scd"), {QStringLiteral("A"), QStringLiteral("B")});
    QStringList offered;
    connect(workbench.get(), &Workbench::choiceNeeded, this,
            [&](const QString &asked, const QVector<IedSummary> &ieds) {
                QCOMPARE(asked, path);
                for (const IedSummary &ied : ieds)
                    offered << ied.name;
            });
    workbench->open(path);
    QTRY_VERIFY(settled(*workbench));
    QCOMPARE(offered, (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(workbench->devices().rowCount(), 0);
    workbench->open(path, QStringLiteral("B"));
    QTRY_COMPARE(workbench->devices().rowCount(), 1);
    QCOMPARE(workbench->devices().deviceAt(0)->record.ied(), QStringLiteral("B"));
}

void tst_Workbench::aDeviceOfAFormThatNamesNoneOfSeveralIedsSaysSo()
{
    const auto workbench = makeUsed();
    DeviceRecord record;
    record.configuration.name = QStringLiteral("Bay");
    record.configuration.sclFile =
        file(QStringLiteral("a.scd"), {QStringLiteral("A"), QStringLiteral("B")});
    QVERIFY(workbench->put(record).isEmpty());
    const QModelIndex state = workbench->devices().index(0, DeviceListModel::StateColumn);
    QTRY_COMPARE(state.data().toString(),
                 QStringLiteral("Model cannot be read: The file describes several IEDs."));
    DeviceRecord named = workbench->devices().deviceAt(0)->record;
    named.configuration.ied = QStringLiteral("B");
    QVERIFY(workbench->put(named).isEmpty());
    QTRY_COMPARE(state.data().toString(), QStringLiteral("Offline model"));
    QCOMPARE(held(named.number()), named.file().toUtf8() + "#B");
}

void tst_Workbench::openingTheSameIedAgainSelectsIt()
{
    const auto workbench = makeUsed();
    const QString path = file(QStringLiteral("a.icd"), {QStringLiteral("A")});
    QSignalSpy opened(workbench.get(), &Workbench::deviceOpened);
    workbench->open(path);
    workbench->open(path);
    QTRY_COMPARE(opened.size(), 2);
    workbench->open(path, QStringLiteral("A"));
    QTRY_COMPARE(opened.size(), 3);
    QCOMPARE(opened[0], opened[1]);
    QCOMPARE(opened[0], opened[2]);
    QCOMPARE(workbench->devices().rowCount(), 1);
}

void tst_Workbench::aVanishedFileStaysInTheListWithItsReason()
{
    {
        const auto workbench = makeUsed();
        workbench->open(file(QStringLiteral("a.icd"), {QStringLiteral("A")}));
        QTRY_COMPARE(workbench->devices().rowCount(), 1);
    }
    m_world->ieds.remove(QStringLiteral("a.icd"));
    const auto workbench = make();
    QSignalSpy failed(workbench.get(), &Workbench::openFailed);
    workbench->restoreDevices();
    QTRY_VERIFY(settled(*workbench));
    const QModelIndex state = workbench->devices().index(0, DeviceListModel::StateColumn);
    QCOMPARE(state.data().toString(),
             QStringLiteral("Model cannot be read: The file is not an SCL file."));
    QVERIFY2(failed.isEmpty(), "no message box at the start");
}

void tst_Workbench::aVanishedFileCanBeReadAgainWhenItIsBack()
{
    const auto workbench = makeUsed();
    const QString path = file(QStringLiteral("a.icd"), {QStringLiteral("A")});
    workbench->open(path);
    QTRY_COMPARE(workbench->devices().rowCount(), 1);
    const int number = workbench->devices().deviceAt(0)->record.number();

    m_world->ieds.remove(QStringLiteral("a.icd"));
    workbench->reload(number);
    QTRY_COMPARE(workbench->devices().device(number)->state, DeviceListModel::Failed);
    QVERIFY(held(number).isEmpty());

    m_world->ieds[QStringLiteral("a.icd")] = QStringList{QStringLiteral("A")};
    workbench->reload(number);
    QTRY_COMPARE(workbench->devices().device(number)->state, DeviceListModel::Ready);
    QVERIFY(!held(number).isEmpty());
}

void tst_Workbench::cancellingAnOpenLeavesTheListAsItWas()
{
    const auto workbench = makeUsed();
    m_world->slow = true;
    QSignalSpy cancelled(workbench.get(), &Workbench::loadingCancelled);
    QSignalSpy failed(workbench.get(), &Workbench::openFailed);
    workbench->open(file(QStringLiteral("a.icd"), {QStringLiteral("A")}));
    workbench->loader().cancel();
    QVERIFY(cancelled.wait());
    QCOMPARE(workbench->devices().rowCount(), 0);
    QVERIFY(failed.isEmpty());
}

void tst_Workbench::cancellingAReloadKeepsTheModel()
{
    const auto workbench = makeUsed();
    workbench->open(file(QStringLiteral("a.icd"), {QStringLiteral("A")}));
    QTRY_COMPARE(workbench->devices().rowCount(), 1);
    const int number = workbench->devices().deviceAt(0)->record.number();
    m_world->slow = true;
    workbench->reload(number);
    QCOMPARE(workbench->devices().device(number)->state, DeviceListModel::Loading);
    workbench->loader().cancel();
    QTRY_COMPARE(workbench->devices().device(number)->state, DeviceListModel::Ready);
    QCOMPARE(workbench->devices().device(number)->findings.size(), 1);
    QVERIFY(!held(number).isEmpty());
}

void tst_Workbench::aDeviceRemovedWhileItLoadsStaysRemoved()
{
    const auto workbench = makeUsed();
    workbench->open(file(QStringLiteral("a.icd"), {QStringLiteral("A")}));
    QTRY_COMPARE(workbench->devices().rowCount(), 1);
    const int number = workbench->devices().deviceAt(0)->record.number();
    workbench->reload(number);
    workbench->remove(number);
    QTRY_VERIFY(settled(*workbench));
    QCOMPARE(workbench->devices().rowCount(), 0);
    QVERIFY(held(number).isEmpty());
}

void tst_Workbench::theDriverAnswersAtTheEmbeddedAddress()
{
    {
        const auto workbench = make();
        QCOMPARE(workbench->context().console->currentAddress(), EmbeddedConsole::address);
        QVERIFY(DriverServiceRegistry::find(EmbeddedConsole::address) != nullptr);
        QCOMPARE(ControllerCallObserver::installed(), &workbench->journal());
    }
    QVERIFY(DriverServiceRegistry::find(EmbeddedConsole::address) == nullptr);
    QVERIFY(ControllerCallObserver::installed() == nullptr);
}

void tst_Workbench::theConsoleKnowsWhereADeviceIs()
{
    const auto workbench = makeUsed();
    const QString path = file(QStringLiteral("a.icd"), {QStringLiteral("A")});
    workbench->open(path);
    QTRY_COMPARE(workbench->devices().rowCount(), 1);
    const int number = workbench->devices().deviceAt(0)->record.number();
    QString location;
    DriverConsolInterface &console = *workbench->context().console;
    QCOMPARE(console.getLoc(EmbeddedConsole::driverNo, number, location), OperationSucceeded);
    QCOMPARE(location, path);
    QVERIFY(console.getLoc(EmbeddedConsole::driverNo, number + 1, location) != OperationSucceeded);
    QVERIFY(console.getLoc(EmbeddedConsole::driverNo + 1, number, location) != OperationSucceeded);
}

QTEST_MAIN(tst_Workbench)
#include "tst_workbench.moc"
