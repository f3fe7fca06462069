// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include "driver/core/filenames.h"
#include "simulator/directoryfiles.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <future>

using namespace drivertest;

namespace {

constexpr qint64 mebibyte = 1 << 20;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return "(no such file)";
    return file.readAll();
}

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
}

QByteArray pattern(int size, char first)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(first + i % 251);
    return bytes;
}

QStringList names(const QList<MMSFileEntry> &entries)
{
    QStringList result;
    for (const MMSFileEntry &entry : entries)
        result.append(entry.name);
    result.sort();
    return result;
}

/// A number of /proc/self/status in octets.
qint64 memory(const char *what)
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(what))
            return line.mid(static_cast<int>(qstrlen(what)) + 1)
                       .simplified()
                       .split(' ')
                       .first()
                       .toLongLong() *
                   1024;
    }
    return 0;
}

bool resetPeakMemory()
{
    QFile references("/proc/self/clear_refs");
    return references.open(QIODevice::WriteOnly) && references.write("5") == 1;
}

} // namespace

class tst_DriverFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void namesAndPathsJoin();
    void everyListedFileIsFetchedByItsJoinedName();
    void bothSlashesAreUnderstood();
    void aFlatListingIsShownAsDirectories();
    void sizesAndTimesAreTold();
    void aPatternLeavesOutOtherFiles();
    void timesOfEveryFormAreUnderstood_data();
    void timesOfEveryFormAreUnderstood();
    void aDirectoryThatIsNotThereIsTold();
    void anEmptyFileIsFetched();
    void aFileThatIsNotThereIsNamed();
    void aHundredMegabytesAreFetchedInOneCopy();
    void aHundredMegabytesAreSentBlockByBlock();
    void aNewFileIsSent();
    void anExistingFileIsReplaced_data();
    void anExistingFileIsReplaced();
    void aTargetThatIsADirectoryGetsTheNameOfTheFile();
    void aFileThatCannotBeReadHereIsNotSent();
    void aFailedUploadLeavesTheOldFile();
    void aFailedUploadLeavesNoHalfFile();
    void aFileIsDeletedAndJournalled();
    void aRefusedDeleteIsTold();
    void oneFileOperationIsUnderWayAtATime();
    void anOperationDoesNotWaitForATransferForLong();
    void aSilentDeviceEndsATransferInTime();
    void anAssociationLostInATransferIsTold();
    void aReadOnlyDriverChangesNoFile();

private:
    void start(const std::string &faults = {},
               std::chrono::milliseconds callTimeout = std::chrono::seconds(5));
    QString remote(const QString &name) const { return m_remote->path() + '/' + name; }
    QString local(const QString &name) const { return m_local->path() + '/' + name; }
    QStringList filesOnDevice() const;
    /// Requests of a service that the driver has sent.
    int requests(const QString &service) const;

    sim::FileOptions m_options;
    std::unique_ptr<QTemporaryDir> m_remote;
    std::unique_ptr<QTemporaryDir> m_local;
    std::unique_ptr<SimulatedIed> m_ied;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    QString m_error;
};

void tst_DriverFiles::init()
{
    m_options = {};
    m_remote = std::make_unique<QTemporaryDir>();
    m_local = std::make_unique<QTemporaryDir>();
    QVERIFY(m_remote->isValid() && m_local->isValid());
    write(remote("readme.txt"), "the device");
    write(remote("COMTRADE/fault1.cfg"), "configuration");
    write(remote("COMTRADE/fault1.dat"), pattern(300000, 'a'));
    write(remote("COMTRADE/old/fault0.cfg"), "old configuration");
    m_error.clear();
}

void tst_DriverFiles::cleanup()
{
    m_driver.reset();
    m_ied.reset();
}

void tst_DriverFiles::start(const std::string &faults, std::chrono::milliseconds callTimeout)
{
    m_driver.reset();
    m_ied.reset();
    m_options.directory = m_remote->path().toStdString();
    const auto files = sim::DirectoryFiles::create(m_options);
    if (!files)
        qFatal("%s", files.error().message.english().c_str());
    sim::DeviceOptions options;
    options.files = *files;
    m_ied =
        std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE), QString(), faults, options);
    m_listener = std::make_unique<Listener>();
    m_driver = std::make_unique<ServedDriver>(m_listener->options());
    DeviceConfiguration configuration = configurationFor(*m_ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    configuration.callTimeout = callTimeout;
    m_driver->setDevice(configuration);
    m_driver->connectDevice(1);
    if (!m_listener->waitForState(1, DeviceState::Online))
        qFatal("the simulated IED is not online");
}

