// SPDX-License-Identifier: Apache-2.0
#include "driver/administration/deviceconfiguration.h"
#include "driver/device/configurationfiles.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtTest/QtTest>

namespace {

DeviceConfiguration usable()
{
    DeviceConfiguration configuration;
    configuration.number = 3;
    configuration.name = "AA1E1Q01";
    configuration.host = "192.0.2.7";
    return configuration;
}

} // namespace

class tst_DeviceConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void anAddressAndANameAreEnough();
    void eachFaultIsOneSentence_data();
    void eachFaultIsOneSentence();
    void severalFaultsAreAllNamed();
    void everythingSurvivesJson();
    void whatJsonLacksKeepsItsDefault();
    void wrongFormsInJsonAreNamedAndTheRestIsTaken();
    void octetsAreReadInAllUsualSpellings();
    void tlsFilesThatDoNotExistAreNamed();
};

void tst_DeviceConfiguration::anAddressAndANameAreEnough()
{
    QCOMPARE(usable().faults(), QStringList());
    QCOMPARE(usable().title(), QStringLiteral("Device 3 (AA1E1Q01)"));
    DeviceConfiguration named = usable();
    named.host = "bay-7.station.example";
    QCOMPARE(named.faults(), QStringList());
    named.host = "fe80::1%eth0";
    QCOMPARE(named.faults(), QStringList());
}

void tst_DeviceConfiguration::eachFaultIsOneSentence_data()
{
    using Change = std::function<void(DeviceConfiguration &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const char *name, Change change, const char *sentence) {
        QTest::newRow(name) << std::move(change) << QString::fromUtf8(sentence);
    };
    using Configuration = DeviceConfiguration;
    using std::chrono::milliseconds;
    row(
        "number", [](Configuration &c) { c.number = 0; },
        "The device's number must be from 1 to 1073741823.");
    row(
        "name", [](Configuration &c) { c.name = "  "; }, "The device needs a name.");
    row(
        "neither address nor file", [](Configuration &c) { c.host.clear(); },
        "The device needs an address or an SCL file.");
    row(
        "host with blank", [](Configuration &c) { c.host = "a b"; },
        "\"a b\" is no address or host name.");
    row(
        "port", [](Configuration &c) { c.port = 65536; }, "The port must be from 1 to 65535.");
    row(
        "file", [](Configuration &c) { c.sclFile = "/no/such.icd"; },
        "The SCL file \"/no/such.icd\" does not exist.");
    row(
        "transport selector",
        [](Configuration &c) { c.remote.transportSelector = QByteArray(33, 'x'); },
        "The transport selector of the device has 33 octets; at most 32 are possible.");
    row(
        "session selector", [](Configuration &c) { c.local.sessionSelector = QByteArray(17, 'x'); },
        "The session selector of the client has 17 octets; at most 16 are possible.");
    row(
        "AP title", [](Configuration &c) { c.remote.apTitle = "1.x"; },
        "The AP title \"1.x\" of the device is no object identifier such as 1.1.1.999.1.");
    row(
        "AP title beyond its arc", [](Configuration &c) { c.remote.apTitle = "1.40.3"; },
        "The AP title \"1.40.3\" of the device is no object identifier such as 1.1.1.999.1.");
    row(
        "AE qualifier", [](Configuration &c) { c.local.aeQualifier = Q_INT64_C(1) << 40; },
        "The AE qualifier of the client does not fit 32 bits.");
    row(
        "connect time-out", [](Configuration &c) { c.connectTimeout = milliseconds(1); },
        "The time-out for connecting must be from 100 to 600000 milliseconds.");
    row(
        "operation time-out", [](Configuration &c) { c.operationTimeout = milliseconds(1000); },
        "The time-out for operations must not be shorter than the one for requests.");
    row(
        "calls", [](Configuration &c) { c.outstandingCalls = 0; },
        "From 1 to 100 outstanding calls are possible.");
    row(
        "PDU size that crashes devices", [](Configuration &c) { c.maxPduSize = 60; },
        "The PDU size must be from 1000 to 1048576 octets.");
    row(
        "polling", [](Configuration &c) { c.pollInterval = milliseconds(5); },
        "The polling interval must be 0 for none, or from 100 to 86400000 milliseconds.");
    row(
        "file reads", [](Configuration &c) { c.outstandingFileReads = 17; },
        "From 1 to 16 outstanding file reads are possible.");
    row(
        "category", [](Configuration &c) { c.originatorCategory = 9; },
        "The originator category must be from 0 to 8.");
    row(
        "long originator",
        [](Configuration &c) { c.originatorIdentification = QByteArray(65, 'x'); },
        "The originator identification has 65 octets; at most 64 are possible.");
}

Q_DECLARE_METATYPE(std::function<void(DeviceConfiguration &)>)

void tst_DeviceConfiguration::eachFaultIsOneSentence()
{
    QFETCH(const std::function<void(DeviceConfiguration &)>, change);
    QFETCH(const QString, sentence);
    DeviceConfiguration configuration = usable();
    change(configuration);
    QCOMPARE(configuration.faults() + ConfigurationFiles::faults(configuration),
             QStringList(sentence));
}

