// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

/// How one side of an association is addressed (ISO 8072, 8326, 8822 selectors; ISO 8650 titles).
struct AssociationAddress
{
    QByteArray transportSelector{"\0\1", 2}; ///< at most 32 octets; above 4 some devices refuse
    QByteArray sessionSelector{"\0\1", 2};   ///< at most 16 octets
    QByteArray presentationSelector{"\0\0\0\1", 4}; ///< at most 16 octets
    QString apTitle;                                ///< object identifier "1.1.1.999.1", or empty
    std::optional<qint64> aeQualifier;
};

/// How the device and the driver prove to each other who they are (IEC 62351-3); files in PEM, the
/// files are on the computer of the driver.
struct TlsConfiguration
{
    bool enabled = false;
    QString certificateFile;
    QString keyFile;
    QString keyPassword;
    QStringList authorityFiles;
    QStringList revocationFiles;
    QStringList pins; ///< SHA-256 fingerprints of device certificates, hexadecimal
    QString peerName; ///< the device's host unless given
    /// Take certificates that are made out to others, too: whoever holds the key of any of them can
    /// pose as the device.
    bool acceptsOtherNames = false;
};

/// All that the driver has to know about a device. A value type.
struct DeviceConfiguration
{
    int number = 0; ///< on the driver, from 1
    QString name;   ///< for the operator; the IED's name where it is known
    QString host;   ///< name or address; empty for a device known only from its SCL file
    int port = 102;
    QString sclFile;     ///< path, or empty
    QString ied;         ///< IED of the file; may be empty when the file describes a single one
    QString accessPoint; ///< of the IED in the file; empty for the one of the address

    AssociationAddress local;
    AssociationAddress remote;
    QString password; ///< sent with the association request when it is not empty
    TlsConfiguration tls;

    /// Until the association stands.
    std::chrono::milliseconds connectTimeout{5000};
    /// Of each single request.
    std::chrono::milliseconds callTimeout{5000};
    /// Of a whole operation, however many requests it takes. Transfers of files and the wait for
    /// the termination of a command have limits of their own.
    std::chrono::milliseconds operationTimeout{15000};
    int outstandingCalls = 5;
    int maxPduSize = 65000; ///< octets
    /// Pause between two readings of data that no report brings; 0 for none.
    std::chrono::milliseconds pollInterval{2000};
    /// File reads on the way at a time; more than one only where the device is known to bear it.
    int outstandingFileReads = 1;

    int originatorCategory = 3; ///< IEC 61850-7-3, OriginatorCategoryKind: remote-control
    /// Sent with every control; at most 64 octets.
    QByteArray originatorIdentification;

    static constexpr int longestOriginator = 64;
    static constexpr int smallestPduSize = 1000;

    /// One sentence for each fault of form; whether its files can be used says the driver,
    /// DriverAdministration::faults().
    QStringList faults() const;

    /// "Device 3 (AA1E1Q01)".
    QString title() const;

    QJsonObject toJson() const;
    /// What is missing keeps its default. @param error one sentence when something has the wrong
    /// form, otherwise empty; the rest is taken all the same
    static DeviceConfiguration fromJson(const QJsonObject &object, QString &error);

    friend bool operator==(const DeviceConfiguration &left, const DeviceConfiguration &right)
    {
        return left.toJson() == right.toJson();
    }
};

/// "00 01", "0001" or "00:01" as octets; nothing when it is not hexadecimal.
std::optional<QByteArray> octetsFromHex(const QString &text);
