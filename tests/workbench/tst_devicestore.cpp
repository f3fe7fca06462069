// SPDX-License-Identifier: Apache-2.0
#include "workbench/devicestore.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

class tst_DeviceStore : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aFreshStoreIsAtItsFirstStart();
    void devicesAreRememberedBetweenStarts();
    void aDeviceKeepsItsNumberWhenOthersGo();
    void aNumberIsNotGivenOutAgain();
    void theSameIedOfTheSameFileIsOneDevice();
    void twoIedsOfOneFileAreTwoDevices();
    void anEmptiedListIsNotAFirstStart();
    void aVanishedFileStaysRemembered();
    void aDamagedSettingsFileLosesOnlyWhatIsDamaged();
    void aListThatCannotBeSavedSaysSo();
    void aDeviceOnTheNetworkIsRememberedWithAllItsSettings();
    void anEditedDeviceKeepsItsPlaceAndNumber();
    void aSimulatedDeviceIsAnotherThanTheOneOfItsFile();
    void onlyTheOwnerCanReadTheFile();
    void aDamagedConnectionIsToldAndLeavesTheOthers();

private:
    QString settingsFile() const { return m_folder->filePath(QStringLiteral("workbench.ini")); }
    QString sclFile(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_DeviceStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString tst_DeviceStore::sclFile(const QString &name) const
{
    const QString path = m_folder->filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    return path;
}

void tst_DeviceStore::aFreshStoreIsAtItsFirstStart()
{
    const DeviceStore store(settingsFile());
    QVERIFY(store.isFirstStart());
    QVERIFY(store.devices().isEmpty());
    QVERIFY(store.problem().isEmpty());
}

void tst_DeviceStore::devicesAreRememberedBetweenStarts()
{
    const QString file = sclFile(QStringLiteral("Schaltfeld Ä 1.scd"));
    {
        DeviceStore store(settingsFile());
        QCOMPARE(store.add(file, QStringLiteral("BAY1")), 1);
        QCOMPARE(store.add(file, QStringLiteral("BAY2")), 2);
    }
    const DeviceStore store(settingsFile());
    QVERIFY(!store.isFirstStart());
    QCOMPARE(store.devices().size(), 2);
    QCOMPARE(store.devices()[0].number(), 1);
    QCOMPARE(store.devices()[0].file(), QFileInfo(file).canonicalFilePath());
    QCOMPARE(store.devices()[0].ied(), QStringLiteral("BAY1"));
    QCOMPARE(store.devices()[1].number(), 2);
    QCOMPARE(store.devices()[1].ied(), QStringLiteral("BAY2"));
}

void tst_DeviceStore::aDeviceKeepsItsNumberWhenOthersGo()
{
    const QString file = sclFile(QStringLiteral("a.scd"));
    {
        DeviceStore store(settingsFile());
        store.add(file, QStringLiteral("A"));
        store.add(file, QStringLiteral("B"));
        store.add(file, QStringLiteral("C"));
        store.remove(1);
        store.remove(17);
    }
    const DeviceStore store(settingsFile());
    QCOMPARE(store.devices().size(), 2);
    QCOMPARE(store.find(file, QStringLiteral("A")), 0);
    QCOMPARE(store.find(file, QStringLiteral("B")), 2);
    QCOMPARE(store.find(file, QStringLiteral("C")), 3);
}

void tst_DeviceStore::aNumberIsNotGivenOutAgain()
{
    const QString file = sclFile(QStringLiteral("a.scd"));
    {
        DeviceStore store(settingsFile());
        store.add(file, QStringLiteral("A"));
        store.add(file, QStringLiteral("B"));
        store.remove(2);
    }
    DeviceStore store(settingsFile());
    QCOMPARE(store.add(file, QStringLiteral("C")), 3);
}

void tst_DeviceStore::theSameIedOfTheSameFileIsOneDevice()
{
    const QString file = sclFile(QStringLiteral("a.scd"));
    QVERIFY(QFile::link(file, m_folder->filePath(QStringLiteral("link.scd"))));
    DeviceStore store(settingsFile());
    const int number = store.add(file, QStringLiteral("A"));
    QCOMPARE(store.add(file, QStringLiteral("A")), number);
    QCOMPARE(store.add(m_folder->filePath(QStringLiteral("link.scd")), QStringLiteral("A")),
             number);
    QCOMPARE(store.find(m_folder->filePath(QStringLiteral("./x/../a.scd")), QStringLiteral("A")),
             number);
    QCOMPARE(store.devices().size(), 1);
}

void tst_DeviceStore::twoIedsOfOneFileAreTwoDevices()
{
    const QString file = sclFile(QStringLiteral("a.scd"));
    DeviceStore store(settingsFile());
    QVERIFY(store.add(file, QStringLiteral("A")) != store.add(file, QStringLiteral("B")));
    QCOMPARE(store.devices().size(), 2);
}

void tst_DeviceStore::anEmptiedListIsNotAFirstStart()
{
    {
        DeviceStore store(settingsFile());
        store.remove(store.add(sclFile(QStringLiteral("a.scd")), QStringLiteral("A")));
    }
    const DeviceStore store(settingsFile());
    QVERIFY(store.devices().isEmpty());
    QVERIFY(!store.isFirstStart());
}

void tst_DeviceStore::aVanishedFileStaysRemembered()
{
    const QString file = sclFile(QStringLiteral("a.scd"));
    {
        DeviceStore store(settingsFile());
        store.add(file, QStringLiteral("A"));
    }
    QVERIFY(QFile::remove(file));
    const DeviceStore store(settingsFile());
    QCOMPARE(store.devices().size(), 1);
    QCOMPARE(store.find(file, QStringLiteral("A")), 1);
}

void tst_DeviceStore::aDamagedSettingsFileLosesOnlyWhatIsDamaged()
{
    QFile file(settingsFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("nextDeviceNumber=banana\n"
               "[devices]\nsize=6\n"
               "1\\number=4\n1\\file=/a.scd\n1\\ied=A\n"
               "2\\number=x\n2\\file=/b.scd\n2\\ied=B\n"
               "3\\number=4\n3\\file=/c.scd\n3\\ied=C\n"
               "4\\number=-1\n4\\file=/d.scd\n4\\ied=D\n"
               "5\\number=2147483647\n5\\file=/e.scd\n5\\ied=E\n"
               "6\\number=9\n6\\ied=F\n");
    file.close();

    DeviceStore store(settingsFile());
    QCOMPARE(store.devices().size(), 1);
    QCOMPARE(store.devices()[0].number(), 4);
    QCOMPARE(store.add(sclFile(QStringLiteral("new.scd")), QStringLiteral("N")), 5);
}

void tst_DeviceStore::aListThatCannotBeSavedSaysSo()
{
    // A folder in the place of the file cannot be written, not even by the superuser.
    QVERIFY(QDir().mkpath(settingsFile()));
    DeviceStore store(settingsFile());
    QCOMPARE(store.add(sclFile(QStringLiteral("a.scd")), QStringLiteral("A")), 1);
    QVERIFY2(store.problem().contains(settingsFile()), qPrintable(store.problem()));
    QCOMPARE(store.devices().size(), 1);
}

void tst_DeviceStore::aDeviceOnTheNetworkIsRememberedWithAllItsSettings()
{
    DeviceRecord record;
    DeviceConfiguration &configuration = record.configuration;
    configuration.name = QStringLiteral("Übergabe, \"Feld\" 1");
    configuration.host = QStringLiteral("fe80::1");
    configuration.port = 10102;
    configuration.remote.transportSelector = QByteArray("\0\7", 2);
    configuration.remote.aeQualifier = 12;
    configuration.password = QStringLiteral("p=%;,\"x");
    configuration.tls.pins = QStringList{QStringLiteral("aa:bb"), QStringLiteral("cc:dd")};
    configuration.callTimeout = std::chrono::milliseconds(1234);
    configuration.originatorIdentification = "desk 4";
    record.connects = false;
    {
        DeviceStore store(settingsFile());
        QCOMPARE(store.put(record), 1);
    }
    const DeviceStore store(settingsFile());
    QVERIFY2(store.problem().isEmpty(), qPrintable(store.problem()));
    QCOMPARE(store.devices().size(), 1);
    configuration.number = 1;
    QVERIFY(store.devices()[0].configuration == configuration);
    QVERIFY(store.devices()[0].isReached());
    QVERIFY(!store.devices()[0].connects);
    QVERIFY(!store.devices()[0].simulated);
}

void tst_DeviceStore::anEditedDeviceKeepsItsPlaceAndNumber()
{
    DeviceRecord record;
    record.configuration.name = QStringLiteral("A");
    record.configuration.host = QStringLiteral("a.example");
    DeviceStore store(settingsFile());
    QCOMPARE(store.nextNumber(), 1);
    record.configuration.number = store.put(record);
    store.add(sclFile(QStringLiteral("b.scd")), QStringLiteral("B"));
    record.configuration.host = QStringLiteral("c.example");
    QCOMPARE(store.put(record), 1);
    const DeviceStore read(settingsFile());
    QCOMPARE(read.devices().size(), 2);
    QCOMPARE(read.devices()[0].configuration.host, QStringLiteral("c.example"));
}

void tst_DeviceStore::aSimulatedDeviceIsAnotherThanTheOneOfItsFile()
{
    const QString file = sclFile(QStringLiteral("a.scd"));
    {
        DeviceStore store(settingsFile());
        QCOMPARE(store.add(file, QStringLiteral("A")), 1);
        QCOMPARE(store.add(file, QStringLiteral("A"), true), 2);
        QCOMPARE(store.add(file, QStringLiteral("A"), true), 2);
    }
    const DeviceStore store(settingsFile());
    QCOMPARE(store.find(file, QStringLiteral("A")), 1);
    QCOMPARE(store.find(file, QStringLiteral("A"), true), 2);
    QVERIFY(store.devices()[1].simulated);
}

void tst_DeviceStore::onlyTheOwnerCanReadTheFile()
{
    DeviceStore store(settingsFile());
    store.add(sclFile(QStringLiteral("a.scd")), QStringLiteral("A"));
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(settingsFile()) & others));
}

void tst_DeviceStore::aDamagedConnectionIsToldAndLeavesTheOthers()
{
    QFile file(settingsFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("nextDeviceNumber=4\n[devices]\nsize=2\n"
               "1\\number=1\n1\\file=\n1\\ied=\n1\\connection=\"{ rubbish\"\n"
               "2\\number=2\n2\\file=\n2\\ied=\n"
               "2\\connection=\"{\\\"name\\\":\\\"B\\\",\\\"host\\\":\\\"b\\\"}\"\n");
    file.close();
    const DeviceStore store(settingsFile());
    QCOMPARE(store.devices().size(), 1);
    QCOMPARE(store.devices()[0].number(), 2);
    QCOMPARE(store.devices()[0].configuration.host, QStringLiteral("b"));
    QVERIFY(store.problem().contains(settingsFile()));
}

QTEST_GUILESS_MAIN(tst_DeviceStore)
#include "tst_devicestore.moc"
