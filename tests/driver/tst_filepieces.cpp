// SPDX-License-Identifier: Apache-2.0
// The content of a file on its way between a caller and a device, piece by piece.
#include "driver/simulatedstation.h"

#include "simulator/directoryfiles.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <condition_variable>
#include <mutex>

using namespace drivertest;

namespace {

constexpr int fileSize = 3000000;
/// More than a device sends in one message, however large its messages are.
constexpr int largestMessage = 70000;
constexpr std::chrono::seconds patience{20};

char octetAt(quint64 position)
{
    return static_cast<char>(position % 251);
}

/// Keeps nothing of what comes but whether it was right.
class CheckingSink : public FileSink
{
public:
    QString begin(quint64 size) override
    {
        ++begun;
        announced = size;
        return refusedAtOnce;
    }
    QString take(const char *octets, int count) override
    {
        ++pieces;
        greatest = std::max(greatest, count);
        isLate = isLate || isOver;
        for (int i = 0; i < count; ++i)
            isRight = isRight && octets[i] == octetAt(taken + static_cast<quint64>(i));
        taken += static_cast<quint64>(count);
        return onPiece ? onPiece() : QString();
    }

    QString refusedAtOnce;
    std::function<QString()> onPiece;
    int begun = 0;
    quint64 announced = 0;
    int pieces = 0;
    int greatest = 0;
    quint64 taken = 0;
    bool isRight = true;
    std::atomic<bool> isOver{false}; ///< the operation has returned
    std::atomic<bool> isLate{false};
};

/// Makes its content when it is asked for it.
class MadeSource : public FileSource
{
public:
    QString name() const override { return "made.dat"; }
    QString open(quint64 &size) override
    {
        ++opened;
        size = fileSize;
        return {};
    }
    qint64 read(quint64 position, char *octets, qint64 count, QString &error) override
    {
        if (position >= failsFrom) {
            error = "The tape is torn.";
            return -1;
        }
        const qint64 given = std::min(count, static_cast<qint64>(fileSize - position));
        for (qint64 i = 0; i < given; ++i)
            octets[i] = octetAt(position + static_cast<quint64>(i));
        ++pieces;
        greatest = std::max(greatest, given);
        return given;
    }

    quint64 failsFrom = std::numeric_limits<quint64>::max();
    int opened = 0;
    int pieces = 0;
    qint64 greatest = 0;
};

} // namespace

class tst_FilePieces : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aFetchedFileComesInPiecesInTheirOrder();
    void aSinkThatDoesNotTakeTheFileGetsNothing();
    void aSinkThatRefusesAPieceEndsTheTransfer();
    void aFetchIsCancelledInTheMiddle();
    void aSentFileIsAskedForInPieces();
    void aSourceThatFailsInTheMiddleLeavesNoHalfFile();
    void aFileInMemoryIsFetchedWhole();

private:
    void isUsable();

    std::unique_ptr<QTemporaryDir> m_remote;
    std::unique_ptr<SimulatedIed> m_ied;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    QString m_error;
};

