// SPDX-License-Identifier: Apache-2.0
#include "translators.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

void installTranslators(const QString &folder)
{
    const auto install = [](const QString &catalogue, const QStringList &folders) {
        auto *translator = new QTranslator(qApp);
        for (const QString &each : folders) {
            if (translator->load(QLocale(), catalogue, QStringLiteral("_"), each)) {
                QCoreApplication::installTranslator(translator);
                return;
            }
        }
        delete translator;
    };
    install(QStringLiteral("workbench"), {folder});
    install(QStringLiteral("qtbase"),
            {folder, QLibraryInfo::location(QLibraryInfo::TranslationsPath)});
}

QString translationFolder()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("translation"));
}
