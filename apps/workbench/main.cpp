// SPDX-License-Identifier: Apache-2.0
#include "commandline.h"
#include "fileimport.h"
#include "mainwindow.h"
#include "modelcheck.h"
#include "tour.h"
#include "translators.h"
#include "workbench.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <optional>

namespace {

constexpr int unusableStatus = 2; // as --check: nothing could be done at all
const QString geometryKey = QStringLiteral("window/geometry");
const QString stateKey = QStringLiteral("window/state");

void say(const QString &sentence)
{
    QTextStream(stderr) << sentence << '\n';
}

/// True when a window can certainly not be opened: Qt would end the process in its own words.
bool lacksDisplay(const QStringList &arguments)
{
#if defined(Q_OS_LINUX)
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return false;
    }
    return arguments.filter(QRegularExpression(QStringLiteral("^--?platform$"))).isEmpty();
#else
    Q_UNUSED(arguments)
    return false;
#endif
}

/// Answers --help, --version and mistakes; the exit status when nothing is left to do.
std::optional<int> answer(const CommandLine &line)
{
    if (!line.problem.isEmpty()) {
        say(line.problem);
        return unusableStatus;
    }
    if (line.answer.isEmpty())
        return {};
    QTextStream(stdout) << line.answer;
    return EXIT_SUCCESS;
}

int runCheck(const CommandLine &line)
{
    QFile out;
    if (!out.open(stdout, QIODevice::WriteOnly)) {
        say(QCoreApplication::translate("main", "The standard output cannot be written."));
        return unusableStatus;
    }
    return checkModel(line.check, line.ied, out);
}

QString pluginFolder(const CommandLine &line)
{
    return line.pluginFolder.isEmpty()
               ? QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("plugins"))
               : line.pluginFolder;
}

int runTour(const CommandLine &line)
{
    const QTemporaryDir folder;
    Workbench::Options options;
    options.settingsFile = folder.filePath(QStringLiteral("workbench.ini"));
    options.import = importFromFile;
    Workbench workbench(options);
    MainWindow window(workbench, pluginFolder(line));
    window.loadExtension();
    Tour tour(workbench, window, line.tour);
    if (tour.run())
        return EXIT_SUCCESS;
    say(tour.problem());
    return EXIT_FAILURE;
}

int runWindow(const CommandLine &line)
{
    const auto folder = [](QStandardPaths::StandardLocation location) {
        return QDir(QStandardPaths::writableLocation(location));
    };
    const QString settingsFile =
        folder(QStandardPaths::AppConfigLocation).filePath(QStringLiteral("workbench.ini"));
    Workbench::Options options;
    options.settingsFile = settingsFile;
    options.journalFile =
        folder(QStandardPaths::AppDataLocation).filePath(QStringLiteral("changes.csv"));
    options.cacheFolder = folder(QStandardPaths::CacheLocation).filePath(QStringLiteral("devices"));
    options.import = importFromFile;
    Workbench workbench(options);
    MainWindow window(workbench, pluginFolder(line));
    QSettings settings(settingsFile, QSettings::IniFormat);
    const QRect available = QApplication::primaryScreen()->availableGeometry();
    const bool isRestored = window.restoreGeometry(settings.value(geometryKey).toByteArray());
    // A geometry of a larger screen, or of another scale, is none for this one.
    if (!isRestored || window.width() > available.width() || window.height() > available.height())
        window.fitInto(available);
    window.restoreState(settings.value(stateKey).toByteArray());
    window.show();
    window.loadExtension();
    workbench.restoreDevices();
    if (line.demonstration)
        workbench.openDemonstration();
    for (const QString &file : line.files)
        workbench.open(file, line.ied);
    const int status = QApplication::exec();
    if (!workbench.keepsSettings())
        return status;
    settings.setValue(geometryKey, window.saveGeometry());
    settings.setValue(stateKey, window.saveState());
    return status;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("workbench"));
    QCoreApplication::setOrganizationName(QStringLiteral("IEC61850Ext"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));

    QStringList given;
    for (int i = 0; i < argc; ++i)
        given << QString::fromLocal8Bit(argv[i]);
    if (runsWithoutDisplay(given)) {
        const QCoreApplication application(argc, argv);
        installTranslators(translationFolder());
        const CommandLine line = parseCommandLine(QCoreApplication::arguments());
        const std::optional<int> status = answer(line);
        return status ? *status : runCheck(line);
    }

    const bool tour = given.filter(QRegularExpression(QStringLiteral("^--?tour(=|$)"))).size() > 0;
    if (tour) {
        // The same picture on every platform: one resolution, one style, one font.
        qputenv("QT_FONT_DPI", "96");
        if (lacksDisplay(given))
            qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (lacksDisplay(given)) {
        say(QStringLiteral("There is no display to open a window on. Start the workbench from a "
                           "desktop session; --check and --tour need none."));
        return unusableStatus;
    }
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    if (tour) {
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    }
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/workbench/workbench.png")));
    installTranslators(translationFolder());

    const CommandLine line = parseCommandLine(QCoreApplication::arguments());
    if (const std::optional<int> status = answer(line))
        return *status;
    return line.tour.isEmpty() ? runWindow(line) : runTour(line);
}
