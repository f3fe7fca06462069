// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

class DriverProtocolExtentionInterface;

/// What came of loading the protocol extension.
struct LoadedExtension
{
    QString file;                                          ///< absolute path that was tried
    DriverProtocolExtentionInterface *extension = nullptr; ///< null when it cannot be used
    QString reason;                                        ///< why it cannot be used, one sentence
    QString remedy;                                        ///< what to do about it, one sentence
};

/// Loads the IEC 61850 extension from a folder and initialises it: looks at the metadata before any
/// code of the library runs, then asks the object whether it serves the protocol and is available.
/// The library stays loaded for the life of the process. GUI thread.
LoadedExtension loadExtension(const QString &folder);