void tst_DeviceConfiguration::severalFaultsAreAllNamed()
{
    DeviceConfiguration configuration = usable();
    configuration.port = 0;
    configuration.maxPduSize = 0;
    QCOMPARE(configuration.faults().size(), 2);
}

void tst_DeviceConfiguration::everythingSurvivesJson()
{
    DeviceConfiguration configuration = usable();
    configuration.port = 10102;
    configuration.sclFile = "/data/bay.icd";
    configuration.ied = "AA1E1Q01";
    configuration.local.transportSelector = QByteArray("\0\7", 2);
    configuration.local.apTitle = "1.1.1.999";
    configuration.remote.aeQualifier = -12;
    configuration.remote.presentationSelector.clear();
    configuration.password = QString::fromUtf8("größer");
    configuration.tls.enabled = true;
    configuration.tls.certificateFile = "own.pem";
    configuration.tls.keyFile = "own.key";
    configuration.tls.authorityFiles = QStringList{"a.pem", "b.pem"};
    configuration.tls.pins = QStringList(QString(64, 'a'));
    configuration.connectTimeout = std::chrono::milliseconds(1500);
    configuration.callTimeout = std::chrono::milliseconds(700);
    configuration.operationTimeout = std::chrono::milliseconds(9000);
    configuration.outstandingCalls = 1;
    configuration.maxPduSize = 16000;
    configuration.pollInterval = std::chrono::milliseconds(0);
    configuration.outstandingFileReads = 4;
    configuration.originatorCategory = 3;
    configuration.originatorIdentification = "desk";

    const QByteArray text = QJsonDocument(configuration.toJson()).toJson();
    QString error;
    const DeviceConfiguration again =
        DeviceConfiguration::fromJson(QJsonDocument::fromJson(text).object(), error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(QJsonDocument(again.toJson()).toJson(), text);
    QVERIFY(again == configuration);
    QCOMPARE(again.remote.aeQualifier, std::optional<qint64>(-12));
    QCOMPARE(again.password, configuration.password);
    QCOMPARE(again.local.transportSelector, QByteArray("\0\7", 2));
    QCOMPARE(again.callTimeout.count(), 700);
}

void tst_DeviceConfiguration::whatJsonLacksKeepsItsDefault()
{
    QString error;
    const DeviceConfiguration configuration =
        DeviceConfiguration::fromJson({{"number", 1}, {"name", "x"}, {"host", "h"}}, error);
    QVERIFY(error.isEmpty());
    QCOMPARE(configuration.port, 102);
    QCOMPARE(configuration.local.transportSelector, QByteArray("\0\1", 2));
    QCOMPARE(configuration.faults(), QStringList());
}

void tst_DeviceConfiguration::wrongFormsInJsonAreNamedAndTheRestIsTaken()
{
    QString error;
    const DeviceConfiguration configuration = DeviceConfiguration::fromJson(
        {{"number", 4},
         {"port", "high"},
         {"local", QJsonObject{{"transportSelector", "0g"}, {"aeQualifier", 1e300}}},
         {"callTimeoutMs", 1e300},
         {"name", "x"}},
        error);
    QCOMPARE(error, QStringLiteral("\"port\" has the wrong form."));
    QCOMPARE(configuration.number, 4);
    QCOMPARE(configuration.name, QStringLiteral("x"));
    QCOMPARE(configuration.port, 102);
    QCOMPARE(configuration.callTimeout.count(), 5000);
    QCOMPARE(configuration.local.transportSelector, QByteArray("\0\1", 2));
    QVERIFY(!configuration.local.aeQualifier);
}

void tst_DeviceConfiguration::octetsAreReadInAllUsualSpellings()
{
    const QByteArray octets("\x00\xAB", 2);
    for (const char *text : {"00ab", "00 AB", "00:Ab"})
        QCOMPARE(octetsFromHex(text).value_or("none"), octets);
    QCOMPARE(octetsFromHex("").value_or("none"), QByteArray());
    QVERIFY(!octetsFromHex("0"));
    QVERIFY(!octetsFromHex("0x01"));
}

void tst_DeviceConfiguration::tlsFilesThatDoNotExistAreNamed()
{
    DeviceConfiguration configuration = usable();
    configuration.tls.certificateFile = "/no/own.pem";
    QCOMPARE(ConfigurationFiles::faults(configuration), QStringList());
    configuration.tls.enabled = true;
    configuration.tls.keyFile = "/no/own.key";
    configuration.tls.authorityFiles = QStringList("/no/ca.pem");
    const QStringList faults = ConfigurationFiles::faults(configuration);
    QCOMPARE(faults.size(), 1);
    QVERIFY2(faults.first().contains("/no/own.pem"), qPrintable(faults.first()));
}

QTEST_GUILESS_MAIN(tst_DeviceConfiguration)
#include "tst_deviceconfiguration.moc"
