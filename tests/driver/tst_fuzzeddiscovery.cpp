// SPDX-License-Identifier: Apache-2.0
#include "fuzz/recordings.h"
#include "support/madeinputs.h"

#include <QtTest/QtTest>

/// The way from a device's answers to the model; the target under test ends the process when it
/// does not end, breaks its limits, or makes a model that cannot be used.
class tst_FuzzedDiscovery : public QObject
{
    Q_OBJECT

private slots:
    void soundAnswersAndTheirBeginningsAreHandled();
    void changedAnswersAreHandled();
    void anyAnswersAreHandled();
};

void tst_FuzzedDiscovery::soundAnswersAndTheirBeginningsAreHandled()
{
    const auto recordings = fuzz::discoveryRecordings();
    QVERIFY(recordings.size() >= 8);
    for (const std::vector<std::uint8_t> &recording : recordings) {
        for (std::size_t size = 0; size <= recording.size(); size += 7) {
            const auto end = recording.begin() + static_cast<std::ptrdiff_t>(size);
            testsupport::runTarget({recording.begin(), end});
        }
        testsupport::runTarget(recording);
    }
}

void tst_FuzzedDiscovery::changedAnswersAreHandled()
{
    testsupport::MadeInputs inputs(1);
    const auto recordings = fuzz::discoveryRecordings();
    for (int i = 0; i < 3000; ++i)
        testsupport::runTarget(inputs.changed(recordings[inputs.below(recordings.size())]));
}

void tst_FuzzedDiscovery::anyAnswersAreHandled()
{
    testsupport::MadeInputs inputs(2);
    for (int i = 0; i < 3000; ++i)
        testsupport::runTarget(inputs.next(1500));
}

QTEST_APPLESS_MAIN(tst_FuzzedDiscovery)
#include "tst_fuzzeddiscovery.moc"
