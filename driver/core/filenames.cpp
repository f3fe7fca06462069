// SPDX-License-Identifier: Apache-2.0
#include "filenames.h"

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <limits>

namespace {

const QChar separator = QLatin1Char('\\');

/// A slash that is none on this computer, for files that the tools would take for directories.
const QChar fileSeparator(0x2215);

bool isSeparator(QChar c)
{
    return c == separator || c == QLatin1Char('/') || c == fileSeparator;
}

/// Octets that are no UTF-8 as ISO 8859-1, in which every octet is a character; asked for in other
/// octets again, see acsi::spellingsOf().
QString shown(const std::string &name)
{
    const QByteArray octets = QByteArray::fromStdString(name);
    const QString text = QString::fromUtf8(octets);
    return text.toUtf8() == octets ? text : QString::fromLatin1(octets);
}

/// A name of a device must not lead anywhere on this computer, whatever a tool joins it with.
bool choosesAFolder(QString name)
{
    if (name.endsWith(QLatin1Char('/')))
        name.chop(1);
    return name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..") ||
           name.contains(QChar::Null) || std::any_of(name.cbegin(), name.cend(), isSeparator);
}

} // namespace

std::string FileNames::onDevice(const QString &name)
{
    QString result = name;
    result.replace(separator, QLatin1Char('/'));
    result.replace(fileSeparator, QLatin1Char('/'));
    while (result.startsWith(QLatin1Char('/')))
        result.remove(0, 1);
    return result.toStdString();
}

QList<MMSFileEntry> FileNames::entries(const QString &pattern, const QString &directory,
                                       const std::vector<acsi::FileEntry> &listed)
{
    const bool fitsAll = pattern.isEmpty() || pattern == QLatin1String("*.*");
    const QRegularExpression expression(QRegularExpression::wildcardToRegularExpression(pattern),
                                        QRegularExpression::CaseInsensitiveOption);
    const bool needsSeparator =
        !directory.isEmpty() && !isSeparator(directory.at(directory.size() - 1));
    QList<MMSFileEntry> result;
    for (const acsi::FileEntry &each : listed) {
        QString name = shown(each.name);
        if (choosesAFolder(name))
            continue;
        if (!each.isDirectory() && !fitsAll && !expression.match(name).hasMatch())
            continue;
        name.replace(QLatin1Char('/'), separator);
        MMSFileEntry entry;
        entry.directory = directory;
        entry.size = each.isDirectory() ? 0 : each.size;
        entry.lastModified = secondsOf(each.lastModified);
        // A backslash in the name of what has no size makes it a directory.
        const bool isEmptyFile = !each.isDirectory() && each.size == 0;
        if (needsSeparator)
            name.prepend(isEmptyFile ? fileSeparator : separator);
        entry.name = name;
        result.append(entry);
    }
    return result;
}

quint32 FileNames::secondsOf(const std::string &generalizedTime)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{10}(?:\\d{2}){0,2})(?:[.,]\\d*)?(?:Z|([+-])(\\d{2})(\\d{2})?)?$"));
    const QRegularExpressionMatch match = form.match(QString::fromStdString(generalizedTime));
    if (!match.hasMatch())
        return 0;
    const QString full = match.captured(1).leftJustified(14, QLatin1Char('0'));
    QDateTime time = QDateTime::fromString(full, QStringLiteral("yyyyMMddHHmmss"));
    if (!time.isValid())
        return 0;
    time.setTimeSpec(Qt::UTC);
    const qint64 difference = match.captured(3).toInt() * 3600 + match.captured(4).toInt() * 60;
    const qint64 seconds = time.toSecsSinceEpoch() +
                           (match.captured(2) == QLatin1String("+") ? -difference : difference);
    const bool fits = seconds > 0 && seconds <= std::numeric_limits<quint32>::max();
    return fits ? static_cast<quint32>(seconds) : 0;
}

QString FileNames::target(const QString &wanted, const QString &localFile)
{
    const bool isDirectory = wanted.isEmpty() || isSeparator(wanted.at(wanted.size() - 1));
    return isDirectory ? wanted + QFileInfo(localFile).fileName() : wanted;
}
