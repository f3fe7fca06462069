// SPDX-License-Identifier: Apache-2.0
#include "fuzz/recordings.h"
#include "support/madeinputs.h"

#include <QtTest/QtTest>

/// Reports of any kind and order; the target under test ends the process when one is nobody's and a
/// block's at once, or when a member has no place.
class tst_FuzzedReports : public QObject
{
    Q_OBJECT

private slots:
    void soundReportsAndTheirBeginningsAreHandled();
    void changedReportsAreHandled();
    void anyReportsAreHandled();
};

void tst_FuzzedReports::soundReportsAndTheirBeginningsAreHandled()
{
    const auto recordings = fuzz::reportRecordings();
    QVERIFY(recordings.size() >= 2);
    for (const std::vector<std::uint8_t> &recording : recordings) {
        for (std::size_t size = 0; size <= recording.size(); size += 7) {
            const auto end = recording.begin() + static_cast<std::ptrdiff_t>(size);
            testsupport::runTarget({recording.begin(), end});
        }
        testsupport::runTarget(recording);
    }
}

void tst_FuzzedReports::changedReportsAreHandled()
{
    testsupport::MadeInputs inputs(1);
    const auto recordings = fuzz::reportRecordings();
    for (int i = 0; i < 10000; ++i)
        testsupport::runTarget(inputs.changed(recordings[inputs.below(recordings.size())]));
}

void tst_FuzzedReports::anyReportsAreHandled()
{
    testsupport::MadeInputs inputs(2);
    for (int i = 0; i < 10000; ++i)
        testsupport::runTarget(inputs.next(600));
}

QTEST_APPLESS_MAIN(tst_FuzzedReports)
#include "tst_fuzzedreports.moc"
