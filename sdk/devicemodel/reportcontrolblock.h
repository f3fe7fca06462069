// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicemodelglobal.h"

#include <QtCore/QList>
#include <QtCore/QString>

/// A report control block (IEC 61850-7-2, clause 17) as the device model records it: its name and
/// state for the tree, and its configured settings for work without a connection.
struct ReportControlBlock
{
    bool enabled = false;
    quint8 state = 1; ///< 0: absent from the device, 2: only on the device, 3: differs
    QString name;
    QString type; ///< "BR": buffered; anything else: unbuffered

    /// Logical node "$BR$" or "$RP$" name, without the logical device.
    QString reference;

    QString rptId;
    QString dataSet;
    qint32 confRev = 0;
    qint32 integrityPeriod = 0; ///< milliseconds, 0: none
    qint32 bufferTime = 0;      ///< milliseconds

    bool triggerDataChange = false;
    bool triggerQualityChange = false;
    bool triggerDataUpdate = false;
    bool triggerIntegrity = false;
    bool triggerGeneralInterrogation = false;

    bool optSequenceNumber = false;
    bool optTimeStamp = false;
    bool optReasonForInclusion = false;
    bool optDataSetName = false;
    bool optDataReference = false;
    bool optBufferOverflow = false;
    bool optEntryId = false;
    bool optConfRevision = false;
};

/// The report control blocks of one logical node. Owns them.
struct DEVICEMODEL_EXPORT ReportControlBlockList
{
    ReportControlBlockList() = default;
    ~ReportControlBlockList();
    Q_DISABLE_COPY(ReportControlBlockList)

    QString name = QStringLiteral("ReportControl");
    QList<ReportControlBlock *> blocks;
};
