// SPDX-License-Identifier: Apache-2.0
#include "support/recordingdriverservice.h"

#include <remoteclient/filetransfer.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

class tst_FileTransfer : public QObject
{
    Q_OBJECT

private slots:
    void aFileOfThisComputerIsReadWhereItIsAsked()
    {
        const QString path = m_folder.filePath(QStringLiteral("a.txt"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("0123456789") == 10);
        file.close();
        LocalFileSource source(path);
        QCOMPARE(source.name(), path);
        quint64 size = 0;
        QCOMPARE(source.open(size), QString());
        QCOMPARE(size, quint64(10));
        char octets[4];
        QString error;
        QCOMPARE(source.read(8, octets, 4, error), qint64(2));
        QCOMPARE(QByteArray(octets, 2), QByteArray("89"));
        QCOMPARE(source.read(0, octets, 4, error), qint64(4));
        QCOMPARE(QByteArray(octets, 4), QByteArray("0123"));
        QCOMPARE(error, QString());
    }

    void aFileThatCannotBeSentSaysWhy()
    {
        quint64 size = 0;
        QCOMPARE(LocalFileSource(QString()).open(size),
                 QStringLiteral("There is no file to send."));
        const QString gone = m_folder.filePath(QStringLiteral("gone"));
        QVERIFY(LocalFileSource(gone).open(size).contains(gone));
        QVERIFY(LocalFileSource(m_folder.path()).open(size).contains(m_folder.path()));
    }

    void aFileThatIsTooLargeForTheMemoryIsNotTaken()
    {
        MemoryFileSink sink(QStringLiteral("huge.dat"));
        const QString refusal = sink.begin(MemoryFileSink::largestFile + 1);
        QVERIFY2(refusal.startsWith(QStringLiteral("huge.dat is too large")), qPrintable(refusal));
        QVERIFY(!MemoryFileSink(QString()).begin(quint64(1) << 40).isEmpty());
    }

    void theControllerPassesPiecesOn()
    {
        class Counting : public FileSink
        {
        public:
            QString take(const char *, int count) override
            {
                ++pieces;
                octets += count;
                return pieces == last ? QStringLiteral("Enough.") : QString();
            }
            int pieces = 0;
            int octets = 0;
            int last = 0;
        };
        const auto service = std::make_shared<RecordingDriverService>();
        const DriverServiceRegistration registration(QStringLiteral("test:driver"), service);
        service->fileContent = QByteArray(100000, 'x');
        IEC61850ControllerInterface controller;
        controller.setLocation(QStringLiteral("test:driver"), 1);
        QString error;
        Counting all;
        QCOMPARE(controller.getFile(1, QStringLiteral("a"), all, error), OperationSucceeded);
        QCOMPARE(all.octets, 100000);
        QVERIFY(all.pieces > 1);
        Counting some;
        some.last = 2;
        QCOMPARE(controller.getFile(1, QStringLiteral("a"), some, error), OperationFailed);
        QCOMPARE(error, QStringLiteral("Enough."));
        QCOMPARE(some.pieces, 2);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_FileTransfer)
#include "tst_filetransfer.moc"
