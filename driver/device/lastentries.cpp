// SPDX-License-Identifier: Apache-2.0
#include "lastentries.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>

#include <limits>

namespace {

/// Devices that are remembered; those used longest ago give way.
constexpr int mostFiles = 1000;
constexpr qint64 longestFile = 4 * 1024 * 1024;
const QString suffix = QStringLiteral(".entries");

QString hex(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex());
}

QByteArray bytesOf(const QJsonValue &value)
{
    return QByteArray::fromHex(value.toString().toLatin1());
}

/// None for what no block's time can be.
std::optional<std::uint32_t> timeOf(const QJsonValue &value)
{
    const double number = value.toDouble(-1);
    if (!(number >= 0 && number <= std::numeric_limits<std::uint32_t>::max()))
        return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

} // namespace

LastEntries::Terms LastEntries::Terms::of(const acsi::ReportBlock &block)
{
    return {QByteArray::fromStdString(block.datSet), QByteArray::fromStdString(block.rptId),
            QByteArray::fromStdString(block.trgOps.toBits().toText()), block.bufTm, block.intgPd};
}

LastEntries::LastEntries(const QString &folder, const QString &device)
    : m_device(device)
{
    if (folder.isEmpty())
        return;
    const QByteArray name =
        QCryptographicHash::hash(device.toUtf8(), QCryptographicHash::Sha256).toHex();
    m_path = QDir(folder).filePath(QString::fromLatin1(name) + suffix);
    load();
}

void LastEntries::load()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > longestFile)
        return;
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    if (root.value(QLatin1String("device")).toString() != m_device)
        return;
    const QJsonArray blocks = root.value(QLatin1String("blocks")).toArray();
    for (const QJsonValue &each : blocks) {
        const QJsonObject object = each.toObject();
        Known known;
        known.terms.dataSet = bytesOf(object.value(QLatin1String("dataSet")));
        known.terms.rptId = bytesOf(object.value(QLatin1String("rptId")));
        known.terms.triggers = bytesOf(object.value(QLatin1String("triggers")));
        const auto bufferTime = timeOf(object.value(QLatin1String("bufferTime")));
        const auto integrityPeriod = timeOf(object.value(QLatin1String("integrityPeriod")));
        if (!bufferTime || !integrityPeriod)
            continue;
        known.terms.bufferTime = *bufferTime;
        known.terms.integrityPeriod = *integrityPeriod;
        const QByteArray entry = bytesOf(object.value(QLatin1String("entry")));
        known.entry.assign(entry.begin(), entry.end());
        const QString block = object.value(QLatin1String("block")).toString();
        if (!block.isEmpty() && !known.entry.empty())
            m_entries.insert(block, known);
    }
}

std::optional<LastEntries::EntryId> LastEntries::find(const QString &block,
                                                      const Terms &terms) const
{
    const auto found = m_entries.constFind(block);
    if (found == m_entries.constEnd() || found->terms != terms)
        return std::nullopt;
    return found->entry;
}

void LastEntries::set(const QString &block, const Terms &terms, const EntryId &entry)
{
    Known &known = m_entries[block];
    if (known.entry == entry && known.terms == terms)
        return;
    known = {terms, entry};
    m_isChanged = true;
}

void LastEntries::forget(const QString &block)
{
    if (m_entries.remove(block) > 0)
        m_isChanged = true;
}

void LastEntries::save()
{
    if (!m_isChanged || m_path.isEmpty())
        return;
    m_isChanged = false;
    QJsonArray blocks;
    for (auto each = m_entries.cbegin(); each != m_entries.cend(); ++each) {
        const Terms &terms = each->terms;
        const QByteArray entry(reinterpret_cast<const char *>(each->entry.data()),
                               static_cast<int>(each->entry.size()));
        blocks.append(QJsonObject{
            {QStringLiteral("block"), each.key()},
            {QStringLiteral("dataSet"), hex(terms.dataSet)},
            {QStringLiteral("rptId"), hex(terms.rptId)},
            {QStringLiteral("triggers"), hex(terms.triggers)},
            {QStringLiteral("bufferTime"), static_cast<double>(terms.bufferTime)},
            {QStringLiteral("integrityPeriod"), static_cast<double>(terms.integrityPeriod)},
            {QStringLiteral("entry"), hex(entry)}});
    }
    const QString folder = QFileInfo(m_path).path();
    QSaveFile file(m_path);
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly))
        return;
    file.write(QJsonDocument(QJsonObject{{QStringLiteral("device"), m_device},
                                         {QStringLiteral("blocks"), blocks}})
                   .toJson(QJsonDocument::Compact));
    file.commit();

    const QFileInfoList all =
        QDir(folder).entryInfoList({QLatin1Char('*') + suffix}, QDir::Files, QDir::Time);
    for (int i = mostFiles; i < all.size(); ++i)
        QFile::remove(all.at(i).filePath());
}
