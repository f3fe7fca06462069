// SPDX-License-Identifier: Apache-2.0
#include "simulatedstation.h"

#include "driver/core/filenames.h"
#include "simulator/directoryfiles.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <filesystem>
#include <fstream>

using namespace drivertest;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return "(no such file)";
    return file.readAll();
}

/// Under a name of any octets.
void write(const std::string &path, const std::string &content)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    if (!file.good())
        qFatal("%s cannot be written", path.c_str());
}

} // namespace

/// Devices whose file service does otherwise than most do.
class tst_OddFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aFileThatCannotBeOpenedIsNotLost();
    void aLeftoverOfAnUploadIsNamedAndKept();
    void emptyPagesDoNotEndAListing();
    void timesWithoutSecondsAreShown();
    void aFileThatEndsTooEarlyIsToldAndNotKept();
    void aFileThatStaysOpenIsTold();
    void anEmptyFileInADirectoryIsAFile();
    void namesOfOtherOctetsAreListedFetchedAndDeleted();
    void namesOfADeviceChooseNoFolder();

private:
    void start(bool sim::Oddities::*oddity = nullptr, const std::string &faults = {});
    std::string remote(const std::string &name) const
    {
        return m_remote->path().toStdString() + '/' + name;
    }
    QList<MMSFileEntry> listed(const QString &directory);

    std::unique_ptr<QTemporaryDir> m_remote;
    std::unique_ptr<QTemporaryDir> m_local;
    std::unique_ptr<SimulatedIed> m_ied;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    QString m_error;
};

void tst_OddFiles::init()
{
    m_remote = std::make_unique<QTemporaryDir>();
    m_local = std::make_unique<QTemporaryDir>();
    QVERIFY(m_remote->isValid() && m_local->isValid());
    write(remote("readme.txt"), "the device");
    write(remote("COMTRADE/fault1.cfg"), "configuration");
    m_error.clear();
}

void tst_OddFiles::cleanup()
{
    m_driver.reset();
    m_ied.reset();
}

void tst_OddFiles::start(bool sim::Oddities::*oddity, const std::string &faults)
{
    sim::FileOptions files;
    files.directory = m_remote->path().toStdString();
    if (oddity)
        files.oddities.*oddity = true;
    const auto service = sim::DirectoryFiles::create(files);
    if (!service)
        qFatal("%s", service.error().message.english().c_str());
    sim::DeviceOptions options;
    options.files = *service;
    m_ied =
        std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE), QString(), faults, options);
    m_listener = std::make_unique<Listener>();
    m_driver = std::make_unique<ServedDriver>(m_listener->options());
    DeviceConfiguration configuration = configurationFor(*m_ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    m_driver->setDevice(configuration);
    m_driver->connectDevice(1);
    if (!m_listener->waitForState(1, DeviceState::Online))
        qFatal("the simulated IED is not online");
}

QList<MMSFileEntry> tst_OddFiles::listed(const QString &directory)
{
    QList<MMSFileEntry> entries;
    if (m_driver->getFileDirectory(1, "*.*", directory, entries, m_error) != OperationSucceeded)
        qFatal("%s", qPrintable(m_error));
    return entries;
}

