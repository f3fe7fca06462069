// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/recordingdriverservice.h"

#include <QtCore/QMap>

/// A recording driver service with the file store of one IED behind it.
///
/// A directory is known by its path as the IED understands it, the root by the empty path. Its
/// listing is `fileEntriesOf` of that path; a path is also understood without the backslash at its
/// end. A failing call changes nothing.
class MemoryFileStore : public RecordingDriverService
{
public:
    MemoryFileStore();

    /// A directory inside `parent`, under a name that holds a backslash.
    void addDirectory(const QString &parent, const QString &name);
    /// A file inside `directory`; replaces one of that name.
    void addFile(const QString &directory, const QString &name, const QByteArray &content);

    QStringList namesIn(const QString &directory) const;

    QMap<QString, QByteArray> files; ///< content by path

    OperationResult getFileDirectory(long deviceNo, const QString &pattern,
                                     const QString &directory, QList<MMSFileEntry> &entries,
                                     QString &error) override;
    OperationResult getFile(long deviceNo, const QString &fileName, FileSink &sink,
                            QString &error) override;
    OperationResult deleteFile(long deviceNo, const QString &fileName, QString &error) override;
    OperationResult writeFile(long deviceNo, FileSource &source, const QString &fileName,
                              QString &error) override;

private:
    void forget(const QString &fileName);
};
