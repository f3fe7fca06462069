// SPDX-License-Identifier: Apache-2.0
#include "memoryfilestore.h"

#include <algorithm>

namespace {

constexpr quint32 someTime = 1700000000;

} // namespace

MemoryFileStore::MemoryFileStore()
{
    fileEntriesOf.insert(QString(), {});
}

void MemoryFileStore::addDirectory(const QString &parent, const QString &name)
{
    MMSFileEntry entry;
    entry.directory = parent;
    entry.lastModified = someTime;
    entry.name = name;
    fileEntriesOf[parent].append(entry);
    fileEntriesOf.insert(parent + name, {});
}

void MemoryFileStore::addFile(const QString &directory, const QString &name,
                              const QByteArray &content)
{
    forget(directory + name);
    MMSFileEntry entry;
    entry.directory = directory;
    entry.size = static_cast<quint32>(content.size());
    entry.lastModified = someTime;
    entry.name = name;
    fileEntriesOf[directory].append(entry);
    files.insert(directory + name, content);
}

QStringList MemoryFileStore::namesIn(const QString &directory) const
{
    QStringList names;
    for (const MMSFileEntry &entry : fileEntriesOf.value(directory))
        names << entry.name;
    return names;
}

OperationResult MemoryFileStore::getFileDirectory(long deviceNo, const QString &pattern,
                                                  const QString &directory,
                                                  QList<MMSFileEntry> &entries, QString &error)
{
    const OperationResult result =
        RecordingDriverService::getFileDirectory(deviceNo, pattern, directory, entries, error);
    if (result == OperationSucceeded && !fileEntriesOf.contains(directory))
        entries = fileEntriesOf.value(directory + QLatin1Char('\\'));
    return result;
}

OperationResult MemoryFileStore::getFile(long deviceNo, const QString &fileName, FileSink &sink,
                                         QString &error)
{
    fileContent = files.value(fileName);
    return RecordingDriverService::getFile(deviceNo, fileName, sink, error);
}

OperationResult MemoryFileStore::deleteFile(long deviceNo, const QString &fileName, QString &error)
{
    const OperationResult result = RecordingDriverService::deleteFile(deviceNo, fileName, error);
    if (result == OperationSucceeded)
        forget(fileName);
    return result;
}

OperationResult MemoryFileStore::writeFile(long deviceNo, FileSource &source,
                                           const QString &fileName, QString &error)
{
    const OperationResult result =
        RecordingDriverService::writeFile(deviceNo, source, fileName, error);
    quint64 size = 0;
    if (result == OperationSucceeded && source.open(size).isEmpty()) {
        QByteArray content(static_cast<int>(size), Qt::Uninitialized);
        source.read(0, content.data(), content.size(), error);
        const int separator = fileName.lastIndexOf(QLatin1Char('\\'));
        addFile(fileName.left(separator + 1), fileName.mid(separator + 1), content);
    }
    return result;
}

void MemoryFileStore::forget(const QString &fileName)
{
    files.remove(fileName);
    for (auto listing = fileEntriesOf.begin(); listing != fileEntriesOf.end(); ++listing) {
        const auto isIt = [&](const MMSFileEntry &entry) {
            return listing.key() + entry.name == fileName;
        };
        listing->erase(std::remove_if(listing->begin(), listing->end(), isIt), listing->end());
    }
}
