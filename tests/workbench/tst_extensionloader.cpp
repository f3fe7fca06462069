// SPDX-License-Identifier: Apache-2.0
#include "workbench/extensionloader.h"

#include <host/driverprotocolextentioninterface.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>

class tst_ExtensionLoader : public QObject
{
    Q_OBJECT

private slots:
    void theExtensionIsInitialisedAndItsActionsAreThere();
    void loadingTwiceGivesTheSameObject();
    void aRefusalNamesTheFileTheReasonAndTheRemedy_data();
    void aRefusalNamesTheFileTheReasonAndTheRemedy();
    void aFileThatIsNoLibraryIsRefused();
    void anEmptyFileIsRefused();
    void aRelativeFolderIsUnderstood();
};

namespace {

QString pluginFolder(const QString &name)
{
    return QDir(QStringLiteral(FAKE_PLUGIN_FOLDER)).filePath(name);
}

} // namespace

void tst_ExtensionLoader::theExtensionIsInitialisedAndItsActionsAreThere()
{
    const LoadedExtension loaded = loadExtension(pluginFolder(QStringLiteral("good")));
    QVERIFY2(loaded.extension, qPrintable(loaded.reason));
    QVERIFY(loaded.extension->isInitialized());
    QCOMPARE(loaded.extension->actions().size(), 1);
    QVERIFY(loaded.reason.isEmpty());
}

void tst_ExtensionLoader::loadingTwiceGivesTheSameObject()
{
    const QString folder = pluginFolder(QStringLiteral("good"));
    QCOMPARE(loadExtension(folder).extension, loadExtension(folder).extension);
}

void tst_ExtensionLoader::aRefusalNamesTheFileTheReasonAndTheRemedy_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no folder") << QStringLiteral("nowhere")
                               << QStringLiteral("folder does not exist");
    QTest::newRow("no file") << QString() << QStringLiteral("file does not exist");
    QTest::newRow("interface") << QStringLiteral("wronginterface")
                               << QStringLiteral("\"org.example.other\"");
    QTest::newRow("key") << QStringLiteral("wrongkey") << QStringLiteral("key \"IEC61850Ext\"");
    QTest::newRow("protocol") << QStringLiteral("wrongprotocol")
                              << QStringLiteral("does not serve IEC 61850");
    QTest::newRow("availability") << QStringLiteral("unavailable")
                                  << QStringLiteral("not available");
    QTest::newRow("actions") << QStringLiteral("idle") << QStringLiteral("no action");
}

void tst_ExtensionLoader::aRefusalNamesTheFileTheReasonAndTheRemedy()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, reason);
    const LoadedExtension loaded = loadExtension(pluginFolder(folder));
    QVERIFY(!loaded.extension);
    QVERIFY2(loaded.reason.contains(reason), qPrintable(loaded.reason));
    QVERIFY(QDir::isAbsolutePath(loaded.file));
    QVERIFY(loaded.file.contains(QStringLiteral("IEC61850Ext")));
    QVERIFY(!loaded.remedy.isEmpty());
}

void tst_ExtensionLoader::aFileThatIsNoLibraryIsRefused()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("IEC61850Ext.so")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("This is a text.");
    file.close();
    const LoadedExtension loaded = loadExtension(folder.path());
    QVERIFY(!loaded.extension);
    QVERIFY2(loaded.reason.startsWith(QStringLiteral("The file is not a plug-in")),
             qPrintable(loaded.reason));
}

void tst_ExtensionLoader::anEmptyFileIsRefused()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("IEC61850Ext.so")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const LoadedExtension loaded = loadExtension(folder.path());
    QVERIFY(!loaded.extension);
    QVERIFY(!loaded.reason.isEmpty());
}

void tst_ExtensionLoader::aRelativeFolderIsUnderstood()
{
    const QString relative = QDir::current().relativeFilePath(pluginFolder(QStringLiteral("good")));
    QVERIFY(QDir::isRelativePath(relative));
    QVERIFY(loadExtension(relative).extension);
}

QTEST_MAIN(tst_ExtensionLoader)
#include "tst_extensionloader.moc"
