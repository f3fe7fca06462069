// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

/// Installs on the application, which owns them, the workbench's and Qt's own texts in the language
/// of the default locale. What has no catalogue in the folder stays English.
void installTranslators(const QString &folder);

/// The folder "translation" beside the program, in which the plug-in looks for its catalogue too.
QString translationFolder();
