// SPDX-License-Identifier: Apache-2.0
// The real plug-in in the real window, loaded at run time.
#include "workbench/fileimport.h"
#include "workbench/mainwindow.h"
#include "workbench/workbench.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeView>

class tst_HostedPlugin : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void thePluginOffersBrowserAndFileService();
    void theBrowserShowsTheSelectedDevice();
    void aSecondTriggerOpensAnotherBrowser();
    void everyCallOfTheBrowserIsInTheJournal();
    void theWindowCanCloseWhileBrowsersAreOpen();
    void aBrowserOutlivesItsDeviceInTheList();
    void valuesMoveInTheBrowserOfAConnectedDevice();

private:
    QWidgetList browsers() const;
    QString shownDevice(QWidget *browser) const;
    static QModelIndex findNode(const QAbstractItemModel &model, const QString &name,
                                const QModelIndex &below);

    QTemporaryDir m_folder;
    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<MainWindow> m_window;
};

void tst_HostedPlugin::init()
{
    QFile::remove(m_folder.filePath(QStringLiteral("workbench.ini")));
    const QString scl = m_folder.filePath(QStringLiteral("feeder.icd"));
    if (!QFile::exists(scl))
        QVERIFY(QFile::copy(QStringLiteral(FEEDER_FILE), scl));
    Workbench::Options options;
    options.settingsFile = m_folder.filePath(QStringLiteral("workbench.ini"));
    options.import = importFromFile;
    m_workbench = std::make_unique<Workbench>(options);
    m_window = std::make_unique<MainWindow>(*m_workbench, QStringLiteral(PLUGIN_FOLDER));
    m_window->show();
    m_window->loadExtension();
    QVERIFY2(m_window->extension().extension, qPrintable(m_window->extension().reason));
    m_workbench->open(scl);
    QTRY_COMPARE(m_workbench->devices().rowCount(), 1);
}

void tst_HostedPlugin::cleanup()
{
    m_window.reset();
    m_workbench.reset();
}

QWidgetList tst_HostedPlugin::browsers() const
{
    QWidgetList found;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("IEDModelView") && window->isVisible())
            found << window;
    }
    return found;
}

QString tst_HostedPlugin::shownDevice(QWidget *browser) const
{
    const auto *tree = browser->findChild<QTreeView *>(QStringLiteral("modelView"));
    return tree ? tree->model()->index(0, 0).data().toString() : QString();
}

void tst_HostedPlugin::thePluginOffersBrowserAndFileService()
{
    QStringList texts;
    for (const QAction *action : m_window->extensionActions())
        texts << action->text();
    QCOMPARE(texts,
             (QStringList{QStringLiteral("IED Browser"), QStringLiteral("IED File Service")}));
}

void tst_HostedPlugin::theBrowserShowsTheSelectedDevice()
{
    m_window->extensionActions().first()->trigger();
    QTRY_COMPARE(browsers().size(), 1);
    QCOMPARE(shownDevice(browsers().first()), QStringLiteral("FEEDER2"));
    QCOMPARE(browsers().first()->windowTitle(), QString::fromUtf8("IED Browser \u2013 FEEDER2"));
}

void tst_HostedPlugin::aSecondTriggerOpensAnotherBrowser()
{
    m_window->extensionActions().first()->trigger();
    m_window->extensionActions().first()->trigger();
    QTRY_COMPARE(browsers().size(), 2);
    browsers().first()->close();
    QTRY_COMPARE(browsers().size(), 1);
}

void tst_HostedPlugin::everyCallOfTheBrowserIsInTheJournal()
{
    m_window->extensionActions().first()->trigger();
    QTRY_COMPARE(m_workbench->journal().rowCount(), 1);
    const QModelIndex operation = m_workbench->journal().index(0, JournalModel::OperationColumn);
    QCOMPARE(operation.data().toString(), QStringLiteral("getIEDModel"));
    QCOMPARE(operation.sibling(0, JournalModel::ResultColumn).data().toString(),
             QStringLiteral("OK"));
}

void tst_HostedPlugin::theWindowCanCloseWhileBrowsersAreOpen()
{
    m_window->extensionActions().first()->trigger();
    m_window->extensionActions().first()->trigger();
    QTRY_COMPARE(browsers().size(), 2);
    m_window.reset();
    QVERIFY(browsers().isEmpty());
}

void tst_HostedPlugin::aBrowserOutlivesItsDeviceInTheList()
{
    m_window->extensionActions().first()->trigger();
    QTRY_COMPARE(browsers().size(), 1);
    m_workbench->remove(m_window->selectedDevice());
    QCOMPARE(m_workbench->devices().rowCount(), 0);
    QVERIFY(!m_window->extensionActions().first()->isEnabled());
    QCOMPARE(shownDevice(browsers().first()), QStringLiteral("FEEDER2"));
}

QModelIndex tst_HostedPlugin::findNode(const QAbstractItemModel &model, const QString &name,
                                       const QModelIndex &below)
{
    for (int row = 0; row < model.rowCount(below); ++row) {
        const QModelIndex child = model.index(row, 0, below);
        if (child.data().toString() == name)
            return child;
        if (const QModelIndex found = findNode(model, name, child); found.isValid())
            return found;
    }
    return {};
}

void tst_HostedPlugin::valuesMoveInTheBrowserOfAConnectedDevice()
{
    m_workbench->simulate(QStringLiteral(DEMONSTRATION_FILE));
    const auto isUsable = [this] {
        const DeviceListModel::Device *device =
            m_workbench->devices().device(m_window->selectedDevice());
        return device && device->record.simulated && device->isUsable();
    };
    QTRY_VERIFY_WITH_TIMEOUT(isUsable(), 20000);
    m_window->extensionActions().first()->trigger();
    QTRY_COMPARE(browsers().size(), 1);
    const auto *tree = browsers().first()->findChild<QTreeView *>(QStringLiteral("modelView"));
    QVERIFY(tree);
    const QAbstractItemModel &model = *tree->model();
    const QModelIndex power = findNode(model, QStringLiteral("TotW"), model.index(0, 0));
    const QModelIndex number = findNode(model, QStringLiteral("f"), power);
    QVERIFY(number.isValid());
    QStringList seen;
    const auto changes = [&] {
        for (int column = 1; column < model.columnCount(number.parent()); ++column)
            seen << number.sibling(number.row(), column).data().toString();
        seen.removeDuplicates();
        return seen.size();
    };
    const int atFirst = changes();
    QTRY_VERIFY_WITH_TIMEOUT(changes() > atFirst + 1, 20000);
}

QTEST_MAIN(tst_HostedPlugin)
#include "tst_hostedplugin.moc"
