// SPDX-License-Identifier: Apache-2.0
#include "workbench/devicedialog.h"

#include "workbench/backgroundjobs.h"

#include <QtCore/QSemaphore>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTabWidget>

class tst_DeviceDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void whatIsNotTouchedStaysAsItWas();
    void everyFieldEndsInTheConfiguration();
    void aNewDeviceIsNamedByItsAddressUnlessItGetsAName();
    void aNewDeviceIsNamedByWhatItAnswersToATest();
    void acceptingOtherNamesSaysWhatThatMeans();
    void faultsAreShownOneForEachAndTheDialogStays();
    void shownFaultsFollowTheFields();
    void octetsThatAreNotHexadecimalAreAFault();
    void aTestTellsWhoIsThereWhileTheWindowGoesOn();
    void aTestThatFailsTellsWhy();
    void faultsAreShownBeforeATestGoesOut();
    void aDialogMayCloseWhileATestIsUnderWay();
    void theAddressOfASimulatedDeviceIsNotToBeChanged();

private:
    std::unique_ptr<DeviceDialog> make(const DeviceRecord &record);
    template <typename T>
    static T *child(const QWidget &dialog, const char *name)
    {
        T *found = dialog.findChild<T *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no %s", name);
        return found;
    }
    static void enter(const QWidget &dialog, const char *name, const QString &text)
    {
        child<QLineEdit>(dialog, name)->setText(text);
    }
    static void pressOk(const QWidget &dialog)
    {
        QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    }

    QVector<DeviceRecord> m_saved;
    QStringList m_faults; ///< that saving gives back
    std::function<DeviceTestResult(const DeviceConfiguration &)> m_test;
    BackgroundJobs m_jobs;
};

void tst_DeviceDialog::init()
{
    m_saved.clear();
    m_faults.clear();
    m_test = [](const DeviceConfiguration &) { return DeviceTestResult(); };
}

std::unique_ptr<DeviceDialog> tst_DeviceDialog::make(const DeviceRecord &record)
{
    auto dialog = std::make_unique<DeviceDialog>(
        record,
        [this](const DeviceRecord &wanted) {
            QStringList faults = m_faults;
            DeviceConfiguration configuration = wanted.configuration;
            configuration.number = qMax(configuration.number, 1);
            faults += configuration.faults();
            if (faults.isEmpty())
                m_saved.append(wanted);
            return faults;
        },
        [](const DeviceConfiguration &configuration) { return configuration.faults(); }, m_test,
        m_jobs);
    dialog->show();
    return dialog;
}

void tst_DeviceDialog::whatIsNotTouchedStaysAsItWas()
{
    DeviceRecord record;
    record.configuration.number = 4;
    record.configuration.name = QStringLiteral("BAY1");
    record.configuration.host = QStringLiteral("10.0.0.4");
    record.configuration.local.apTitle = QStringLiteral("1.3.9999.1");
    record.configuration.local.aeQualifier = -3;
    record.configuration.remote.sessionSelector = QByteArray("\0\x10", 2);
    record.configuration.tls.authorityFiles =
        QStringList{QStringLiteral("/a.pem"), QStringLiteral("/b.pem")};
    record.configuration.pollInterval = std::chrono::milliseconds(0);
    record.configuration.originatorIdentification = "desk 4";
    record.connects = false;
    const auto dialog = make(record);
    pressOk(*dialog);
    QCOMPARE(m_saved.size(), 1);
    QVERIFY(m_saved[0].configuration == record.configuration);
    QVERIFY(!m_saved[0].connects);
    QVERIFY(!dialog->isVisible());
}