int tst_DriverFiles::requests(const QString &service) const
{
    const QVector<TraceLine> lines = traceOf(*m_driver, 1);
    return static_cast<int>(
        std::count_if(lines.begin(), lines.end(), [&service](const TraceLine &line) {
            return line.sent && line.text.contains(service, Qt::CaseInsensitive);
        }));
}

QStringList tst_DriverFiles::filesOnDevice() const
{
    QStringList result;
    QDirIterator each(m_remote->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext())
        result.append(QDir(m_remote->path()).relativeFilePath(each.next()));
    result.sort();
    return result;
}

void tst_DriverFiles::namesAndPathsJoin()
{
    start();
    QList<MMSFileEntry> entries;
    QVERIFY2(m_driver->getFileDirectory(1, "*.*", "", entries, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(names(entries), QStringList({"COMTRADE\\", "readme.txt"}));
    QCOMPARE(m_driver->getFileDirectory(1, "*.*", "COMTRADE\\", entries, m_error),
             OperationSucceeded);
    QCOMPARE(names(entries), QStringList({"fault1.cfg", "fault1.dat", "old\\"}));
    QCOMPARE(m_driver->getFileDirectory(1, "*.*", "COMTRADE", entries, m_error),
             OperationSucceeded);
    QCOMPARE(names(entries), QStringList({"\\fault1.cfg", "\\fault1.dat", "\\old\\"}));
    QCOMPARE(m_driver->getFileDirectory(1, "*.*", "COMTRADE\\old\\", entries, m_error),
             OperationSucceeded);
    QCOMPARE(names(entries), QStringList({"fault0.cfg"}));
}

void tst_DriverFiles::everyListedFileIsFetchedByItsJoinedName()
{
    start();
    // Down and up again, as an operator goes.
    for (const QString &directory : {QString(), QString("COMTRADE\\"), QString("COMTRADE"),
                                     QString("COMTRADE\\old\\"), QString("COMTRADE\\old")}) {
        QList<MMSFileEntry> entries;
        QVERIFY2(m_driver->getFileDirectory(1, "*.*", directory, entries, m_error) ==
                     OperationSucceeded,
                 qPrintable(m_error));
        QVERIFY(!entries.isEmpty());
        for (const MMSFileEntry &entry : qAsConst(entries)) {
            QCOMPARE(entry.directory, directory);
            if (entry.name.endsWith('\\'))
                continue;
            const QString name = directory + entry.name;
            QByteArray content;
            QVERIFY2(m_driver->getFile(1, name, content, m_error) == OperationSucceeded,
                     qPrintable(m_error));
            QString path = name;
            QCOMPARE(content, contentOf(remote(path.replace('\\', '/'))));
        }
    }
}

void tst_DriverFiles::bothSlashesAreUnderstood()
{
    start();
    for (const QString &name : {QString("COMTRADE/fault1.cfg"), QString("/COMTRADE/fault1.cfg"),
                                QString("\\COMTRADE\\fault1.cfg")}) {
        QByteArray content;
        QVERIFY2(m_driver->getFile(1, name, content, m_error) == OperationSucceeded,
                 qPrintable(m_error));
        QCOMPARE(content, QByteArray("configuration"));
    }
    QList<MMSFileEntry> entries;
    QCOMPARE(m_driver->getFileDirectory(1, "*.*", "/COMTRADE/", entries, m_error),
             OperationSucceeded);
    QCOMPARE(names(entries), QStringList({"fault1.cfg", "fault1.dat", "old\\"}));
}

void tst_DriverFiles::aFlatListingIsShownAsDirectories()
{
    m_options.flatListing = true;
    start();
    QList<MMSFileEntry> entries;
    QVERIFY2(m_driver->getFileDirectory(1, "*.*", "", entries, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(names(entries), QStringList({"COMTRADE\\", "readme.txt"}));
    for (const MMSFileEntry &entry : qAsConst(entries))
        QCOMPARE(entry.size, entry.name == "readme.txt" ? 10U : 0U);
    QCOMPARE(m_driver->getFileDirectory(1, "*.*", "COMTRADE\\", entries, m_error),
             OperationSucceeded);
    QCOMPARE(names(entries), QStringList({"fault1.cfg", "fault1.dat", "old\\"}));
    QCOMPARE(m_driver->getFileDirectory(1, "*.*", "COMTRADE\\old", entries, m_error),
             OperationSucceeded);
    QCOMPARE(names(entries), QStringList({"\\fault0.cfg"}));
}

void tst_DriverFiles::sizesAndTimesAreTold()
{
    QFile file(remote("readme.txt"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime time(QDate(2021, 3, 4), QTime(5, 6, 7), Qt::UTC);
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    start();
    QList<MMSFileEntry> entries;
    QCOMPARE(m_driver->getFileDirectory(1, "*.*", "", entries, m_error), OperationSucceeded);
    QCOMPARE(entries.size(), 2);
    for (const MMSFileEntry &entry : qAsConst(entries)) {
        const bool isDirectory = entry.name == "COMTRADE\\";
        QCOMPARE(entry.size, isDirectory ? 0U : 10U);
        if (!isDirectory)
            QCOMPARE(qint64(entry.lastModified), time.toSecsSinceEpoch());
    }
}

void tst_DriverFiles::aPatternLeavesOutOtherFiles()
{
    start();
    QList<MMSFileEntry> entries;
    QCOMPARE(m_driver->getFileDirectory(1, "*.CFG", "COMTRADE", entries, m_error),
             OperationSucceeded);
    QCOMPARE(names(entries), QStringList({"\\fault1.cfg", "\\old\\"}));
    for (const QString &all : {QString(), QString("*"), QString("*.*")}) {
        QCOMPARE(m_driver->getFileDirectory(1, all, "COMTRADE", entries, m_error),
                 OperationSucceeded);
        QCOMPARE(entries.size(), 3);
    }
}

void tst_DriverFiles::timesOfEveryFormAreUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint32>("seconds");

    QTest::newRow("milliseconds") << "20210304050607.123Z" << 1614834367U;
    QTest::newRow("seconds") << "20210304050607Z" << 1614834367U;
    QTest::newRow("no zone") << "20210304050607" << 1614834367U;
    QTest::newRow("comma") << "20210304050607,5Z" << 1614834367U;
    QTest::newRow("ahead of UTC") << "20210304060607.000+0100" << 1614834367U;
    QTest::newRow("behind UTC") << "20210304003607-0430" << 1614834367U;
    QTest::newRow("no seconds") << "202103040506Z" << 1614834360U;
    QTest::newRow("no minutes") << "2021030405Z" << 1614834000U;
    QTest::newRow("odd digits") << "20210304050Z" << 0U;
    QTest::newRow("none") << "" << 0U;
    QTest::newRow("wrong month") << "20211304050607Z" << 0U;
    QTest::newRow("before 1970") << "19600101000000Z" << 0U;
    QTest::newRow("after 2106") << "22000101000000Z" << 0U;
    QTest::newRow("words") << "yesterday" << 0U;
}

void tst_DriverFiles::timesOfEveryFormAreUnderstood()
{
    QFETCH(QString, text);
    QFETCH(quint32, seconds);
    QCOMPARE(FileNames::secondsOf(text.toStdString()), seconds);
}

void tst_DriverFiles::aDirectoryThatIsNotThereIsTold()
{
    start();
    QList<MMSFileEntry> entries;
    QCOMPARE(m_driver->getFileDirectory(1, "*.*", "GONE\\", entries, m_error), OperationFailed);
    QVERIFY(!m_error.isEmpty());
    QVERIFY(entries.isEmpty());
}

void tst_DriverFiles::anEmptyFileIsFetched()
{
    write(remote("empty.txt"), QByteArray());
    start();
    QByteArray content = "something";
    QVERIFY2(m_driver->getFile(1, "empty.txt", content, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(content, QByteArray());
}

void tst_DriverFiles::aFileThatIsNotThereIsNamed()
{
    start();
    QByteArray content = "as it was";
    QCOMPARE(m_driver->getFile(1, "COMTRADE\\gone.dat", content, m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("COMTRADE/gone.dat: "), qPrintable(m_error));
    QCOMPARE(content, QByteArray("as it was"));
    QCOMPARE(m_driver->getFile(1, "", content, m_error), OperationFailed);
    QVERIFY(!m_error.isEmpty());
}

void tst_DriverFiles::aHundredMegabytesAreFetchedInOneCopy()
{
    const QByteArray block = pattern(static_cast<int>(mebibyte), 'a');
    {
        QFile file(remote("large.dat"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        for (int i = 0; i < 100; ++i)
            QCOMPARE(file.write(block), block.size());
    }
    start();
    const qint64 before = memory("VmRSS");
    const bool isMeasured = resetPeakMemory();
    QByteArray content;
    QVERIFY2(m_driver->getFile(1, "large.dat", content, m_error) == OperationSucceeded,
             qPrintable(m_error));
    const qint64 used = memory("VmHWM") - before;
    QCOMPARE(content.size(), 100 * mebibyte);
    for (int i = 0; i < 100; ++i) {
        QVERIFY(memcmp(content.constData() + i * mebibyte, block.constData(),
                       static_cast<std::size_t>(mebibyte)) == 0);
    }
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    // The file, and what the capture of PDUs keeps of it.
    QVERIFY2(!isMeasured || used < 140 * mebibyte, qPrintable(QString::number(used)));
#else
    Q_UNUSED(isMeasured)
    Q_UNUSED(used)
#endif
}

void tst_DriverFiles::aHundredMegabytesAreSentBlockByBlock()
{
    const QByteArray block = pattern(static_cast<int>(mebibyte), 'b');
    {
        QFile file(local("large.dat"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        for (int i = 0; i < 100; ++i)
            QCOMPARE(file.write(block), block.size());
    }
    start();
    const qint64 before = memory("VmRSS");
    const bool isMeasured = resetPeakMemory();
    QVERIFY2(m_driver->writeFile(1, local("large.dat"), "large.dat", m_error) == OperationSucceeded,
             qPrintable(m_error));
    const qint64 used = memory("VmHWM") - before;
    QFile sent(remote("large.dat"));
    QVERIFY(sent.open(QIODevice::ReadOnly));
    QCOMPARE(sent.size(), 100 * mebibyte);
    for (int i = 0; i < 100; ++i)
        QVERIFY(sent.read(mebibyte) == block);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    QVERIFY2(!isMeasured || used < 40 * mebibyte, qPrintable(QString::number(used)));
#else
    Q_UNUSED(isMeasured)
    Q_UNUSED(used)
#endif
}

void tst_DriverFiles::aNewFileIsSent()
{
    start();
    const QByteArray content = pattern(200000, 'x');
    write(local("settings.bin"), content);
    write(local("nothing.bin"), QByteArray());
    QVERIFY2(m_driver->writeFile(1, local("settings.bin"), "COMTRADE\\settings.bin", m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(contentOf(remote("COMTRADE/settings.bin")), content);
    QVERIFY2(m_driver->writeFile(1, local("nothing.bin"), "nothing.bin", m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(contentOf(remote("nothing.bin")), QByteArray());
    QVERIFY(m_listener->waitForChanges(2));
    const DeviceChange change = m_listener->changes().at(0);
    QCOMPARE(change.operation, QString("writeFile"));
    QCOMPARE(change.reference, QString("COMTRADE/settings.bin"));
    QCOMPARE(change.newValue, local("settings.bin") + " (200000 octets)");
    QCOMPARE(change.error, QString());
}

void tst_DriverFiles::anExistingFileIsReplaced_data()
{
    QTest::addColumn<bool>("keepsExisting");
    QTest::addColumn<QString>("faults");

    QTest::newRow("a device that replaces files") << false << "";
    QTest::newRow("a device that keeps files") << true << "";
    QTest::newRow("a device that cannot rename") << true << "reject on fileRename";
}

void tst_DriverFiles::anExistingFileIsReplaced()
{
    QFETCH(bool, keepsExisting);
    QFETCH(QString, faults);
    m_options.keepExisting = keepsExisting;
    start(faults.toStdString());
    const QStringList before = filesOnDevice();
    write(local("new.txt"), "the new version");
    QVERIFY2(m_driver->writeFile(1, local("new.txt"), "readme.txt", m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(contentOf(remote("readme.txt")), QByteArray("the new version"));
    QCOMPARE(filesOnDevice(), before);
}

void tst_DriverFiles::aTargetThatIsADirectoryGetsTheNameOfTheFile()
{
    start();
    write(local("new.txt"), "new");
    for (const QString &target : {QString(), QString("COMTRADE\\"), QString("COMTRADE/old/")}) {
        QVERIFY2(m_driver->writeFile(1, local("new.txt"), target, m_error) == OperationSucceeded,
                 qPrintable(m_error));
    }
    QCOMPARE(contentOf(remote("new.txt")), QByteArray("new"));
    QCOMPARE(contentOf(remote("COMTRADE/new.txt")), QByteArray("new"));
    QCOMPARE(contentOf(remote("COMTRADE/old/new.txt")), QByteArray("new"));
}

void tst_DriverFiles::aFileThatCannotBeReadHereIsNotSent()
{
    start();
    const QStringList before = filesOnDevice();
    QCOMPARE(m_driver->writeFile(1, local("gone.txt"), "gone.txt", m_error), OperationFailed);
    QCOMPARE(m_error, "There is no file \"" + local("gone.txt") + "\" on this computer.");
    QCOMPARE(m_driver->writeFile(1, m_local->path(), "directory", m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("There is no file"), qPrintable(m_error));
    QCOMPARE(m_driver->writeFile(1, "", "readme.txt", m_error), OperationFailed);
    QCOMPARE(m_error, QString("There is no file to send."));
    QCOMPARE(filesOnDevice(), before);
    QVERIFY(m_listener->waitForChanges(3));
    QCOMPARE(m_listener->changes().at(2).error, m_error);
}

void tst_DriverFiles::aFailedUploadLeavesTheOldFile()
{
    start("refuse on obtainFile");
    const QStringList before = filesOnDevice();
    write(local("new.txt"), "new");
    QCOMPARE(m_driver->writeFile(1, local("new.txt"), "readme.txt", m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("readme.txt: ") && m_error.endsWith("The old file is still there."),
             qPrintable(m_error));
    QCOMPARE(contentOf(remote("readme.txt")), QByteArray("the device"));
    QCOMPARE(filesOnDevice(), before);
}

void tst_DriverFiles::aFailedUploadLeavesNoHalfFile()
{
    m_options.maxFileSize = 150000;
    start();
    const QStringList before = filesOnDevice();
    write(local("large.txt"), pattern(200000, 'l'));
    QCOMPARE(m_driver->writeFile(1, local("large.txt"), "large.txt", m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("large.txt: "), qPrintable(m_error));
    QCOMPARE(filesOnDevice(), before);
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().at(0).error, m_error);
}

void tst_DriverFiles::aFileIsDeletedAndJournalled()
{
    start();
    QVERIFY2(m_driver->deleteFile(1, "COMTRADE\\fault1.dat", m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(filesOnDevice(),
             QStringList({"COMTRADE/fault1.cfg", "COMTRADE/old/fault0.cfg", "readme.txt"}));
    QVERIFY(m_listener->waitForChanges(1));
    const DeviceChange change = m_listener->changes().at(0);
    QCOMPARE(change.operation, QString("deleteFile"));
    QCOMPARE(change.reference, QString("COMTRADE/fault1.dat"));
    QCOMPARE(change.error, QString());
    QCOMPARE(m_driver->deleteFile(1, "COMTRADE\\fault1.dat", m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("COMTRADE/fault1.dat: "), qPrintable(m_error));
    QCOMPARE(m_driver->deleteFile(1, "", m_error), OperationFailed);
    QCOMPARE(m_error, QString("There is no name of a file."));
}

void tst_DriverFiles::aRefusedDeleteIsTold()
{
    m_options.readOnly = true;
    start();
    const QStringList before = filesOnDevice();
    QCOMPARE(m_driver->deleteFile(1, "readme.txt", m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("readme.txt: "), qPrintable(m_error));
    QCOMPARE(filesOnDevice(), before);
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().at(0).error, m_error);
}

void tst_DriverFiles::oneFileOperationIsUnderWayAtATime()
{
    start("delay 200ms on fileOpen");
    QByteArray content;
    QString fetchError;
    auto fetched = std::async(std::launch::async, [&] {
        return m_driver->getFile(1, "COMTRADE\\fault1.dat", content, fetchError);
    });
    const auto isOpening = [this] {
        const QVector<TraceLine> lines = traceOf(*m_driver, 1);
        return std::any_of(lines.begin(), lines.end(), [](const TraceLine &line) {
            return line.sent && line.text.contains("fileOpen", Qt::CaseInsensitive);
        });
    };
    QTRY_VERIFY(isOpening());
    QList<MMSFileEntry> entries;
    QVERIFY2(m_driver->getFileDirectory(1, "*.*", "", entries, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(fetched.get(), OperationSucceeded);
    QCOMPARE(content, contentOf(remote("COMTRADE/fault1.dat")));
    // The listing was asked for when the file was closed again.
    int closed = -1;
    int listed = -1;
    const QVector<TraceLine> lines = traceOf(*m_driver, 1);
    for (int i = 0; i < lines.size(); ++i) {
        if (lines[i].sent && lines[i].text.contains("fileClose", Qt::CaseInsensitive))
            closed = i;
        if (lines[i].sent && lines[i].text.contains("fileDirectory", Qt::CaseInsensitive) &&
            listed < 0)
            listed = i;
    }
    QVERIFY(closed >= 0);
    QVERIFY2(listed > closed, qPrintable(QString("%1 %2").arg(closed).arg(listed)));
}

void tst_DriverFiles::anOperationDoesNotWaitForATransferForLong()
{
    write(remote("COMTRADE/fault1.dat"), pattern(600000, 'a'));
    start("delay 250ms on fileRead", std::chrono::milliseconds(400));
    QByteArray content;
    QString fetchError;
    auto fetched = std::async(std::launch::async, [&] {
        return m_driver->getFile(1, "COMTRADE\\fault1.dat", content, fetchError);
    });
    const auto isReading = [this] {
        const QVector<TraceLine> lines = traceOf(*m_driver, 1);
        return std::any_of(lines.begin(), lines.end(), [](const TraceLine &line) {
            return line.sent && line.text.contains("fileRead", Qt::CaseInsensitive);
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(isReading(), 20000);
    QCOMPARE(m_driver->deleteFile(1, "readme.txt", m_error), OperationFailed);
    QCOMPARE(m_error, QString("Device 1 (IED1) is busy with another file: fetching "
                              "\"COMTRADE\\fault1.dat\"."));
    // It was not the end of the transfer that was waited for.
    QVERIFY(fetched.wait_for(std::chrono::seconds(0)) == std::future_status::timeout);
    QVERIFY2(fetched.get() == OperationSucceeded, qPrintable(fetchError));
    QVERIFY2(m_driver->deleteFile(1, "readme.txt", m_error) == OperationSucceeded,
             qPrintable(m_error));
}

void tst_DriverFiles::aSilentDeviceEndsATransferInTime()
{
    start("ignore on fileRead", std::chrono::milliseconds(400));
    QByteArray content;
    QCOMPARE(m_driver->getFile(1, "readme.txt", content, m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("readme.txt: "), qPrintable(m_error));
    QCOMPARE(requests("fileRead"), 1);
    // The turn is over with it.
    QList<MMSFileEntry> entries;
    QVERIFY2(m_driver->getFileDirectory(1, "*.*", "", entries, m_error) == OperationSucceeded,
             qPrintable(m_error));

    start("ignore on obtainFile", std::chrono::milliseconds(400));
    write(local("new.txt"), "new");
    QCOMPARE(m_driver->writeFile(1, local("new.txt"), "new.txt", m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("new.txt: "), qPrintable(m_error));
    QCOMPARE(requests("obtainFile"), 1);
}

void tst_DriverFiles::anAssociationLostInATransferIsTold()
{
    start("reset on fileRead nth 2");
    QByteArray content;
    QCOMPARE(m_driver->getFile(1, "COMTRADE\\fault1.dat", content, m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("COMTRADE/fault1.dat: "), qPrintable(m_error));
    QVERIFY(content.isEmpty());
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.counters.connections == 2;
    }));
    QVERIFY2(m_driver->getFile(1, "COMTRADE\\fault1.dat", content, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(content, contentOf(remote("COMTRADE/fault1.dat")));
}

void tst_DriverFiles::aReadOnlyDriverChangesNoFile()
{
    start();
    const QStringList before = filesOnDevice();
    m_driver->setReadOnly(true);
    write(local("new.txt"), "new");
    QCOMPARE(m_driver->writeFile(1, local("new.txt"), "new.txt", m_error), OperationFailed);
    QVERIFY2(m_error.contains("read-only"), qPrintable(m_error));
    QCOMPARE(m_driver->deleteFile(1, "readme.txt", m_error), OperationFailed);
    QVERIFY2(m_error.contains("read-only"), qPrintable(m_error));
    QCOMPARE(filesOnDevice(), before);
    QByteArray content;
    QCOMPARE(m_driver->getFile(1, "readme.txt", content, m_error), OperationSucceeded);
}

QTEST_GUILESS_MAIN(tst_DriverFiles)
#include "tst_driverfiles.moc"
