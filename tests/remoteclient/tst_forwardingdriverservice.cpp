// SPDX-License-Identifier: Apache-2.0
#include "support/recordingdriverservice.h"

#include <QtTest/QtTest>

namespace {

/// Passes on what does not change anything, and counts.
class ReadOnlyService : public ForwardingDriverService
{
public:
    explicit ReadOnlyService(std::shared_ptr<DriverService> next)
        : m_next(std::move(next))
    {
    }

    QHash<QString, int> passed;
    QStringList refused;

protected:
    OperationResult call(const DriverCall &call) override
    {
        if (call.changes()) {
            refused << QString::fromLatin1(call.name());
            call.error() = QStringLiteral("Nothing may be changed.");
            return OperationFailed;
        }
        ++passed[QString::fromLatin1(call.name())];
        return call.carryOut(*m_next);
    }

private:
    std::shared_ptr<DriverService> m_next;
};

} // namespace

class tst_ForwardingDriverService : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_recorder = std::make_shared<RecordingDriverService>();
        m_service = std::make_unique<ReadOnlyService>(m_recorder);
    }

    void whatAServiceRefusesDoesNotReachTheNext()
    {
        QString error;
        QCOMPARE(m_service->writeVariable(1, m_text, m_text, {}, error), OperationFailed);
        QCOMPARE(error, QStringLiteral("Nothing may be changed."));
        QCOMPARE(m_service->selectActiveSG(1, m_text, 2, error), OperationFailed);
        QCOMPARE(m_service->cancelObject(1, m_text, m_text, {}, error), OperationFailed);
        QCOMPARE(m_service->refused,
                 QStringList({QStringLiteral("writeVariable"), QStringLiteral("selectActiveSG"),
                              QStringLiteral("cancelObject")}));
        QVERIFY(m_recorder->calls().isEmpty());
    }

    void theAnswerOfTheNextServiceReachesTheCaller()
    {
        m_recorder->reportBlock.rptId = QStringLiteral("report id");
        ReportBlock block;
        QString error;
        QCOMPARE(m_service->getBRCBValues(7, QStringLiteral("LD0"), QStringLiteral("LLN0$BR$b"),
                                          block, error),
                 OperationSucceeded);
        QCOMPARE(block.rptId, QStringLiteral("report id"));
        const QList<RecordingDriverService::Call> calls = m_recorder->calls();
        QCOMPARE(calls.size(), 1);
        QCOMPARE(calls.first().deviceNo, 7L);
        QCOMPARE(calls.first().arguments,
                 QVariantList({QStringLiteral("LD0"), QStringLiteral("LLN0$BR$b")}));
        QCOMPARE(m_service->passed, (QHash<QString, int>{{QStringLiteral("getBRCBValues"), 1}}));
    }

    void servicesStandInARow()
    {
        const auto inner = std::make_shared<ReadOnlyService>(m_recorder);
        ReadOnlyService outer(inner);
        m_recorder->setAnswer(QStringLiteral("abortClose"), OperationNotConnected);
        QCOMPARE(outer.abortClose(3), OperationNotConnected);
        QCOMPARE(outer.passed.value(QStringLiteral("abortClose")), 1);
        QCOMPARE(inner->passed.value(QStringLiteral("abortClose")), 1);
        QCOMPARE(m_recorder->operations(), QStringList{QStringLiteral("abortClose")});
    }

    void everyOperationHasItsName()
    {
        QSet<QString> names;
        for (int each = 0; each < driverOperationCount; ++each)
            names << QString::fromLatin1(DriverCall(static_cast<DriverOperation>(each), 1).name());
        QCOMPARE(names.size(), driverOperationCount);
        QVERIFY(names.contains(QStringLiteral("getIEDModel")));
        QCOMPARE(DriverCall(DriverOperation::abortClose, 1).name(), "abortClose");
    }

private:
    std::shared_ptr<RecordingDriverService> m_recorder;
    std::unique_ptr<ReadOnlyService> m_service;
    QString m_text;
};

QTEST_GUILESS_MAIN(tst_ForwardingDriverService)
#include "tst_forwardingdriverservice.moc"
