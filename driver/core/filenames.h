// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/files.h"

#include <remoteclient/records.h>

#include <QtCore/QList>
#include <QtCore/QString>

#include <string>
#include <vector>

/// Between files as devices name them and as the tools show them.
namespace FileNames {

/// The name of a tool ("COMTRADE\x.cfg", either slash) as the standard writes it.
std::string onDevice(const QString &name);

/// What the device listed in @p directory (as the tool wrote it), so that directory and name joined
/// without anything between them are the name of the entry: directories end in a backslash, and
/// every name begins with one where the directory is not empty and does not end in one; for an
/// empty file, which would be taken for a directory then, another slash takes its place. Apart from
/// that a name has no separator of any system in it. Files that do not fit @p pattern are left out;
/// "*.*" fits all.
QList<MMSFileEntry> entries(const QString &pattern, const QString &directory,
                            const std::vector<acsi::FileEntry> &listed);

/// Seconds since 1970-01-01 00:00 UTC of a generalized time ("20210304050607.123Z", a difference
/// from UTC included, minutes and seconds not necessarily); 0 for one that cannot be told.
quint32 secondsOf(const std::string &generalizedTime);

/// The name under which a file is sent: a target that is empty or a directory is given the name of
/// the local file.
QString target(const QString &wanted, const QString &localFile);

} // namespace FileNames
