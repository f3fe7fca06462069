// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

struct ReportControlBlock;

/// A report control block as configured in the device model, for work without a connection.
struct stReportControlBlock
{
    QString rptId;
    QString name;

    bool dataChange = false;
    bool qualityChange = false;
    bool dataUpdate = false;
    bool integrity = false;
    bool generalInterrogation = false;

    qint32 intgPd = 0; ///< milliseconds, 0: none
    QString datSet;
    qint32 confRev = 0;

    bool sequenceNumber = false;
    bool timeStamp = false;
    bool reasonForInclusion = false;
    bool dataSetName = false;
    bool bufferOverflow = false;
    bool entryId = false;
    bool dataReference = false;
    bool configurationRevision = false;

    qint32 bufTm = 0; ///< milliseconds
};

/// The configured settings of a block of the device model.
stReportControlBlock offlineReportControlBlock(const ReportControlBlock &block);
