// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "remoteclientglobal.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QString>

/// Takes the content of a file, piece by piece and in order, and so learns how far it has come.
///
/// Called while the operation lasts that it was given to, in any thread, one call at a time. The
/// device is kept waiting meanwhile; must not call the driver.
class REMOTECLIENT_EXPORT FileSink
{
public:
    FileSink() = default;
    virtual ~FileSink();
    Q_DISABLE_COPY(FileSink)

    /// How many octets the device says that there are; at most once, before the first piece. One
    /// sentence when the file is not taken, which the operation then fails with; empty to take it.
    virtual QString begin(quint64 size);
    /// The next octets, not more than the device sends in one message. One sentence ends the
    /// transfer, which then fails with it.
    virtual QString take(const char *octets, int count) = 0;
};

/// Gives the content of a file, piece by piece, and so learns how far it has come. Called as
/// FileSink is.
class REMOTECLIENT_EXPORT FileSource
{
public:
    FileSource() = default;
    virtual ~FileSource();
    Q_DISABLE_COPY(FileSource)

    /// What the file is called where it comes from, for journals and questions.
    virtual QString name() const = 0;
    /// How many octets there are. Once, before the first piece. One sentence when the file cannot
    /// be sent; empty otherwise.
    virtual QString open(quint64 &size) = 0;
    /// Up to @a count octets from @a position; how many there were, fewer only at the end. -1 ends
    /// the transfer, which then fails with the sentence in @a error. Positions grow, but begin
    /// again when the device opens the file again.
    virtual qint64 read(quint64 position, char *octets, qint64 count, QString &error) = 0;
};

/// Keeps a file in memory as a whole.
class REMOTECLIENT_EXPORT MemoryFileSink : public FileSink
{
public:
    /// Octets; larger files are not taken.
    static constexpr quint64 largestFile = 1U << 30;

    /// @param fileName for the sentence about a file that is too large
    explicit MemoryFileSink(const QString &fileName);

    QString begin(quint64 size) override;
    QString take(const char *octets, int count) override;

    /// What has come so far.
    QByteArray content;

private:
    QString tooLarge() const;

    const QString m_fileName;
};

/// A file of this computer. It is opened when it is asked for.
class REMOTECLIENT_EXPORT LocalFileSource : public FileSource
{
public:
    explicit LocalFileSource(const QString &path);

    /// The path as it was given.
    QString name() const override;
    QString open(quint64 &size) override;
    qint64 read(quint64 position, char *octets, qint64 count, QString &error) override;

private:
    QString unreadable() const;

    QFile m_file;
};
