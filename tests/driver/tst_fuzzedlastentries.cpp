// SPDX-License-Identifier: Apache-2.0
#include "fuzz/recordings.h"
#include "support/madeinputs.h"

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

QTEST_APPLESS_MAIN(tst_FuzzedLastEntries)
#include "tst_fuzzedlastentries.moc"
