// SPDX-License-Identifier: Apache-2.0
#include "workbench/translators.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>

class tst_Translators : public QObject
{
    Q_OBJECT

private slots:
    void qtsOwnTextsComeFromQtWhereTheFolderHasNone();
    void aLanguageWithoutCatalogueStaysEnglish();

private:
    void clear();
};

void tst_Translators::clear()
{
    qDeleteAll(qApp->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale::c());
}

void tst_Translators::qtsOwnTextsComeFromQtWhereTheFolderHasNone()
{
    const QString installed = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    if (!QFileInfo::exists(installed + "/qtbase_de.qm"))
        QSKIP("Qt's translations are not installed");
    const QTemporaryDir empty;
    QLocale::setDefault(QLocale(QLocale::German));
    installTranslators(empty.path());
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Abbrechen"));
    clear();
}

void tst_Translators::aLanguageWithoutCatalogueStaysEnglish()
{
    const QTemporaryDir empty;
    QLocale::setDefault(QLocale(QLocale::Esperanto));
    installTranslators(empty.path());
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancel"));
    QVERIFY(qApp->findChildren<QTranslator *>().isEmpty());
    clear();
}

QTEST_GUILESS_MAIN(tst_Translators)
#include "tst_translators.moc"
