// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <cstdint>
#include <optional>

/// A value in a report: a leaf of a member of the data set.
struct ReportEventMember
{
    /// "LD/LN$FC$Data..." of the leaf; of the member where it has no value that could be taken
    /// apart. Quality and time of a value stand beside it and are members only where they are
    /// alone.
    QString reference;
    /// Why it was included: the bits of PublishCause, 1 data change, 2 quality change, 4 data
    /// update, 8 integrity, 16 general interrogation, 32 application; none when the report does not
    /// tell.
    std::optional<quint32> reason;
    QVariant value;    ///< as DataAttribute represents it
    QString quality;   ///< 13 characters; empty where there is none
    QString timeStamp; ///< of the value itself
    QString error;     ///< why there is no value; empty otherwise
};

/// A report as it came, or that reports are missing. Where live values are thinned to the newest of
/// each reference, events are complete: every report is one, in the order of arrival; what could
/// not be kept is said.
struct ReportEvent
{
    int number = 0; ///< of the device
    QString device;
    QString block; ///< "LD/LN$BR$name"
    QString rptId;
    std::optional<quint32> sequenceNumber;
    QByteArray entryId;  ///< of buffered blocks, where the report has it
    QString timeOfEntry; ///< ISO 8601, UTC; empty where the report has none
    QDateTime arrival;   ///< local time
    bool bufferOverflow = false;
    /// Not empty: this is no report, but what is missing before the next one, one sentence.
    QString missing;
    QVector<ReportEventMember> members;
};
