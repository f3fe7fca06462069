// SPDX-License-Identifier: Apache-2.0
#include "translators.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

void installTranslators(const QString &folder)
{
    for (const QString &catalogue : {QStringLiteral("workbench"), QStringLiteral("qtbase")}) {
        auto *translator = new QTranslator(qApp);
        if (translator->load(QLocale(), catalogue, QStringLiteral("_"), folder))
            QCoreApplication::installTranslator(translator);
        else
            delete translator;
    }
}

QString translationFolder()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("translation"));
}