void tst_OddFiles::aFileThatCannotBeOpenedIsNotLost()
{
    // The upload breaks off in the middle: what was taken for a new file would be deleted.
    start(&sim::Oddities::unreadableFiles, "refuse on obtainFile");
    const QString local = m_local->filePath("new.txt");
    write(local.toStdString(), "the new version");
    QCOMPARE(m_driver->writeFile(1, local, "readme.txt", m_error), OperationFailed);
    QVERIFY2(m_error.endsWith("The old file is still there."), qPrintable(m_error));
    QCOMPARE(contentOf(m_remote->filePath("readme.txt")), QByteArray("the device"));

    cleanup();
    start(&sim::Oddities::unreadableFiles);
    QVERIFY2(m_driver->writeFile(1, local, "readme.txt", m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(contentOf(m_remote->filePath("readme.txt")), QByteArray("the new version"));
    QVERIFY(!QFile::exists(m_remote->filePath("readme.txt.upload")));
}

void tst_OddFiles::aLeftoverOfAnUploadIsNamedAndKept()
{
    write(remote("readme.txt.upload"), "the only whole version");
    start();
    const QString local = m_local->filePath("new.txt");
    write(local.toStdString(), "the new version");
    QCOMPARE(m_driver->writeFile(1, local, "readme.txt", m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("readme.txt.upload is in the device already"), qPrintable(m_error));
    QCOMPARE(contentOf(m_remote->filePath("readme.txt")), QByteArray("the device"));
    QCOMPARE(contentOf(m_remote->filePath("readme.txt.upload")),
             QByteArray("the only whole version"));
    // Once it is gone the upload works.
    QCOMPARE(m_driver->deleteFile(1, "readme.txt.upload", m_error), OperationSucceeded);
    QVERIFY2(m_driver->writeFile(1, local, "readme.txt", m_error) == OperationSucceeded,
             qPrintable(m_error));
}

void tst_OddFiles::emptyPagesDoNotEndAListing()
{
    start(&sim::Oddities::emptyPages);
    QCOMPARE(listed("").size(), 2);
    QCOMPARE(listed("COMTRADE\\").size(), 1);
}

void tst_OddFiles::timesWithoutSecondsAreShown()
{
    QFile file(m_remote->filePath("readme.txt"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime time(QDate(2021, 3, 4), QTime(5, 6, 7), Qt::UTC);
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    start(&sim::Oddities::shortTimes);
    for (const MMSFileEntry &entry : listed("")) {
        if (entry.name == "readme.txt")
            QCOMPARE(qint64(entry.lastModified), time.toSecsSinceEpoch() - 7);
    }
}

void tst_OddFiles::aFileThatEndsTooEarlyIsToldAndNotKept()
{
    start(&sim::Oddities::cutFiles);
    QByteArray content = "as it was";
    QCOMPARE(m_driver->getFile(1, "readme.txt", content, m_error), OperationFailed);
    QCOMPARE(m_error, QString("readme.txt: the file ended after 5 of 10 octets."));
    QCOMPARE(content, QByteArray("as it was"));
}

void tst_OddFiles::aFileThatStaysOpenIsTold()
{
    start(&sim::Oddities::refusedClose);
    QByteArray content;
    QVERIFY2(m_driver->getFile(1, "readme.txt", content, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(content, QByteArray("the device"));
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &status) {
        return status.reason.contains("readme.txt stays open on the device");
    }));
}

void tst_OddFiles::anEmptyFileInADirectoryIsAFile()
{
    write(remote("COMTRADE/empty.txt"), "");
    start();
    // The tools come back to a directory without its last separator.
    for (const QString &directory : {QString("COMTRADE"), QString("COMTRADE\\")}) {
        int empty = 0;
        for (const MMSFileEntry &entry : listed(directory)) {
            if (entry.size != 0)
                continue;
            ++empty;
            QVERIFY2(!entry.name.contains('\\'), qPrintable(entry.name));
            QByteArray content = "something";
            QVERIFY2(m_driver->getFile(1, directory + entry.name, content, m_error) ==
                         OperationSucceeded,
                     qPrintable(m_error));
            QCOMPARE(content, QByteArray());
        }
        QCOMPARE(empty, 1);
    }
}

void tst_OddFiles::namesOfOtherOctetsAreListedFetchedAndDeleted()
{
    write(remote("St\xF6rung/\xFC"
                 "ber.cfg"),
          "in ISO 8859-1");
    write(remote("\xC3\xA4.txt"), "in UTF-8");
    start();
    QStringList names;
    for (const MMSFileEntry &entry : listed(""))
        names.append(entry.name);
    QVERIFY2(names.contains(QString::fromUtf8("Störung\\")), qPrintable(names.join(' ')));
    QVERIFY2(names.contains(QString::fromUtf8("ä.txt")), qPrintable(names.join(' ')));
    const QString directory = QString::fromUtf8("Störung\\");
    const QList<MMSFileEntry> below = listed(directory);
    QCOMPARE(below.size(), 1);
    QCOMPARE(below.first().name, QString::fromUtf8("über.cfg"));
    QByteArray content;
    QVERIFY2(m_driver->getFile(1, directory + below.first().name, content, m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(content, QByteArray("in ISO 8859-1"));
    QVERIFY2(m_driver->getFile(1, QString::fromUtf8("ä.txt"), content, m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(content, QByteArray("in UTF-8"));
    QVERIFY2(m_driver->deleteFile(1, directory + below.first().name, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QVERIFY(listed(directory).isEmpty());
    // Qt does not find such names again.
    std::filesystem::remove_all(remote("St\xF6rung"));
}

void tst_OddFiles::namesOfADeviceChooseNoFolder()
{
    std::vector<acsi::FileEntry> entries;
    for (const char *name : {"plain.txt", "sub/", "..", "../", ".", "../etc/passwd", "a/b.txt",
                             "..\\..\\autostart.exe", "/", "",
                             "\xE2\x88\x95"
                             "etc"})
        entries.push_back({name, 3, {}});
    for (const QString &directory : {QString(), QString("A\\"), QString("A")}) {
        const QList<MMSFileEntry> shown = FileNames::entries("*.*", directory, entries);
        QStringList names;
        for (const MMSFileEntry &entry : shown)
            names.append(entry.name);
        const QString before = directory == "A" ? "\\" : "";
        QCOMPARE(names, QStringList({before + "plain.txt", before + "sub\\"}));
    }
}

QTEST_GUILESS_MAIN(tst_OddFiles)
#include "tst_oddfiles.moc"