void tst_FilePieces::init()
{
    m_error.clear();
    m_remote = std::make_unique<QTemporaryDir>();
    QFile file(m_remote->filePath("large.dat"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QByteArray content(fileSize, Qt::Uninitialized);
    for (int i = 0; i < fileSize; ++i)
        content[i] = octetAt(static_cast<quint64>(i));
    QCOMPARE(file.write(content), qint64(fileSize));
    file.close();

    sim::FileOptions files;
    files.directory = m_remote->path().toStdString();
    sim::DeviceOptions options;
    options.files = *sim::DirectoryFiles::create(files);
    m_ied = std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE), QString(), std::string(),
                                           options);
    m_listener = std::make_unique<Listener>();
    m_driver = std::make_unique<ServedDriver>(m_listener->options());
    DeviceConfiguration configuration = configurationFor(*m_ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    m_driver->setDevice(configuration);
    m_driver->connectDevice(1);
    QVERIFY(m_listener->waitForState(1, DeviceState::Online));
}

void tst_FilePieces::cleanup()
{
    m_driver.reset();
    m_ied.reset();
}

/// A transfer that ended early has left nothing open.
void tst_FilePieces::isUsable()
{
    CheckingSink sink;
    QVERIFY2(m_driver->getFile(1, "large.dat", sink, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(sink.taken, quint64(fileSize));
    QVERIFY(sink.isRight);
}

void tst_FilePieces::aFetchedFileComesInPiecesInTheirOrder()
{
    CheckingSink sink;
    QVERIFY2(m_driver->getFile(1, "large.dat", sink, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(sink.begun, 1);
    QCOMPARE(sink.announced, quint64(fileSize));
    QCOMPARE(sink.taken, quint64(fileSize));
    QVERIFY(sink.isRight);
    QVERIFY2(sink.greatest < largestMessage, qPrintable(QString::number(sink.greatest)));
    QVERIFY(sink.pieces > fileSize / largestMessage);
}

void tst_FilePieces::aSinkThatDoesNotTakeTheFileGetsNothing()
{
    CheckingSink sink;
    sink.refusedAtOnce = "There is no room.";
    QCOMPARE(m_driver->getFile(1, "large.dat", sink, m_error), OperationFailed);
    QCOMPARE(m_error, QString("There is no room."));
    QCOMPARE(sink.pieces, 0);
    isUsable();
}

void tst_FilePieces::aSinkThatRefusesAPieceEndsTheTransfer()
{
    CheckingSink sink;
    sink.onPiece = [&sink] { return sink.pieces == 3 ? QString("The disk is full.") : QString(); };
    QCOMPARE(m_driver->getFile(1, "large.dat", sink, m_error), OperationFailed);
    QCOMPARE(m_error, QString("The disk is full."));
    QCOMPARE(sink.pieces, 3);
    isUsable();
}

void tst_FilePieces::aFetchIsCancelledInTheMiddle()
{
    std::mutex mutex;
    std::condition_variable changed;
    bool isInTheMiddle = false;
    bool isCancelled = false;
    CheckingSink sink;
    sink.onPiece = [&] {
        if (sink.pieces == 3) {
            std::unique_lock<std::mutex> lock(mutex);
            isInTheMiddle = true;
            changed.notify_all();
            changed.wait_for(lock, patience, [&] { return isCancelled; });
        }
        return QString();
    };
    std::thread operatorsOwn([&] {
        std::unique_lock<std::mutex> lock(mutex);
        changed.wait_for(lock, patience, [&] { return isInTheMiddle; });
        m_driver->cancelOperations(1);
        isCancelled = true;
        changed.notify_all();
    });
    const OperationResult result = m_driver->getFile(1, "large.dat", sink, m_error);
    sink.isOver = true;
    operatorsOwn.join();
    QCOMPARE(result, OperationFailed);
    QCOMPARE(m_error, QString("The operation was cancelled."));
    QVERIFY(sink.taken < quint64(fileSize));
    isUsable();
    // What was on its way has come to nobody's hands meanwhile.
    QVERIFY(!sink.isLate);
}

void tst_FilePieces::aSentFileIsAskedForInPieces()
{
    MadeSource source;
    QVERIFY2(m_driver->writeFile(1, source, "sent.dat", m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(source.opened, 1);
    QVERIFY(source.greatest < largestMessage);
    QVERIFY(source.pieces > fileSize / largestMessage);
    QFile sent(m_remote->filePath("sent.dat"));
    QVERIFY(sent.open(QIODevice::ReadOnly));
    const QByteArray content = sent.readAll();
    QCOMPARE(content.size(), fileSize);
    for (int i = 0; i < fileSize; ++i) {
        if (content.at(i) != octetAt(static_cast<quint64>(i)))
            QFAIL("another content");
    }
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().last().newValue, QString("made.dat (3000000 octets)"));
}

void tst_FilePieces::aSourceThatFailsInTheMiddleLeavesNoHalfFile()
{
    MadeSource source;
    source.failsFrom = fileSize / 2;
    QCOMPARE(m_driver->writeFile(1, source, "sent.dat", m_error), OperationFailed);
    QVERIFY2(m_error.contains("The tape is torn"), qPrintable(m_error));
    QVERIFY(source.pieces > 0);
    QCOMPARE(QDir(m_remote->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList("large.dat"));
    isUsable();
}

void tst_FilePieces::aFileInMemoryIsFetchedWhole()
{
    QByteArray content = "as it was";
    QCOMPARE(m_driver->getFile(1, "gone.dat", content, m_error), OperationFailed);
    QCOMPARE(content, QByteArray("as it was"));
    QCOMPARE(m_driver->getFile(1, "large.dat", content, m_error), OperationSucceeded);
    QCOMPARE(content.size(), fileSize);
}

QTEST_GUILESS_MAIN(tst_FilePieces)
#include "tst_filepieces.moc"
