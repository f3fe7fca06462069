// SPDX-License-Identifier: Apache-2.0
#include "filetransfer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// Octets that are reserved at most before any has come.
constexpr quint64 reserved = 16U << 20;

} // namespace

FileSink::~FileSink() = default;

QString FileSink::begin(quint64)
{
    return {};
}

FileSource::~FileSource() = default;

MemoryFileSink::MemoryFileSink(const QString &fileName)
    : m_fileName(fileName)
{
}

QString MemoryFileSink::begin(quint64 size)
{
    if (size > largestFile)
        return tooLarge();
    // Room for what comes grows with it: what a device claims is no reason to take memory.
    content.reserve(static_cast<int>(std::min(size, reserved)));
    return {};
}

QString MemoryFileSink::take(const char *octets, int count)
{
    if (static_cast<quint64>(count) > largestFile - static_cast<quint64>(content.size()))
        return tooLarge();
    content.append(octets, count);
    return {};
}

QString MemoryFileSink::tooLarge() const
{
    return Texts::tr("%1 is too large: at most %2 octets can be fetched.")
        .arg(m_fileName)
        .arg(largestFile);
}

LocalFileSource::LocalFileSource(const QString &path)
    : m_file(path)
{
}

QString LocalFileSource::name() const
{
    return m_file.fileName();
}

QString LocalFileSource::open(quint64 &size)
{
    if (name().isEmpty())
        return Texts::tr("There is no file to send.");
    if (!QFileInfo(name()).isFile())
        return Texts::tr("There is no file \"%1\" on this computer.").arg(name());
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return unreadable();
    size = static_cast<quint64>(m_file.size());
    return {};
}

qint64 LocalFileSource::read(quint64 position, char *octets, qint64 count, QString &error)
{
    const qint64 got = m_file.seek(static_cast<qint64>(position)) ? m_file.read(octets, count) : -1;
    if (got < 0)
        error = unreadable();
    return got;
}

QString LocalFileSource::unreadable() const
{
    return Texts::tr("\"%1\" cannot be read: %2.").arg(name(), m_file.errorString());
}
