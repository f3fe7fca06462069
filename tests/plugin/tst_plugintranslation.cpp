// SPDX-License-Identifier: Apache-2.0
#include <host/driverprotocolextentioninterface.h>

#include <QtCore/QPluginLoader>
#include <QtCore/QTranslator>
#include <QtTest/QTest>
#include <QtWidgets/QAction>

/// Run with a German locale.
class tst_PluginTranslation : public QObject
{
    Q_OBJECT

private slots:
    void textsComeFromTheTranslationFolderBesideTheProgram();
};

void tst_PluginTranslation::textsComeFromTheTranslationFolderBesideTheProgram()
{
    QCOMPARE(QLocale::system().name(), QString("de_DE"));
    QPluginLoader loader(PLUGIN_FILE);
    auto *extension = qobject_cast<DriverProtocolExtentionInterface *>(loader.instance());
    QVERIFY2(extension, qPrintable(loader.errorString()));
    extension->initialize();
    const auto *translator = loader.instance()->findChild<QTranslator *>();
    QVERIFY(translator);
    QVERIFY(!translator->isEmpty());
    QCOMPARE(extension->actions().first()->text(), QString("IED-Browser"));
}

QTEST_MAIN(tst_PluginTranslation)
#include "tst_plugintranslation.moc"
