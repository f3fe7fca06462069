// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

/// Installs on the application, which owns them, the workbench's and Qt's own texts in the language
/// of the default locale. Qt's own come from the folder or, where it has none of them, from Qt's
/// installation. What has no catalogue stays English.
void installTranslators(const QString &folder);

/// The folder "translation" beside the program, in which the plug-in looks for its catalogue too.
QString translationFolder();
