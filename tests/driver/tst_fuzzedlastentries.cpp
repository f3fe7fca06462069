// SPDX-License-Identifier: Apache-2.0
#include "fuzz/recordings.h"
#include "support/madeinputs.h"

#include "driver/device/lastentries.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

/// Files of kept entries that somebody else has written to; the target under test ends the process
/// when what it takes from one does not survive being written again.
class tst_FuzzedLastEntries : public QObject
{
    Q_OBJECT

private slots:
    void soundFilesAndTheirBeginningsAreHandled();
    void changedFilesAreHandled();
    void anyFilesAreHandled();
    void aTimeBeyondItsRangeIsNoEntry();
};

void tst_FuzzedLastEntries::soundFilesAndTheirBeginningsAreHandled()
{
    const auto files = fuzz::lastEntriesFiles();
    QVERIFY(files.size() >= 2);
    for (const std::vector<std::uint8_t> &file : files) {
        for (std::size_t size = 0; size <= file.size(); size += 7) {
            const auto end = file.begin() + static_cast<std::ptrdiff_t>(size);
            testsupport::runTarget({file.begin(), end});
        }
        testsupport::runTarget(file);
    }
}

void tst_FuzzedLastEntries::changedFilesAreHandled()
{
    testsupport::MadeInputs inputs(1);
    const auto files = fuzz::lastEntriesFiles();
    for (int i = 0; i < 3000; ++i)
        testsupport::runTarget(inputs.changed(files[inputs.below(files.size())]));
}

void tst_FuzzedLastEntries::anyFilesAreHandled()
{
    testsupport::MadeInputs inputs(2);
    for (int i = 0; i < 3000; ++i)
        testsupport::runTarget(inputs.next(600));
}

void tst_FuzzedLastEntries::aTimeBeyondItsRangeIsNoEntry()
{
    const QTemporaryDir folder;
    const QString device = QStringLiteral("device");
    const QString block = QStringLiteral("LD/LLN0$BR$brcb01");
    const LastEntries::EntryId entry{1, 2};
    LastEntries::Terms terms{"LD/LLN0$ds", "id", "0100110", 0, 0};
    const QByteArray name =
        QCryptographicHash::hash(device.toUtf8(), QCryptographicHash::Sha256).toHex();
    const QString path = folder.filePath(QString::fromLatin1(name) + ".entries");
    for (const char *time : {"0", "5e71", "-1", "4294967296"}) {
        QFile::remove(path);
        LastEntries written(folder.path(), device);
        written.set(block, terms, entry);
        written.save();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray text = file.readAll();
        QVERIFY(text.contains("\"bufferTime\":0"));
        text.replace("\"bufferTime\":0", QByteArray("\"bufferTime\":") + time);
        file.resize(0);
        file.seek(0);
        file.write(text);
        file.close();
        const LastEntries read(folder.path(), device);
        QCOMPARE(read.find(block, terms).has_value(), QByteArray(time) == "0");
    }
}

QTEST_APPLESS_MAIN(tst_FuzzedLastEntries)
#include "tst_fuzzedlastentries.moc"
