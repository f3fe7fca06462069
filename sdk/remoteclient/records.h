// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "remoteclientglobal.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QDataStream;

/// Entry of a directory result.
struct NameVaildValue
{
    QString name;
    bool valid = false;
    QVariant value;
};

/// A control request (IEC 61850-7-2, clause 20) as the browser hands it to the driver.
struct REMOTECLIENT_EXPORT ControlBlock
{
    QString objectReference; ///< logical node "$CO$" data object
    double controlValue = 0; ///< enumerated and boolean values as their integer code
    quint8 orCat = 0;        ///< originator category
    quint8 check = 0;        ///< code of the Check type
    quint8 test = 0;         ///< 0 or 1
    quint8 controlModel = 0; ///< the object's ctlModel

    /// Write the six fields in order, QDataStream version Qt_5_12, big endian and with double
    /// precision; the stream's own settings are put back afterwards.
    void toStream(QDataStream &stream) const;
};

/// Entry of a file directory of the IED.
struct MMSFileEntry
{
    QString directory;        ///< the directory that was listed
    quint32 size = 0;         ///< bytes; 0 for a directory and for ".."
    qint32 attributes = 0;    ///< the driver's own
    quint32 lastModified = 0; ///< seconds since 1970-01-01 00:00 UTC; 0: unknown
    QString name;             ///< relative to the directory; a directory's name holds a backslash
};

/// A report control block as read from or configured on the IED (IEC 61850-7-2, clause 17).
struct ReportBlock
{
    QString clientRptId;   ///< report identifier that the configuration gives the client
    QString clientDataSet; ///< data set that the configuration gives the client
    QString owner;         ///< client that holds the block, empty when nobody does
    QString rptId;
    QString reference; ///< logical node "$BR$" or "$RP$" name
    quint8 trgOps = 0; ///< bit string of IEC 61850-8-1, bit 0 the most significant
    qint32 intgPd = 0; ///< milliseconds
    QString datSet;
    qint32 confRev = 0;
    quint8 optFlds[2] = {0, 0}; ///< bit string of IEC 61850-8-1, bit 0 the most significant
    QString optFldsText;        ///< as read back: one '0' or '1' per bit, bit 0 first
    qint32 bufTm = 0;           ///< milliseconds
    bool rptEna = false;
    bool resv = false;
};

/// A setting group control block (IEC 61850-7-2, clause 16).
struct REMOTECLIENT_EXPORT SGCB
{
    SGCB() = default;
    SGCB(const SGCB &) = default;
    SGCB &operator=(const SGCB &) = default;
    virtual ~SGCB();

    QString name;
    quint8 numOfSG = 0;
    quint8 actSG = 0;  ///< counted from 1
    quint8 editSG = 0; ///< 0: none selected
    quint8 cnfEdit = 0;
    QDateTime lastActivation;
};

/// One setting of a setting group.
struct SGCBValue
{
    QString name;
    QVariant value;
};
