// SPDX-License-Identifier: Apache-2.0
#include "model/streportcontrolblock.h"

#include <devicemodel/reportcontrolblock.h>

#include <QtTest/QtTest>

Q_DECLARE_METATYPE(bool ReportControlBlock::*)
Q_DECLARE_METATYPE(bool stReportControlBlock::*)

namespace {

struct Flag
{
    const char *name;
    bool ReportControlBlock::*configured;
    bool stReportControlBlock::*offline;
};

const Flag flags[] = {
    {"data change", &ReportControlBlock::triggerDataChange, &stReportControlBlock::dataChange},
    {"quality change", &ReportControlBlock::triggerQualityChange,
     &stReportControlBlock::qualityChange},
    {"data update", &ReportControlBlock::triggerDataUpdate, &stReportControlBlock::dataUpdate},
    {"integrity", &ReportControlBlock::triggerIntegrity, &stReportControlBlock::integrity},
    {"general interrogation", &ReportControlBlock::triggerGeneralInterrogation,
     &stReportControlBlock::generalInterrogation},
    {"sequence number", &ReportControlBlock::optSequenceNumber,
     &stReportControlBlock::sequenceNumber},
    {"time stamp", &ReportControlBlock::optTimeStamp, &stReportControlBlock::timeStamp},
    {"reason for inclusion", &ReportControlBlock::optReasonForInclusion,
     &stReportControlBlock::reasonForInclusion},
    {"data set name", &ReportControlBlock::optDataSetName, &stReportControlBlock::dataSetName},
    {"data reference", &ReportControlBlock::optDataReference, &stReportControlBlock::dataReference},
    {"buffer overflow", &ReportControlBlock::optBufferOverflow,
     &stReportControlBlock::bufferOverflow},
    {"entry id", &ReportControlBlock::optEntryId, &stReportControlBlock::entryId},
    {"configuration revision", &ReportControlBlock::optConfRevision,
     &stReportControlBlock::configurationRevision},
};

} // namespace

class tst_StReportControlBlock : public QObject
{
    Q_OBJECT

private slots:
    void aNewRecordIsEmpty();
    void textsAndNumbersAreTakenFromTheDeviceModel();
    void eachFlagIsTakenFromItsOwnSetting_data();
    void eachFlagIsTakenFromItsOwnSetting();
};

void tst_StReportControlBlock::aNewRecordIsEmpty()
{
    const stReportControlBlock record;
    QVERIFY(record.rptId.isEmpty());
    QVERIFY(record.name.isEmpty());
    QVERIFY(record.datSet.isEmpty());
    QCOMPARE(record.intgPd, 0);
    QCOMPARE(record.confRev, 0);
    QCOMPARE(record.bufTm, 0);
    for (const Flag &flag : flags)
        QVERIFY2(!(record.*flag.offline), flag.name);
}

void tst_StReportControlBlock::textsAndNumbersAreTakenFromTheDeviceModel()
{
    ReportControlBlock block;
    block.name = QStringLiteral("brcbEvents01");
    block.rptId = QStringLiteral("LD0/LLN0$BR$brcbEvents01");
    block.dataSet = QStringLiteral("LLN0$Events");
    block.integrityPeriod = 60000;
    block.confRev = 7;
    block.bufferTime = 250;

    const stReportControlBlock record = offlineReportControlBlock(block);
    QCOMPARE(record.name, QStringLiteral("brcbEvents01"));
    QCOMPARE(record.rptId, QStringLiteral("LD0/LLN0$BR$brcbEvents01"));
    QCOMPARE(record.datSet, QStringLiteral("LLN0$Events"));
    QCOMPARE(record.intgPd, 60000);
    QCOMPARE(record.confRev, 7);
    QCOMPARE(record.bufTm, 250);
}

void tst_StReportControlBlock::eachFlagIsTakenFromItsOwnSetting_data()
{
    QTest::addColumn<bool ReportControlBlock::*>("configured");
    QTest::addColumn<bool stReportControlBlock::*>("offline");
    for (const Flag &flag : flags)
        QTest::newRow(flag.name) << flag.configured << flag.offline;
}

void tst_StReportControlBlock::eachFlagIsTakenFromItsOwnSetting()
{
    QFETCH(bool ReportControlBlock::*, configured);
    QFETCH(bool stReportControlBlock::*, offline);
    ReportControlBlock block;
    block.*configured = true;
    const stReportControlBlock record = offlineReportControlBlock(block);
    for (const Flag &flag : flags)
        QCOMPARE(record.*flag.offline, flag.offline == offline);
}

QTEST_APPLESS_MAIN(tst_StReportControlBlock)
#include "tst_streportcontrolblock.moc"
