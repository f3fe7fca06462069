// SPDX-License-Identifier: Apache-2.0
// The tour in the language of this process: English, or what LC_ALL names.
#include "looks/lookcheck.h"
#include "workbench/fileimport.h"
#include "workbench/mainwindow.h"
#include "workbench/tour.h"
#include "workbench/translators.h"
#include "workbench/workbench.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>

class tst_TourLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void windowPluginAndStandardButtonsSpeakTheLanguage();
    void noMnemonicStandsForTwoEntries();
    void theWindowWithoutDevicesHasRoomForItsTexts();
    void theTourShowsEveryWindowWithoutClippedTexts();
    void everyPictureShowsSomething();

private:
    bool isEnglish() const;

    QTemporaryDir m_folder;
    QString m_pictures;
    QStringList m_files;
    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<MainWindow> m_window;
};

void tst_TourLanguages::initTestCase()
{
    QApplication::setStyle("Fusion");
    QApplication::setFont(QFont("DejaVu Sans", 10));
    installTranslators(translationFolder());
    // Where a person wants to see the pictures too.
    m_pictures = qEnvironmentVariable("TOUR_PICTURES", m_folder.path());
    Workbench::Options options;
    options.settingsFile = m_folder.filePath("workbench.ini");
    options.import = importFromFile;
    m_workbench = std::make_unique<Workbench>(options);
    m_window = std::make_unique<MainWindow>(*m_workbench, PLUGIN_FOLDER);
    m_window->loadExtension();
    QVERIFY2(m_window->extension().extension, qPrintable(m_window->extension().reason));
}

bool tst_TourLanguages::isEnglish() const
{
    const QLocale::Language language = QLocale::system().language();
    return language == QLocale::C || language == QLocale::English;
}

void tst_TourLanguages::windowPluginAndStandardButtonsSpeakTheLanguage()
{
    const QString menu = m_window->menuBar()->actions().first()->text();
    QCOMPARE(menu == "&File", isEnglish());
    const QString tool = m_window->extensionActions().first()->text();
    QCOMPARE(tool == "IED Browser", isEnglish());
    const QString button = QCoreApplication::translate("QPlatformTheme", "Cancel");
    QCOMPARE(button == "Cancel", isEnglish());
}

void tst_TourLanguages::noMnemonicStandsForTwoEntries()
{
    QMultiMap<QString, QString> taken;
    const auto take = [&](const QString &where, const QString &text) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(text);
        if (!mnemonic.isEmpty())
            taken.insert(where + ' ' + mnemonic.toString(), text);
    };
    // What Alt and a letter reach in the window, and what a letter reaches in each open menu.
    const QList<QAction *> menus = m_window->menuBar()->actions();
    for (const QAction *menu : menus) {
        take("window", menu->text());
        const QList<QAction *> entries = menu->menu()->actions();
        for (const QAction *entry : entries)
            take(menu->text(), entry->text());
    }
    const QList<QPushButton *> buttons = m_window->findChildren<QPushButton *>();
    for (const QPushButton *button : buttons)
        take("window", button->text());
    QVERIFY(taken.size() > menus.size());
    const QStringList places = taken.uniqueKeys();
    for (const QString &place : places)
        QVERIFY2(taken.count(place) == 1, qPrintable(taken.values(place).join(" / ")));
}

void tst_TourLanguages::theWindowWithoutDevicesHasRoomForItsTexts()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(m_window->findChild<QPushButton *>("emptyOpen")->isVisible());
    const QStringList flaws = flawsOf(*m_window);
    QVERIFY2(flaws.isEmpty(), qPrintable(flaws.join('\n')));
}

void tst_TourLanguages::theTourShowsEveryWindowWithoutClippedTexts()
{
    QStringList flaws;
    Tour tour(*m_workbench, *m_window, m_pictures);
    tour.setWitness([&](const QWidget &window, const QString &picture) {
        const QStringList found = flawsOf(window);
        for (const QString &flaw : found)
            flaws << picture + ": " + flaw;
        m_files << QDir(m_pictures).filePath(picture + ".png");
    });
    QVERIFY2(tour.run(), qPrintable(tour.problem()));
    QCOMPARE(m_files.size(), 12);
    QVERIFY2(flaws.isEmpty(), qPrintable(flaws.join('\n')));
}

void tst_TourLanguages::everyPictureShowsSomething()
{
    QProcess check;
    check.start(PICTURECHECK, m_files);
    QVERIFY(check.waitForFinished());
    QVERIFY2(check.exitCode() == 0, check.readAllStandardError().constData());
}

QTEST_MAIN(tst_TourLanguages)
#include "tst_tourlanguages.moc"