void tst_DeviceDialog::everyFieldEndsInTheConfiguration()
{
    const auto dialog = make({});
    enter(*dialog, "name", QStringLiteral("N"));
    enter(*dialog, "host", QStringLiteral(" 10.0.0.4 "));
    enter(*dialog, "ied", QStringLiteral("IED1"));
    enter(*dialog, "accessPoint", QStringLiteral(" S2 "));
    child<QCheckBox>(*dialog, "acceptsOtherNames")->setChecked(true);
    enter(*dialog, "localTransportSelector", QStringLiteral("0a"));
    enter(*dialog, "localSessionSelector", QStringLiteral("0b"));
    enter(*dialog, "localPresentationSelector", QStringLiteral("0c"));
    enter(*dialog, "localApTitle", QStringLiteral("1.1.1"));
    enter(*dialog, "localAeQualifier", QStringLiteral("11"));
    enter(*dialog, "remoteTransportSelector", QStringLiteral("1a 1A"));
    enter(*dialog, "remoteSessionSelector", QStringLiteral("1b"));
    enter(*dialog, "remotePresentationSelector", QStringLiteral("1c"));
    enter(*dialog, "remoteApTitle", QStringLiteral("1.1.2"));
    enter(*dialog, "remoteAeQualifier", QStringLiteral("12"));
    enter(*dialog, "password", QStringLiteral("secret"));
    enter(*dialog, "originatorIdentification", QStringLiteral("desk"));
    enter(*dialog, "certificateFile", QStringLiteral("c.pem"));
    enter(*dialog, "keyFile", QStringLiteral("k.pem"));
    enter(*dialog, "keyPassword", QStringLiteral("kp"));
    enter(*dialog, "authorityFiles", QStringLiteral("a.pem; b.pem"));
    enter(*dialog, "revocationFiles", QStringLiteral("r.pem"));
    enter(*dialog, "pins", QStringLiteral("aa;bb"));
    enter(*dialog, "peerName", QStringLiteral("bay1.example"));
    child<QGroupBox>(*dialog, "tls")->setChecked(true);
    child<QSpinBox>(*dialog, "port")->setValue(1);
    child<QSpinBox>(*dialog, "connectTimeout")->setValue(2);
    child<QSpinBox>(*dialog, "callTimeout")->setValue(3);
    child<QSpinBox>(*dialog, "operationTimeout")->setValue(4);
    child<QSpinBox>(*dialog, "pollInterval")->setValue(5);
    child<QSpinBox>(*dialog, "outstandingCalls")->setValue(6);
    child<QSpinBox>(*dialog, "maxPduSize")->setValue(7);
    child<QSpinBox>(*dialog, "outstandingFileReads")->setValue(8);
    child<QComboBox>(*dialog, "originatorCategory")->setCurrentIndex(3);
    child<QCheckBox>(*dialog, "connects")->setChecked(false);

    DeviceRecord expected;
    expected.connects = false;
    DeviceConfiguration &device = expected.configuration;
    device.name = QStringLiteral("N");
    device.host = QStringLiteral("10.0.0.4");
    device.port = 1;
    device.ied = QStringLiteral("IED1");
    device.accessPoint = QStringLiteral("S2");
    device.tls.acceptsOtherNames = true;
    device.local = {"\x0a", "\x0b", "\x0c", QStringLiteral("1.1.1"), 11};
    device.remote = {"\x1a\x1a", "\x1b", "\x1c", QStringLiteral("1.1.2"), 12};
    device.password = QStringLiteral("secret");
    device.tls.enabled = true;
    device.tls.certificateFile = QStringLiteral("c.pem");
    device.tls.keyFile = QStringLiteral("k.pem");
    device.tls.keyPassword = QStringLiteral("kp");
    device.tls.authorityFiles = QStringList{QStringLiteral("a.pem"), QStringLiteral("b.pem")};
    device.tls.revocationFiles = QStringList{QStringLiteral("r.pem")};
    device.tls.pins = QStringList{QStringLiteral("aa"), QStringLiteral("bb")};
    device.tls.peerName = QStringLiteral("bay1.example");
    device.connectTimeout = std::chrono::milliseconds(2);
    device.callTimeout = std::chrono::milliseconds(3);
    device.operationTimeout = std::chrono::milliseconds(4);
    device.pollInterval = std::chrono::milliseconds(5);
    device.outstandingCalls = 6;
    device.maxPduSize = 7;
    device.outstandingFileReads = 8;
    device.originatorCategory = 3;
    device.originatorIdentification = "desk";
    QStringList faults;
    const DeviceRecord entered = dialog->record(faults);
    QVERIFY(faults.isEmpty());
    QCOMPARE(entered.configuration.toJson(), device.toJson());
    QVERIFY(!entered.connects);
}

