// SPDX-License-Identifier: Apache-2.0
#include "streportcontrolblock.h"

#include <devicemodel/reportcontrolblock.h>

stReportControlBlock offlineReportControlBlock(const ReportControlBlock &block)
{
    stReportControlBlock offline;
    offline.rptId = block.rptId;
    offline.name = block.name;
    offline.dataChange = block.triggerDataChange;
    offline.qualityChange = block.triggerQualityChange;
    offline.dataUpdate = block.triggerDataUpdate;
    offline.integrity = block.triggerIntegrity;
    offline.generalInterrogation = block.triggerGeneralInterrogation;
    offline.intgPd = block.integrityPeriod;
    offline.datSet = block.dataSet;
    offline.confRev = block.confRev;
    offline.sequenceNumber = block.optSequenceNumber;
    offline.timeStamp = block.optTimeStamp;
    offline.reasonForInclusion = block.optReasonForInclusion;
    offline.dataSetName = block.optDataSetName;
    offline.bufferOverflow = block.optBufferOverflow;
    offline.entryId = block.optEntryId;
    offline.dataReference = block.optDataReference;
    offline.configurationRevision = block.optConfRevision;
    offline.bufTm = block.bufferTime;
    return offline;
}
