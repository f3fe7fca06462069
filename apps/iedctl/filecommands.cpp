// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "session.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace {

/// The controller's names have backslashes.
QString onDevice(QString path)
{
    path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return path;
}

QString shown(QString name)
{
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return name;
}

QString notWritten(const QSaveFile &file)
{
    return QStringLiteral("The file \"%1\" cannot be written: %2.")
        .arg(file.fileName(), file.errorString());
}

/// Writes what comes, and says how far it is. The program waits for the driver meanwhile, so that
/// the terminal is nobody else's.
class WatchedSink : public FileSink
{
public:
    WatchedSink(QSaveFile &file, Output &output, const QString &what)
        : m_file(file)
        , m_output(output)
        , m_what(what)
    {
    }

    quint64 octets() const { return m_octets; }

    QString begin(quint64 size) override
    {
        m_size = size;
        return {};
    }

    QString take(const char *octets, int count) override
    {
        if (m_file.write(octets, count) != count)
            return notWritten(m_file);
        m_octets += static_cast<quint64>(count);
        const int percent = m_size == 0 ? 0 : static_cast<int>(100 * m_octets / m_size);
        if (percent != m_percent)
            m_output.progress(QStringLiteral("%1 %2 %").arg(m_what).arg(percent));
        m_percent = percent;
        return {};
    }

private:
    QSaveFile &m_file;
    Output &m_output;
    const QString m_what;
    quint64 m_size = 0;
    quint64 m_octets = 0;
    int m_percent = 0;
};

QString lastPart(const QString &path)
{
    return shown(path).section(QLatin1Char('/'), -1);
}

} // namespace

namespace Commands {

ExitStatus listFiles(Session &session, const QString &directory)
{
    QString path = onDevice(directory);
    if (path == QLatin1String("\\"))
        path.clear();
    if (!path.isEmpty() && !path.endsWith(QLatin1Char('\\')))
        path += QLatin1Char('\\');
    QList<MMSFileEntry> entries;
    QString error;
    const OperationResult result = session.controller().getFileDirectory(
        session.deviceNo(), QStringLiteral("*.*"), path, entries, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    QJsonArray rows;
    for (const MMSFileEntry &entry : entries) {
        const bool isDirectory = entry.size == 0 && entry.name.contains(QLatin1Char('\\'));
        QJsonObject row{{QStringLiteral("name"), shown(entry.name)}};
        if (!isDirectory)
            row.insert(QStringLiteral("size"), static_cast<qint64>(entry.size));
        if (entry.lastModified != 0) {
            row.insert(
                QStringLiteral("modified"),
                QDateTime::fromSecsSinceEpoch(entry.lastModified, Qt::UTC).toString(Qt::ISODate));
        }
        rows.append(row);
    }
    session.output().rows(
        {QStringLiteral("name"), QStringLiteral("size"), QStringLiteral("modified")}, rows);
    return ExitStatus::Done;
}

ExitStatus getFile(Session &session, const QString &remote, const QString &local, bool overwrites)
{
    QString target = local.isEmpty() ? lastPart(remote) : local;
    if (!local.isEmpty() && QFileInfo(local).isDir())
        target = QDir(local).filePath(lastPart(remote));
    if (!overwrites && QFileInfo::exists(target)) {
        if (!session.question()) {
            return session.failed(
                QStringLiteral("\"%1\" exists already; replace it with --overwrite.").arg(target));
        }
        if (!session.question()(QStringLiteral("\"%1\" exists already. Replace it?").arg(target)))
            return session.failed(QStringLiteral("\"%1\" was left as it is.").arg(target));
    }
    QSaveFile file(target);
    if (target.isEmpty() || !file.open(QIODevice::WriteOnly))
        return session.failed(notWritten(file));
    session.output().progress(QStringLiteral("Fetching %1 ...").arg(shown(remote)));
    QString error;
    WatchedSink sink(file, session.output(), QStringLiteral("Fetching %1 ...").arg(shown(remote)));
    const OperationResult result =
        session.controller().getFile(session.deviceNo(), onDevice(remote), sink, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    // A commit does not tell of what was still to be written.
    if (!file.flush() || !file.commit())
        return session.failed(notWritten(file));
    session.output().note(
        QStringLiteral("%1 octets written to \"%2\".").arg(sink.octets()).arg(target));
    return ExitStatus::Done;
}

ExitStatus putFile(Session &session, const QString &local, const QString &remote)
{
    const QFileInfo file(local);
    if (!file.isFile() || !file.isReadable())
        return session.failed(QStringLiteral("The file \"%1\" cannot be read.").arg(local));
    const QString target = remote.isEmpty() ? file.fileName() : remote;
    session.output().progress(QStringLiteral("Sending %1 ...").arg(local));
    QString error;
    const OperationResult result = session.controller().writeFile(
        session.deviceNo(), file.absoluteFilePath(), onDevice(target), error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    session.output().note(
        QStringLiteral("%1 octets sent to \"%2\".").arg(file.size()).arg(shown(target)));
    return ExitStatus::Done;
}

ExitStatus removeFile(Session &session, const QString &remote)
{
    QString error;
    return session.ended(
        session.controller().deleteFile(session.deviceNo(), onDevice(remote), error), error);
}

} // namespace Commands