void tst_DeviceDialog::aNewDeviceIsNamedByItsAddressUnlessItGetsAName()
{
    const auto dialog = make({});
    QCOMPARE(dialog->focusWidget(), child<QLineEdit>(*dialog, "host"));
    enter(*dialog, "host", QStringLiteral("10.0.0.4"));
    QStringList faults;
    QCOMPARE(dialog->record(faults).name(), QStringLiteral("10.0.0.4"));
    // Two devices at one address are told apart.
    child<QSpinBox>(*dialog, "port")->setValue(10102);
    QCOMPARE(dialog->record(faults).name(), QStringLiteral("10.0.0.4:10102"));
    enter(*dialog, "host", QStringLiteral("fe80::1"));
    QCOMPARE(dialog->record(faults).name(), QStringLiteral("[fe80::1]:10102"));
    enter(*dialog, "ied", QStringLiteral("IED1"));
    QCOMPARE(dialog->record(faults).name(), QStringLiteral("IED1"));
    enter(*dialog, "name", QStringLiteral("Bay"));
    QCOMPARE(dialog->record(faults).name(), QStringLiteral("Bay"));
}

void tst_DeviceDialog::aNewDeviceIsNamedByWhatItAnswersToATest()
{
    m_test = [](const DeviceConfiguration &) {
        DeviceTestResult result;
        result.iedName = QStringLiteral("BAY1E1");
        return result;
    };
    const auto dialog = make({});
    enter(*dialog, "host", QStringLiteral("10.0.0.4"));
    QTest::mouseClick(child<QPushButton>(*dialog, "test"), Qt::LeftButton);
    QStringList faults;
    QTRY_COMPARE(dialog->record(faults).name(), QStringLiteral("BAY1E1"));
    // Who answers elsewhere is not known yet.
    enter(*dialog, "host", QStringLiteral("10.0.0.5"));
    QCOMPARE(dialog->record(faults).name(), QStringLiteral("10.0.0.5"));
}

void tst_DeviceDialog::acceptingOtherNamesSaysWhatThatMeans()
{
    const auto dialog = make({});
    child<QTabWidget>(*dialog, "tabs")->setCurrentWidget(child<QWidget>(*dialog, "securityTab"));
    child<QGroupBox>(*dialog, "tls")->setChecked(true);
    auto *const warning = child<QLabel>(*dialog, "otherNamesWarning");
    auto *const name = child<QLineEdit>(*dialog, "peerName");
    QVERIFY(!warning->isVisible());
    QVERIFY(name->isEnabled());
    child<QCheckBox>(*dialog, "acceptsOtherNames")->setChecked(true);
    QVERIFY(warning->isVisible());
    QVERIFY2(warning->text().startsWith(QLatin1String("Unsafe:")), qPrintable(warning->text()));
    QVERIFY(!name->isEnabled());
    QTRY_VERIFY(warning->height() >= warning->heightForWidth(warning->width()));
}

void tst_DeviceDialog::faultsAreShownOneForEachAndTheDialogStays()
{
    const auto dialog = make({});
    QVERIFY(!child<QFrame>(*dialog, "faultsFrame")->isVisible());
    child<QSpinBox>(*dialog, "maxPduSize")->setValue(1);
    pressOk(*dialog);
    QVERIFY(dialog->isVisible());
    QVERIFY(m_saved.isEmpty());
    QVERIFY(child<QFrame>(*dialog, "faultsFrame")->isVisible());
    const QStringList faults = child<QLabel>(*dialog, "faults")->text().split('\n');
    QCOMPARE(faults.size(), 3);
    QCOMPARE(faults[0], QStringLiteral("The device needs a name."));
    QCOMPARE(faults[1], QStringLiteral("The device needs an address or an SCL file."));
    QVERIFY2(faults[2].contains(QStringLiteral("PDU size")), qPrintable(faults[2]));
}

void tst_DeviceDialog::shownFaultsFollowTheFields()
{
    const auto dialog = make({});
    pressOk(*dialog);
    QVERIFY(child<QFrame>(*dialog, "faultsFrame")->isVisible());
    enter(*dialog, "host", QStringLiteral("10.0.0.4"));
    QVERIFY(!child<QFrame>(*dialog, "faultsFrame")->isVisible());
    child<QSpinBox>(*dialog, "port")->setValue(0);
    QCOMPARE(child<QLabel>(*dialog, "faults")->text(),
             QStringLiteral("The port must be from 1 to 65535."));
    child<QSpinBox>(*dialog, "port")->setValue(102);
    pressOk(*dialog);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(m_saved.size(), 1);
}

