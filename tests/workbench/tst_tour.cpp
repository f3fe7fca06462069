// SPDX-License-Identifier: Apache-2.0
// Runs the workbench's executable with the real plug-in, as a person or the continuous integration
// does.

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

class tst_Tour : public QObject
{
    Q_OBJECT

private slots:
    void everyToolGivesAPictureThatShowsSomething();
    void aMissingPluginEndsTheTourWithASentence();
    void aFolderThatCannotBeMadeEndsTheTourWithASentence();
    void theOperatorsOwnListIsLeftAlone();
    void theHelpSpeaksTheLanguageOfTheSystem();

private:
    struct Outcome
    {
        int status = -1;
        QString sentence;
        QString output;
    };

    Outcome run(const QString &program, const QStringList &arguments,
                const QString &locale = QStringLiteral("C.UTF-8")) const;
    QTemporaryDir m_folder;
};

tst_Tour::Outcome tst_Tour::run(const QString &program, const QStringList &arguments,
                                const QString &locale) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.path());
    environment.insert(QStringLiteral("LC_ALL"), locale);
    environment.remove(QStringLiteral("LANGUAGE"));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    constexpr int patience = 90'000;
    if (!process.waitForFinished(patience))
        return {};
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardError()),
            QString::fromLocal8Bit(process.readAllStandardOutput())};
}

void tst_Tour::everyToolGivesAPictureThatShowsSomething()
{
    const QDir pictures(m_folder.filePath(QStringLiteral("a/b")));
    const Outcome tour =
        run(QStringLiteral(WORKBENCH), {QStringLiteral("--tour"), pictures.path()});
    QVERIFY2(tour.status == 0, qPrintable(tour.sentence));
    QStringList files;
    for (const char *name :
         {"workbench", "browser", "context-menu", "functional-constraint", "control",
          "data-set-members", "report-control", "setting-groups", "file-service",
          "offline-setting-groups", "offline-report-control", "device", "trace"})
        files << pictures.filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
    const Outcome check = run(QStringLiteral(PICTURECHECK), files);
    QVERIFY2(check.status == 0, qPrintable(check.sentence));
}

void tst_Tour::aMissingPluginEndsTheTourWithASentence()
{
    const Outcome tour = run(QStringLiteral(WORKBENCH),
                             {QStringLiteral("--plugin-dir"), m_folder.path(),
                              QStringLiteral("--tour"), m_folder.filePath(QStringLiteral("c"))});
    QCOMPARE(tour.status, 1);
    QVERIFY2(tour.sentence.contains(QStringLiteral("is not available: The file does not exist.")),
             qPrintable(tour.sentence));
}

void tst_Tour::aFolderThatCannotBeMadeEndsTheTourWithASentence()
{
    QFile inTheWay(m_folder.filePath(QStringLiteral("file")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const Outcome tour =
        run(QStringLiteral(WORKBENCH),
            {QStringLiteral("--tour"), inTheWay.fileName() + QStringLiteral("/pictures")});
    QCOMPARE(tour.status, 1);
    QVERIFY2(tour.sentence.contains(QStringLiteral("cannot be made")), qPrintable(tour.sentence));
}

void tst_Tour::theOperatorsOwnListIsLeftAlone()
{
    const QTemporaryDir pictures;
    const Outcome tour =
        run(QStringLiteral(WORKBENCH), {QStringLiteral("--tour"), pictures.path()});
    QVERIFY2(tour.status == 0, qPrintable(tour.sentence));
    QVERIFY(!QDir(m_folder.path()).exists(QStringLiteral("IEC61850Ext")));
}

void tst_Tour::theHelpSpeaksTheLanguageOfTheSystem()
{
    const QStringList help{QStringLiteral("--help")};
    const Outcome english = run(QStringLiteral(WORKBENCH), help);
    QVERIFY(english.output.contains(QStringLiteral("Open the demonstration device.")));
    const Outcome german = run(QStringLiteral(WORKBENCH), help, QStringLiteral("de_DE.UTF-8"));
    QVERIFY2(german.output.contains(QStringLiteral("Das Demonstrationsger")),
             qPrintable(german.output));
}

QTEST_GUILESS_MAIN(tst_Tour)
#include "tst_tour.moc"