void tst_DeviceDialog::octetsThatAreNotHexadecimalAreAFault()
{
    const auto dialog = make({});
    enter(*dialog, "host", QStringLiteral("10.0.0.4"));
    enter(*dialog, "remoteSessionSelector", QStringLiteral("0x1"));
    enter(*dialog, "localAeQualifier", QStringLiteral("many"));
    pressOk(*dialog);
    QVERIFY(dialog->isVisible());
    QVERIFY(m_saved.isEmpty());
    QCOMPARE(child<QLabel>(*dialog, "faults")->text().split('\n'),
             (QStringList{QStringLiteral("The AE qualifier of the client is not a number."),
                          QStringLiteral("The session selector of the device is not "
                                         "hexadecimal.")}));
}

void tst_DeviceDialog::aTestTellsWhoIsThereWhileTheWindowGoesOn()
{
    QSemaphore mayAnswer;
    m_test = [&mayAnswer](const DeviceConfiguration &configuration) {
        mayAnswer.acquire();
        DeviceTestResult result;
        result.vendor = configuration.host;
        result.model = QStringLiteral("M1");
        result.revision = QStringLiteral("2.0");
        result.roundTrip = std::chrono::microseconds(12340);
        result.logicalDevices = 4;
        return result;
    };
    const auto dialog = make({});
    enter(*dialog, "host", QStringLiteral("10.0.0.4"));
    auto *test = child<QPushButton>(*dialog, "test");
    auto *result = child<QLabel>(*dialog, "testResult");
    QTest::mouseClick(test, Qt::LeftButton);
    QVERIFY(!test->isEnabled());
    QCOMPARE(result->text(), QStringLiteral("Connecting to 10.0.0.4…"));
    mayAnswer.release();
    QTRY_VERIFY(test->isEnabled());
    QCOMPARE(result->text(), QStringLiteral("Connected to 10.0.0.4, M1, 2.0. Round trip: 12.3 ms; "
                                            "logical devices: 4"));
    QVERIFY2(m_saved.isEmpty(), "a test saves nothing");
}

void tst_DeviceDialog::aTestThatFailsTellsWhy()
{
    m_test = [](const DeviceConfiguration &) {
        DeviceTestResult result;
        result.error = QStringLiteral("Nobody is there.");
        return result;
    };
    const auto dialog = make({});
    enter(*dialog, "host", QStringLiteral("10.0.0.4"));
    QTest::mouseClick(child<QPushButton>(*dialog, "test"), Qt::LeftButton);
    QTRY_COMPARE(child<QLabel>(*dialog, "testResult")->text(), QStringLiteral("Nobody is there."));
}

void tst_DeviceDialog::faultsAreShownBeforeATestGoesOut()
{
    bool tested = false;
    m_test = [&tested](const DeviceConfiguration &) {
        tested = true;
        return DeviceTestResult();
    };
    const auto dialog = make({});
    QTest::mouseClick(child<QPushButton>(*dialog, "test"), Qt::LeftButton);
    QVERIFY(child<QFrame>(*dialog, "faultsFrame")->isVisible());
    QVERIFY(child<QPushButton>(*dialog, "test")->isEnabled());
    QVERIFY(!tested);
}

void tst_DeviceDialog::aDialogMayCloseWhileATestIsUnderWay()
{
    QSemaphore mayAnswer;
    std::atomic<bool> answered{false};
    m_test = [&](const DeviceConfiguration &) {
        mayAnswer.acquire();
        answered = true;
        return DeviceTestResult();
    };
    {
        BackgroundJobs jobs;
        {
            DeviceDialog dialog(
                {}, {}, [](const DeviceConfiguration &) { return QStringList(); }, m_test, jobs);
            dialog.show();
            enter(dialog, "host", QStringLiteral("10.0.0.4"));
            QTest::mouseClick(child<QPushButton>(dialog, "test"), Qt::LeftButton);
        }
        mayAnswer.release();
    }
    QVERIFY(answered);
    QCoreApplication::processEvents();
}

void tst_DeviceDialog::theAddressOfASimulatedDeviceIsNotToBeChanged()
{
    DeviceRecord record =
        DeviceRecord::ofFile(QStringLiteral(":/a.scd"), QStringLiteral("A"), true);
    record.configuration.number = 1;
    record.configuration.host = QStringLiteral("127.0.0.1");
    const auto dialog = make(record);
    for (const char *name : {"host", "port", "sclFile", "ied"})
        QVERIFY(!child<QWidget>(*dialog, name)->isEnabled());
    QVERIFY(child<QWidget>(*dialog, "name")->isEnabled());
}

QTEST_MAIN(tst_DeviceDialog)
#include "tst_devicedialog.moc"
